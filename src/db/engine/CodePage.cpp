#include "db/engine/CodePage.h"

namespace norvane::engine
{

namespace
{

struct CasePair {
    Byte lower;
    Byte upper;
};

// Pairs outside the regular blocks: s, oe, z with marks and y with two dots.
constexpr CasePair strayPairs[] = {{0x9A, 0x8A}, {0x9C, 0x8C}, {0x9E, 0x8E}, {0xFF, 0x9F}};

constexpr bool hasRegularCapital(int code)
{
    return (code >= 'a' && code <= 'z') || (code >= 0xE0 && code <= 0xFE && code != 0xF7);
}

constexpr CaseTable makeTable(bool toUpper)
{
    CaseTable table{};
    for (int code = 0; code < 256; ++code)
        table[static_cast<std::size_t>(code)] = static_cast<Byte>(code);
    for (int code = 0; code < 256; ++code) {
        if (!hasRegularCapital(code))
            continue;
        const int capital = code - 0x20;
        table[static_cast<std::size_t>(toUpper ? code : capital)] =
            static_cast<Byte>(toUpper ? capital : code);
    }
    for (const CasePair &pair : strayPairs)
        table[toUpper ? pair.lower : pair.upper] = toUpper ? pair.upper : pair.lower;
    return table;
}

} // namespace

constexpr CaseTable upperCase = makeTable(true);
constexpr CaseTable lowerCase = makeTable(false);

} // namespace norvane::engine
