// The window: its life, its list and its commands. The searches are in frmCustomerListLoad.cpp.
#include "search/frmCustomerList.h"

#include "common/base/Failure.h"
#include "common/base/HelpTopics.h"
#include "common/ui/Printing.h"
#include "common/ui/Switchboard.h"
#include "db/clsCustomLabels.h"
#include "db/clsDB.h"
#include "search/frmLookupCustomer.h"
#include "ui_frmCustomerList.h"

#include <QCloseEvent>
#include <QLayout>
#include <QScopedValueRollback>
#include <QShortcut>

frmCustomerList::frmCustomerList(QWidget *parent)
    : FormWindow(parent), ui(std::make_unique<Ui::frmCustomerList>())
{
    ui->setupUi(this);
    setHelpTopic(help::CustomerList);
    setUpList();
    addShortcuts();
    connect(ui->lvCustomers, &ListView::itemActivated, this, &frmCustomerList::openCustomer);
    connect(ui->lvCustomers, &ListView::itemSelectionChanged, this, &frmCustomerList::SetUI);
    connect(ui->cmdProperties, &QPushButton::clicked, this,
            [this] { openCustomer(LvGetSelectedItemKey(ui->lvCustomers)); });
    connect(ui->cmdRefresh, &QPushButton::clicked, this, &frmCustomerList::reload);
    connect(ui->cmdPrint, &QPushButton::clicked, this, &frmCustomerList::printList);
    connect(ui->CancelButton, &QPushButton::clicked, this, &QWidget::close);
}

frmCustomerList::~frmCustomerList() = default;

void frmCustomerList::setUpList()
{
    const clsDB::TellOnce tellOnce(gDB);
    const auto label = [](const char *field) {
        return CustomLabels.GetCustomerLabelName(QString::fromLatin1(field), false);
    };
    const QList<ListView::Column> columns{
        {tr("Name"), QStringLiteral("N"), 190},      {label("company"), QStringLiteral("C"), 260},
        {label("custno"), QStringLiteral("O"), 120}, {label("workphone"), QStringLiteral("P"), 150},
        {label("city"), QStringLiteral("L"), 160},
    };
    for (const ListView::Column &column : columns)
        m_columnsWidth += column.width;
    ui->lvCustomers->setColumns(columns);
}

void frmCustomerList::addShortcuts()
{
    const auto *refresh = new QShortcut(QKeySequence::Refresh, this);
    connect(refresh, &QShortcut::activated, this, &frmCustomerList::reload);
    const auto *print = new QShortcut(QKeySequence::Print, this);
    connect(print, &QShortcut::activated, this, &frmCustomerList::printList);
    const auto *close = new QShortcut(Qt::Key_Escape, this);
    connect(close, &QShortcut::activated, this, &QWidget::close);
    for (QShortcut *shortcut : findChildren<QShortcut *>())
        shortcut->setContext(Qt::WidgetWithChildrenShortcut);
}

void frmCustomerList::Init(const QString &sSearchStr, qint32 SearchType)
{
    m_sSearchStr = sSearchStr;
    m_SearchType = SearchType;
    LoadData();
    SetUI();
}

void frmCustomerList::reload()
{
    LoadData();
    SetUI();
}

// A list that is still filling is not printed in part.
void frmCustomerList::printList()
{
    if (!m_bLoading)
        ListViewPrint_GetPrinter(*ui->lvCustomers, windowTitle());
}

// The columns as they are designed: the last one takes whatever width is left.
QSize frmCustomerList::sizeHint() const
{
    const QMargins margins = layout()->contentsMargins();
    const int edges = style()->pixelMetric(QStyle::PM_ScrollBarExtent) + margins.left() +
                      margins.right() + 2 * ui->lvCustomers->frameWidth();
    return {m_columnsWidth * logicalDpiX() / 96 + edges,
            FormWindow::sizeHint().height() + 12 * fontMetrics().height()};
}

// Pending window events run during a load; a second one must not begin inside the first.
void frmCustomerList::LoadData()
{
    if (m_bLoading)
        return;
    const QScopedValueRollback loading(m_bLoading, true);
    const QString selected = LvGetSelectedItemKey(ui->lvCustomers);
    const Handle table = gDB.OpenTable(gDB.CustomerTable());
    if (table < 1) {
        ui->lvCustomers->setEmptyText(tr("The customers could not be read."));
        return;
    }
    ui->lvCustomers->setEmptyText({}); // not known yet
    ui->lvCustomers->clearItems();
    ui->lvCustomers->beginLoad();
    m_bCancelled = false;
    guarded("frmCustomerList_LoadData", [&] { runSearch(table); });
    gDB.CloseTable(table);
    ui->lvCustomers->sortBy(0, Qt::AscendingOrder);
    ui->lvCustomers->endLoad();
    ui->lvCustomers->setEmptyText(m_bCancelled ? tr("The search was cancelled.")
                                  : m_sSearchStr.isEmpty()
                                      ? tr("There are no customers in this database yet.")
                                      : tr("No customer matches this search."));
    if (!LvSelectItem(ui->lvCustomers, selected))
        LvSelectFirstItem(ui->lvCustomers);
    DisplayResultCnt();
}

void frmCustomerList::SetUI()
{
    ui->cmdProperties->setEnabled(LvIsItemSelected(ui->lvCustomers));
}

void frmCustomerList::DisplayResultCnt()
{
    ui->lblCount->setText(QString::number(ui->lvCustomers->itemCount()) + tr(" Customer(s)"));
}

void frmCustomerList::openCustomer(const QString &key)
{
    if (!key.isEmpty())
        switchboard().ShowCustomer(key.mid(1).toInt(), false);
}

void frmCustomerList::closeEvent(QCloseEvent *event)
{
    if (m_bLoading)
        event->ignore();
    else
        FormWindow::closeEvent(event);
}
