#include "db/engine/RowLayout.h"

#include <algorithm>

namespace norvane::engine
{

namespace
{

char upper(char c)
{
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

} // namespace

std::string inLowerCase(std::string_view text)
{
    std::string lower(text);
    for (char &c : lower)
        c = c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
    return lower;
}

int RowLayout::find(std::string_view name) const
{
    for (std::size_t i = 0; i < fields.size(); ++i) {
        if (std::equal(name.begin(), name.end(), fields[i].name.begin(), fields[i].name.end(),
                       [](char a, char b) { return upper(a) == upper(b); }))
            return static_cast<int>(i);
    }
    return -1;
}

} // namespace norvane::engine
