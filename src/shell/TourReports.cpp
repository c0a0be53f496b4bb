// The steps of the tour that make a report, and show some.
#include "common/ui/Switchboard.h"
#include "reports/frmProductReportDisplay.h"
#include "reports/frmReportDef.h"
#include "reports/frmReportDisplay.h"
#include "reports/frmReportList.h"
#include "shell/TourHands.h"

#include <QAction>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>

namespace
{

constexpr qint32 contactList = 101; // of data/seed/reports.csv
const QString title = QStringLiteral("Customers in Oregon");

} // namespace

void Tour::makeReport()
{
    press(QStringLiteral("REPORTS"));
    auto *list = newestForm<frmReportList>();
    shoot(QStringLiteral("reports"));
    control<QAction>(list, "cmdNewCustomerRpt")->trigger();
    auto *form = newestForm<frmReportDef>();
    hands::typeInto(control<QLineEdit>(form, "txtRptTitle"), title);
    m_visitor->expect(QStringLiteral("frmRptDisplayColumns"), [this](QWidget *dialog) {
        auto *columns = control<QListWidget>(dialog, "lstRptCols");
        for (const char *name : {"City", "Company", "Last Name", "Default Email"})
            for (QListWidgetItem *item : columns->findItems(QLatin1String(name), Qt::MatchExactly))
                item->setSelected(true);
        shoot(QStringLiteral("report-columns"));
        hands::pressOk(dialog);
    });
    control<QPushButton>(form, "cmdDisplayCols")->click();
    m_visitor->expect(QStringLiteral("frmRptFilterColumns"), [this](QWidget *dialog) {
        control<QComboBox>(dialog, "cboCols")->setCurrentText(QStringLiteral("State"));
        control<QComboBox>(dialog, "cboValues")->setCurrentText(QStringLiteral("Oregon"));
        shoot(QStringLiteral("report-criterion"));
        hands::pressOk(dialog);
    });
    control<QPushButton>(form, "cmdAddFilter")->click();
    m_visitor->check();
    control<QListWidget>(form, "lstColumns")->setCurrentRow(2); // the city
    for (int rows = 0; rows < 2; ++rows)
        control<QPushButton>(form, "cmdDispColUp")->click();
    shoot(QStringLiteral("report-definition"));
    control<QPushButton>(form, "OKButton")->click();
    need(secondStation({QStringLiteral("report"), m_folder, title})
             .contains(QLatin1String("Merriweather")),
         QStringLiteral("the report does not find the customer"));
    shoot(QStringLiteral("reports-with-new-one"));
    list->close();
}

void Tour::showReports()
{
    switchboard().ShowReport(contactList);
    auto *report = newestForm<frmReportDisplay>();
    need(!report->report().rows.empty(), QStringLiteral("the report is empty"));
    shoot(QStringLiteral("report"));
    m_visitor->expect(QStringLiteral("frmPreview"), [this](QWidget *preview) {
        settle();
        shoot(QStringLiteral("report-preview"));
        preview->close();
    });
    control<QPushButton>(report, "cmdPrint")->click();
    m_visitor->check();
    report->close();

    m_visitor->expect(QStringLiteral("frmPSFilterDlg"), [this](QWidget *criteria) {
        shoot(QStringLiteral("product-report-criteria"));
        hands::pressOk(criteria);
    });
    switchboard().ShowProductReport();
    m_visitor->check();
    auto *products = newestForm<frmProductReportDisplay>();
    need(!products->report().rows.empty(), QStringLiteral("the product report is empty"));
    shoot(QStringLiteral("product-report"));
    products->close();
}
