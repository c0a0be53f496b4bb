// How the main window shows reports: one window for each, found by its tag.
#include "MainWindowFixture.h"

#include "common/base/Host.h"
#include "common/ui/FormWindow.h"
#include "reports/frmReportDisplay.h"
#include "support/DialogDriver.h"

#include <QMdiArea>
#include <QMdiSubWindow>

namespace
{

const QString Everybody = QStringLiteral("0\n105\n\n\n\n1\n1");

class ReportCommands : public MainWindow
{
protected:
    void SetUp() override
    {
        openWithDatabase();
        report = database->add(QStringLiteral("_rptdef"),
                               {{"title", "Everybody"}, {"type", "C"}, {"def", Everybody}});
        for (int i = 0; i < 150; ++i)
            customer = database->addCustomer({{"lastname", QStringLiteral("Doe %1").arg(i)}});
    }
    QString tag() const { return "REPORTDISPLAY" + QString::number(report); }

    qint32 report = 0;
    qint32 customer = 0;
};

} // namespace

TEST_F(ReportCommands, AReportHasOneWindowAndADeletedOneNone)
{
    main->ShowReport(report);
    EXPECT_EQ(openTags(), QStringList(tag()));
    FormWindow *form = window("frmReportDisplay");
    main->ShowCustomer(customer, false);
    main->ShowReport(report);
    EXPECT_EQ(openForms().size(), 2);
    EXPECT_EQ(area()->activeSubWindow()->widget(), form);
    EXPECT_EQ(person.progress().size(), 1) << "raised, not run again";

    person.expectText("no longer exists");
    main->ShowReport(999999);
    EXPECT_EQ(openForms().size(), 2);
}

TEST_F(ReportCommands, WhileAReportRunsItIsNeitherStartedAgainNorLost)
{
    int tries = 0;
    host().pumpEvents = [&] {
        const FormWindow *form = GetFormWithTag(tag());
        if (form == nullptr || form->isEnabled() || ++tries > 2)
            return;
        main->ShowReport(report);
        EXPECT_EQ(openForms().size(), 1);
        EXPECT_FALSE(gDB.CloseDB()) << "its tables are in use";
    };
    main->ShowReport(report);
    EXPECT_GT(tries, 0);
    EXPECT_EQ(person.progress().size(), 1);
    EXPECT_TRUE(gDB.IsOpen());
    EXPECT_EQ(qobject_cast<frmReportDisplay *>(window("frmReportDisplay"))->report().rows.size(),
              150);
}

TEST_F(ReportCommands, TheProductReportAsksFirstAndOpensAWindowEachTime)
{
    for (int opened = 0; opened < 2; ++opened) {
        const DialogDriver driver([](QWidget *dialog) { clickButton(dialog, "OKButton"); });
        main->ShowProductReport();
        EXPECT_EQ(openForms().size(), opened + 1);
    }
    const DialogDriver driver([](QWidget *dialog) { clickButton(dialog, "CancelButton"); });
    main->ShowProductReport();
    EXPECT_EQ(openForms().size(), 2);
}
