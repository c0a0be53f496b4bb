// A ReportTable as a view shows it.
#pragma once

#include "db/report/ReportTable.h"

#include <QAbstractTableModel>

class ReportModel : public QAbstractTableModel
{
    Q_OBJECT
public:
    using QAbstractTableModel::QAbstractTableModel;

    void setTable(ReportTable table);
    const ReportTable &table() const { return m_table; }
    // Ascending, whatever it was before; the row numbers travel with their rows.
    void sortBy(int column);
    // Of the record behind the row; below 1 when there is none.
    qint32 rowid(int row) const;

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    // Down the side stand the row numbers of a report that has them.
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    ReportTable m_table;
};
