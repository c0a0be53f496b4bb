// The full check of a table with its memo file and index.
#pragma once

#include "db/engine/TableFiles.h"

#include <string>
#include <vector>

namespace norvane::engine
{

struct CheckFinding {
    enum class Place {
        Header, // of the table: row count, date, end of the file
        Row,    // what stands in a field or leads to its text
        Memo,   // the memo file's header
        Index,
        Check // could not be made
    };
    Place place;
    std::string text;
};

// Empty when everything is sound. Holds the append and index locks meanwhile, so that no row is
// met half stored.
std::vector<CheckFinding> checkTable(TableFiles &files, const LockPatience &patience);

} // namespace norvane::engine
