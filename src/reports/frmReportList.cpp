#include "reports/frmReportList.h"

#include "common/base/clsSystem.h"
#include "common/base/Failure.h"
#include "common/base/HelpTopics.h"
#include "common/base/Hourglass.h"
#include "common/base/Prompts.h"
#include "common/ui/Controls.h"
#include "common/ui/Icons.h"
#include "common/ui/ListView.h"
#include "common/ui/Switchboard.h"
#include "db/TableUse.h"
#include "reports/ReportNames.h"
#include "ui_frmReportList.h"

#include <QHash>
#include <QHeaderView>
#include <QMenu>

namespace
{

constexpr int kTitle = 0; // columns
constexpr int kModifiedOn = 3;
constexpr int kModifiedSort = 4;
constexpr int kWindowCharacters = 150;
constexpr int kWindowLines = 30;

} // namespace

frmReportList::frmReportList(QWidget *parent)
    : FormWindow(parent), m_ui(std::make_unique<Ui::frmReportList>())
{
    m_ui->setupUi(this);
    setTagText(QStringLiteral("REPORTS"));
    setHelpTopic(help::ReportList);
    setUpList();
    setUpNewMenu();
    connectControls();
}

frmReportList::~frmReportList() = default;

void frmReportList::setUpList()
{
    m_ui->lv->setColumns({{tr("Report Title"), QStringLiteral("N"), 320},
                          {tr("Type"), QStringLiteral("T"), 110},
                          {tr("Last Modified By"), QStringLiteral("M"), 170},
                          {tr("Last Modified On"), QStringLiteral("O"), 190},
                          {tr("Date Sort"), {}, 0, true}});
    m_ui->lv->setSortSubstitute(kModifiedOn, kModifiedSort);
    m_ui->lv->setSelectionMode(QAbstractItemView::SingleSelection);
    m_ui->lv->header()->setStretchLastSection(false);
    m_ui->lv->header()->setSectionResizeMode(kTitle, QHeaderView::Stretch);
    m_ui->lv->setEmptyText(tr("There are no reports yet. Press New to define one."));
}

// In a menu, where the letters of its entries do not meet those of the buttons.
void frmReportList::setUpNewMenu()
{
    auto *menu = new QMenu(m_ui->cmdNew);
    menu->setToolTipsVisible(true);
    menu->addActions({m_ui->cmdNewCustomerRpt, m_ui->cmdNewIssueReport});
    menu->addSeparator();
    menu->addAction(m_ui->cmdNewProductReport);
    m_ui->cmdNew->setMenu(menu);
    m_ui->cmdNewCustomerRpt->setIcon(icon(QStringLiteral("customer")));
    m_ui->cmdNewIssueReport->setIcon(icon(QStringLiteral("issues")));
    m_ui->cmdNewProductReport->setIcon(icon(QStringLiteral("product")));
}

void frmReportList::connectControls()
{
    connect(m_ui->cmdNewCustomerRpt, &QAction::triggered, this,
            [this] { newReport(QStringLiteral("C")); });
    connect(m_ui->cmdNewIssueReport, &QAction::triggered, this,
            [this] { newReport(QStringLiteral("I")); });
    connect(m_ui->cmdNewProductReport, &QAction::triggered, this,
            [] { switchboard().ShowProductReport(); });
    connect(m_ui->cmdView, &QPushButton::clicked, this, &frmReportList::view);
    connect(m_ui->cmdProperties, &QPushButton::clicked, this, &frmReportList::edit);
    connect(m_ui->cmdCopy, &QPushButton::clicked, this, &frmReportList::copy);
    connect(m_ui->cmdRefresh, &QPushButton::clicked, this, [this] { LoadData(); });
    connect(m_ui->CancelButton, &QPushButton::clicked, this, &QWidget::close);
    connect(m_ui->lv, &ListView::itemActivated, this, &frmReportList::view);
    connect(m_ui->lv, &ListView::itemSelectionChanged, this, &frmReportList::SetUI);
    shortcutFor(this, QKeySequence::Refresh, m_ui->cmdRefresh);
}

QSize frmReportList::sizeHint() const
{
    return FormWindow::sizeHint().expandedTo({kWindowCharacters * fontMetrics().averageCharWidth(),
                                              kWindowLines * fontMetrics().height()});
}

void frmReportList::Init()
{
    LoadData();
    SetUI();
}

void frmReportList::LoadData(qint32 select)
{
    guarded("frmReportList_LoadData", [&] {
        const Hourglass wait;
        const QString selected = LvGetSelectedItemKey(m_ui->lv);
        TableUse reports(gDB, gDB.ReportTable());
        if (!reports)
            return;
        reports.select(QStringLiteral("title"));
        m_ui->lv->clearItems();
        m_ui->lv->beginLoad();
        addRows(reports);
        m_ui->lv->endLoad();
        if (!LvSelectItem(m_ui->lv, LvKey(select)) && !LvSelectItem(m_ui->lv, selected))
            LvSelectFirstItem(m_ui->lv);
        m_ui->lblCount->setText(QString::number(m_ui->lv->itemCount()) + tr(" Report(s)"));
        setWindowTitle(tr("All Reports") + u" @" + clsSystem::CurrTimeAMPM());
        SetUI();
    });
}

// A report that came with the database was never modified.
void frmReportList::addRows(TableUse &reports)
{
    QHash<qint32, QString> names;
    for (bool more = reports.top(); more; more = reports.next()) {
        const qint32 user = reports.number(QStringLiteral("lastmodby"));
        if (!names.contains(user))
            names.insert(user, gDB.GetUsername(user));
        const QString date = reports.text(QStringLiteral("lastmoddt"));
        const QString time = reports.text(QStringLiteral("lastmodtm"));
        const QString on =
            clsSystem::DBDateToDislayDate(date) + u" @ " + clsSystem::DBTimeToDislayTime(time);
        m_ui->lv->addItem(LvKey(reports.number(QStringLiteral("rowid"))),
                          {reports.text(QStringLiteral("title")),
                           reports::typeName(reports.text(QStringLiteral("type"))),
                           names.value(user), date.isEmpty() ? QString() : on, date + time});
    }
}

void frmReportList::SetUI()
{
    const bool selected = LvIsItemSelected(m_ui->lv);
    for (QPushButton *button : {m_ui->cmdCopy, m_ui->cmdView, m_ui->cmdProperties})
        button->setEnabled(selected);
}

qint32 frmReportList::selectedReport() const
{
    return LvKeyId(LvGetSelectedItemKey(m_ui->lv));
}

void frmReportList::newReport(const QString &type)
{
    if (gDB.Perm_Reports() && gDB.MayWrite())
        switchboard().ShowReportDef(-1, type);
}

void frmReportList::view()
{
    if (selectedReport() > 0)
        switchboard().ShowReport(selectedReport());
}

void frmReportList::edit()
{
    if (selectedReport() > 0)
        switchboard().ShowReportDef(selectedReport(), {});
}

// One that has gone makes no copy; the list then no longer shows it.
void frmReportList::copy()
{
    guarded("frmReportList_cmdCopy_Click", [this] {
        const qint32 original = selectedReport();
        if (!gDB.Perm_Reports() || original < 1)
            return;
        const QString question =
            tr("Do you wish to make a copy of '%1'?").arg(LvGetSelectedItemText(m_ui->lv));
        if (prompts::ask(question) == prompts::Answer::Yes)
            LoadData(gDB.CopyReport(original));
        m_ui->lv->setFocus();
    });
}
