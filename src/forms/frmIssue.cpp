#include "forms/frmIssue.h"

#include "common/base/HelpTopics.h"
#include "db/clsIssueTemplate.h"
#include "forms/IssueFieldsCtl.h"
#include "ui_frmIssue.h"
#include "ui_IssueFieldsCtl.h"

namespace
{

constexpr int kWindowCharacters = 120;

// Entries that every database comes with; a list may have lost them since.
constexpr qint32 kNormalPriority = 451;
constexpr qint32 kOpenStatus = 400;

RecordSpec issueSpec()
{
    return {.tagPrefix = QStringLiteral("I"),
            .table = schema::Table::Issues,
            .recordType = QStringLiteral("_issue"),
            .captionPrefix = frmIssue::tr("Issue: "),
            .newCaption = {},
            .helpTopic = help::Issue,
            .permission = &clsDB::Perm_Issues};
}

} // namespace

frmIssue::frmIssue(QWidget *parent)
    : IssueRecordForm(issueSpec(), Issues, QStringLiteral("_i"), parent),
      m_ui(std::make_unique<Ui::frmIssue>())
{
    m_ui->setupUi(this);
    setWindowTitle(tr("Issue"));
    const Ui::IssueFieldsCtl &fields = m_ui->fields->ui();
    takeItemControls(m_ui.get(), &fields);
    setNewRecordHint(m_ui->lblNewIssue);
    bindCustomer();
    bindIssueFields(m_ui.get());
    bindDate(QStringLiteral("submitdt"), fields.txtDateSubmit);
    bindDate(QStringLiteral("responsedt"), fields.txtDateResponse);
    bindDate(QStringLiteral("resolvedt"), fields.txtDateResolution);
    bindCalendar(fields.cmdCalendar_0, fields.txtDateSubmit);
    bindCalendar(fields.cmdCalendar_1, fields.txtDateResponse);
    bindCalendar(fields.cmdCalendar_2, fields.txtDateResolution);
}

frmIssue::~frmIssue() = default;

// Wide enough for the list of actions.
QSize frmIssue::sizeHint() const
{
    return CustomerItemForm::sizeHint().expandedTo(
        {kWindowCharacters * fontMetrics().averageCharWidth(), 0});
}

QString frmIssue::description() const
{
    const Ui::IssueFieldsCtl &fields = m_ui->fields->ui();
    return describe(fields.cboPS->currentText(), fields.txtShortDesc->text());
}

QString frmIssue::firstProblem()
{
    const Ui::IssueFieldsCtl &fields = m_ui->fields->ui();
    QStringList faults;
    if (cboGetItemID(fields.cboPS) < 0)
        faults += tr("  - PRODUCT/SERVICE must be selected.");
    if (clsSystem::Trim(fields.txtShortDesc->text()).isEmpty())
        faults += tr("  - SHORT DESCRIPTION must be entered.");
    if (isNoDate(fields.txtDateSubmit))
        faults += tr("  - SUBMIT DATE is not a valid date.");
    if (isNoDate(fields.txtDateResponse))
        faults += tr("  - RESPONSE DATE is not a valid date.");
    if (isNoDate(fields.txtDateResolution))
        faults += tr("  - RESOLUTION DATE is not a valid date.");
    return faultsMessage(faults);
}

void frmIssue::startNew()
{
    m_ui->fields->ui().txtDateSubmit->setText(clsSystem::CurrDateShort());
    showField(QStringLiteral("priority"), kNormalPriority);
    showField(QStringLiteral("status"), kOpenStatus);
    showField(QStringLiteral("assignedto"), gDB.LoginID());
    takeFromTemplate();
}

// A list entry or user that the template leaves open, or that is gone by now, leaves the default.
void frmIssue::takeFromTemplate()
{
    clsIssueTemplate values;
    if (m_templateId < 1 || !values.Init(m_templateId))
        return;
    const std::pair<const char *, qint32> choices[] = {{"psid", values.PSId()},
                                                       {"assignedto", values.AssignedTo()},
                                                       {"priority", values.Priority()},
                                                       {"status", values.STATUS()},
                                                       {"issuecat", values.Category()}};
    for (const auto &[field, id] : choices)
        if (id > 0)
            showField(QLatin1String(field), id);
    showField(QStringLiteral("shortdesc"), values.ShortDesc());
    showField(QStringLiteral("custom1"), values.custom1());
    showField(QStringLiteral("custom2"), values.custom2());
    showField(QStringLiteral("desc"), values.Desc());
    showField(QStringLiteral("resolution"), values.Resolution());
}

void frmIssue::afterLoad()
{
    InitIACtl();
    CustomerItemForm::afterLoad();
}

void frmIssue::afterApply()
{
    InitIACtl();
    CustomerItemForm::afterApply();
}

void frmIssue::InitIACtl()
{
    if (rowid() > 0)
        m_ui->IACtl->Init(rowid());
}

void frmIssue::afterSetUI()
{
    CustomerItemForm::afterSetUI();
    m_ui->tabs->setTabEnabled(m_ui->tabs->indexOf(m_ui->pageActions), rowid() >= 0);
    ShowIssueNum();
}

void frmIssue::ShowIssueNum()
{
    m_ui->lblIssueNumber->setText(rowid() < 1 ? QString() : tr("Issue ID: %1").arg(rowid()));
}

// The actions go first: none may be left without its issue.
bool frmIssue::removeRecord()
{
    if (gDB.DeleteAllRecords(rowid(), gDB.IssuesActionsTable(), QStringLiteral("issueid")) &&
        CustomerItemForm::removeRecord())
        return true;
    InitIACtl(); // shows what is left of them
    return false;
}

QString frmIssue::FormContent()
{
    const Ui::IssueFieldsCtl &fields = m_ui->fields->ui();
    return tr("ISSUE DETAILS (%1)\n\n").arg(m_ui->lblIssueNumber->text()) +
           line()(tr("Customer Name:"), customerName()) + mainLines() +
           line()(tr("Submit Date:"), fields.txtDateSubmit->text()) +
           line()(tr("Response Date:"), fields.txtDateResponse->text()) +
           line()(tr("Resolution Date:"), fields.txtDateResolution->text()) + customLines() +
           rule() + m_ui->IACtl->content() + rule() + textBlocks() + line().lastModified(m_ui->LE);
}
