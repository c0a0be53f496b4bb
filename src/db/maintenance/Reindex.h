// The re-index of one table: all its tags built anew from the rows.
#pragma once

#include "db/clsDB.h"

namespace maintenance
{

enum class ReindexOutcome {
    Done,
    InUse,  // another station has the table open
    Failed, // missing files, an index source that is not in its place, no space
};

// Needs the table alone. The index as it was is kept beside it under its name with a number behind
// ("nvncat.cdx.1"); the table's rows are not touched. `db` may be any open session on the folder,
// in which the table is closed.
ReindexOutcome reindexTable(const clsDB &db, const clsDB::FileTriple &files);

} // namespace maintenance
