#include "db/search/IssueSearch.h"

#include "db/search/WordMatcher.h"

using namespace norvane::engine;

namespace
{

std::string_view bytesOf(Handle field)
{
    const char *bytes = field > 0 ? f4ptr(field) : nullptr;
    return bytes == nullptr ? std::string_view() : std::string_view(bytes, f4len_v(field));
}

std::string_view trimmed(std::string_view text)
{
    const auto first = text.find_first_not_of(' ');
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

} // namespace

IssueSearch::IssueSearch(Handle issues)
    : m_issues(issues),
      m_rowid(d4field(issues, "rowid")),
      m_custid(d4field(issues, "custid")),
      m_psid(d4field(issues, "psid")),
      m_status(d4field(issues, "status")),
      m_priority(d4field(issues, "priority")),
      m_shortdesc(d4field(issues, "shortdesc")),
      m_submitdt(d4field(issues, "submitdt")),
      m_desc(d4field(issues, "desc")),
      m_resolution(d4field(issues, "resolution"))
{
}

bool IssueSearch::search(const IssueQuery &query, const Found &found, const GoOn &goOn)
{
    m_unreadable = 0;
    const WordMatcher words(query.text, query.type);
    const auto look = [&] {
        if (matches(query, words))
            found(hit());
    };
    return query.psid > 0 ? byTag("PSID", query.psid, look, goOn) : inFileOrder(look, goOn);
}

bool IssueSearch::assignedTo(qint32 user, std::optional<qint32> status, const Found &found,
                             const GoOn &goOn)
{
    m_unreadable = 0;
    const auto look = [&] {
        if (!status || f4long(m_status) == *status)
            found(hit());
    };
    return byTag("ASSIGNEDTO", user, look, goOn);
}

bool IssueSearch::ofStatus(qint32 status, const Found &found, const GoOn &goOn)
{
    m_unreadable = 0;
    return byTag(
        "STATUS", status, [&] { found(hit()); }, goOn);
}

// Rows lie side by side there and are read many at a time, which no tag can do for all of them.
bool IssueSearch::inFileOrder(const std::function<void()> &look, const GoOn &goOn) const
{
    d4tagSelect(m_issues, 0);
    for (Code code = d4top(m_issues); code == r4success; code = d4skip(m_issues, 1)) {
        if (!d4deleted(m_issues))
            look();
        if (!goOn())
            return false;
    }
    return true;
}

bool IssueSearch::byTag(const char *tag, qint32 key, const std::function<void()> &look,
                        const GoOn &goOn) const
{
    const Handle order = d4tag(m_issues, tag);
    if (order < 1) { // a folder made elsewhere may lack it
        const Handle field = d4field(m_issues, tag);
        return inFileOrder([&] { f4long(field) == key ? look() : void(); }, goOn);
    }
    d4tagSelect(m_issues, order);
    for (Code code = d4seekDouble(m_issues, key); code == r4success;
         code = d4seekNextDouble(m_issues, key)) {
        look();
        if (!goOn())
            return false;
    }
    return true;
}

// All words of a search for all of them must stand in the same text. A text is only read while
// none before it has matched.
bool IssueSearch::matches(const IssueQuery &query, const WordMatcher &words)
{
    if (words.takesAll())
        return true;
    if (query.inShortDesc && words.matches(bytesOf(m_shortdesc)))
        return true;
    bool readable = true;
    const bool matched = (query.inDesc && memoMatches(words, m_desc, readable)) ||
                         (query.inResolution && memoMatches(words, m_resolution, readable));
    m_unreadable += readable ? 0 : 1;
    return matched;
}

bool IssueSearch::memoMatches(const WordMatcher &words, Handle memo, bool &readable) const
{
    const char *text = f4memoPtr(memo);
    readable = readable && text != nullptr;
    return text != nullptr && words.matches({text, f4memoLenVB(memo)});
}

IssueHit IssueSearch::hit() const
{
    return {f4long(m_rowid),    f4long(m_custid),   f4long(m_psid),
            f4long(m_status),   f4long(m_priority), trimmed(bytesOf(m_shortdesc)),
            bytesOf(m_submitdt)};
}
