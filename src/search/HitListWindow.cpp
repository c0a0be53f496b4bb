#include "search/HitListWindow.h"

#include "common/base/Failure.h"
#include "common/ui/Controls.h"
#include "common/ui/Printing.h"

#include <QCloseEvent>
#include <QKeySequence>
#include <QLabel>
#include <QLayout>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QStyle>

HitListWindow::HitListWindow(QWidget *parent) : FormWindow(parent) {}

void HitListWindow::setUpHits(const Parts &parts, const QList<ListView::Column> &columns)
{
    m_parts = parts;
    for (const ListView::Column &column : columns)
        m_columnsWidth += column.hidden ? 0 : column.width;
    parts.list->setColumns(columns);
    connect(parts.list, &ListView::itemActivated, this, &HitListWindow::openHit);
    connect(parts.list, &ListView::itemSelectionChanged, this, [this] { SetUI(); });
    connect(parts.cmdProperties, &QPushButton::clicked, this,
            [this] { openHit(LvGetSelectedItemKey(m_parts.list)); });
    connect(parts.cmdRefresh, &QPushButton::clicked, this, [this] { reload(); });
    connect(parts.cmdPrint, &QPushButton::clicked, this, &HitListWindow::printList);
    connect(parts.cmdClose, &QPushButton::clicked, this, &QWidget::close);
    shortcutFor(this, QKeySequence::Refresh, parts.cmdRefresh);
    shortcutFor(this, QKeySequence::Print, parts.cmdPrint);
}

// The columns as they are designed: the last one takes whatever width is left.
QSize HitListWindow::sizeHint() const
{
    const QMargins margins = layout()->contentsMargins();
    const int edges = style()->pixelMetric(QStyle::PM_ScrollBarExtent) + margins.left() +
                      margins.right() + 2 * m_parts.list->frameWidth();
    return {m_columnsWidth * logicalDpiX() / 96 + edges,
            FormWindow::sizeHint().height() + 12 * fontMetrics().height()};
}

void HitListWindow::load(const char *procedure, Order order, const std::function<QString()> &read)
{
    if (m_loading)
        return;
    const QScopedValueRollback loading(m_loading, true);
    ListView *const list = m_parts.list;
    const QString selected = LvGetSelectedItemKey(list);
    QString whyEmpty;
    list->setEmptyText({}); // not known yet
    list->clearItems();
    list->beginLoad();
    guarded(procedure, [&] { whyEmpty = read(); });
    if (order == Order::ByFirstColumn)
        list->sortBy(0, Qt::AscendingOrder);
    list->endLoad(order == Order::AsItIsQuietly);
    list->setEmptyText(whyEmpty);
    if (!LvSelectItem(list, selected))
        LvSelectFirstItem(list);
    DisplayResultCnt();
    SetUI();
}

void HitListWindow::SetUI()
{
    m_parts.cmdProperties->setEnabled(LvIsItemSelected(m_parts.list));
}

void HitListWindow::DisplayResultCnt()
{
    m_parts.lblCount->setText(QString::number(m_parts.list->itemCount()) + m_parts.unit);
}

void HitListWindow::openHit(const QString &key)
{
    if (!key.isEmpty())
        openRecord(LvKeyId(key));
}

// A list that is still filling is not printed in part.
void HitListWindow::printList()
{
    if (!m_loading)
        ListViewPrint_GetPrinter(*m_parts.list, windowTitle());
}

void HitListWindow::closeEvent(QCloseEvent *event)
{
    if (m_loading)
        event->ignore();
    else
        FormWindow::closeEvent(event);
}
