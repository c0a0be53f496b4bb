#include "common/ui/ListViewModel.h"

#include <algorithm>
#include <numeric>

namespace
{

QString cell(const ListView::Row &row, int column)
{
    return row.texts.value(column);
}

} // namespace

ListViewModel::ListViewModel(QObject *parent) : QAbstractTableModel(parent)
{
    m_collator.setCaseSensitivity(Qt::CaseInsensitive);
}

void ListViewModel::setColumns(const QList<ListView::Column> &columns)
{
    beginResetModel();
    m_columns = columns;
    m_rows.clear();
    m_rowOfKey.clear();
    m_sortColumn = -1;
    m_sortOrder = Qt::AscendingOrder;
    endResetModel();
}

void ListViewModel::append(std::vector<ListView::Row> rows)
{
    if (rows.empty())
        return;
    const int first = count();
    beginInsertRows({}, first, first + static_cast<int>(rows.size()) - 1);
    if (m_rows.empty())
        m_rows = std::move(rows);
    else
        m_rows.insert(m_rows.end(), std::make_move_iterator(rows.begin()),
                      std::make_move_iterator(rows.end()));
    m_rowOfKey.clear();
    endInsertRows();
    if (m_sortColumn >= 0)
        sort(m_sortColumn, m_sortOrder);
}

void ListViewModel::insert(ListView::Row row)
{
    auto place = m_rows.end();
    if (m_sortColumn >= 0)
        place = std::upper_bound(m_rows.begin(), m_rows.end(), row,
                                 [this](const ListView::Row &left, const ListView::Row &right) {
                                     return inOrder(cell(left, m_sortColumn),
                                                    cell(right, m_sortColumn));
                                 });
    const int at = static_cast<int>(place - m_rows.begin());
    beginInsertRows({}, at, at);
    m_rows.insert(place, std::move(row));
    m_rowOfKey.clear();
    endInsertRows();
}

void ListViewModel::removeAt(int row)
{
    beginRemoveRows({}, row, row);
    m_rows.erase(m_rows.begin() + row);
    m_rowOfKey.clear();
    endRemoveRows();
}

void ListViewModel::clear()
{
    if (m_rows.empty())
        return;
    beginRemoveRows({}, 0, count() - 1);
    m_rows.clear();
    m_rowOfKey.clear();
    endRemoveRows();
}

int ListViewModel::rowOfKey(const QString &key) const
{
    if (m_rowOfKey.isEmpty()) {
        m_rowOfKey.reserve(count());
        for (int at = count() - 1; at >= 0; --at) // the first of equal keys wins
            m_rowOfKey.insert(row(at).key, at);
    }
    return m_rowOfKey.value(key, -1);
}

void ListViewModel::sort(int column, Qt::SortOrder order)
{
    if (column >= m_columns.size())
        return;
    m_sortColumn = std::max(column, -1);
    m_sortOrder = order;
    if (m_sortColumn < 0 || m_rows.size() < 2)
        return;
    const std::vector<int> rows = sortedRows();
    if (!std::is_sorted(rows.begin(), rows.end()))
        applyOrder(rows);
}

bool ListViewModel::inOrder(const QString &left, const QString &right) const
{
    const int difference = m_collator.compare(left.toCaseFolded(), right.toCaseFolded());
    return m_sortOrder == Qt::AscendingOrder ? difference < 0 : difference > 0;
}

// Old row numbers in their new order. Each text is turned into its sort key once; the collator
// itself would be asked a million times over for a long list.
std::vector<int> ListViewModel::sortedRows() const
{
    std::vector<QCollatorSortKey> keys;
    keys.reserve(m_rows.size());
    for (const ListView::Row &row : m_rows)
        keys.push_back(m_collator.sortKey(cell(row, m_sortColumn).toCaseFolded()));
    std::vector<int> rows(m_rows.size());
    std::iota(rows.begin(), rows.end(), 0);
    const bool ascending = m_sortOrder == Qt::AscendingOrder;
    std::stable_sort(rows.begin(), rows.end(), [&keys, ascending](int left, int right) {
        const int difference =
            keys[static_cast<size_t>(left)].compare(keys[static_cast<size_t>(right)]);
        return ascending ? difference < 0 : difference > 0;
    });
    return rows;
}

void ListViewModel::applyOrder(const std::vector<int> &oldRows)
{
    Q_EMIT layoutAboutToBeChanged({}, QAbstractItemModel::VerticalSortHint);
    std::vector<ListView::Row> sorted;
    sorted.reserve(m_rows.size());
    std::vector<int> newRows(m_rows.size());
    for (const int old : oldRows) {
        newRows[static_cast<size_t>(old)] = static_cast<int>(sorted.size());
        sorted.push_back(std::move(m_rows[static_cast<size_t>(old)]));
    }
    m_rows = std::move(sorted);
    m_rowOfKey.clear();

    const QModelIndexList before = persistentIndexList();
    QModelIndexList after;
    after.reserve(before.size());
    for (const QModelIndex &index : before)
        after.append(createIndex(newRows[static_cast<size_t>(index.row())], index.column()));
    changePersistentIndexList(before, after);
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
        return cell(row(index.row()), index.column());
    if (role == Qt::TextAlignmentRole && m_columns[index.column()].right)
        return QVariant::fromValue(Qt::Alignment(Qt::AlignRight | Qt::AlignVCenter));
    return {};
}

// Storing may show a box, and rows may come and go behind it: the label goes by its key.
bool ListViewModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (!index.isValid() || index.column() != 0 || role != Qt::EditRole || !m_labelStore)
        return false;
    const QString key = row(index.row()).key;
    const std::optional<QString> label = m_labelStore(key, value.toString());
    const int at = rowOfKey(key);
    if (!label || at < 0)
        return false;
    QStringList &texts = m_rows[static_cast<size_t>(at)].texts;
    if (texts.isEmpty())
        texts.append(QString());
    texts[0] = *label;
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
