// The full check of a table with its memo file and index.
#pragma once

#include "db/engine/TableFiles.h"

#include <string>
#include <vector>

namespace norvane::engine
{

// One line for each finding, empty when everything is sound. Holds the append and index locks
// meanwhile, so that no row is met half stored.
std::vector<std::string> checkTable(TableFiles &files, const LockPatience &patience);

} // namespace norvane::engine
