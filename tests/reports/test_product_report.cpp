// The report of products and services: its criteria and its window.
#include "ReportFixture.h"

#include "common/ui/Controls.h"
#include "reports/frmProductReportDisplay.h"
#include "reports/frmPSFilterDlg.h"

#include <QComboBox>
#include <QLineEdit>
#include <QScopeGuard>

namespace
{

class ProductReport : public ReportFixture
{
protected:
    void SetUp() override
    {
        hosting = database.addListItem(2, u"Hosting"_s);
        mail = database.addListItem(2, u"Mail"_s);
        customer = database.addCustomer({{"lastname", "Berg"}, {"company", "Acme"}});
        first = database.addSubscription(
            {{"custid", customer}, {"psid", mail}, {"custom1", "Blue"}, {"dateterm", "3/13/2004"}});
        second = database.addSubscription(
            {{"custid", customer}, {"psid", hosting}, {"dateinit", "2/1/2003"}});
    }
    void openReport(const ProductReportRun::Criteria &criteria = {})
    {
        window = std::make_unique<frmProductReportDisplay>();
        show(*window);
        window->Init(criteria);
    }

    std::unique_ptr<frmProductReportDisplay> window;
    qint32 hosting = 0, mail = 0, customer = 0, first = 0, second = 0;
};

} // namespace

TEST_F(ProductReport, ListsByProductAndOpensTheSubscription)
{
    openReport();
    EXPECT_EQ(window->windowTitle(), "[Product/Service Report] @ 3:05:09 PM");
    EXPECT_EQ(count->text(), "2 rows");
    EXPECT_EQ(column(0), QStringList({"1", "2"}));
    EXPECT_EQ(column(1), QStringList({"Hosting", "Mail"}));
    EXPECT_EQ(column(4), QStringList({"Yes", "NO"}));
    EXPECT_TRUE(button(*window, "cmdEmail")->isHidden());
    EXPECT_TRUE(button(*window, "cmdMailMerge")->isHidden());
    clickHeading(5);
    EXPECT_EQ(column(5), QStringList({"", "2/1/2003"}));
    button(*window, "cmdZoomIn")->click();
    EXPECT_EQ(board.calls(), QStringList(u"ShowPS %1 %2 false"_s.arg(first).arg(customer)));
    grid->clearSelection();
    person.expect("Please select a row first!");
    button(*window, "cmdZoomIn")->click();
}

TEST_F(ProductReport, KeepsItsCriteriaAndIsPrintedInLandscape)
{
    openReport({.productServiceId = mail});
    EXPECT_EQ(column(1), QStringList("Mail"));
    database.addSubscription({{"custid", customer}, {"psid", mail}});
    database.addSubscription({{"custid", customer}, {"psid", hosting}});
    machine.advance(std::chrono::minutes(1));
    QTest::keyClick(window.get(), Qt::Key_F5);
    EXPECT_EQ(column(1), QStringList({"Mail", "Mail"}));
    EXPECT_TRUE(window->windowTitle().endsWith("@ 3:06:09 PM"));

    printing::Document seen;
    const auto before = printing::backend();
    const auto putBack = qScopeGuard([&before] { printing::backend() = before; });
    printing::backend().preview = [&seen](const printing::Document &document) { seen = document; };
    button(*window, "cmdPrint")->click();
    EXPECT_EQ(seen.name, "Product/Service Report - 3/14/2004 @ 3:06:09 PM");
    EXPECT_EQ(seen.orientation, QPageLayout::Landscape);
}

TEST_F(ProductReport, BlankFieldsAreNoCriteria)
{
    gDB.SetParamValue(u"nvncust_ps.dbf_custom1"_s, u"Colour"_s);
    frmPSFilterDlg dialog;
    EXPECT_TRUE(dialog.findChild<QLabel *>(u"lblCustom1"_s)->text().contains("Colour"));
    EXPECT_EQ(dialog.findChild<QLabel *>(u"lblTip"_s)->text(),
              "Tip: Leave all fields blank to view all Products/Services");
    dialog.accept();
    EXPECT_EQ(dialog.criteria().productServiceId, -1);
    EXPECT_EQ(dialog.criteria().isActive, -1);
    EXPECT_EQ(dialog.criteria().custom1, QString());

    cboSelectAtID(dialog.findChild<QComboBox *>(u"cboPS"_s), mail);
    dialog.findChild<QComboBox *>(u"ComboIsActive"_s)->setCurrentText("No");
    dialog.findChild<QLineEdit *>(u"TextCustom1"_s)->setText(" lu ");
    dialog.findChild<QLineEdit *>(u"TextCustom2"_s)->setText("  ");
    dialog.accept();
    EXPECT_EQ(dialog.criteria().productServiceId, mail);
    EXPECT_EQ(dialog.criteria().isActive, 0);
    EXPECT_EQ(dialog.criteria().custom1, "lu");
    EXPECT_EQ(dialog.criteria().custom2, QString());
    openReport(dialog.criteria());
    EXPECT_EQ(window->report().rows.size(), 1);
}
