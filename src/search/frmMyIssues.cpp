#include "search/frmMyIssues.h"

#include "common/base/HelpTopics.h"
#include "common/base/Host.h"
#include "common/base/Preferences.h"
#include "common/form/ListSinks.h"
#include "common/ui/Controls.h"
#include "common/ui/Switchboard.h"
#include "db/LookupTypes.h"
#include "search/IssueTables.h"
#include "search/ListLoading.h"
#include "ui_frmMyIssues.h"

#include <QCloseEvent>
#include <QScrollBar>

namespace
{

constexpr qint32 UnAssigned = -1; // as an issue without an owner has it
constexpr qint32 AllStatuses = -1;
constexpr std::chrono::milliseconds RefreshPause{3000};
constexpr int SubmitColumn = 2;
constexpr int DateSortColumn = 6;

const QString AutoRefresh = QStringLiteral("AutoRefreshMyIssues");
const QString LastStatus = QStringLiteral("LastIssueSearchStatusID");

} // namespace

frmMyIssues::frmMyIssues(QWidget *parent)
    : HitListWindow(parent), ui(std::make_unique<Ui::frmMyIssues>())
{
    ui->setupUi(this);
    setTagText(Tag);
    setHelpTopic(help::MyIssues);
    setUpList();
    m_tmRefresh.setParent(this);
    m_tmRefresh.setObjectName(QStringLiteral("tmRefresh"));
    m_tmRefresh.setInterval(RefreshPause);
    connect(&m_tmRefresh, &QTimer::timeout, this, &frmMyIssues::tick);
    connect(ui->ckAutoRefresh, &QCheckBox::toggled, this, &frmMyIssues::setAutoRefresh);
}

frmMyIssues::~frmMyIssues() = default;

void frmMyIssues::setUpList()
{
    setUpHits({ui->lv, ui->lblCust, ui->cmdProperties, ui->cmdRefresh, ui->cmdPrint,
               ui->CancelButton, tr(" Issue(s)")},
              {{tr("Priority"), QStringLiteral("R"), 90},
               {tr("Status"), QStringLiteral("U"), 150},
               {tr("Submit"), QStringLiteral("T"), 90},
               {tr("Customer"), QStringLiteral("C"), 240},
               {tr("Short Description"), QStringLiteral("D"), 330},
               {tr("Product/Service"), QStringLiteral("P"), 180},
               {tr("Date Sorting"), QStringLiteral("-"), 0, true}});
    ui->lv->setSortSubstitute(SubmitColumn, DateSortColumn);
    ui->lv->setAscendingFirst(true);
}

void frmMyIssues::Init()
{
    loadFilters();
    ui->ckAutoRefresh->setChecked(GetPrefStr(AutoRefresh) == u"Y");
    LoadData(false);
    connect(ui->cboAssignedTo, &QComboBox::currentIndexChanged, this, &frmMyIssues::filterChanged);
    connect(ui->cboStatus, &QComboBox::currentIndexChanged, this, &frmMyIssues::filterChanged);
    ui->lv->setFocus();
}

// A status that is gone from the list leaves the filter to all of them.
void frmMyIssues::loadFilters()
{
    const clsDB::TellOnce tellOnce(gDB);
    cboAddItem(ui->cboAssignedTo, tr("Un-Assigned"), UnAssigned);
    ComboSink users(ui->cboAssignedTo);
    gDB.LoadCbo_Users(users);
    cboSelectAtID(ui->cboAssignedTo, gDB.LoginID());
    cboAddItem(ui->cboStatus, tr("All"), AllStatuses);
    ComboSink statuses(ui->cboStatus);
    gDB.LoadCbo(statuses, gDB.CategoryTable(), QStringLiteral("rowid"), QStringLiteral("desc"),
                QStringLiteral("type"), lookup_type::IssueStatuses);
    cboSelectAtID(ui->cboStatus, GetPrefLong(LastStatus));
}

void frmMyIssues::filterChanged()
{
    LoadData(false);
    CtlSetFocus(ui->lv);
}

void frmMyIssues::setAutoRefresh(bool on)
{
    m_bAutoRefresh = on;
    if (on)
        m_tmRefresh.start();
    else
        m_tmRefresh.stop();
}

// Bound to the clock, not to the last load: every tick of a minute that ends in 0 or 5 reads anew.
void frmMyIssues::tick()
{
    if (m_bAutoRefresh && host().now().time().minute() % 5 == 0)
        LoadData(true);
}

void frmMyIssues::LoadData(bool bAutoRefresh)
{
    if (isLoading())
        return;
    if (!bAutoRefresh)
        m_toldOnce.reset();
    else if (!m_toldOnce)
        m_toldOnce = std::make_unique<clsDB::TellOnce>(gDB);
    const int scrolledTo = ui->lv->verticalScrollBar()->value();
    IssueTables tables;
    if (tables)
        m_toldOnce.reset();
    load("frmMyIssues_LoadIssues", bAutoRefresh ? Order::AsItIsQuietly : Order::AsItIs,
         [&] { return LoadIssues(tables, bAutoRefresh); });
    if (bAutoRefresh)
        ui->lv->verticalScrollBar()->setValue(scrolledTo);
}

QString frmMyIssues::LoadIssues(IssueTables &tables, bool bAutoRefresh)
{
    if (!tables)
        return tr("The issues could not be read.");
    ListLoading loading(bAutoRefresh ? QString() : tr("Displaying My Issues. Please wait..."));
    const qint32 user = cboGetItemID(ui->cboAssignedTo);
    const qint32 status = cboGetItemID(ui->cboStatus);
    const bool whole = IssueSearch(tables.issues())
                           .assignedTo(
                               user, status == AllStatuses ? std::nullopt : std::optional(status),
                               [&](const IssueHit &hit) { AddLvItem(tables, hit); },
                               [&loading] { return loading.goOn(); });
    setWindowTitle(tr("My Issues (Assigned to: ") + ui->cboAssignedTo->currentText() +
                   tr(", Status ='") + ui->cboStatus->currentText() + u"') @" +
                   clsSystem::CurrTimeAMPM());
    tables.forgetNames();
    return whole ? tr("No issue is assigned like this.") : tr("The list was cancelled.");
}

void frmMyIssues::AddLvItem(IssueTables &tables, const IssueHit &hit)
{
    const QString submitted = IssueTables::text(hit.submitdt).trimmed();
    ui->lv->addItem(IssueTables::itemKey(hit),
                    {tables.category(hit.priority), tables.category(hit.status),
                     tables.shortDate(submitted), tables.customer(hit.custid),
                     IssueTables::text(hit.shortdesc), tables.category(hit.psid), submitted});
}

void frmMyIssues::SetUI()
{
    HitListWindow::SetUI();
    markChoice(ui->cboStatus, ui->cboStatus->currentIndex() != 0);
    markChoice(ui->cboAssignedTo, cboGetItemID(ui->cboAssignedTo) != gDB.LoginID());
}

void frmMyIssues::openRecord(qint32 rowid)
{
    switchboard().ShowIssue(rowid, -1, false, -1);
}

void frmMyIssues::closeEvent(QCloseEvent *event)
{
    HitListWindow::closeEvent(event);
    if (!event->isAccepted())
        return;
    m_tmRefresh.stop();
    SetPrefLong(LastStatus, cboGetItemID(ui->cboStatus));
    SetPrefStr(AutoRefresh, m_bAutoRefresh ? QStringLiteral("Y") : QString());
}
