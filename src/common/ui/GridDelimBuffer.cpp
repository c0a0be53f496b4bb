// A grid's data to and from one delimited text.
#include "common/ui/Grid.h"

#include "common/base/clsSystem.h"

QString GridDelimBuffer(const Grid *grid, QChar cellDelim, QChar rowDelim, int firstRow,
                        int firstCol)
{
    QString buffer;
    for (int row = firstRow; row <= grid->rows(); ++row)
        for (int column = firstCol; column <= grid->columns(); ++column) {
            buffer += grid->text(row, column);
            buffer += column == grid->columns() ? rowDelim : cellDelim;
        }
    return buffer;
}

void GridSetFromDelimBuffer(Grid *grid, const QString &text, QChar cellDelim, QChar rowDelim,
                            int firstRow, int firstCol)
{
    grid->clearCells();
    const QStringList lines = clsSystem::StrParse2Array(text, rowDelim);
    for (int line = 0; line < lines.size() && firstRow + line <= grid->rows(); ++line) {
        const QStringList cells = clsSystem::StrParse2Array(lines[line], cellDelim);
        for (int cell = 0; cell < cells.size() && firstCol + cell <= grid->columns(); ++cell)
            grid->setText(firstRow + line, firstCol + cell, cells[cell]);
    }
}
