#include "search/CustomerMatcher.h"

#include "common/base/Ansi.h"

namespace
{

// Upper case inside the 8-bit set; a character whose upper case has no place there stands for
// itself.
char upperByte(char byte)
{
    const QString upper = fromAnsi(QByteArrayView(&byte, 1)).toUpper();
    const QByteArray stored = toAnsi(upper);
    return stored.size() == 1 && fromAnsi(stored) == upper ? stored.front() : byte;
}

std::string_view trimmed(std::string_view text)
{
    const auto first = text.find_first_not_of(' ');
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

} // namespace

CustomerMatcher::CustomerMatcher(const QString &wanted)
{
    for (int code = 0; code < 256; ++code)
        m_upper[static_cast<std::size_t>(code)] = upperByte(static_cast<char>(code));
    const QByteArray stored = toAnsi(wanted);
    // "?" stands for what cannot be stored; it must not find question marks.
    m_storable = fromAnsi(stored) == wanted;
    m_wanted.reserve(static_cast<std::size_t>(stored.size()));
    for (const char byte : stored)
        m_wanted += m_upper[static_cast<unsigned char>(byte)];
}

bool CustomerMatcher::fieldContains(std::string_view stored) const
{
    const std::string_view text = trimmed(stored);
    if (!m_storable || text.empty() || text.size() < m_wanted.size())
        return false;
    m_folded.clear();
    for (const char byte : text)
        m_folded += m_upper[static_cast<unsigned char>(byte)];
    return m_folded.find(m_wanted) != std::string::npos;
}
