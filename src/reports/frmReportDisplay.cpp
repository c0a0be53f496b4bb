// The window: reading the report and opening its records. What leaves it by mail is in
// frmReportDisplayMail.cpp.
#include "reports/frmReportDisplay.h"

#include "common/base/Failure.h"
#include "common/base/HelpTopics.h"
#include "common/base/Hourglass.h"
#include "common/ui/Switchboard.h"
#include "db/RecColl.h"
#include "ui_ReportWindow.h"

namespace
{

constexpr int kCaptionLength = 30;

} // namespace

frmReportDisplay::frmReportDisplay(QWidget *parent) : ReportWindow(parent)
{
    setHelpTopic(help::ReportDisplay);
    connect(ui->cmdEmail, &QPushButton::clicked, this, &frmReportDisplay::email);
    connect(ui->cmdMailMerge, &QPushButton::clicked, this, &frmReportDisplay::mailMerge);
}

QString frmReportDisplay::tagOf(qint32 nRptID)
{
    return u"REPORTDISPLAY" + QString::number(nRptID);
}

void frmReportDisplay::Init(qint32 nRptID)
{
    m_id = nRptID;
    m_title = u'[' + QString::number(nRptID) + u']';
    ui->lblCount->clear();
    LoadData();
    SetUI();
}

void frmReportDisplay::LoadData()
{
    setTagText(tagOf(m_id));
    const bool read = guarded("frmReportDisplay_LoadData", false, [this] { return readReport(); });
    if (!read)
        return;
    SetWindowCaption();
    DisplayReportData(ReportRun::columns(m_parser),
                      [this](ReportTable &table, const ReportRun::GoOn &goOn) {
                          return ReportRun(m_type, m_parser).run(table, goOn);
                      });
}

// A report that has gone leaves what is shown.
bool frmReportDisplay::readReport()
{
    const Hourglass hourglass;
    const QString file = schema::table(schema::Table::Report).dataFile();
    if (!gDB.CheckIfRecExists(gDB.ReportTable(), file, m_id))
        return false;
    RecColl record(gDB.ReportTable(), file, m_id, QStringLiteral("_rptdef"));
    if (!gDB.ReadRecord(record))
        return false;
    m_title = record.text(QStringLiteral("title"));
    m_type = record.text(QStringLiteral("type"));
    m_parser.InitFromRptDef(record.text(QStringLiteral("def")));
    return true;
}

void frmReportDisplay::SetUI()
{
    ui->cmdEmail->setEnabled(ofCustomers());
    ui->cmdMailMerge->setEnabled(ofCustomers());
}

void frmReportDisplay::SetWindowCaption()
{
    setWindowTitle((ofCustomers() ? tr("Customers Report: ") : tr("Issues Report: ")) +
                   clsSystem::StrTruncate(m_title, kCaptionLength) + u" @" +
                   clsSystem::CurrTimeAMPM());
}

void frmReportDisplay::openRecord(int row)
{
    const qint32 rowid = report().rows[static_cast<std::size_t>(row)].rowid;
    if (ofCustomers())
        switchboard().ShowCustomer(rowid, false);
    else if (m_type == u"I")
        switchboard().ShowIssue(rowid, -1, false, -1);
    else
        prompts::critical(tr("Invalid report type!"));
}
