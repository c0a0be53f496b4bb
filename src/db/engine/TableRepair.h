// The repair of a table with its memo file and index, as far as its files prove what is right.
#pragma once

#include "db/engine/engine.h"
#include "db/engine/TableFiles.h"

#include <vector>

namespace norvane::engine
{

// Adds a line for each thing put right or left. REQUIRES: exclusive().
Status repairTable(TableFiles &files, std::vector<RepairLine> &report);

} // namespace norvane::engine
