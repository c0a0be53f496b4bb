#include "search/CustomerMatcher.h"

#include "common/base/Ansi.h"

namespace
{

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
    const QByteArray stored = toAnsi(wanted);
    // "?" stands for what cannot be stored; it must not find question marks.
    m_storable = fromAnsi(stored) == wanted;
    m_wanted.resize(static_cast<std::size_t>(stored.size()));
    foldAnsi({stored.constData(), m_wanted.size()}, m_wanted.data());
}

bool CustomerMatcher::fieldContains(std::string_view stored) const
{
    const std::string_view text = trimmed(stored);
    if (!m_storable || text.empty() || text.size() < m_wanted.size())
        return false;
    m_folded.resize(text.size());
    foldAnsi(text, m_folded.data());
    return m_folded.find(m_wanted) != std::string::npos;
}
