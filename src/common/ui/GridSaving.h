// A grid as a comma-delimited file.
#pragma once

#include <QString>

#include <functional>

class Grid;

// Asks for the name and writes that range, both ends included; row 0 is the heading, column 0 the
// row numbers. Then offers to open the file. False when it was not saved.
bool SaveGrid(const Grid &grid, int firstRow, int lastRow, int firstCol, int lastCol);
// The same over any texts; `text` gives a cell as it is shown.
bool SaveGridTexts(const std::function<QString(int row, int column)> &text, int firstRow,
                   int lastRow, int firstCol, int lastCol);

// One field: flags as "Yes" and "No", numbers in plain form, all else in quotation marks.
QString gridField(const QString &text);
