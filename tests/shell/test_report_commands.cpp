// The list of reports and their definitions beside each other in the main window.
#include "MainWindowFixture.h"

#include "common/ui/FormWindow.h"
#include "common/ui/ListView.h"

#include <QLabel>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPushButton>

namespace
{

QString keyOf(qint32 rowid)
{
    return u'N' + QString::number(rowid);
}

} // namespace

TEST_F(MainWindow, ReportsAreOneListAndADefinitionIsOpenOnce)
{
    openWithDatabase();
    choose("REPORTS");
    main->ShowReportDef(101, {});
    main->ShowReportDef(-1, "C");
    const QStringList tags{"REPORTS", "REPORTDEF101", "REPORTDEF-1"};
    EXPECT_EQ(openTags(), tags);
    auto *fresh = openForms().last();
    fresh->findChild<QLineEdit *>("txtRptTitle")->setText("Halfway");
    choose("mnuViewReports"); // raised
    EXPECT_EQ(area()->activeSubWindow()->widget(), openForms().first());
    main->ShowReportDef(101, {});
    EXPECT_EQ(area()->activeSubWindow()->widget(), openForms()[1]);
    main->ShowReportDef(-1, "I"); // the one that was begun
    EXPECT_EQ(openTags(), tags);
    EXPECT_EQ(area()->activeSubWindow()->widget(), fresh);
    EXPECT_EQ(fresh->findChild<QLineEdit *>("txtRptTitle")->text(), "Halfway");
    EXPECT_EQ(fresh->findChild<QLabel *>("lblType")->text(), "Customers");

    ASSERT_TRUE(gDB.DeleteRecord(102, gDB.ReportTable()));
    person.expectText("Record cannot be accessed or no longer exists.");
    main->ShowReportDef(102, {});
    EXPECT_EQ(openTags(), tags);
    person.expect("Do you wish to discard", Answer::Yes);
    fresh->close();
}

// One closes what one has looked at, and is where one came from.
TEST_F(MainWindow, BehindAClosedWindowComesTheOneUsedBefore)
{
    openWithDatabase();
    main->ShowCustomer(database->addCustomer({{"lastname", "Smith"}}), false);
    choose("mnuViewReports");
    main->ShowReportDef(101, {});
    window("frmReportDef")->close();
    EXPECT_EQ(area()->activeSubWindow()->widget(), window("frmReportList"));
    window("frmReportList")->close();
    EXPECT_EQ(area()->activeSubWindow()->widget(), window("frmCustomer"));
}

TEST_F(MainWindow, TheListShowsAReportAtOnceWhenItIsSavedOrDeleted)
{
    openWithDatabase();
    choose("mnuViewReports");
    auto *lv = window("frmReportList")->findChild<ListView *>();
    LvSelectItem(lv, keyOf(104));
    window("frmReportList")->findChild<QPushButton *>("cmdProperties")->click();
    auto *form = window("frmReportDef");
    form->findChild<QPushButton *>("lblEdit")->click();
    form->findChild<QLineEdit *>("txtRptTitle")->setText("A new title");
    LvSelectItem(lv, keyOf(110));
    form->findChild<QPushButton *>("cmdApply")->click();
    EXPECT_EQ(lv->itemText(0, 0), "A new title");
    EXPECT_EQ(LvGetSelectedItemKey(lv), keyOf(104));
    form->findChild<QPushButton *>("lblEdit")->click();
    person.expect("*DELETE*", Answer::Yes);
    form->findChild<QPushButton *>("cmdDelete")->click();
    EXPECT_EQ(lv->rowOfKey(keyOf(104)), -1);
    main->NotifyReportList(110);
    EXPECT_EQ(LvGetSelectedItemKey(lv), keyOf(110));
    window("frmReportList")->close();
    main->NotifyReportList(110); // nobody to tell
    EXPECT_EQ(openTags(), QStringList());
}
