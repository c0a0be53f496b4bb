#include "db/import/CsvReader.h"

#include "common/base/Ansi.h"
#include "common/base/AppInfo.h"
#include "common/base/clsSystem.h"

#include <QCoreApplication>

#include <algorithm>

namespace
{

struct Words {
    Q_DECLARE_TR_FUNCTIONS(CsvReader)
};

constexpr qint64 blockSize = 64 * 1024;
constexpr char endOfFileMark = '\x1A';

} // namespace

CsvReader::CsvReader(const QString &path) : m_file(clsSystem::LocalPath(path)) {}

bool CsvReader::open()
{
    if (m_file.fileName().isEmpty() || !m_file.open(QIODevice::ReadOnly))
        return false;
    static const QByteArray mark("\xEF\xBB\xBF");
    fill();
    m_utf8 = m_block.startsWith(mark);
    m_pos = m_utf8 ? mark.size() : 0;
    return !failed();
}

bool CsvReader::seek(qint64 position)
{
    m_block.clear();
    m_pos = 0;
    return m_file.seek(position);
}

Failure CsvReader::failure() const
{
    constexpr int DeviceError = 57;
    return {
        DeviceError, app::title(),
        Words::tr("The file '%1' cannot be read: %2").arg(m_file.fileName(), m_file.errorString())};
}

// Gets the next block when the last one is used up.
bool CsvReader::fill()
{
    if (m_pos < m_block.size())
        return true;
    m_block = m_file.read(blockSize);
    m_pos = 0;
    return !m_block.isEmpty();
}

void CsvReader::take(qsizetype count)
{
    const qsizetype room = std::max<qsizetype>(maxLineBytes - m_line.size(), 0);
    m_line.append(m_block.constData() + m_pos, std::min(count, room));
    m_cut = m_cut || count > room;
    m_pos += count;
}

void CsvReader::passLineEnd()
{
    const char end = m_block[m_pos++];
    if (end == '\r' && fill() && m_block[m_pos] == '\n')
        ++m_pos;
}

// As it will be stored, so that nothing is seen beforehand that is not there afterwards.
QString CsvReader::decoded()
{
    QByteArray stored = m_line;
    if (m_utf8) {
        stored = toAnsi(QString::fromUtf8(m_line));
        m_lostLetters = stored.count('?') > m_line.count('?');
    }
    QString text = fromAnsi(stored);
    // No text holds this one; a field that took it would seem to end there.
    text.remove(QChar(u'\0'));
    return text;
}

std::optional<QString> CsvReader::readLine()
{
    m_line.clear();
    m_cut = false;
    m_lostLetters = false;
    if (!fill())
        return std::nullopt;
    while (fill()) {
        const char *from = m_block.constData() + m_pos;
        const char *end = m_block.constData() + m_block.size();
        const char *stop = std::find_if(from, end, [](char c) { return c == '\r' || c == '\n'; });
        take(stop - from);
        if (stop != end) {
            passLineEnd();
            return decoded();
        }
    }
    // The mark that old programs put behind the last line is no line.
    if (failed() || m_line == QByteArray(1, endOfFileMark))
        return std::nullopt;
    return decoded();
}
