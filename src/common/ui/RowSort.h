// Sorting the rows of a list by one column.
#pragma once

#include "common/ui/ListRows.h"

#include <functional>
#include <optional>

class TextOrder;

// The rows in the order of that column's texts, equals as they stand: the row that belongs at i is
// the i-th. `goOn` is asked every few thousand steps; nothing when it said no,
// or when rows came or went meanwhile.
std::optional<std::vector<std::uint32_t>> sortedRows(const ListRows &rows, int column,
                                                     Qt::SortOrder order, const TextOrder &texts,
                                                     const std::function<bool()> &goOn);
