// The words of a search, and whether a text has them: a plain part of the text, without regard to
// case, on contents as they are stored. Whole tables are walked with it, so it makes no texts.
#pragma once

#include "db/search/FoldedWord.h"

#include <QString>

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

// How the words count, by the identifiers kept in the preferences; any other value takes every
// text.
enum WordSearch : qint32 { AnyOfTheWords = 1, AllOfTheWords = 2 };

class WordMatcher
{
public:
    // Words stand between single blanks; two blanks in a row make an empty word, which is in every
    // text. The blanks around `text` do not count; a text without words is in every text.
    WordMatcher(const QString &text, qint32 type);

    // True when no text needs to be looked at: all match.
    bool takesAll() const { return m_verdict == Verdict::All; }
    bool matches(std::string_view stored) const;

private:
    enum class Verdict { All, None, ByWords };

    void takeWords(const QString &text);
    void indexWords();
    bool hasEach() const; // of many words
    bool hasOne() const;
    template <class Found>
    bool walkWords(Found found) const;

    qint32 m_type;
    Verdict m_verdict = Verdict::ByWords;
    bool m_hasEmpty = false;
    bool m_hasForeign = false;        // a word that cannot be stored at all
    std::vector<std::string> m_words; // upper case, sorted, each once
    std::size_t m_longest = 0;

    std::vector<FoldedWord> m_few; // the words when they are few
    // For many words: those that begin with a pair of bytes stand from m_first[pair] on.
    std::vector<std::uint32_t> m_first;
    mutable std::string m_folded;              // the text at hand, kept for its memory
    mutable std::vector<std::uint32_t> m_seen; // by word: the text it was last found in
    mutable std::uint32_t m_text = 0;
};

// Trimmed and in upper case as the words are compared: what a search is called in a caption.
QString searchTextShown(const QString &text);
