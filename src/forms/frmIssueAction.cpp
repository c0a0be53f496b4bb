#include "forms/frmIssueAction.h"

#include "common/base/clsSystem.h"
#include "common/base/Failure.h"
#include "common/base/HelpTopics.h"
#include "common/base/Hourglass.h"
#include "common/ui/Controls.h"
#include "common/ui/Icons.h"
#include "common/ui/Switchboard.h"
#include "db/FieldText.h"
#include "db/LookupTypes.h"
#include "db/TableUse.h"
#include "ui_frmIssueAction.h"

#include <algorithm>

namespace
{

constexpr int kNumberKind = 2;
constexpr int kDescCharacters = 120;
constexpr int kShortBoxCharacters = 16;
constexpr int kWindowCharacters = 76;
const QString RowidField = QStringLiteral("rowid");

const schema::TableInfo &actionsTable()
{
    return schema::table(schema::Table::IssuesActions);
}

bool exists(qint32 rowid, const QString &path)
{
    return gDB.RecordExists(kNumberKind, QString::number(rowid), path, RowidField, RowidField) > 0;
}

} // namespace

frmIssueAction::frmIssueAction(QWidget *parent)
    : QDialog(parent), m_ui(std::make_unique<Ui::frmIssueAction>())
{
    m_ui->setupUi(this);
    setProperty("helpTopic", help::IssueActions);
    bindFields();
    connectControls();
    const int character = fontMetrics().averageCharWidth();
    for (QLineEdit *box : {m_ui->txtDate, m_ui->txtDuration})
        box->setMaximumWidth(kShortBoxCharacters * character);
    m_ui->txtDuration->setAlignment(Qt::AlignRight);
    resize(sizeHint().expandedTo({kWindowCharacters * character, 0}));
}

frmIssueAction::~frmIssueAction() = default;

// In the order in which the fields are saved.
void frmIssueAction::bindFields()
{
    m_bindings = {
        binding::date(QStringLiteral("date"), m_ui->txtDate),
        binding::lookup(QStringLiteral("action"), m_ui->cboAction, lookup_type::IssueActions),
        binding::users(QStringLiteral("perfby"), m_ui->cboAssignedTo),
        binding::text(QStringLiteral("desc"), m_ui->txtDesc, kDescCharacters),
        binding::text(QStringLiteral("duration"), m_ui->txtDuration, 0),
        binding::memo(QStringLiteral("notes"), m_ui->txtNote)};
}

void frmIssueAction::connectControls()
{
    connect(m_ui->OKButton, &QPushButton::clicked, this, &frmIssueAction::accept);
    connect(m_ui->CancelButton, &QPushButton::clicked, this, &QDialog::reject);
    m_ui->cmdCalendar->setIcon(icon(QStringLiteral("calendar")));
    connect(m_ui->cmdCalendar, &QToolButton::clicked, this, [this] {
        const QString date = switchboard().GetShortDateFromPopupCalendar(m_ui->txtDate->text());
        if (!date.isEmpty())
            m_ui->txtDate->setText(date);
        m_ui->txtDate->setFocus();
    });
    connect(m_ui->cmdCatStatus, &QToolButton::clicked, this, &frmIssueAction::editActionList);
    connect(m_ui->cmdDTStamp_Desc, &QPushButton::clicked, this,
            [this] { insertStamp(m_ui->txtNote); });
}

bool frmIssueAction::show(qint32 actionId, qint32 issueId, Mode mode)
{
    Init(actionId, issueId, mode);
    exec();
    return wasStored();
}

void frmIssueAction::Init(qint32 actionId, qint32 issueId, Mode mode)
{
    m_actionId = actionId;
    m_issueId = issueId;
    m_mode = mode;
    LoadData();
}

void frmIssueAction::showField(const QString &field, const QVariant &value)
{
    for (const FieldBinding &bound : m_bindings)
        if (bound.field == field)
            bound.show(value);
}

void frmIssueAction::InitCtls()
{
    m_allShown = true;
    for (const FieldBinding &bound : m_bindings)
        if (bound.refill && !bound.refill())
            m_allShown = false;
    m_ui->txtDate->setText(clsSystem::CurrDateShort());
    m_ui->txtDesc->clear();
    m_ui->txtDuration->setText(clsSystem::FormatTwoDecimals(0));
    showField(QStringLiteral("perfby"), gDB.LoginID());
    m_ui->txtNote->clear();
}

void frmIssueAction::LoadData()
{
    guarded("frmIssueAction_LoadData", [this] {
        const Hourglass hourglass;
        const clsDB::TellOnce tellOnce(gDB);
        InitCtls();
        if (m_actionId > 0)
            ReadData();
        SetUI();
    });
}

