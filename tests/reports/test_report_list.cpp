// The list of reports: what it shows, what its commands ask for, copies.
#include "common/ui/ListView.h"
#include "db/clsDB.h"
#include "reports/frmReportList.h"
#include "support/DialogDriver.h"
#include "support/FakeHost.h"
#include "support/RecordingSwitchboard.h"
#include "support/ScriptedPrompts.h"
#include "support/TempDatabase.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QLabel>
#include <QPushButton>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace
{

constexpr int Seeds = 18;
constexpr qint32 ContactList = 101;

class ReportList : public ::testing::Test
{
protected:
    void open()
    {
        list.Init();
        list.show();
        list.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&list));
        lv = list.findChild<ListView *>();
    }
    qint32 addReport(const QString &title, const QString &type)
    {
        return database.add(u"_rptdef"_s,
                            {{"title", title}, {"type", type}, {"def", u"0\n101\n\n\n\n1\n1"_s}});
    }
    QString text(qint32 id, int column) const
    {
        return lv->itemText(lv->rowOfKey(u'N' + QString::number(id)), column);
    }
    void select(qint32 id) { EXPECT_TRUE(LvSelectItem(lv, u'N' + QString::number(id))); }
    void run(const char *entry) { list.findChild<QAction *>(QLatin1String(entry))->trigger(); }
    bool isEnabled(const char *button) const
    {
        return list.findChild<QPushButton *>(QLatin1String(button))->isEnabled();
    }
    QString count() const { return list.findChild<QLabel *>(u"lblCount"_s)->text(); }

    FakeHost machine;
    ScriptedPrompts person;
    RecordingSwitchboard board;
    TempDatabase database;
    frmReportList list;
    ListView *lv = nullptr;
};

} // namespace

TEST_F(ReportList, ShowsAllReportsByTitleWithWhoChangedThemLast)
{
    const qint32 odd = addReport(u"aardvarks"_s, u"Z"_s);
    open();
    EXPECT_EQ(list.windowTitle(), "All Reports @3:05:09 PM");
    EXPECT_EQ(list.tagText(), "REPORTS");
    EXPECT_EQ(lv->itemCount(), Seeds + 1);
    EXPECT_EQ(count(), "19 Report(s)");
    EXPECT_EQ(lv->itemText(0, 0), "aardvarks");
    EXPECT_EQ(text(odd, 1), "Unknown");
    EXPECT_EQ(text(odd, 2), gDB.GetUsername(gDB.LoginID()));
    EXPECT_EQ(text(odd, 3), "3/14/2004 @ 3:05:09 PM");
    EXPECT_EQ(text(ContactList, 1), "Customers");
    EXPECT_EQ(text(110, 1), "Issues");
    EXPECT_EQ(LvGetSelectedItemText(lv), "aardvarks"); // the first
    for (int row = 1; row < lv->itemCount(); ++row)
        EXPECT_LE(lv->itemText(row - 1, 0).compare(lv->itemText(row, 0), Qt::CaseInsensitive), 0);
}

TEST_F(ReportList, CommandsOpenTheSelectedReport)
{
    open();
    select(ContactList);
    clickButton(&list, u"cmdView"_s);
    clickButton(&list, u"cmdProperties"_s);
    QTest::keyClick(lv, Qt::Key_Return);
    run("cmdNewCustomerRpt");
    run("cmdNewIssueReport");
    run("cmdNewProductReport");
    EXPECT_EQ(board.calls(),
              (QStringList{"ShowReport 101", "ShowReportDef 101 ", "ShowReport 101",
                           "ShowReportDef -1 C", "ShowReportDef -1 I", "ShowProductReport"}));
    lv->clearSelection();
    for (const char *button : {"cmdView", "cmdProperties", "cmdCopy"})
        EXPECT_FALSE(isEnabled(button)) << button;
}

TEST_F(ReportList, ReadsAnewAndKeepsOrTakesTheSelection)
{
    open();
    select(110);
    const qint32 made = addReport(u"Aardvarks"_s, u"C"_s);
    QTest::keyClick(lv, Qt::Key_F5);
    EXPECT_EQ(count(), "19 Report(s)");
    EXPECT_EQ(LvGetSelectedItemKey(lv), "N110");
    list.LoadData(made); // as told that it was saved
    EXPECT_EQ(LvGetSelectedItemText(lv), "Aardvarks");
    ASSERT_TRUE(gDB.DeleteRecord(made, gDB.ReportTable()));
    list.LoadData(made);
    EXPECT_EQ(count(), "18 Report(s)");
    EXPECT_EQ(lv->rowOfKey(u"N%1"_s.arg(made)), -1);
    EXPECT_TRUE(LvIsItemSelected(lv));
}

