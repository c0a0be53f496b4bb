// Making a row of a grid current, by number or by a text in it.
#pragma once

#include "common/ui/frmFind.h"

#include <functional>

class Grid;

// Makes the row current and scrolls to it, when the grid has it.
void GridSelectRow(Grid *grid, int row);
// Looks from the row behind (upwards: before) the given one to the end of the grid, not round, and
// makes the first row with the text in one of its cells current. A whole cell is compared without
// the blanks around it. False: no row has the text.
bool GridFind(Grid *grid, const frmFind::Request &request, int fromRow);
// Row 0: nowhere.
struct FoundCell {
    int row = 0;
    int column = 0;
};
// The same search over any texts; both rows and columns count from 1.
FoundCell FindCell(int rows, int columns, const std::function<QString(int row, int column)> &text,
                   const frmFind::Request &request, int fromRow);
