#include "reports/frmProductReportDisplay.h"

#include "common/base/clsSystem.h"
#include "common/base/HelpTopics.h"
#include "common/ui/Switchboard.h"
#include "ui_ReportWindow.h"

frmProductReportDisplay::frmProductReportDisplay(QWidget *parent) : ReportWindow(parent)
{
    setHelpTopic(help::ReportDisplay);
    ui->cmdEmail->hide();
    ui->cmdMailMerge->hide();
}

void frmProductReportDisplay::Init(const ProductReportRun::Criteria &criteria)
{
    m_criteria = criteria;
    ui->lblCount->clear();
    LoadData();
    SetUI();
}

QString frmProductReportDisplay::title() const
{
    return tr("Product/Service Report");
}

void frmProductReportDisplay::LoadData()
{
    setWindowTitle(u'[' + title() + u"] @ " + clsSystem::CurrTimeAMPM());
    DisplayReportData(ProductReportRun::columns(),
                      [this](ReportTable &table, const ReportRun::GoOn &goOn) {
                          return ProductReportRun(m_criteria).run(table, goOn);
                      });
}

void frmProductReportDisplay::openRecord(int row)
{
    const auto at = static_cast<std::size_t>(row);
    const QString customer = report().cell(at, ProductReportRun::CustomerIdColumn);
    switchboard().ShowPS(report().rows[at].rowid, customer.toInt(), false);
}
