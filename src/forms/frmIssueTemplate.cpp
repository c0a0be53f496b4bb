#include "forms/frmIssueTemplate.h"

#include "common/base/HelpTopics.h"
#include "forms/IssueFieldsCtl.h"
#include "ui_frmIssueTemplate.h"

namespace
{

constexpr int kWindowCharacters = 120; // like the window of an issue

RecordSpec templateSpec()
{
    return {.tagPrefix = QStringLiteral("T"),
            .table = schema::Table::IssuesTemplates,
            .recordType = QStringLiteral("_issuetemplate"),
            .captionPrefix = frmIssueTemplate::tr("Issue Template: "),
            .newCaption = {},
            .labelTable = schema::Table::Issues,
            .helpTopic = help::IssueTemplates,
            .permission = &clsDB::Perm_Issues};
}

} // namespace

frmIssueTemplate::frmIssueTemplate(QWidget *parent)
    : IssueRecordForm(templateSpec(), parent), m_ui(std::make_unique<Ui::frmIssueTemplate>())
{
    m_ui->setupUi(this);
    setWindowTitle(tr("Issue Template"));
    m_ui->fields->leaveOutCustomerAndDates();
    takeControls(m_ui.get());
    bindIssueFields(m_ui.get());
}

frmIssueTemplate::~frmIssueTemplate() = default;

QSize frmIssueTemplate::sizeHint() const
{
    return RecordForm::sizeHint().expandedTo(
        {kWindowCharacters * fontMetrics().averageCharWidth(), 0});
}

void frmIssueTemplate::Init(qint32 rowid, bool bEdit)
{
    RecordForm::Init(rowid, false);
    if (bEdit)
        DoEditModeBtn();
}

void frmIssueTemplate::afterRead(const RecColl &record)
{
    m_name = record.text(QStringLiteral("name"));
}

QString frmIssueTemplate::FormContent()
{
    return tr("ISSUE TEMPLATE: %1\n\n").arg(m_name) + mainLines() + customLines() + rule() +
           textBlocks() + line().lastModified(m_ui->LE);
}