TEST_F(ReportList, ACopyTakesEverythingOverAndIsSelected)
{
    open();
    select(ContactList);
    person.expect("Do you wish to make a copy of 'Customer Contact List'?", prompts::Answer::No);
    clickButton(&list, u"cmdCopy"_s);
    EXPECT_EQ(count(), "18 Report(s)");
    for (const char *title : {"Customer Contact List", "Copy of Customer Contact List"}) {
        person.expect(u"Do you wish to make a copy of '%1'?"_s.arg(QLatin1String(title)),
                      prompts::Answer::Yes);
        clickButton(&list, u"cmdCopy"_s);
        EXPECT_EQ(LvGetSelectedItemText(lv), u"Copy of "_s + QLatin1String(title));
    }
    const qint32 copy = LvGetSelectedItemKey(lv).mid(1).toInt();
    for (const char *field : {"type", "def", "notes"})
        EXPECT_EQ(database.stored(schema::Table::Report, copy, QLatin1String(field)),
                  database.stored(schema::Table::Report, ContactList, QLatin1String(field)))
            << field;
    EXPECT_EQ(list.focusWidget(), lv);

    // A title that is too long is cut where the field ends.
    const QString longest(80, u'x');
    list.LoadData(addReport(longest, u"C"_s));
    person.expect("Do you wish to make a copy", prompts::Answer::Yes);
    clickButton(&list, u"cmdCopy"_s);
    EXPECT_EQ(LvGetSelectedItemText(lv), u"Copy of "_s + QString(72, u'x'));
}

TEST_F(ReportList, AReportThatHasGoneIsNotCopied)
{
    open();
    select(ContactList);
    ASSERT_TRUE(gDB.DeleteRecord(ContactList, gDB.ReportTable()));
    person.expect("Do you wish to make a copy", prompts::Answer::Yes);
    person.expect("Unable to read row_id 101");
    clickButton(&list, u"cmdCopy"_s);
    EXPECT_EQ(count(), "17 Report(s)");
}

TEST_F(ReportList, WhoMayNotEditReportsMayViewThem)
{
    database.addUser(u"jane"_s, u"1110111"_s);
    database.loginAs(u"jane"_s, u"jane"_s);
    open();
    for (const char *entry : {"cmdNewCustomerRpt", "cmdNewIssueReport"}) {
        person.expectText("Sorry, you are not permitted to perform this action.");
        run(entry);
    }
    person.expectText("Sorry, you are not permitted to perform this action.");
    clickButton(&list, u"cmdCopy"_s);
    EXPECT_TRUE(board.calls().isEmpty());
    clickButton(&list, u"cmdView"_s);
    run("cmdNewProductReport");
    EXPECT_EQ(board.calls().size(), 2);
    EXPECT_EQ(count(), "18 Report(s)");
}

// By the moment, not by the letters of the date; a second click the other way round.
TEST_F(ReportList, AClickOnAHeadingSorts)
{
    const qint32 march = addReport(u"March"_s, u"I"_s);
    machine.setNow(QDateTime(QDate(2004, 11, 2), QTime(9, 0)));
    const qint32 november = addReport(u"November"_s, u"C"_s);
    machine.setNow(QDateTime(QDate(2005, 1, 2), QTime(9, 0)));
    const qint32 january = addReport(u"January"_s, u"C"_s);
    open();
    const auto row = [this](qint32 id) { return lv->rowOfKey(u'N' + QString::number(id)); };
    LVSort(lv, 3);
    const bool rising = lv->sortOrder() == Qt::AscendingOrder;
    EXPECT_EQ(row(march) < row(november), rising);
    EXPECT_EQ(row(november) < row(january), rising);
    LVSort(lv, 3);
    EXPECT_EQ(row(march) < row(november), !rising);
    EXPECT_EQ(row(november) < row(january), !rising);
    list.LoadData(); // stays sorted
    EXPECT_EQ(row(march) < row(november), !rising);
}
