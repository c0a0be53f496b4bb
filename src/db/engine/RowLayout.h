// The fields of a table as they lie in a record (docs/table-format.md).
#pragma once

#include "db/engine/Bytes.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace norvane::engine
{

struct FieldDef {
    std::string name;         // upper case, at most 10 characters
    char type = 'C';          // C N F D L M, and I in tables of other programs
    std::uint16_t offset = 0; // bytes from the start of the record; 0 is the deletion flag
    std::uint16_t length = 0; // bytes
    std::uint8_t decimals = 0;
};

// Letters A to Z; names of files, fields and tags have no others.
std::string inLowerCase(std::string_view text);

struct RowLayout {
    std::vector<FieldDef> fields;
    std::uint16_t recordLength = 1; // bytes, deletion flag included

    // Position of the field in `fields`, -1 when there is none; letter case does not matter.
    int find(std::string_view name) const;
};

// A tag to be made: all texts as they go into the index file.
struct TagDef {
    std::string name;        // at most 10 characters
    std::string expression;  // key
    std::string filter;      // empty: every row
    bool unique = false;     // of equal keys only the first record
    bool descending = false; // shown backwards by programs that care
};

// A table to be made (TableCreate.h).
struct TableDef {
    std::vector<FieldDef> fields; // offsets are worked out by the maker
    std::vector<TagDef> tags;     // in creation order; the first is the table's default order
};

} // namespace norvane::engine
