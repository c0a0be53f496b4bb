// Issues by words in their texts, by product and by person, read from an open table of issues.
// Nothing here knows a screen: hits are handed over one by one, and after each row looked at the
// caller says whether to go on.
#pragma once

#include "db/engine/engine.h"

#include <QString>

#include <functional>
#include <optional>
#include <string_view>

class WordMatcher;

struct IssueQuery {
    QString text;    // words, as WordMatcher takes them
    qint32 type = 1; // WordSearch
    qint32 psid = 0; // below 1: all products and services
    bool inShortDesc = true;
    bool inDesc = false;
    bool inResolution = false;
};

// What the lists show of a row; the texts are stored bytes, good during the call only.
struct IssueHit {
    qint32 rowid = 0;
    qint32 custid = 0;
    qint32 psid = 0;
    qint32 status = 0;
    qint32 priority = 0;
    std::string_view shortdesc; // without the blanks around it
    std::string_view submitdt;  // YYYYMMDD or blanks
};

class IssueSearch
{
public:
    using Handle = norvane::engine::Handle;
    using Found = std::function<void(const IssueHit &)>;
    using GoOn = std::function<bool()>;

    // `issues` is an open table of issues, which stays the caller's.
    explicit IssueSearch(Handle issues);

    // All rows that match, those of a product by its tag, else in the order of the file. False
    // when the caller ended it.
    bool search(const IssueQuery &query, const Found &found, const GoOn &goOn);
    // The issues assigned to a user (-1: to nobody), of one status or of all.
    bool assignedTo(qint32 user, std::optional<qint32> status, const Found &found,
                    const GoOn &goOn);
    bool ofStatus(qint32 status, const Found &found, const GoOn &goOn);

    // Rows of the last search with a text that was wanted and could not be read.
    qint32 unreadable() const { return m_unreadable; }

private:
    bool inFileOrder(const std::function<void()> &look, const GoOn &goOn) const;
    bool byTag(const char *tag, qint32 key, const std::function<void()> &look,
               const GoOn &goOn) const;
    bool matches(const IssueQuery &query, const WordMatcher &words);
    bool memoMatches(const WordMatcher &words, Handle memo, bool &readable) const;
    IssueHit hit() const;

    Handle m_issues;
    Handle m_rowid, m_custid, m_psid, m_status, m_priority;
    Handle m_shortdesc, m_submitdt, m_desc, m_resolution;
    qint32 m_unreadable = 0;
};
