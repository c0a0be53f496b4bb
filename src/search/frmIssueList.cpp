#include "search/frmIssueList.h"

#include "common/base/clsSystem.h"
#include "common/base/HelpTopics.h"
#include "common/base/Prompts.h"
#include "common/ui/Switchboard.h"
#include "db/search/WordMatcher.h"
#include "search/IssueTables.h"
#include "search/ListLoading.h"
#include "ui_frmIssueList.h"

frmIssueList::frmIssueList(QWidget *parent)
    : HitListWindow(parent), ui(std::make_unique<Ui::frmIssueList>())
{
    ui->setupUi(this);
    setHelpTopic(help::FindIssues);
    setUpList();
}

frmIssueList::~frmIssueList() = default;

void frmIssueList::setUpList()
{
    setUpHits({ui->lv, ui->lblCust, ui->cmdProperties, ui->cmdRefresh, ui->cmdPrint,
               ui->CancelButton, tr(" Issue(s)")},
              {{tr("Short Description"), QStringLiteral("D"), 342},
               {tr("Product/Service"), QStringLiteral("P"), 285},
               {tr("Status"), QStringLiteral("S"), 171},
               {tr("Customer"), QStringLiteral("C"), 342}});
}

void frmIssueList::setSearchWhat(bool shortDesc, bool desc, bool resolution)
{
    m_query.inShortDesc = shortDesc;
    m_query.inDesc = desc;
    m_query.inResolution = resolution;
}

void frmIssueList::Init(const QString &sSearchStr, qint32 SearchType, qint32 nPSID)
{
    m_query.text = searchTextShown(sSearchStr);
    m_query.type = SearchType;
    m_query.psid = nPSID;
    if (!m_query.inDesc && !m_query.inResolution)
        m_query.inShortDesc = true;
    LoadData();
}

void frmIssueList::LoadData()
{
    if (isLoading())
        return;
    m_unreadable = 0;
    {
        IssueTables tables;
        load("frmIssueList_LoadIssues", Order::ByFirstColumn, [&] { return LoadIssues(tables); });
    }
    tellUnreadable();
}

QString frmIssueList::LoadIssues(IssueTables &tables)
{
    if (!tables)
        return tr("The issues could not be read.");
    ListLoading loading(tr("Searching Issues. Please wait..."));
    const clsDB::MemoDamageCounted counted(gDB);
    IssueSearch search(tables.issues());
    const bool whole = search.search(
        m_query, [&](const IssueHit &hit) { AddLvItem(tables, hit); },
        [&loading] { return loading.goOn(); });
    m_unreadable = search.unreadable();
    setWindowTitle(tr("Issues (Search ='") + m_query.text + u"') @" + clsSystem::CurrTimeAMPM());
    tables.forgetNames();
    return whole ? tr("No issue matches this search.") : tr("The search was cancelled.");
}

void frmIssueList::AddLvItem(IssueTables &tables, const IssueHit &hit)
{
    ui->lv->addItem(IssueTables::itemKey(hit),
                    {IssueTables::text(hit.shortdesc), tables.category(hit.psid),
                     tables.category(hit.status), tables.customer(hit.custid)});
}

// Once, after the search: it went on behind them.
void frmIssueList::tellUnreadable() const
{
    if (m_unreadable > 0)
        prompts::warn(tr("The description or resolution of %1 issue(s) is damaged and could not be "
                         "searched. These issues are missing from the list, unless they were found "
                         "by another text.\n\nPlease make a copy of the whole data folder, and "
                         "restore the damaged file from your latest backup.")
                          .arg(m_unreadable));
}

void frmIssueList::openRecord(qint32 rowid)
{
    switchboard().ShowIssue(rowid, -1, false, -1);
}
