// The Lv... operations: selection and sorting of a ListView by the names the screens use.
#include "common/ui/ListView.h"

#include <QItemSelectionModel>

#include <limits>

namespace
{

constexpr auto wholeRows = QItemSelectionModel::Rows;

QItemSelection allRows(const ListView *lv)
{
    const QAbstractItemModel *model = lv->model();
    if (model->rowCount() == 0 || model->columnCount() == 0)
        return {};
    return {model->index(0, 0), model->index(model->rowCount() - 1, model->columnCount() - 1)};
}

// Works on ranges, since a selection may be all of a long list. -1 when nothing is selected.
int firstSelectedRow(const ListView *lv)
{
    int first = std::numeric_limits<int>::max();
    for (const QItemSelectionRange &range : lv->selectionModel()->selection())
        first = std::min(first, range.top());
    return first == std::numeric_limits<int>::max() ? -1 : first;
}

bool selectRow(ListView *lv, int row)
{
    const QModelIndex index = lv->model()->index(row, 0);
    if (!index.isValid())
        return false;
    lv->selectionModel()->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect | wholeRows);
    lv->scrollTo(index);
    return true;
}

} // namespace

QString LvKey(qint32 rowid)
{
    return u'N' + QString::number(rowid);
}

qint32 LvKeyId(const QString &key)
{
    return key.mid(1).toInt();
}

bool LvIsItemSelected(const ListView *lv)
{
    return firstSelectedRow(lv) >= 0;
}

QString LvGetSelectedItemText(const ListView *lv)
{
    return lv->itemText(firstSelectedRow(lv), 0);
}

QString LvGetSelectedItemKey(const ListView *lv)
{
    return lv->itemKey(firstSelectedRow(lv));
}

void LvSelectFirstItem(ListView *lv)
{
    selectRow(lv, 0);
}

int LvNumItemsSelected(const ListView *lv)
{
    int count = 0;
    for (const QItemSelectionRange &range : lv->selectionModel()->selection())
        count += range.height();
    return count;
}

bool LvSelectItem(ListView *lv, const QString &key)
{
    return !key.isEmpty() && selectRow(lv, lv->rowOfKey(key));
}

bool LvSelectItemByText(ListView *lv, const QString &text)
{
    for (int row = 0; row < lv->itemCount(); ++row)
        if (lv->itemText(row, 0).compare(text, Qt::CaseInsensitive) == 0)
            return selectRow(lv, row);
    return false;
}

bool LvSelectAllItems(ListView *lv, bool selected)
{
    lv->selectionModel()->select(allRows(lv), selected ? QItemSelectionModel::ClearAndSelect
                                                       : QItemSelectionModel::Clear);
    return lv->itemCount() > 0;
}

void LvInvertSelection(ListView *lv)
{
    lv->selectionModel()->select(allRows(lv), QItemSelectionModel::Toggle);
}

void LVSort(ListView *lv, int column)
{
    const bool ascending = lv->sortOrder() == Qt::AscendingOrder;
    lv->sortBy(lv->sortSubstitute(column), ascending ? Qt::DescendingOrder : Qt::AscendingOrder);
}
