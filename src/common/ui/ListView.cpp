#include "common/ui/ListView.h"

#include "common/ui/ListViewModel.h"
#include "common/ui/LongSort.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPainter>
#include <QStyledItemDelegate>

#include <algorithm>

namespace
{

// Rows with a little air between them.
class RowDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;
    void setMaxLength(int length) { m_maxLength = length; }
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        return QStyledItemDelegate::sizeHint(option, index) + QSize(0, 4);
    }
    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const override
    {
        QWidget *editor = QStyledItemDelegate::createEditor(parent, option, index);
        if (auto *box = qobject_cast<QLineEdit *>(editor); box != nullptr && m_maxLength > 0)
            box->setMaxLength(m_maxLength);
        return editor;
    }

private:
    int m_maxLength = 0;
};

} // namespace

ListView::ListView(QWidget *parent) : QTreeView(parent), m_model(new ListViewModel(this))
{
    setModel(m_model);
    setItemDelegate(new RowDelegate(this));
    setRootIsDecorated(false);
    setItemsExpandable(false);
    setExpandsOnDoubleClick(false);
    setUniformRowHeights(true); // or the view measures every row
    setAllColumnsShowFocus(true);
    setAlternatingRowColors(true);
    setSelectionBehavior(SelectRows);
    setSelectionMode(ExtendedSelection);
    setEditTriggers(NoEditTriggers);
    setTextElideMode(Qt::ElideRight);
    header()->setSectionsMovable(false);
    header()->setSectionsClickable(true);
    header()->setHighlightSections(false);

    connect(header(), &QHeaderView::sectionClicked, this, &ListView::headingClicked);
    connect(this, &QTreeView::doubleClicked, this,
            [this](const QModelIndex &index) { Q_EMIT itemActivated(itemKey(index.row())); });
    connect(selectionModel(), &QItemSelectionModel::selectionChanged, this,
            [this] { Q_EMIT itemSelectionChanged(); });
}

ListView::~ListView() = default;

int ListView::widthFromDesign(int pixels) const
{
    return pixels * logicalDpiX() / 96;
}

void ListView::setColumns(const QList<Column> &columns)
{
    m_model->setColumns(columns);
    for (int at = 0; at < columns.size(); ++at) {
        setColumnHidden(at, columns[at].hidden);
        if (!columns[at].hidden)
            setColumnWidth(at, widthFromDesign(columns[at].width));
    }
    showSortIndicator();
}

QList<ListView::Column> ListView::columns() const
{
    QList<Column> result = m_model->columns();
    for (int at = 0; at < result.size(); ++at)
        if (!result[at].hidden)
            result[at].width = columnWidth(at) * 96 / logicalDpiX();
    return result;
}

void ListView::setShares(const QList<int> &hundredths)
{
    m_shares = hundredths;
    header()->setStretchLastSection(false);
    shareWidth();
}

void ListView::shareWidth()
{
    const QList<Column> designed = m_model->columns();
    int left = viewport()->width();
    int rest = -1;
    for (int at = 0; at < m_shares.size(); ++at) {
        if (m_shares[at] == 0) {
            rest = at;
            continue;
        }
        const int width =
            std::max(widthFromDesign(designed[at].width), viewport()->width() * m_shares[at] / 100);
        setColumnWidth(at, width);
        left -= width;
    }
    if (rest >= 0)
        setColumnWidth(rest, std::max(widthFromDesign(designed[rest].width), left));
}

void ListView::resizeEvent(QResizeEvent *event)
{
    QTreeView::resizeEvent(event);
    shareWidth();
}

void ListView::clearItems()
{
    m_model->clear();
    viewport()->update();
}

void ListView::addItem(const QString &key, const QStringList &texts)
{
    if (m_loads > 0)
        m_model->addWaiting(key, texts);
    else
        m_model->insert(key, texts);
}

void ListView::addItems(const QList<Row> &rows)
{
    for (const Row &row : rows)
        m_model->addWaiting(row.key, row.texts);
    if (m_loads == 0)
        showWaiting(false);
}

void ListView::showWaiting(bool quietly)
{
    LongSort sort(this, quietly ? 0 : m_model->countWithWaiting());
    m_model->showWaiting([&sort] { return sort.goOn(); });
    showSortIndicator();
}

bool ListView::removeItem(const QString &key)
{
    const int row = m_model->rowOfKey(key);
    if (row < 0)
        return false;
    m_model->removeAt(row);
    return true;
}

int ListView::itemCount() const
{
    return m_model->countWithWaiting();
}

QString ListView::itemKey(int row) const
{
    return row >= 0 && row < m_model->count() ? m_model->key(row) : QString();
}

