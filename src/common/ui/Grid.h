// A small table of texts with a fixed heading row and a fixed column of row numbers. Cells go by
// row and column as a person counts them: row 0 is the heading, column 0 holds the numbers, data
// starts at 1.
#pragma once

#include <QChar>
#include <QList>
#include <QString>
#include <QTableView>
#include <QVariant>

class GridModel;

class Grid : public QTableView
{
    Q_OBJECT
public:
    struct Column {
        QString title = {};
        int width = 100; // pixels at 96 dpi
    };

    explicit Grid(QWidget *parent = nullptr);
    ~Grid() override;

    // Both empty the cells.
    void setColumns(const QList<Column> &columns);
    void setRows(int rows);
    int rows() const;    // of data: the last row's number
    int columns() const; // the same

    // Outside the grid a text reads as empty, and writing does nothing.
    QString text(int row, int column) const;
    void setText(int row, int column, const QString &text);
    void clearCells(); // data only

    // A grid that is not editable refuses typing, deleting and pasting but can be copied from.
    bool isEditable() const;
    void setEditable(bool editable);
    // One column of an editable grid that is not, and the heading's column of row numbers.
    void setColumnEditable(int column, bool editable);
    void setRowNumbersVisible(bool visible);
    // What a row stands for, unseen; kept until setRows or setColumns.
    void setRowData(int row, const QVariant &value);
    QVariant rowData(int row) const;
    void setBackColour(const QColor &colour);

    // What stands between cells and rows on the clipboard; tab and line feed until set.
    void setClipSeparators(QChar cell, QChar row);
    // The selected block; rows are joined, so that one cell is its bare text.
    void copySelection() const;
    // From the current cell on; what would lie beyond the grid is dropped. Text that another
    // program put there, with tabs and line ends, is taken as well.
    void paste();
    void clearSelectedCells();

    void finishEditing(); // what is being typed counts as entered

Q_SIGNALS:
    void cellEdited(int row, int column); // by the person, not by setText

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void closeEditor(QWidget *editor, QAbstractItemDelegate::EndEditHint hint) override;
    bool focusNextPrevChild(bool next) override;

private:
    bool leavesGrid(QAbstractItemDelegate::EndEditHint hint) const;
    bool isLastCell(bool forward) const; // of the way that Tab takes
    void moveDown();

    GridModel *m_model;
    QChar m_cellSeparator = u'\t';
    QChar m_rowSeparator = u'\n';
};

// The data from the given cell on as one text: cells joined by the one delimiter, and the other
// behind every row, the last one too. A delimiter inside a cell is not escaped.
QString GridDelimBuffer(const Grid *grid, QChar cellDelim, QChar rowDelim, int firstRow = 1,
                        int firstCol = 1);
// Empties all data and fills it from such a text. Blanks around a cell are taken off; rows and
// cells beyond the grid are dropped.
void GridSetFromDelimBuffer(Grid *grid, const QString &text, QChar cellDelim, QChar rowDelim,
                            int firstRow = 1, int firstCol = 1);
