#include "admin/frmPurgeIssues.h"

#include "common/base/AppInfo.h"
#include "common/base/clsSystem.h"
#include "common/base/Failure.h"
#include "common/base/HelpTopics.h"
#include "common/base/Host.h"
#include "common/form/ListSinks.h"
#include "common/ui/BusyWindow.h"
#include "common/ui/Controls.h"
#include "common/ui/Help.h"
#include "common/ui/Icons.h"
#include "common/ui/Printing.h"
#include "common/ui/Switchboard.h"
#include "db/clsDB.h"
#include "db/FieldText.h"
#include "db/IssuePurge.h"
#include "db/LookupTypes.h"
#include "db/search/IssueSearch.h"
#include "db/TableUse.h"
#include "ui_frmPurgeIssues.h"

#include <QStyle>

#include <algorithm>

namespace
{

constexpr int RowsBetweenEvents = 100;

QString textOf(std::string_view stored)
{
    return fromStored(stored.data(), static_cast<qsizetype>(stored.size()));
}

} // namespace

frmPurgeIssues::frmPurgeIssues(const QString &backupAdvice, QWidget *parent)
    : FormWindow(parent), ui(std::make_unique<Ui::frmPurgeIssues>())
{
    ui->setupUi(this);
    QSizePolicy hint = ui->lblPurgeNow->sizePolicy();
    hint.setRetainSizeWhenHidden(true); // the buttons beside it keep their size
    ui->lblPurgeNow->setSizePolicy(hint);
    setTagText(Tag);
    setHelpTopic(help::PurgeIssues);
    const int size = style()->pixelMetric(QStyle::PM_LargeIconSize);
    ui->imgWarning->setPixmap(icon(QStringLiteral("warning")).pixmap(QSize(size, size)));
    ui->lblBackupFirst->setText(
        tr("BACK UP YOUR DATA FIRST! We strongly suggest that you backup your %1 database now, "
           "before you purge any old issues... Once you delete issues they cannot be recovered! ")
            .arg(app::title()));
    ui->lblBackup->setIcon(icon(QStringLiteral("backup")));
    ui->cmdCalendar->setIcon(icon(QStringLiteral("calendar")));
    ComboSink statuses(ui->cboStatus);
    gDB.LoadCbo(statuses, gDB.CategoryTable(), QStringLiteral("rowid"), QStringLiteral("desc"),
                QStringLiteral("type"), lookup_type::IssueStatuses);
    setUpList();
    connectControls();
    connect(ui->lblBackup, &QPushButton::clicked, this, [backupAdvice] {
        clsSystem::ShowMsg(backupAdvice, prompts::Kind::Information, help::Backup);
    });
    DisplayFrame();
}

frmPurgeIssues::~frmPurgeIssues() = default;

QSize frmPurgeIssues::sizeHint() const
{
    return FormWindow::sizeHint().expandedTo(
        {fontMetrics().averageCharWidth() * 128, fontMetrics().height() * 28});
}

void frmPurgeIssues::setUpList()
{
    ui->lv->setColumns({{tr("Issue No."), QStringLiteral("I"), 90},
                        {tr("Submit Date"), QStringLiteral("T"), 100},
                        {tr("Status"), QStringLiteral("U"), 150},
                        {tr("Short Description"), QStringLiteral("D"), 330}});
    connect(ui->lv, &ListView::itemActivated, this, &frmPurgeIssues::openIssue);
    connect(ui->lv, &ListView::itemSelectionChanged, this, &frmPurgeIssues::SetUI);
}

