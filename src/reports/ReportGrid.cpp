#include "reports/ReportGrid.h"

#include "reports/ReportModel.h"

#include <QAbstractButton>
#include <QClipboard>
#include <QEvent>
#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QStyleOptionHeader>
#include <QStylePainter>

#include <algorithm>

namespace
{

constexpr int kWidestColumn = 60; // in average letters
constexpr int kMeasured = 200;    // texts of a column, the longest ones
constexpr int kCornerMargin = 10; // beside the heading in it

} // namespace

ReportGrid::ReportGrid(QWidget *parent)
    : QTableView(parent), m_corner(findChild<QAbstractButton *>())
{
    setEditTriggers(NoEditTriggers);
    setSelectionBehavior(SelectRows);
    setSelectionMode(ExtendedSelection);
    setAlternatingRowColors(true);
    setWordWrap(false);
    setTabKeyNavigation(false); // the buttons are to be reached
    setHorizontalScrollMode(ScrollPerPixel);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setSectionsClickable(true);
    verticalHeader()->setHighlightSections(false);
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 6);
    connect(horizontalHeader(), &QHeaderView::sectionClicked, this, &ReportGrid::headingClicked);
    connect(this, &QTableView::doubleClicked, this,
            [this](const QModelIndex &index) { Q_EMIT rowActivated(index.row()); });
    if (m_corner != nullptr) { // selects everything by itself
        disconnect(m_corner, nullptr, this, nullptr);
        m_corner->installEventFilter(this);
        connect(m_corner, &QAbstractButton::clicked, this, [this] { Q_EMIT headingClicked(0); });
    }
}

void ReportGrid::setModel(QAbstractItemModel *model)
{
    QTableView::setModel(model);
    showColumns();
}

const ReportModel &ReportGrid::report() const
{
    return *static_cast<const ReportModel *>(model());
}

void ReportGrid::showColumns()
{
    const bool numbered = report().table().firstDataColumn() > 0;
    for (int column = 0; column < model()->columnCount(); ++column)
        setColumnHidden(column, numbered && column == 0);
    const QString corner = model()->headerData(0, Qt::Horizontal, Qt::DisplayRole).toString();
    verticalHeader()->setMinimumWidth(fontMetrics().horizontalAdvance(corner) + 2 * kCornerMargin);
    verticalHeader()->setVisible(numbered);
    setCornerButtonEnabled(numbered);
    markSorted(-1);
}

void ReportGrid::fitColumns()
{
    for (int column = 0; column < model()->columnCount(); ++column)
        setColumnWidth(column, wantedWidth(column));
}

// Only the longest texts are measured: the others are narrower, or hardly wider.
int ReportGrid::wantedWidth(int column) const
{
    const ReportTable &table = report().table();
    const auto at = static_cast<std::size_t>(column);
    qsizetype longest = 0;
    for (std::size_t row = 0; row < table.rows.size(); ++row)
        longest = std::max(longest, table.rows[row].cells.value(column).size());
    const int most = kWidestColumn * fontMetrics().averageCharWidth();
    int width = 0;
    int measured = 0;
    for (std::size_t row = 0; row < table.rows.size() && measured < kMeasured && width < most;
         ++row) {
        const QString text = table.cell(row, at);
        if (text.isEmpty() || text.size() * 4 < longest * 3)
            continue;
        width = std::max(width, fontMetrics().horizontalAdvance(text));
        ++measured;
    }
    const int padding = 2 * (style()->pixelMetric(QStyle::PM_FocusFrameHMargin) + 3);
    const int heading = horizontalHeader()->sectionSizeHint(column);
    return std::max(std::min(width, most) + padding, heading);
}

void ReportGrid::markSorted(int column)
{
    m_sorted = column;
    const bool inHeader = column >= 0 && !isColumnHidden(column);
    horizontalHeader()->setSortIndicatorShown(inHeader);
    horizontalHeader()->setSortIndicator(inHeader ? column : -1, Qt::AscendingOrder);
    if (m_corner != nullptr)
        m_corner->update();
}

void ReportGrid::selectCell(int row, int column)
{
    const QModelIndex cell = model()->index(row, column);
    if (!cell.isValid())
        return;
    setCurrentIndex(cell);
    scrollTo(cell);
}

int ReportGrid::currentRow() const
{
    const QModelIndex current = currentIndex();
    return current.isValid() && selectionModel()->isRowSelected(current.row()) ? current.row() : -1;
}

int ReportGrid::shownWidth(int column) const
{
    return isColumnHidden(column) ? verticalHeader()->width() : columnWidth(column);
}

bool ReportGrid::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != m_corner || event->type() != QEvent::Paint)
        return QTableView::eventFilter(watched, event);
    paintCorner();
    return true;
}

// The button has no text of its own.
void ReportGrid::paintCorner() const
{
    QStyleOptionHeader option;
    option.initFrom(m_corner);
    option.state |= QStyle::State_Active | QStyle::State_Raised | QStyle::State_Enabled;
    if (m_corner->isDown())
        option.state |= QStyle::State_Sunken;
    option.rect = m_corner->rect();
    option.text = model()->headerData(0, Qt::Horizontal, Qt::DisplayRole).toString();
    option.textAlignment = Qt::AlignCenter;
    if (m_sorted == 0 && isColumnHidden(0))
        option.sortIndicator = QStyleOptionHeader::SortDown;
    QStylePainter(m_corner).drawControl(QStyle::CE_Header, option);
}

void ReportGrid::keyPressEvent(QKeyEvent *event)
{
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (event->matches(QKeySequence::Copy))
        copySelection();
    else if (enter && currentRow() >= 0)
        Q_EMIT rowActivated(currentRow());
    else
        QTableView::keyPressEvent(event);
}

// The selected rows, as a spreadsheet takes them.
void ReportGrid::copySelection() const
{
    QList<int> rows;
    for (const QModelIndex &index : selectionModel()->selectedRows())
        rows.append(index.row());
    std::sort(rows.begin(), rows.end());
    QStringList lines;
    for (const int row : std::as_const(rows)) {
        QStringList texts;
        for (int column = 0; column < model()->columnCount(); ++column)
            texts.append(model()->index(row, column).data().toString());
        lines.append(texts.join(u'\t'));
    }
    if (!lines.isEmpty())
        QGuiApplication::clipboard()->setText(lines.join(u'\n'));
}