QString ListView::itemText(int row, int column) const
{
    return row >= 0 && row < m_model->count() ? m_model->text(row, column) : QString();
}

int ListView::rowOfKey(const QString &key) const
{
    return m_model->rowOfKey(key);
}

void ListView::beginLoad()
{
    if (m_loads++ == 0)
        setUpdatesEnabled(false);
}

void ListView::endLoad(bool quietly)
{
    if (m_loads == 0 || --m_loads > 0)
        return;
    showWaiting(quietly);
    setUpdatesEnabled(true);
}

void ListView::headingClicked(int column)
{
    if (m_ascendingFirst && column != std::exchange(m_lastHeading, column))
        sortBy(sortSubstitute(column), Qt::AscendingOrder);
    else
        LVSort(this, column);
}

void ListView::sortBy(int column, Qt::SortOrder order)
{
    LongSort sort(this, m_model->count());
    m_model->sortRows(column, order, [&sort] { return sort.goOn(); });
    showSortIndicator();
}

int ListView::sortColumn() const
{
    return m_model->sortColumn();
}

Qt::SortOrder ListView::sortOrder() const
{
    return m_model->sortOrder();
}

void ListView::setSortSubstitute(int column, int sortsBy)
{
    m_sortSubstitutes.insert(column, sortsBy);
}

int ListView::sortSubstitute(int column) const
{
    return m_sortSubstitutes.value(column, column);
}

// A hidden column shows its arrow in the heading that stands for it.
void ListView::showSortIndicator()
{
    int column = sortColumn();
    if (column >= 0 && isColumnHidden(column))
        column = m_sortSubstitutes.key(column, -1);
    header()->setSortIndicatorShown(column >= 0);
    header()->setSortIndicator(column, sortOrder());
}

void ListView::setLabelEditing(LabelStore store, int maxLength)
{
    finishEditing();
    static_cast<RowDelegate *>(itemDelegate())->setMaxLength(maxLength);
    const bool editable = static_cast<bool>(store);
    setEditTriggers(editable ? EditTriggers(EditKeyPressed | SelectedClicked)
                             : EditTriggers(NoEditTriggers));
    m_model->setLabelStore(std::move(store));
}

bool ListView::editLabel(const QString &key)
{
    const QModelIndex label = m_model->index(rowOfKey(key), 0);
    if (!m_model->flags(label).testFlag(Qt::ItemIsEditable) || !LvSelectItem(this, key))
        return false;
    edit(label);
    return state() == EditingState;
}

void ListView::finishEditing()
{
    QWidget *editor = state() == EditingState ? indexWidget(currentIndex()) : nullptr;
    if (editor == nullptr)
        return;
    commitData(editor);
    if (indexWidget(currentIndex()) == editor) // its row may have gone meanwhile
        closeEditor(editor, QAbstractItemDelegate::NoHint);
}

void ListView::setEmptyText(const QString &text)
{
    m_emptyText = text;
    viewport()->update();
}

void ListView::paintEvent(QPaintEvent *event)
{
    QTreeView::paintEvent(event);
    if (m_model->count() > 0 || m_emptyText.isEmpty())
        return;
    QPainter painter(viewport());
    // Not the palette's colour for it, which some desktops leave black on their dark themes.
    QColor quiet = palette().color(QPalette::Text);
    quiet.setAlphaF(0.6F);
    painter.setPen(quiet);
    const int margin = fontMetrics().height();
    painter.drawText(viewport()->rect().adjusted(margin, margin, -margin, -margin),
                     Qt::AlignCenter | Qt::TextWordWrap, m_emptyText);
}

void ListView::keyPressEvent(QKeyEvent *event)
{
    if (event->matches(QKeySequence::Copy)) {
        copySelection();
        return;
    }
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (!enter)
        QTreeView::keyPressEvent(event);
    else if (state() == EditingState)
        event->accept(); // it ends the label being typed, no more
    else if (LvIsItemSelected(this))
        Q_EMIT itemActivated(LvGetSelectedItemKey(this));
    else
        event->ignore(); // the form's default button may have it
}

// The shown columns of the selected rows, as a spreadsheet takes them.
void ListView::copySelection() const
{
    QStringList lines;
    for (int row = 0; row < m_model->count(); ++row) {
        if (!selectionModel()->isRowSelected(row))
            continue;
        QStringList texts;
        for (int column = 0; column < m_model->columnCount(); ++column)
            if (!isColumnHidden(column))
                texts.append(itemText(row, column));
        lines.append(texts.join(u'\t'));
    }
    if (!lines.isEmpty())
        QGuiApplication::clipboard()->setText(lines.join(u'\n'));
}