void frmPurgeIssues::connectControls()
{
    const auto onClick = [this](QPushButton *button, void (frmPurgeIssues::*body)()) {
        connect(button, &QPushButton::clicked, this, [this, button, body] {
            const QByteArray context =
                "frmPurgeIssues_" + button->objectName().toLatin1() + "_Click";
            guarded(context.constData(), [this, body] { (this->*body)(); });
        });
    };
    onClick(ui->cmdNext, &frmPurgeIssues::goNext);
    onClick(ui->cmdPrevious, &frmPurgeIssues::goBack);
    onClick(ui->cmdCalendar, &frmPurgeIssues::pickDate);
    onClick(ui->cmdProperties, &frmPurgeIssues::openIssue);
    connect(ui->cmdPrintLV, &QPushButton::clicked, this,
            [this] { ListViewPrint_GetPrinter(*ui->lv, ui->lblCriteria->text()); });
    connect(ui->cmdHelp, &QPushButton::clicked, this,
            [this] { switchboard().showHelp(helpTopic()); });
    connect(ui->CancelButton, &QPushButton::clicked, this, &QWidget::close);
    shortcutFor(this, QKeySequence::Print, ui->cmdPrintLV);
}

void frmPurgeIssues::DisplayFrame()
{
    ui->pages->setCurrentIndex(m_step);
    ui->cmdPrevious->setEnabled(m_step != BackUp);
    ui->cmdNext->setText(m_step == LookAtIssues ? tr("Purge &Now") : tr("&Next >>"));
    if (m_step == LookAtIssues) {
        ui->lblCriteria->setText(
            tr("Issues submitted on or before %1 with an issue status of '%2'")
                .arg(clsSystem::Trim(ui->txtDateSubmit->text()), ui->cboStatus->currentText()));
        LoadLV();
        ui->lblNumIssues->setText(tr("%1 issue(s)").arg(ui->lv->itemCount()));
        ui->lv->setFocus();
    } else {
        ui->lv->clearItems();
        CtlSetFocus(m_step == BackUp ? static_cast<QWidget *>(ui->cmdNext) : ui->txtDateSubmit);
    }
    SetUI();
}

void frmPurgeIssues::SetUI()
{
    ui->cmdProperties->setEnabled(LvIsItemSelected(ui->lv));
    ui->cmdPrintLV->setEnabled(m_step == LookAtIssues && !m_done);
}

void frmPurgeIssues::goNext()
{
    if (!Validate())
        return;
    if (m_step == LookAtIssues) {
        PurgeIssues();
        return;
    }
    ++m_step;
    DisplayFrame();
}

void frmPurgeIssues::goBack()
{
    m_step = std::max(m_step - 1, int(BackUp));
    DisplayFrame();
}

void frmPurgeIssues::pickDate()
{
    const QString date = switchboard().GetShortDateFromPopupCalendar(ui->txtDateSubmit->text());
    if (!date.isEmpty())
        ui->txtDateSubmit->setText(date);
    CtlSetFocus(ui->txtDateSubmit);
}

void frmPurgeIssues::openIssue()
{
    const QString key = LvGetSelectedItemKey(ui->lv);
    if (!key.isEmpty())
        switchboard().ShowIssue(LvKeyId(key), -1, false, -1);
}

bool frmPurgeIssues::Validate()
{
    if (m_step != ChooseIssues)
        return true;
    const QString date = clsSystem::Trim(ui->txtDateSubmit->text());
    QString errors;
    if (date.isEmpty())
        errors += clsSystem::CRLF() + tr("  - Issue Submit Date must be entered.");
    else if (!clsSystem::IsDate(date))
        errors += clsSystem::CRLF() + tr("  - Issue Submit Date is not a valid date.");
    if (cboGetItemID(ui->cboStatus) < 1)
        errors += clsSystem::CRLF() + tr("  - Issue Status Criteria must be selected.");
    if (errors.isEmpty())
        return true;
    clsSystem::ShowMsg(tr("Please correct the following errors before proceeding:") +
                           clsSystem::CRLF(2) + errors,
                       prompts::Kind::Critical, helpTopic());
    CtlSetFocus(clsSystem::IsDate(date) ? static_cast<QWidget *>(ui->cboStatus)
                                        : ui->txtDateSubmit);
    return false;
}

