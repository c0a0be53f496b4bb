#include "common/ui/Grid.h"

#include "common/ui/GridModel.h"

#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QKeyEvent>

#include <algorithm>

Grid::Grid(QWidget *parent) : QTableView(parent), m_model(new GridModel(this))
{
    setModel(m_model);
    setEditTriggers(DoubleClicked | EditKeyPressed | AnyKeyPressed);
    setSelectionMode(ContiguousSelection);
    setWordWrap(false);
    setTabKeyNavigation(true);
    setCornerButtonEnabled(false);
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 6);
    verticalHeader()->setHighlightSections(false);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setStretchLastSection(true);
    connect(m_model, &GridModel::edited, this, [this](const QModelIndex &index) {
        Q_EMIT cellEdited(index.row() + 1, index.column() + 1);
    });
}

Grid::~Grid() = default;

void Grid::setColumns(const QList<Column> &columns)
{
    QStringList headings;
    for (const Column &column : columns)
        headings.append(column.title);
    m_model->resize(rows(), headings);
    for (int at = 0; at < columns.size(); ++at)
        setColumnWidth(at, columns[at].width * logicalDpiX() / 96);
}

void Grid::setRows(int rows)
{
    m_model->resize(std::max(rows, 0), m_model->headings());
}

int Grid::rows() const
{
    return m_model->rowCount();
}

int Grid::columns() const
{
    return m_model->columnCount();
}

QString Grid::text(int row, int column) const
{
    if (row < 0 || row > rows() || column < 0 || column > columns() || (row == 0 && column == 0))
        return {};
    if (row == 0)
        return m_model->headings().at(column - 1);
    return column == 0 ? m_model->rowLabel(row - 1) : m_model->cell(row - 1, column - 1);
}

void Grid::setText(int row, int column, const QString &text)
{
    if (row < 0 || row > rows() || column < 0 || column > columns() || (row == 0 && column == 0))
        return;
    if (row == 0)
        m_model->setHeading(column - 1, text);
    else if (column == 0)
        m_model->setRowLabel(row - 1, text);
    else
        m_model->setCell(row - 1, column - 1, text);
}

void Grid::clearCells()
{
    m_model->clearCells();
}

bool Grid::isEditable() const
{
    return m_model->isEditable();
}

void Grid::setEditable(bool editable)
{
    m_model->setEditable(editable);
}

void Grid::setColumnEditable(int column, bool editable)
{
    m_model->setColumnEditable(column - 1, editable);
}

void Grid::setRowNumbersVisible(bool visible)
{
    verticalHeader()->setVisible(visible);
}

void Grid::setRowData(int row, const QVariant &value)
{
    if (row >= 1 && row <= rows())
        m_model->setRowData(row - 1, value);
}

QVariant Grid::rowData(int row) const
{
    return row >= 1 && row <= rows() ? m_model->rowData(row - 1) : QVariant();
}

void Grid::finishEditing()
{
    QWidget *editor = state() == EditingState ? indexWidget(currentIndex()) : nullptr;
    if (editor == nullptr)
        return;
    commitData(editor);
    closeEditor(editor, QAbstractItemDelegate::NoHint);
}

void Grid::setBackColour(const QColor &colour)
{
    QPalette colours;
    colours.setColor(QPalette::Base, colour);
    setPalette(colours);
}

void Grid::setClipSeparators(QChar cell, QChar row)
{
    m_cellSeparator = cell;
    m_rowSeparator = row;
}

void Grid::copySelection() const
{
    const QItemSelection selection = selectionModel()->selection();
    if (selection.isEmpty())
        return;
    const QItemSelectionRange &block = selection.first();
    QStringList lines;
    for (int row = block.top(); row <= block.bottom(); ++row) {
        QStringList cells;
        for (int column = block.left(); column <= block.right(); ++column)
            cells.append(m_model->cell(row, column));
        lines.append(cells.join(m_cellSeparator));
    }
    QApplication::clipboard()->setText(lines.join(m_rowSeparator));
}

void Grid::paste()
{
    const QModelIndex start = currentIndex();
    if (!isEditable() || !start.isValid())
        return;
    QString text = QApplication::clipboard()->text();
    QChar cellSeparator = m_cellSeparator;
    QChar rowSeparator = m_rowSeparator;
    if (!text.contains(cellSeparator) && !(text.contains(rowSeparator) && !text.contains(u'\n'))) {
        cellSeparator = u'\t';
        rowSeparator = u'\n';
        text.remove(u'\r');
    }
    if (text.endsWith(rowSeparator)) // ended, not followed by an empty row
        text.chop(1);
    const QStringList lines = text.split(rowSeparator);
    for (int line = 0; line < lines.size(); ++line) {
        const QStringList cells = lines[line].split(cellSeparator);
        for (int cell = 0; cell < cells.size(); ++cell)
            m_model->setData(m_model->index(start.row() + line, start.column() + cell), cells[cell],
                             Qt::EditRole);
    }
}

void Grid::clearSelectedCells()
{
    const QModelIndexList selected = selectedIndexes();
    for (const QModelIndex &index : selected)
        m_model->setData(index, QString(), Qt::EditRole);
}

void Grid::keyPressEvent(QKeyEvent *event)
{
    if (event->matches(QKeySequence::Copy)) {
        copySelection();
    } else if (event->matches(QKeySequence::Paste)) {
        paste();
    } else if (event->matches(QKeySequence::Cut)) {
        copySelection();
        clearSelectedCells();
    } else if (event->key() == Qt::Key_Delete && state() != EditingState) {
        clearSelectedCells();
    } else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        if (state() != EditingState) // else closeEditor does it
            moveDown();
        event->accept(); // the form's default button must not have it
    } else {
        QTableView::keyPressEvent(event);
    }
}

// Enter in a cell's editor ends the cell and goes on below, as Tab goes on to the right.
void Grid::closeEditor(QWidget *editor, QAbstractItemDelegate::EndEditHint hint)
{
    const bool leaves = leavesGrid(hint);
    QTableView::closeEditor(editor, leaves ? QAbstractItemDelegate::NoHint : hint);
    if (leaves)
        focusNextPrevChild(hint == QAbstractItemDelegate::EditNextItem);
    else if (hint == QAbstractItemDelegate::SubmitModelCache)
        moveDown();
}

bool Grid::leavesGrid(QAbstractItemDelegate::EndEditHint hint) const
{
    return (hint == QAbstractItemDelegate::EditNextItem && isLastCell(true)) ||
           (hint == QAbstractItemDelegate::EditPreviousItem && isLastCell(false));
}

bool Grid::isLastCell(bool forward) const
{
    const QModelIndex end =
        forward ? m_model->index(rows() - 1, columns() - 1) : m_model->index(0, 0);
    return currentIndex() == end;
}

// Beyond the last cell Tab goes on to the next control instead of round, and beyond the first one
// back, so that the keyboard is not caught in the grid.
bool Grid::focusNextPrevChild(bool next)
{
    // NOLINTNEXTLINE(bugprone-parent-virtual-call): past the table view, on purpose
    return isLastCell(next) ? QWidget::focusNextPrevChild(next)
                            : QTableView::focusNextPrevChild(next);
}

void Grid::moveDown()
{
    const QModelIndex below = currentIndex().siblingAtRow(currentIndex().row() + 1);
    if (below.isValid())
        setCurrentIndex(below);
}
