// Bringing the files of a table to where the records of its journal say they should be.
#pragma once

#include "db/engine/Journal.h"
#include "db/engine/WriteSet.h"

#include <vector>

namespace norvane::engine
{

struct ReplayResult {
    // Something else wrote here too: pieces that do not fit were left out, the tags are doubtful.
    bool foreign = false;
    bool wrote = false; // or would have
};

enum class Replaying {
    WhatDiffers,
    Everything, // also what is there already
    Nothing     // tells what is to be done
};

// Writes the last bytes of each place that still has earlier ones. Doing it again changes
// nothing, so it may break off anywhere.
Result<ReplayResult> replay(const std::vector<JournalRecord> &records, const TargetFiles &files,
                            Replaying what);

} // namespace norvane::engine
