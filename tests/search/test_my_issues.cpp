// A person's own list: whose and which issues, how they sort, and how it keeps itself fresh.
#include "IssueLists.h"

#include "common/base/Preferences.h"
#include "common/ui/Controls.h"
#include "search/frmMyIssues.h"

#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QFile>
#include <QLineEdit>
#include <QScrollBar>
#include <QTimer>
#include <QTimerEvent>

namespace
{

constexpr qint32 Open = 400;
constexpr qint32 Closed = 401;
constexpr int Description = 4;

class MyIssues : public IssueLists
{
protected:
    MyIssues()
    {
        me = gDB.LoginID();
        ann = database.addUser("ann", "111111111111111111111111111111");
    }
    void open()
    {
        auto window = std::make_unique<frmMyIssues>();
        window->Init();
        look(std::move(window));
        cboAssignedTo = list->findChild<QComboBox *>("cboAssignedTo");
        cboStatus = list->findChild<QComboBox *>("cboStatus");
        timer = list->findChild<QTimer *>("tmRefresh");
    }
    qint32 add(const QString &text, qint32 user, qint32 status = Open, const QString &date = {})
    {
        return database.addIssue(
            {{"shortdesc", text}, {"assignedto", user}, {"status", status}, {"submitdt", date}});
    }
    QStringList shown() const { return column(Description); }
    void tickAt(int hour, int minute)
    {
        machine.setNow(QDateTime(QDate(2004, 3, 14), QTime(hour, minute, 30)));
        ASSERT_TRUE(timer->isActive());
        QTimerEvent tick(timer->timerId());
        QCoreApplication::sendEvent(timer, &tick);
    }
    static QColor colourOf(const QWidget *box) { return box->palette().color(QPalette::Base); }

    qint32 me = 0;
    qint32 ann = 0;
    QComboBox *cboAssignedTo = nullptr;
    QComboBox *cboStatus = nullptr;
    QTimer *timer = nullptr;
};

const QColor lightRed(0xFF, 0xC0, 0xC0);

} // namespace

TEST_F(MyIssues, BeginsWithTheIssuesOfWhoeverIsLoggedIn)
{
    const qint32 tills = database.addListItem(2, "Tills");
    const qint32 acme = database.addCustomer({{"company", "Acme"}});
    database.addIssue({{"custid", acme},
                       {"psid", tills},
                       {"assignedto", me},
                       {"status", Open},
                       {"priority", 450},
                       {"shortdesc", "mine"},
                       {"submitdt", "2/1/2004"}});
    add("hers", ann);
    add("nobody's", -1);
    open();
    EXPECT_EQ(headings(),
              QStringList({"Priority=R", "Status=U", "Submit=T", "Customer=C",
                           "Short Description=D", "Product/Service=P", "Date Sorting=-"}));
    EXPECT_TRUE(lv->isColumnHidden(6));
    ASSERT_EQ(lv->itemCount(), 1);
    EXPECT_EQ(row(0), QStringList({gDB.GetCategoryDesc(450), "Open", "2/1/2004", "Acme", "mine",
                                   "Tills", "20040201"}));
    EXPECT_EQ(count(), "1 Issue(s)");
    EXPECT_EQ(list->windowTitle(), "My Issues (Assigned to: " + cboAssignedTo->currentText() +
                                       ", Status ='All') @3:05:09 PM");
    EXPECT_TRUE(cboAssignedTo->currentText().contains("SYSOP", Qt::CaseInsensitive));
    EXPECT_EQ(person.progress().back().message, "Displaying My Issues. Please wait...");
    EXPECT_EQ(list->helpTopic(), 1230);
    EXPECT_EQ(list->tagText(), "MYISSUES");
    EXPECT_EQ(list->focusWidget(), lv); // Enter opens the issue
    clickButton(list.get(), "cmdProperties");
    EXPECT_EQ(board.calls().size(), 1);
    EXPECT_TRUE(board.calls()[0].startsWith("ShowIssue "));
}

