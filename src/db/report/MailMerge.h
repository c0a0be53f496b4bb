// A table of customers for the mail merge of a word processor.
#pragma once

#include "db/clsDB.h"

#include <functional>
#include <optional>
#include <vector>

// Writes the customers, in that order, into a table made from the template, and puts it whole in
// the place of `path`. Customers who are gone are left out. `goOn` is asked after each with how
// many were looked at; false gives up. How many were written; nothing when there is no such file,
// or the one from before: given up, or a failure, which was told under the context.
std::optional<qint32> writeMailMerge(const QString &path, const std::vector<qint32> &custids,
                                     const std::function<bool(qint32 done)> &goOn,
                                     const char *context);