// An action that has gone leaves the values of a new one.
void frmIssueAction::ReadData()
{
    TableUse actions(gDB, gDB.IssuesActionsTable());
    if (!actions) {
        m_allShown = false;
        return;
    }
    actions.select(RowidField);
    const norvane::engine::Code found = actions.seekCode(m_actionId);
    if (found != norvane::engine::r4success) {
        m_allShown = m_allShown && found != norvane::engine::r4failure;
        return;
    }
    showField(QStringLiteral("date"), actions.text(QStringLiteral("date")));
    showField(QStringLiteral("desc"), actions.text(QStringLiteral("desc")));
    showField(QStringLiteral("action"), actions.number(QStringLiteral("action")));
    showField(QStringLiteral("perfby"), actions.number(QStringLiteral("perfby")));
    showField(QStringLiteral("duration"), clsSystem::FormatTwoDecimals(norvane::engine::f4double(
                                              actions.field(QStringLiteral("duration")))));
    showField(QStringLiteral("notes"),
              clsSystem::Trim(MemoText(actions.field(QStringLiteral("notes")))));
}

// A screen with gaps is for looking only: saving would store them.
void frmIssueAction::SetUI()
{
    const QString captions[] = {tr("Add Issue Action"), tr("Edit Issue Action"),
                                tr("View Issue Action"), tr("Delete Issue Action")};
    setWindowTitle(captions[m_mode - Add]);
    const bool open = canEdit() && m_allShown;
    LockControls(this, !open, QStringLiteral("E"));
    m_ui->CancelButton->setVisible(m_mode != View);
    if (m_mode == View)
        m_ui->OKButton->setText(tr("Close"));
    else if (m_mode == Delete)
        m_ui->OKButton->setText(tr("DELETE"));
    m_ui->OKButton->setEnabled(open || !canEdit());
    if (open)
        m_ui->txtDate->setFocus();
    else
        m_ui->OKButton->setFocus();
}

void frmIssueAction::editActionList()
{
    guarded("frmIssueAction_cmdCatStatus_Click", [this] {
        const qint32 chosen = cboGetItemID(m_ui->cboAction);
        switchboard().EditCategory(lookup_type::IssueActions);
        for (const FieldBinding &bound : m_bindings) {
            if (bound.control != m_ui->cboAction)
                continue;
            bound.refill();
            bound.show(chosen);
        }
        m_ui->cboAction->setFocus();
    });
}

void frmIssueAction::NoIssueMsg() const
{
    clsSystem::ShowMsg(tr("The Issue record to which this Action record belongs to no longer "
                          "exists or is inaccessible."),
                       prompts::Kind::Critical);
}

bool frmIssueAction::Validate()
{
    const QString date = clsSystem::Trim(m_ui->txtDate->text());
    const QString duration = m_ui->txtDuration->text();
    QString faults;
    if (!date.isEmpty() && !clsSystem::IsDate(date))
        faults += tr("  - DATE entered is not a valid date.") + u"\n\n";
    if (date.isEmpty())
        faults += tr("  - DATE must be entered.") + u"\n\n";
    if (cboGetItemID(m_ui->cboAction) < 0)
        faults += tr("  - ACTION must be selected.") + u"\n\n";
    if (!duration.isEmpty() && !IsNumeric(duration))
        faults += tr("  - DURATION must be numeric.") + u"\n\n";
    if (faults.isEmpty())
        return true;
    clsSystem::ShowMsg(tr("Please correct the following data entry fields:") + u"\n\n" + faults,
                       prompts::Kind::Critical);
    return false;
}

bool frmIssueAction::SaveData()
{
    return guarded("frmIssueAction_SaveData", false, [this] {
        const Hourglass hourglass;
        if (!Validate())
            return false;
        if (!exists(m_issueId, gDB.IssuesTable())) {
            NoIssueMsg();
            return false;
        }
        if (m_actionId > 0 && !exists(m_actionId, gDB.IssuesActionsTable())) {
            clsSystem::ShowMsg(tr("Record cannot be accessed or no longer exists. It may have been "
                                  "deleted by another user."));
            return false;
        }
        RecColl record(gDB.IssuesActionsTable(), actionsTable().dataFile(), m_actionId,
                       QStringLiteral("_issueaction"));
        record.add(QStringLiteral("issueid"), m_issueId);
        for (const FieldBinding &bound : m_bindings)
            record.add(bound.field, bound.value());
        // No duration is none at all, not the one from before.
        if (record.text(QStringLiteral("duration")).isEmpty())
            record.setExisting(QStringLiteral("duration"), 0);
        if (!gDB.SaveRecord(record))
            return false;
        m_actionId = record.number(QStringLiteral("_rowid"));
        return true;
    });
}

bool frmIssueAction::DeleteRecord()
{
    return guarded("frmIssueAction_DeleteRecord", false, [this] {
        return prompts::ask(tr("Are you sure you want to delete this Issue Action?")) ==
                   prompts::Answer::Yes &&
               gDB.DeleteRecord(m_actionId, gDB.IssuesActionsTable());
    });
}

void frmIssueAction::accept()
{
    if (canEdit() && !SaveData())
        return;
    if (m_mode == Delete && !DeleteRecord())
        return;
    m_done = m_mode != View;
    QDialog::accept();
}
