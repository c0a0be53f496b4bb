// A table's live rows as text.
#pragma once

#include "ctl/Console.h"
#include "db/engine/engine.h"

namespace ctl
{

enum class RowFormat { Json, Csv };

// A text in JSON's quotation marks.
QString jsonText(const QString &text);
// A text as a CSV value, in quotation marks when it needs them.
QString csvText(const QString &text);

// Writes the live rows in rowid order (file order without such a field). The rows are read in file
// order, so damage of the index does not hide any. False when reading or writing failed.
bool dumpTable(norvane::engine::Handle table, RowFormat format, Console &console);

} // namespace ctl
