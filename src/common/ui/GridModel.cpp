#include "common/ui/GridModel.h"

#include <QGuiApplication>
#include <QPalette>

void GridModel::resize(int rows, const QStringList &headings)
{
    beginResetModel();
    m_headings = headings;
    m_rowLabels = QStringList(rows);
    m_cells.fill(QStringList(headings.size()), rows);
    m_rowData = QVariantList(rows);
    endResetModel();
}

void GridModel::setHeading(int column, const QString &text)
{
    m_headings[column] = text;
    Q_EMIT headerDataChanged(Qt::Horizontal, column, column);
}

void GridModel::setRowLabel(int row, const QString &text)
{
    m_rowLabels[row] = text;
    Q_EMIT headerDataChanged(Qt::Vertical, row, row);
}

QString GridModel::rowLabel(int row) const
{
    const QString &label = m_rowLabels[row];
    return label.isNull() ? QString::number(row + 1) : label;
}

QString GridModel::cell(int row, int column) const
{
    return m_cells[row][column];
}

void GridModel::setCell(int row, int column, const QString &text)
{
    m_cells[row][column] = text;
    const QModelIndex changed = index(row, column);
    Q_EMIT dataChanged(changed, changed);
}

void GridModel::clearCells()
{
    if (m_cells.isEmpty() || m_headings.isEmpty())
        return;
    m_cells.fill(QStringList(m_headings.size()));
    Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
}

void GridModel::setColumnEditable(int column, bool editable)
{
    if (editable)
        m_lockedColumns.remove(column);
    else
        m_lockedColumns.insert(column);
    if (rowCount() > 0 && column >= 0 && column < columnCount())
        Q_EMIT dataChanged(index(0, column), index(rowCount() - 1, column));
}

int GridModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_cells.size());
}

int GridModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_headings.size());
}

QVariant GridModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return {};
    if (role == Qt::BackgroundRole && m_lockedColumns.contains(index.column()))
        return QGuiApplication::palette().brush(QPalette::Window);
    if (role != Qt::DisplayRole && role != Qt::EditRole)
        return {};
    return cell(index.row(), index.column());
}

bool GridModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (!index.isValid() || role != Qt::EditRole || !isEditable(index.column()))
        return false;
    if (cell(index.row(), index.column()) != value.toString()) {
        setCell(index.row(), index.column(), value.toString());
        Q_EMIT edited(index);
    }
    return true;
}

QVariant GridModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation == Qt::Horizontal) {
        if (role == Qt::DisplayRole)
            return m_headings.value(section);
        if (role == Qt::TextAlignmentRole)
            return QVariant::fromValue(Qt::Alignment(Qt::AlignLeft | Qt::AlignVCenter));
    } else if (section < m_rowLabels.size()) {
        if (role == Qt::DisplayRole)
            return rowLabel(section);
        if (role == Qt::TextAlignmentRole)
            return QVariant::fromValue(Qt::Alignment(Qt::AlignCenter));
    }
    return {};
}

Qt::ItemFlags GridModel::flags(const QModelIndex &index) const
{
    const Qt::ItemFlags flags = QAbstractTableModel::flags(index);
    return index.isValid() && isEditable(index.column()) ? flags | Qt::ItemIsEditable : flags;
}
