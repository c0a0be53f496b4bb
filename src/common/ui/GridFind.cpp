#include "common/ui/GridFind.h"

#include "common/base/clsSystem.h"
#include "common/ui/Grid.h"

void GridSelectRow(Grid *grid, int row)
{
    if (row < 1 || row > grid->rows())
        return;
    const QModelIndex current = grid->currentIndex();
    const QModelIndex index =
        grid->model()->index(row - 1, current.isValid() ? current.column() : 0);
    grid->setCurrentIndex(index);
    grid->scrollTo(index);
}

FoundCell FindCell(int rows, int columns, const std::function<QString(int row, int column)> &text,
                   const frmFind::Request &request, int fromRow)
{
    const Qt::CaseSensitivity cases = request.matchCase ? Qt::CaseSensitive : Qt::CaseInsensitive;
    const QString trimmed = clsSystem::Trim(request.text);
    const auto matches = [&](const QString &cell) {
        return request.wholeWordOnly ? clsSystem::Trim(cell).compare(trimmed, cases) == 0
                                     : cell.contains(request.text, cases);
    };
    const int step = request.directionUp ? -1 : 1;
    for (int row = fromRow + step; row >= 1 && row <= rows; row += step)
        for (int column = 1; column <= columns; ++column)
            if (matches(text(row, column)))
                return {row, column};
    return {};
}

bool GridFind(Grid *grid, const frmFind::Request &request, int fromRow)
{
    const FoundCell found = FindCell(
        grid->rows(), grid->columns(),
        [grid](int row, int column) { return grid->text(row, column); }, request, fromRow);
    GridSelectRow(grid, found.row);
    return found.row > 0;
}
