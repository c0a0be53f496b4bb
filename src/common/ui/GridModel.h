// The text matrix of a Grid. The model counts data rows and columns from 0, the grid from 1.
#pragma once

#include "common/ui/Grid.h"

#include <QAbstractTableModel>
#include <QSet>
#include <QStringList>
#include <QVariant>

class GridModel : public QAbstractTableModel
{
    Q_OBJECT
public:
    using QAbstractTableModel::QAbstractTableModel;

    void resize(int rows, const QStringList &headings); // empties the cells
    void setHeading(int column, const QString &text);
    void setRowLabel(int row, const QString &text);
    const QStringList &headings() const { return m_headings; }
    QString rowLabel(int row) const; // its number unless one was set
    QString cell(int row, int column) const;
    void setCell(int row, int column, const QString &text);
    void clearCells();

    bool isEditable() const { return m_editable; }
    void setEditable(bool editable) { m_editable = editable; }
    void setColumnEditable(int column, bool editable);
    void setRowData(int row, const QVariant &value) { m_rowData[row] = value; }
    QVariant rowData(int row) const { return m_rowData[row]; }

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role) override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;

Q_SIGNALS:
    void edited(const QModelIndex &index); // through setData, as editors do

private:
    bool isEditable(int column) const { return m_editable && !m_lockedColumns.contains(column); }

    QStringList m_headings;
    QStringList m_rowLabels;
    QList<QStringList> m_cells;
    QVariantList m_rowData;
    QSet<int> m_lockedColumns;
    bool m_editable = true;
};