void frmPurgeIssues::LoadLV()
{
    const TableUse issues(gDB, gDB.IssuesTable());
    ui->lv->setEmptyText(issues ? QString() : tr("The issues could not be read."));
    ui->lv->clearItems();
    if (!issues)
        return;
    ui->lv->beginLoad();
    guarded("frmPurgeIssues_LoadIssues", [&] { LoadIssues(issues); });
    ui->lv->sortBy(0, Qt::AscendingOrder);
    ui->lv->endLoad();
    LvSelectFirstItem(ui->lv);
}

void frmPurgeIssues::LoadIssues(const TableUse &issues)
{
    const BusyWindow oneAtATime(this);
    const QByteArray cutOff = clsSystem::CBDateFormat(ui->txtDateSubmit->text()).toLatin1();
    WaitDlg wait;
    clsSystem::WaitDlgShow(wait, windowTitle(),
                           tr("Displaying issues that meet the criteria. Please wait..."), false,
                           true);
    host().pumpEvents();
    qint32 count = 0;
    const bool whole = IssueSearch(issues.handle())
                           .ofStatus(
                               cboGetItemID(ui->cboStatus),
                               [&](const IssueHit &hit) {
                                   // Stored dates compare as text; no date comes before all.
                                   if (textOf(hit.submitdt).trimmed().toLatin1() <= cutOff)
                                       AddLvItem(hit);
                               },
                               [&] {
                                   if (++count % RowsBetweenEvents == 0)
                                       host().pumpEvents();
                                   return !wait->cancelled();
                               });
    clsSystem::WaitDlgRemove(wait);
    ui->lv->setEmptyText(whole ? tr("No issue meets the criteria.")
                               : tr("The list was cancelled."));
}

void frmPurgeIssues::AddLvItem(const IssueHit &hit)
{
    ui->lv->addItem(LvKey(hit.rowid),
                    {QString::number(hit.rowid),
                     clsSystem::DBDateToDislayDate(textOf(hit.submitdt), clsSystem::FmtShortDate()),
                     ui->cboStatus->currentText(), textOf(hit.shortdesc).trimmed()});
}

void frmPurgeIssues::PurgeIssues()
{
    if (ui->lv->itemCount() == 0) {
        prompts::inform(
            tr("Currently, there are no issues to purge/delete that meet your criteria."));
        return;
    }
    if (prompts::ask(tr("Are you sure you want to PERMANENTLY DELETE the displayed issues?"),
                     prompts::Answer::No, tr("Delete Confirmation")) != prompts::Answer::Yes)
        return;
    m_done = true;
    ui->cmdNext->setEnabled(false);
    ui->cmdPrevious->setEnabled(false);
    ui->lblPurgeNow->hide();
    ui->lblPreview->hide();
    ui->lblNumIssues->hide();
    ui->CancelButton->setText(tr("&Finish"));
    DeleteIssues();
    ui->CancelButton->setFocus();
}

void frmPurgeIssues::DeleteIssues()
{
    QList<qint32> ids;
    ids.reserve(ui->lv->itemCount());
    for (int row = 0; row < ui->lv->itemCount(); ++row)
        ids.append(LvKeyId(ui->lv->itemKey(row)));
    PurgeResult result;
    {
        const BusyWindow oneAtATime(this);
        WaitDlg wait;
        clsSystem::WaitDlgShow(wait, tr("Deleting Issues"), tr("Please wait..."), true, false);
        result = IssuePurge(gDB).DeleteIssues(ids, [&wait](qint32 done, qint32 all) {
            if (done % RowsBetweenEvents != 0 && done != all)
                return;
            clsSystem::WaitDlgUpdate(wait, static_cast<int>(qint64(done) * 100 / all));
            host().pumpEvents();
        });
        clsSystem::WaitDlgRemove(wait);
    }
    ui->lv->setEmptyText(QString());
    ui->lv->clearItems();
    SetUI();
    prompts::inform(tr("%1 issues have been deleted!").arg(result.deleted));
    if (result.remaining > 0)
        prompts::warn(tr("%1 of the issues could not be deleted and remain. Run this wizard again "
                         "with the same date and status to delete them.")
                          .arg(result.remaining));
}