TEST_F(MyIssues, FiltersByPersonAndStatusAndShowsThatTheyDiffer)
{
    for (const auto &[text, user, status] :
         std::vector<std::tuple<const char *, qint32, qint32>>{{"mine open", me, Open},
                                                               {"mine closed", me, Closed},
                                                               {"free", -1, Open},
                                                               {"hers", ann, Closed}})
        add(text, user, status);
    open();
    EXPECT_EQ(shown(), QStringList({"mine open", "mine closed"}));
    EXPECT_EQ(colourOf(cboAssignedTo), QColor(Qt::white));
    EXPECT_EQ(colourOf(cboStatus), QColor(Qt::white));
    EXPECT_EQ(cboAssignedTo->itemText(0), "Un-Assigned");
    EXPECT_EQ(cboStatus->itemText(0), "All");

    cboSelectAtID(cboStatus, Closed);
    EXPECT_EQ(shown(), QStringList("mine closed"));
    EXPECT_EQ(colourOf(cboStatus), lightRed);
    EXPECT_TRUE(lv->hasFocus());
    cboSelectAtID(cboAssignedTo, ann);
    EXPECT_EQ(shown(), QStringList("hers"));
    EXPECT_EQ(colourOf(cboAssignedTo), lightRed);
    cboSelectAtIndex(cboStatus, 0);
    cboSelectAtIndex(cboAssignedTo, 0);
    EXPECT_EQ(shown(), QStringList("free"));
    EXPECT_EQ(list->windowTitle(),
              "My Issues (Assigned to: Un-Assigned, Status ='All') @3:05:09 PM");
    cboSelectAtID(cboAssignedTo, me);
    EXPECT_EQ(colourOf(cboAssignedTo), QColor(Qt::white));
    EXPECT_EQ(colourOf(cboStatus), QColor(Qt::white));
}

TEST_F(MyIssues, AHeadingBeginsAscendingAndTurnsWhenClickedAgain)
{
    add("b", me, Open, "12/1/2003");
    add("c", me, Open, "2/1/2004");
    add("a", me, Open, "10/1/1999");
    open();
    EXPECT_EQ(shown(), QStringList({"b", "c", "a"})); // as they are in the table
    clickHeading(2);
    EXPECT_EQ(shown(), QStringList({"a", "b", "c"})); // by day, not by the text of the cell
    clickHeading(2);
    EXPECT_EQ(shown(), QStringList({"c", "b", "a"}));
    clickHeading(Description);
    EXPECT_EQ(shown(), QStringList({"a", "b", "c"}));
    clickHeading(Description);
    EXPECT_EQ(shown(), QStringList({"c", "b", "a"}));
    add("bb", me);
    clickButton(list.get(), "cmdRefresh");
    EXPECT_EQ(shown(), QStringList({"c", "bb", "b", "a"})); // the order stays
    clickHeading(2);
    EXPECT_EQ(shown().last(), "c");
}

TEST_F(MyIssues, RefreshesItselfInMinutesThatEndInFiveOrZero)
{
    const qint32 first = add("first", me);
    SetPrefStr("AutoRefreshMyIssues", "Y");
    open();
    const auto dialogs = person.progress().size();
    add("second", me);
    LvSelectItem(lv, keyOf(first));
    tickAt(10, 6);
    EXPECT_EQ(lv->itemCount(), 1);
    tickAt(10, 5);
    EXPECT_EQ(lv->itemCount(), 2);
    EXPECT_EQ(list->windowTitle().section('@', 1), "10:05:30 AM");
    EXPECT_EQ(LvGetSelectedItemKey(lv), keyOf(first));
    add("third", me);
    tickAt(10, 5); // on each tick of that minute
    EXPECT_EQ(lv->itemCount(), 3);
    ASSERT_TRUE(gDB.DeleteRecord(first, gDB.IssuesTable()));
    tickAt(22, 30);
    EXPECT_EQ(shown(), QStringList({"second", "third"}));
    EXPECT_EQ(LvGetSelectedItemText(lv), lv->itemText(0, 0));
    EXPECT_EQ(person.progress().size(), dialogs); // without a dialog

    list->findChild<QCheckBox *>("ckAutoRefresh")->click();
    EXPECT_FALSE(timer->isActive());
    EXPECT_EQ(timer->interval(), 3000);
}

