#include "common/ui/ListViewModel.h"

#include "common/base/TextOrder.h"
#include "common/ui/RowSort.h"

#include <algorithm>

namespace
{

// Of the locale that the program has from its start.
const TextOrder &textOrder()
{
    static const TextOrder order;
    return order;
}

} // namespace

ListViewModel::ListViewModel(QObject *parent) : QAbstractTableModel(parent) {}

void ListViewModel::setColumns(const QList<ListView::Column> &columns)
{
    beginResetModel();
    m_columns = columns;
    m_rows.clear();
    m_shown = 0;
    m_sortColumn = -1;
    m_sortOrder = Qt::AscendingOrder;
    endResetModel();
}

// Rows that nobody has seen yet are sorted before they are shown, which spares the view a change.
void ListViewModel::showWaiting(const GoOn &goOn)
{
    const int first = m_shown;
    const int all = m_rows.count();
    if (first == all)
        return;
    if (first == 0 && m_sortColumn >= 0) {
        const auto order = sortedRows(m_rows, m_sortColumn, m_sortOrder, textOrder(), goOn);
        if (order)
            m_rows.arrange(*order);
        else
            m_sortColumn = -1;
    }
    beginInsertRows({}, first, all - 1);
    m_shown = all;
    endInsertRows();
    if (first > 0 && m_sortColumn >= 0 && !sortRows(m_sortColumn, m_sortOrder, goOn))
        m_sortColumn = -1;
}

void ListViewModel::insert(const QString &key, const QStringList &texts)
{
    int at = m_shown;
    if (m_sortColumn >= 0) {
        const std::string wanted = textOrder().key(texts.value(m_sortColumn));
        for (int low = 0; low < at;) { // behind the last that does not come after it
            const int middle = low + (at - low) / 2;
            const std::string other = textOrder().key(text(middle, m_sortColumn));
            const bool after = m_sortOrder == Qt::AscendingOrder ? wanted < other : wanted > other;
            (after ? at : low) = after ? middle : middle + 1;
        }
    }
    beginInsertRows({}, at, at);
    m_rows.insert(at, key, texts);
    ++m_shown;
    endInsertRows();
}

void ListViewModel::removeAt(int row)
{
    beginRemoveRows({}, row, row);
    m_rows.removeAt(row);
    --m_shown;
    endRemoveRows();
}

void ListViewModel::clear()
{
    if (m_shown > 0)
        beginRemoveRows({}, 0, m_shown - 1);
    m_rows.clear();
    if (std::exchange(m_shown, 0) > 0)
        endRemoveRows();
}

bool ListViewModel::sortRows(int column, Qt::SortOrder order, const GoOn &goOn)
{
    if (column >= m_columns.size())
        return true;
    column = std::max(column, -1);
    // Rows that wait are sorted when they are shown.
    if (column >= 0 && m_shown > 1 && m_shown == m_rows.count()) {
        const auto rows = sortedRows(m_rows, column, order, textOrder(), goOn);
        if (!rows)
            return false;
        if (!std::is_sorted(rows->begin(), rows->end()))
            arrangeRows(*rows);
    }
    m_sortColumn = column;
    m_sortOrder = order;
    return true;
}

void ListViewModel::arrangeRows(const std::vector<std::uint32_t> &order)
{
    Q_EMIT layoutAboutToBeChanged({}, QAbstractItemModel::VerticalSortHint);
    m_rows.arrange(order);
    const QModelIndexList before = persistentIndexList();
    if (!before.isEmpty()) {
        std::vector<int> newRows(order.size());
        for (std::size_t at = 0; at < order.size(); ++at)
            newRows[order[at]] = static_cast<int>(at);
        QModelIndexList after;
        after.reserve(before.size());
        for (const QModelIndex &index : before)
            after.append(
                createIndex(newRows[static_cast<std::size_t>(index.row())], index.column()));
        changePersistentIndexList(before, after);
    }
    Q_EMIT layoutChanged({}, QAbstractItemModel::VerticalSortHint);
}

int ListViewModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : count();
}

int ListViewModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_columns.size());
}

QVariant ListViewModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return {};
    if (role == Qt::DisplayRole || role == Qt::EditRole)
        return text(index.row(), index.column());
    if (role == Qt::TextAlignmentRole && m_columns[index.column()].right)
        return QVariant::fromValue(Qt::Alignment(Qt::AlignRight | Qt::AlignVCenter));
    return {};
}

// Storing may show a box, and rows may come and go behind it: the label goes by its key.
bool ListViewModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (!index.isValid() || index.column() != 0 || role != Qt::EditRole || !m_labelStore)
        return false;
    const QString rowKey = key(index.row());
    const std::optional<QString> label = m_labelStore(rowKey, value.toString());
    const int at = rowOfKey(rowKey);
    if (!label || at < 0)
        return false;
    m_rows.setText(at, 0, *label);
    const QModelIndex changed = this->index(at, 0);
    Q_EMIT dataChanged(changed, changed);
    return true;
}

QVariant ListViewModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || section < 0 || section >= m_columns.size())
        return {};
    const ListView::Column &column = m_columns[section];
    if (role == Qt::DisplayRole)
        return column.title;
    if (role == Qt::TextAlignmentRole)
        return QVariant::fromValue(
            Qt::Alignment((column.right ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter));
    return {};
}

Qt::ItemFlags ListViewModel::flags(const QModelIndex &index) const
{
    if (!index.isValid())
        return Qt::NoItemFlags;
    const Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren;
    return index.column() == 0 && m_labelStore ? flags | Qt::ItemIsEditable : flags;
}
