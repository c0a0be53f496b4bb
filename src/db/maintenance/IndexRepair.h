// Repairs a table whose index is missing or cannot even be opened, which the engine alone refuses.
#pragma once

#include "db/clsDB.h"

#include <QString>

#include <vector>

namespace maintenance
{

// d4repair; when the index is what keeps the table from being opened, it is kept aside under its
// name with a number, the empty one of the templates takes its place, and the table is repaired
// with that. When this fails too, everything is as it was. A station that reads meanwhile can find
// no rows for a moment.
norvane::engine::Code repairWithIndex(norvane::engine::Handle session,
                                      const clsDB::FileTriple &files,
                                      std::vector<norvane::engine::RepairLine> &report);

// A name that is not taken yet: the path with a number behind.
QString asidePath(const QString &path);

} // namespace maintenance
