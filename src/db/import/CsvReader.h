// Reads a text file line by line, holding one line at a time. A line ends at CR, LF or the pair.
// Bytes are Windows-1252, or UTF-8 in a file that starts with that byte-order mark.
#pragma once

#include "common/base/Failure.h"

#include <QByteArray>
#include <QFile>
#include <QString>

#include <optional>

class CsvReader
{
public:
    // A line is cut here; what follows up to its end is passed over.
    static constexpr qsizetype maxLineBytes = 4 * 1024 * 1024;

    explicit CsvReader(const QString &path);
    bool open();
    // The next line without its end; nothing at the end of the file or after a fault.
    std::optional<QString> readLine();
    // Where the next line begins, in bytes; seek goes back to such a place.
    qint64 position() const { return m_file.pos() - (m_block.size() - m_pos); }
    bool seek(qint64 position);
    bool lineWasCut() const { return m_cut; }
    // The last line held letters outside Windows-1252, which came as question marks.
    bool lineLostLetters() const { return m_lostLetters; }
    bool failed() const { return m_file.error() != QFileDevice::NoError; }
    // Names the file and what the system said.
    Failure failure() const;

private:
    bool fill();
    void take(qsizetype count);
    void passLineEnd();
    QString decoded();

    QFile m_file;
    QByteArray m_block;
    qsizetype m_pos = 0;
    QByteArray m_line;
    bool m_cut = false;
    bool m_lostLetters = false;
    bool m_utf8 = false;
};
