// The window and its list. The searches are in frmCustomerListLoad.cpp.
#include "search/frmCustomerList.h"

#include "common/base/HelpTopics.h"
#include "common/ui/Switchboard.h"
#include "db/clsCustomLabels.h"
#include "db/TableUse.h"
#include "ui_frmCustomerList.h"

frmCustomerList::frmCustomerList(QWidget *parent)
    : HitListWindow(parent), ui(std::make_unique<Ui::frmCustomerList>())
{
    ui->setupUi(this);
    setHelpTopic(help::CustomerList);
    setUpList();
}

frmCustomerList::~frmCustomerList() = default;

void frmCustomerList::setUpList()
{
    const clsDB::TellOnce tellOnce(gDB);
    const auto label = [](const char *field) {
        return CustomLabels.GetCustomerLabelName(QString::fromLatin1(field), false);
    };
    setUpHits({ui->lvCustomers, ui->lblCount, ui->cmdProperties, ui->cmdRefresh, ui->cmdPrint,
               ui->CancelButton, tr(" Customer(s)")},
              {{tr("Name"), QStringLiteral("N"), 190},
               {label("company"), QStringLiteral("C"), 260},
               {label("custno"), QStringLiteral("O"), 120},
               {label("workphone"), QStringLiteral("P"), 150},
               {label("city"), QStringLiteral("L"), 160}});
}

void frmCustomerList::Init(const QString &sSearchStr, qint32 SearchType)
{
    m_sSearchStr = sSearchStr;
    m_SearchType = SearchType;
    LoadData();
    SetUI();
}

void frmCustomerList::LoadData()
{
    if (isLoading())
        return;
    const TableUse table(gDB, gDB.CustomerTable());
    if (!table) {
        ui->lvCustomers->setEmptyText(tr("The customers could not be read."));
        return;
    }
    load("frmCustomerList_LoadData", Order::ByFirstColumn, [&] {
        return !runSearch(table.handle()) ? tr("The search was cancelled.")
               : m_sSearchStr.isEmpty()   ? tr("There are no customers in this database yet.")
                                          : tr("No customer matches this search.");
    });
}

void frmCustomerList::openRecord(qint32 rowid)
{
    switchboard().ShowCustomer(rowid, false);
}
