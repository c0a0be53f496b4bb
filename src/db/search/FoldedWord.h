// A word looked for in texts as they are stored, without regard to case and without folding the
// texts: they are passed over by that byte of the word which they have least often.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

class FoldedWord
{
public:
    // `folded`: in upper case by foldAnsi, not empty.
    explicit FoldedWord(std::string folded);

    bool isIn(std::string_view text) const;

private:
    bool standsAt(const char *text) const;

    std::string m_word;
    std::size_t m_anchor = 0; // place of that byte in the word
    std::string m_cases;      // the bytes that it may be in a text
};
