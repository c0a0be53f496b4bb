// Rows of a ListView in the order shown, sorted here by one column.
#pragma once

#include "common/ui/ListRows.h"
#include "common/ui/ListView.h"

#include <QAbstractTableModel>

class ListViewModel : public QAbstractTableModel
{
    Q_OBJECT
public:
    explicit ListViewModel(QObject *parent = nullptr);

    void setColumns(const QList<ListView::Column> &columns); // drops all rows
    const QList<ListView::Column> &columns() const { return m_columns; }

    // Asked while rows are sorted, whether to go on.
    using GoOn = std::function<bool()>;

    // Rows that wait are there for nobody until they are shown: together, behind their equals in a
    // sorted list. When `goOn` ends the sort they are shown as they came, and the list is no
    // longer sorted.
    void addWaiting(const QString &key, const QStringList &texts) { m_rows.append(key, texts); }
    void showWaiting(const GoOn &goOn);
    // Puts one row at its place in the sort order, else at the end.
    void insert(const QString &key, const QStringList &texts);
    void removeAt(int row);
    void clear();

    int count() const { return m_shown; }
    int countWithWaiting() const { return m_rows.count(); }
    QString key(int row) const { return m_rows.key(row); }
    QString text(int row, int column) const { return m_rows.text(row, column); }
    int rowOfKey(const QString &key) const { return m_rows.rowOfKey(key, m_shown); } // -1: none

    // Stable, without regard to case, in the order of the user's language; a column of -1 only
    // ends sorting. False when `goOn` ended it: everything is as it was.
    bool sortRows(int column, Qt::SortOrder order, const GoOn &goOn);
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
    void arrangeRows(const std::vector<std::uint32_t> &order);

    QList<ListView::Column> m_columns;
    ListRows m_rows;
    int m_shown = 0; // the others wait
    ListView::LabelStore m_labelStore;
    int m_sortColumn = -1;
    Qt::SortOrder m_sortOrder = Qt::AscendingOrder;
};
