// Rows of a ListView: plain texts in the order shown, sorted here by one column.
#pragma once

#include "common/ui/ListView.h"

#include <QAbstractTableModel>
#include <QCollator>
#include <QHash>

#include <vector>

class ListViewModel : public QAbstractTableModel
{
    Q_OBJECT
public:
    explicit ListViewModel(QObject *parent = nullptr);

    void setColumns(const QList<ListView::Column> &columns); // drops all rows
    const QList<ListView::Column> &columns() const { return m_columns; }

    // Appends; a sorted list is sorted anew, with the new rows behind their equals.
    void append(std::vector<ListView::Row> rows);
    // Puts one row at its place in the sort order, else at the end.
    void insert(ListView::Row row);
    void removeAt(int row);
    void clear();

    const ListView::Row &row(int row) const { return m_rows[static_cast<size_t>(row)]; }
    int count() const { return static_cast<int>(m_rows.size()); }
    int rowOfKey(const QString &key) const; // -1 when there is none

    // Stable, without regard to case, in the order of the user's language; a column of -1 only
    // ends sorting.
    void sort(int column, Qt::SortOrder order) override;
    int sortColumn() const { return m_sortColumn; }
    Qt::SortOrder sortOrder() const { return m_sortOrder; }

    // What editing a label does, as ListView::setLabelEditing tells; null: labels are not edited.
    void setLabelStore(ListView::LabelStore store) { m_labelStore = std::move(store); }

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role) override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;

private:
    bool inOrder(const QString &left, const QString &right) const;
    std::vector<int> sortedRows() const;
    void applyOrder(const std::vector<int> &oldRows);

    QList<ListView::Column> m_columns;
    std::vector<ListView::Row> m_rows;
    // Filled by the first look-up after a change.
    mutable QHash<QString, int> m_rowOfKey;
    ListView::LabelStore m_labelStore;
    QCollator m_collator;
    int m_sortColumn = -1;
    Qt::SortOrder m_sortOrder = Qt::AscendingOrder;
};