TEST_F(MyIssues, AnAutomaticRefreshLeavesFocusAndPlaceAlone)
{
    for (int number = 0; number < 60; ++number)
        add(QString::number(number), me);
    SetPrefStr("AutoRefreshMyIssues", "Y");
    open();
    QWidget other;
    QLineEdit typing(&other);
    other.show();
    other.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
    typing.setFocus();
    lv->verticalScrollBar()->setValue(lv->verticalScrollBar()->maximum());
    const int place = lv->verticalScrollBar()->value();
    ASSERT_GT(place, 0);
    tickAt(10, 5);
    QCoreApplication::processEvents();
    EXPECT_EQ(lv->verticalScrollBar()->value(), place);
    EXPECT_TRUE(typing.hasFocus());
}

TEST_F(MyIssues, RemembersItsStatusAndAutoRefresh)
{
    SetPrefLong("LastIssueSearchStatusID", Closed);
    open();
    EXPECT_EQ(cboGetItemID(cboStatus), Closed);
    EXPECT_FALSE(list->findChild<QCheckBox *>("ckAutoRefresh")->isChecked());
    EXPECT_FALSE(timer->isActive());
    list->findChild<QCheckBox *>("ckAutoRefresh")->click();
    cboSelectAtID(cboStatus, Open);
    list->close();
    EXPECT_EQ(GetPrefLong("LastIssueSearchStatusID"), Open);
    EXPECT_EQ(GetPrefStr("AutoRefreshMyIssues"), "Y");
    EXPECT_FALSE(timer->isActive());
    open();
    EXPECT_TRUE(timer->isActive());
    cboSelectAtIndex(cboStatus, 0);
    list->findChild<QCheckBox *>("ckAutoRefresh")->click();
    list->close();
    EXPECT_EQ(GetPrefLong("LastIssueSearchStatusID"), -1);
    EXPECT_EQ(GetPrefStr("AutoRefreshMyIssues"), "");
}

TEST_F(MyIssues, AStatusThatIsGoneLeavesAllOfThem)
{
    const qint32 waiting = database.addListItem(101, "Waiting");
    add("old", me, waiting);
    SetPrefLong("LastIssueSearchStatusID", waiting);
    ASSERT_TRUE(gDB.DeleteRecord(waiting, gDB.CategoryTable()));
    open();
    EXPECT_EQ(cboStatus->currentText(), "All");
    EXPECT_EQ(row(0)[1], "");
    EXPECT_EQ(shown(), QStringList("old"));
}

// Cancel belongs to the person; what refreshes itself is not cancelled.
TEST_F(MyIssues, OnlyAWalkWithADialogIsCancelled)
{
    for (int number = 0; number < 6; ++number)
        add("row", me);
    SetPrefStr("AutoRefreshMyIssues", "Y");
    person.cancelProgressAt(2);
    open();
    EXPECT_EQ(lv->itemCount(), 2);
    tickAt(10, 10);
    EXPECT_EQ(lv->itemCount(), 6);
}

// A box at every tick would bury the screen while nobody is there.
TEST_F(MyIssues, AutomaticRefreshesTellOfTroubleOnce)
{
    add("mine", me);
    SetPrefStr("AutoRefreshMyIssues", "Y");
    open();
    const QString table = gDB.CategoryTable();
    ASSERT_TRUE(QFile::rename(table, table + ".away"));
    person.expect("Unable to open: ");
    tickAt(10, 5);
    EXPECT_EQ(count(), "0 Issue(s)");
    tickAt(10, 5);
    person.expect("Unable to open: ");
    clickButton(list.get(), "cmdRefresh");
    ASSERT_TRUE(QFile::rename(table + ".away", table));
    tickAt(10, 10);
    EXPECT_EQ(count(), "1 Issue(s)");
    ASSERT_TRUE(QFile::rename(table, table + ".away"));
    person.expect("Unable to open: ");
    tickAt(10, 15);
    ASSERT_TRUE(QFile::rename(table + ".away", table));
}

// What the timer and the person do during a load waits for its end.
TEST_F(MyIssues, ATickDuringALoadDoesNotBeginAnother)
{
    for (int number = 0; number < 120; ++number)
        add("row", me);
    SetPrefStr("AutoRefreshMyIssues", "Y");
    open();
    const auto pump = host().pumpEvents;
    int rounds = 0;
    host().pumpEvents = [&] {
        ++rounds;
        tickAt(10, 5);
        list->close();
    };
    clickButton(list.get(), "cmdRefresh");
    host().pumpEvents = pump;
    EXPECT_GE(rounds, 2);
    EXPECT_EQ(lv->itemCount(), 120);
    EXPECT_TRUE(list->isVisible());
}
