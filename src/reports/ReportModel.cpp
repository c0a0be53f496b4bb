#include "reports/ReportModel.h"

void ReportModel::setTable(ReportTable table)
{
    beginResetModel();
    m_table = std::move(table);
    endResetModel();
}

void ReportModel::sortBy(int column)
{
    if (column < 0)
        return;
    beginResetModel();
    m_table.sortBy(static_cast<std::size_t>(column));
    endResetModel();
}

qint32 ReportModel::rowid(int row) const
{
    const auto at = static_cast<std::size_t>(row);
    return row >= 0 && at < m_table.rows.size() ? m_table.rows[at].rowid : 0;
}

int ReportModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_table.rows.size());
}

int ReportModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_table.columns.size());
}

QVariant ReportModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return {};
    const auto column = static_cast<std::size_t>(index.column());
    if (role == Qt::DisplayRole)
        return m_table.cell(static_cast<std::size_t>(index.row()), column);
    if (role == Qt::TextAlignmentRole && m_table.columns[column].dataType == u"I")
        return QVariant::fromValue(Qt::Alignment(Qt::AlignRight | Qt::AlignVCenter));
    return {};
}

QVariant ReportModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (section < 0)
        return {};
    const auto at = static_cast<std::size_t>(section);
    if (orientation == Qt::Vertical) {
        if (role == Qt::TextAlignmentRole)
            return QVariant::fromValue(Qt::Alignment(Qt::AlignRight | Qt::AlignVCenter));
        return role == Qt::DisplayRole && m_table.firstDataColumn() > 0 ? m_table.cell(at, 0)
                                                                        : QVariant();
    }
    if (at >= m_table.columns.size())
        return {};
    if (role == Qt::DisplayRole)
        return m_table.columns[at].heading;
    if (role == Qt::TextAlignmentRole)
        return QVariant::fromValue(
            Qt::Alignment((m_table.columns[at].dataType == u"I" ? Qt::AlignRight : Qt::AlignLeft) |
                          Qt::AlignVCenter));
    return {};
}
