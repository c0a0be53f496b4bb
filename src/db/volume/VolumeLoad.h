// Fills a database with a given number of customers and issues, for trials of how it behaves when
// it is large. Rows are added in sole use of their tables, past the ordinary saves, as an import of
// that size would take hours.
#pragma once

#include "db/clsDB.h"

#include <functional>

namespace volume
{

struct Size {
    qint32 customers = 0; // with issues, at least one
    qint32 issues = 0;
    qint32 products = 200; // entries of the list, as many as are wanted when there are fewer
    qint32 users = 50;     // the same
};

// False when it came to an end before: a table is in use or cannot be written, or `goOn` said no,
// which it is asked every few thousand rows. What was added stays.
bool fill(clsDB &db, const Size &size, const std::function<bool()> &goOn);

} // namespace volume
