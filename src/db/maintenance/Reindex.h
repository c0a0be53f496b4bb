// The re-index of one table: all its tags built anew from the rows.
#pragma once

#include "db/clsDB.h"

namespace maintenance
{

enum class ReindexOutcome {
    Done,
    InUse,  // another station has the table open; nothing was changed
    Failed, // missing files, an index source that is not in its place, no right, no space
};

struct ReindexResult {
    ReindexOutcome outcome = ReindexOutcome::Failed;
    QString kept;   // where the index is as it was; empty: there was none, or it was not touched
    QString reason; // why not, a sentence without its full stop
};

// Needs the table alone. The index as it was is kept beside it under its name with a number behind
// ("nvncat.cdx.1"); the table's rows are not touched. `db` may be any open session on the folder,
// in which the table is closed.
ReindexResult reindexTable(const clsDB &db, const clsDBFile &files);

} // namespace maintenance
