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

bool GridFind(Grid *grid, const frmFind::Request &request, int fromRow)
{
    const Qt::CaseSensitivity cases = request.matchCase ? Qt::CaseSensitive : Qt::CaseInsensitive;
    const QString trimmed = clsSystem::Trim(request.text);
    const auto matches = [&](const QString &cell) {
        return request.wholeWordOnly ? clsSystem::Trim(cell).compare(trimmed, cases) == 0
                                     : cell.contains(request.text, cases);
    };
    const int step = request.directionUp ? -1 : 1;
    for (int row = fromRow + step; row >= 1 && row <= grid->rows(); row += step)
        for (int column = 1; column <= grid->columns(); ++column)
            if (matches(grid->text(row, column))) {
                GridSelectRow(grid, row);
                return true;
            }
    return false;
}
