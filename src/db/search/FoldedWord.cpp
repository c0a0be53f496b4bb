#include "db/search/FoldedWord.h"

#include "common/base/Ansi.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <utility>

namespace
{

using Upper = std::array<char, 256>;

const Upper &upper()
{
    static const Upper table = [] {
        Upper bytes{};
        for (std::size_t code = 0; code < bytes.size(); ++code)
            bytes[code] = static_cast<char>(code);
        const Upper plain = bytes;
        foldAnsi({plain.data(), plain.size()}, bytes.data());
        return bytes;
    }();
    return table;
}

char upperOf(char byte)
{
    return upper()[static_cast<unsigned char>(byte)];
}

// The letters of European texts, the frequent ones last; what is none of them is rarer still.
std::size_t frequency(char byte)
{
    constexpr std::string_view letters = "QXJZKVYWBPFGMHUCDLSRNOITAE";
    return letters.find(byte) + 1; // 0 when it is not among them
}

} // namespace

FoldedWord::FoldedWord(std::string folded) : m_word(std::move(folded))
{
    const auto rarest = std::min_element(
        m_word.begin(), m_word.end(), [](char a, char b) { return frequency(a) < frequency(b); });
    m_anchor = static_cast<std::size_t>(rarest - m_word.begin());
    for (int code = 0; code < 256; ++code) {
        if (upperOf(static_cast<char>(code)) == *rarest)
            m_cases += static_cast<char>(code);
    }
}

bool FoldedWord::isIn(std::string_view text) const
{
    if (text.size() < m_word.size())
        return false;
    const char *end = text.data() + (text.size() - m_word.size()) + m_anchor + 1;
    for (const char byte : m_cases) {
        for (const char *at = text.data() + m_anchor; at < end; ++at) {
            at = static_cast<const char *>(
                std::memchr(at, byte, static_cast<std::size_t>(end - at)));
            if (at == nullptr)
                break;
            if (standsAt(at - m_anchor))
                return true;
        }
    }
    return false;
}

bool FoldedWord::standsAt(const char *text) const
{
    return std::equal(m_word.begin(), m_word.end(), text,
                      [](char wanted, char byte) { return wanted == upperOf(byte); });
}
