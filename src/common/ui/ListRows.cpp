#include "common/ui/ListRows.h"

#include <algorithm>
#include <cstring>
#include <string>
#include <utility>

namespace
{

constexpr std::size_t FirstBlock = 4096;
constexpr std::size_t LargestBlock = 1 << 20;

// A row is its key, the number of its texts, and the texts. A string is its length in characters,
// doubled, plus 1 when they have 16 bits, and the characters. Numbers take 7 bits a byte.
std::size_t sizeOfNumber(std::size_t number)
{
    std::size_t bytes = 1;
    while ((number >>= 7U) != 0)
        ++bytes;
    return bytes;
}

char *putNumber(char *to, std::size_t number)
{
    for (; number >= 0x80; number >>= 7U)
        *to++ = static_cast<char>((number & 0x7FU) | 0x80U);
    *to++ = static_cast<char>(number);
    return to;
}

std::size_t takeNumber(const char *&from)
{
    std::size_t number = 0;
    for (unsigned shift = 0;; shift += 7) {
        const auto byte = static_cast<unsigned char>(*from++);
        number |= std::size_t{byte & 0x7FU} << shift;
        if (byte < 0x80)
            return number;
    }
}

bool isWide(QStringView text)
{
    return std::any_of(text.begin(), text.end(), [](QChar c) { return c.unicode() > 0xFF; });
}

std::size_t headOf(QStringView text, bool wide)
{
    return static_cast<std::size_t>(text.size()) * 2 + (wide ? 1 : 0);
}

std::size_t bytesOf(std::size_t head)
{
    return (head & 1U) != 0 ? head / 2 * 2 : head / 2;
}

std::size_t sizeOfString(QStringView text)
{
    const std::size_t head = headOf(text, isWide(text));
    return sizeOfNumber(head) + bytesOf(head);
}

char *putString(char *to, QStringView text)
{
    const bool wide = isWide(text);
    const std::size_t head = headOf(text, wide);
    to = putNumber(to, head);
    if (wide)
        std::memcpy(to, text.utf16(), bytesOf(head));
    else
        std::transform(text.begin(), text.end(), to,
                       [](QChar c) { return static_cast<char>(c.unicode()); });
    return to + bytesOf(head);
}

QString takeString(const char *&from)
{
    const std::size_t head = takeNumber(from);
    const char *const bytes = std::exchange(from, from + bytesOf(head));
    const auto length = static_cast<qsizetype>(head / 2);
    if ((head & 1U) == 0)
        return QString::fromLatin1(bytes, length);
    QString text(length, Qt::Uninitialized);
    std::memcpy(text.data(), bytes, bytesOf(head));
    return text;
}

void passString(const char *&from)
{
    const std::size_t head = takeNumber(from);
    from += bytesOf(head);
}

} // namespace

char *ListRows::room(std::size_t bytes)
{
    if (m_blocks.empty() || m_used + bytes > m_blockSize) {
        const std::size_t next = m_blocks.empty() ? FirstBlock : 2 * m_blockSize;
        m_blockSize = std::max(std::min(next, LargestBlock), bytes);
        m_blocks.push_back(std::unique_ptr<char[]>(new char[m_blockSize])); // not filled
        m_used = 0;
    }
    return m_blocks.back().get() + std::exchange(m_used, m_used + bytes);
}

const char *ListRows::store(const QString &key, const QStringList &texts)
{
    const auto count = static_cast<std::size_t>(texts.size());
    std::size_t bytes = sizeOfString(key) + sizeOfNumber(count);
    for (const QString &text : texts)
        bytes += sizeOfString(text);
    char *const row = room(bytes);
    char *to = putNumber(putString(row, key), count);
    for (const QString &text : texts)
        to = putString(to, text);
    return row;
}

void ListRows::append(const QString &key, const QStringList &texts)
{
    m_rows.push_back(store(key, texts));
    ++m_version;
}

void ListRows::insert(int row, const QString &key, const QStringList &texts)
{
    m_rows.insert(m_rows.begin() + row, store(key, texts));
    ++m_version;
}

// What the row held stays until the list is emptied.
void ListRows::removeAt(int row)
{
    m_rows.erase(m_rows.begin() + row);
    ++m_version;
}

void ListRows::clear()
{
    const unsigned version = m_version;
    *this = ListRows();
    m_version = version + 1;
}

void ListRows::setText(int row, int column, const QString &text)
{
    QStringList all = texts(row);
    while (all.size() <= column)
        all.append(QString());
    all[column] = text;
    m_rows[static_cast<std::size_t>(row)] = store(key(row), all);
}

QString ListRows::key(int row) const
{
    const char *from = m_rows[static_cast<std::size_t>(row)];
    return takeString(from);
}

QString ListRows::text(int row, int column) const
{
    const char *from = m_rows[static_cast<std::size_t>(row)];
    passString(from);
    if (column < 0 || static_cast<std::size_t>(column) >= takeNumber(from))
        return {};
    for (int before = 0; before < column; ++before)
        passString(from);
    return takeString(from);
}

QStringList ListRows::texts(int row) const
{
    const char *from = m_rows[static_cast<std::size_t>(row)];
    passString(from);
    QStringList all;
    for (std::size_t left = takeNumber(from); left > 0; --left)
        all.append(takeString(from));
    return all;
}

int ListRows::rowOfKey(const QString &key, int limit) const
{
    std::string wanted(sizeOfString(key), '\0');
    putString(wanted.data(), key);
    const char *bytes = wanted.data();
    const std::size_t head = takeNumber(bytes);
    const auto end = m_rows.begin() + limit;
    const auto found = std::find_if(m_rows.begin(), end, [bytes, head](const char *row) {
        return takeNumber(row) == head && std::memcmp(row, bytes, bytesOf(head)) == 0;
    });
    return found == end ? -1 : static_cast<int>(found - m_rows.begin());
}

void ListRows::arrange(const std::vector<std::uint32_t> &order)
{
    std::vector<const char *> arranged;
    arranged.reserve(order.size());
    for (const std::uint32_t row : order)
        arranged.push_back(m_rows[row]);
    m_rows = std::move(arranged);
    ++m_version;
}
