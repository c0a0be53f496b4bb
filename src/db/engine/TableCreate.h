// Makes an empty table with its index and memo file.
#pragma once

#include "db/engine/File.h"
#include "db/engine/RowLayout.h"

#include <string>

namespace norvane::engine
{

// Where the files go; the index is made when there are tags, the memo file when there are memo
// fields, and their paths may be empty otherwise.
struct TablePaths {
    std::string table;
    std::string index;
    std::string memo;
};

// None of the files may exist; after a failure none of them does.
Status createTable(FileSystem &files, const TableDef &table, const TablePaths &paths);

} // namespace norvane::engine
