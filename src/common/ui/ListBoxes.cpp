// Helpers that take a list box, with an item number a row as combo boxes have.
#include "common/ui/Controls.h"

#include "common/base/Prompts.h"

#include <QAbstractItemModel>
#include <QComboBox>
#include <QCoreApplication>
#include <QListWidget>

#include <algorithm>

namespace
{

struct Words {
    Q_DECLARE_TR_FUNCTIONS(ListBoxes)
};

} // namespace

void lbAddItem(QListWidget *list, const QString &text, qint32 id)
{
    auto *item = new QListWidgetItem(text, list);
    item->setData(Qt::UserRole, id);
}

qint32 lbItemID(const QListWidget *list, int row)
{
    const QListWidgetItem *item = list->item(row);
    bool ok = false;
    const qint32 id = item != nullptr ? item->data(Qt::UserRole).toInt(&ok) : 0;
    return ok ? id : -1;
}

int lbGetPosForID(const QListWidget *list, qint32 id)
{
    for (int row = 0; row < list->count(); ++row)
        if (lbItemID(list, row) == id)
            return row;
    return -1;
}

void LB2LBRemoveItems(const QListWidget *shown, QListWidget *from)
{
    for (int row = from->count() - 1; row >= 0; --row)
        if (lbGetPosForID(shown, lbItemID(from, row)) >= 0)
            delete from->takeItem(row);
}

void LB2LBRemoveItems(const QListWidget *shown, QComboBox *from)
{
    for (int row = from->count() - 1; row >= 0; --row)
        if (lbGetPosForID(shown, from->itemData(row).toInt()) >= 0)
            from->removeItem(row);
}

void LBRemoveCurSelected(QListWidget *list)
{
    if (list->currentRow() < 0)
        prompts::warn(Words::tr("Please select a listbox item first!"));
    else
        delete list->takeItem(list->currentRow());
}

void LBSwapItems(QListWidget *list, int one, int other)
{
    const int low = std::min(one, other);
    const int high = std::max(one, other);
    if (low < 0 || high >= list->count() || low == high)
        return;
    const int current = list->currentRow();
    QListWidgetItem *behind = list->takeItem(high);
    QListWidgetItem *front = list->takeItem(low);
    list->insertItem(low, behind);
    list->insertItem(high, front);
    list->setCurrentRow(current == one ? other : current == other ? one : current);
}
