// Sortable report list: whole-row selection, a key ("N" + rowid) for each row, text sort by column.
// Made for up to a million rows.
#pragma once

#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>
#include <QTreeView>

#include <functional>
#include <optional>

class ListViewModel;

class ListView : public QTreeView
{
    Q_OBJECT
public:
    struct Column {
        QString title = {};
        QString key = {};    // short name, "N"
        int width = 120;     // pixels at 96 dpi, a first guess
        bool hidden = false; // sorts only
        bool right = false;  // numbers
    };
    struct Row {
        QString key = {};
        QStringList texts = {}; // one a column
    };

    explicit ListView(QWidget *parent = nullptr);
    ~ListView() override;

    void setColumns(const QList<Column> &columns);
    QList<Column> columns() const;
    // From now on the columns follow the width of the list, on the screen and so on paper: each
    // takes its hundredths of it, though not less than its first guess; the one with 0 takes what
    // is left. One number a shown column.
    void setShares(const QList<int> &hundredths);

    // Rows in the order shown. Texts beyond the columns are kept but never shown; a sorted list
    // stays sorted when rows come in.
    void clearItems();
    void addItem(const QString &key, const QStringList &texts);
    void addItems(const QList<Row> &rows);
    bool removeItem(const QString &key);
    int itemCount() const; // rows that wait count too
    QString itemKey(int row) const;
    QString itemText(int row, int column) const;
    int rowOfKey(const QString &key) const; // -1 when there is none

    // Between these two nothing is drawn or sorted; rows added wait and are shown together. A long
    // list is sorted under a wait dialog: when that is cancelled, it is not sorted any more.
    // Quietly means without a dialog.
    void beginLoad();
    void endLoad(bool quietly = false);

    // The same wait dialog; when it is cancelled the list stays as it is.
    void sortBy(int column, Qt::SortOrder order);
    int sortColumn() const; // the one compared, even when hidden; -1 when not sorted
    Qt::SortOrder sortOrder() const;
    // What a click on a heading does: as LVSort, or, when set, a column other than the one clicked
    // last begins in ascending order.
    void setAscendingFirst(bool ascendingFirst) { m_ascendingFirst = ascendingFirst; }
    // A click on a heading sorts by this column instead (a hidden date behind a shown one).
    void setSortSubstitute(int column, int sortsBy);
    int sortSubstitute(int column) const; // the column itself when it has none

    // Lets labels (the first column) be typed over: F2, a click on the selected row, or editLabel.
    // `store` keeps the text and gives what the label becomes; nothing: the old label
    // stays. Null ends it. A length above 0 bounds what can be typed.
    using LabelStore =
        std::function<std::optional<QString>(const QString &key, const QString &text)>;
    void setLabelEditing(LabelStore store, int maxLength = 0);
    bool editLabel(const QString &key); // false when there is no such row
    void finishEditing();               // what is being typed counts as entered

    // The sentence shown while the list is empty.
    void setEmptyText(const QString &text);

Q_SIGNALS:
    void itemActivated(const QString &key); // double click or Enter
    void itemSelectionChanged();

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void headingClicked(int column);
    void showWaiting(bool quietly);
    void showSortIndicator();
    void copySelection() const;
    int widthFromDesign(int pixels) const;
    void shareWidth();

    ListViewModel *m_model;
    QList<int> m_shares; // hundredths; empty: the columns keep their widths
    QString m_emptyText;
    int m_loads = 0; // depth of beginLoad
    QHash<int, int> m_sortSubstitutes;
    bool m_ascendingFirst = false;
    int m_lastHeading = -1; // clicked
};

// Items that stand for a row of a table have the key "N" and its rowid.
QString LvKey(qint32 rowid);
qint32 LvKeyId(const QString &key); // 0 for an empty key
// The names the screens use; keys are exact, texts ignore case.
// Selecting an item ends the selection of all others.
bool LvIsItemSelected(const ListView *lv);
QString LvGetSelectedItemText(const ListView *lv); // empty when none
QString LvGetSelectedItemKey(const ListView *lv);  // empty when none
void LvSelectFirstItem(ListView *lv);
int LvNumItemsSelected(const ListView *lv);
bool LvSelectItem(ListView *lv, const QString &key); // and scrolls to it
bool LvSelectItemByText(ListView *lv, const QString &text);
bool LvSelectAllItems(ListView *lv, bool selected);
void LvInvertSelection(ListView *lv);
// What a click on a heading does: turns the order round, whichever column was sorted before, and
// sorts by the column or its substitute.
void LVSort(ListView *lv, int column);
// The files and folders of a folder: name as on the disk (also the key), size, type, and when it
// was changed. An empty name or a folder that is not there empties the list.
void LvGetFileList(ListView *lv, const QString &folder);
