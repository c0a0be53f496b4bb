#include "db/engine/TagList.h"

#include <algorithm>

namespace norvane::engine
{

namespace
{

std::string plain(std::string_view expression)
{
    std::string text;
    char quote = 0;
    for (const char c : expression) {
        if (quote == 0 && c == ' ')
            continue;
        text += quote == 0 && c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
        if (quote != 0)
            quote = c == quote ? '\0' : quote;
        else if (c == '"' || c == '\'')
            quote = c;
    }
    return text;
}

template <class Tags>
auto findTag(const Tags &tags, std::string_view name)
{
    return std::find_if(tags.begin(), tags.end(), [wanted = inLowerCase(name)](const auto &tag) {
        return inLowerCase(tag.name) == wanted;
    });
}

} // namespace

bool sameExpression(std::string_view a, std::string_view b)
{
    return a == b || plain(a) == plain(b);
}

std::vector<TagDef> asDefs(const std::vector<TagInfo> &tags)
{
    std::vector<TagDef> defs;
    defs.reserve(tags.size());
    for (const TagInfo &tag : tags)
        defs.push_back({tag.name, tag.expression, tag.filter, tag.unique, tag.descending});
    return defs;
}

std::vector<TagDef> wantedTags(const std::vector<TagDef> &expected,
                               const std::vector<TagDef> &found)
{
    std::vector<TagDef> tags = expected;
    for (TagDef &tag : tags) {
        const auto same = findTag(found, tag.name);
        if (same != found.end())
            tag.descending = same->descending; // only a matter of how others show it
    }
    for (const TagDef &tag : found) {
        if (findTag(expected, tag.name) == expected.end())
            tags.push_back(tag);
    }
    return tags;
}

std::string foreignTag(const std::vector<TagDef> &expected, const SalvagedTags &found)
{
    const auto isExpected = [&](const std::string &name) {
        return findTag(expected, name) != expected.end();
    };
    const bool ofThisTable = expected.empty() ||
                             std::any_of(found.tags.begin(), found.tags.end(),
                                         [&](const TagDef &tag) { return isExpected(tag.name); }) ||
                             std::any_of(found.refused.begin(), found.refused.end(), isExpected);
    const auto foreign = std::find_if_not(found.refused.begin(), found.refused.end(), isExpected);
    return ofThisTable && foreign != found.refused.end() ? *foreign : std::string();
}

std::string missingTag(const std::vector<TagDef> &expected, const std::vector<TagInfo> &found)
{
    for (const TagDef &tag : expected) {
        const auto there = findTag(found, tag.name);
        if (there == found.end() || there->unique != tag.unique ||
            !sameExpression(there->expression, tag.expression) ||
            !sameExpression(there->filter, tag.filter))
            return tag.name;
    }
    return {};
}

} // namespace norvane::engine
