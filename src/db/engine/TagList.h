// Which tags an index should have, and whether it has them.
#pragma once

#include "db/engine/IndexFile.h"
#include "db/engine/RowLayout.h"

#include <string>
#include <string_view>
#include <vector>

namespace norvane::engine
{

// True when both are the same but for letter case and blanks outside quotes.
bool sameExpression(std::string_view a, std::string_view b);
// Tags as they stand in an index, for building them anew.
std::vector<TagDef> asDefs(const std::vector<TagInfo> &tags);
// The expected tags as they should be, then those found that nobody expects.
std::vector<TagDef> wantedTags(const std::vector<TagDef> &expected,
                               const std::vector<TagDef> &found);
// Name of a tag that could not be built anew and that nobody expects; empty when there is none,
// and when the file has no expected tag at all: then it belongs to another table.
std::string foreignTag(const std::vector<TagDef> &expected, const SalvagedTags &found);
// Name of the first expected tag that is missing or different; empty when all are there.
std::string missingTag(const std::vector<TagDef> &expected, const std::vector<TagInfo> &found);

} // namespace norvane::engine
