// The list of hits: what each search finds, what it says, and what can be done with it.
#include "common/ui/FormWindow.h"
#include "search/frmCustomerList.h"
#include "search/frmLookupCustomer.h"
#include "support/DialogDriver.h"
#include "support/FakeHost.h"
#include "support/PdfPrinter.h"
#include "support/RecordingSwitchboard.h"
#include "support/ScriptedPrompts.h"
#include "support/TempDatabase.h"

#include <gtest/gtest.h>

#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTest>

namespace
{

class CustomerList : public ::testing::Test
{
protected:
    void search(const QString &text, qint32 type)
    {
        list = std::make_unique<frmCustomerList>();
        list->Init(text, type);
        list->show();
        list->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(list.get()));
        lv = list->findChild<ListView *>("lvCustomers");
    }
    QStringList names() const { return column(0); }
    QStringList column(int at) const
    {
        QStringList texts;
        for (int row = 0; row < lv->itemCount(); ++row)
            texts += lv->itemText(row, at);
        return texts;
    }
    QString count() const { return list->findChild<QLabel *>("lblCount")->text(); }
    QPushButton *button(const char *name) const
    {
        return list->findChild<QPushButton *>(QLatin1String(name));
    }

    void addFour()
    {
        ann = database.addCustomer({{"lastname", "Smith"},
                                    {"firstname", "Ann"},
                                    {"company", "Northwind Mills"},
                                    {"custno", "A-100"},
                                    {"workphone", "(503) 555-0101"},
                                    {"address1", "12 Main Street"},
                                    {"city", "Salem"}});
        bob = database.addCustomer({{"lastname", "Smithers"},
                                    {"firstname", "Bob"},
                                    {"company", "northern lights"},
                                    {"custno", "A-1001"},
                                    {"workphone", "(503) 555-0199"},
                                    {"homephone", "(971) 555-0500"},
                                    {"city", "Portland"}});
        database.addCustomer({{"lastname", "blacksmith"},
                              {"custno", "b-1"},
                              {"postalcode", "97301"},
                              {"address2", "Salem Building"}});
        database.addCustomer({{"company", "South Gate"}, {"faxphone", "(503) 555-0777"}});
    }

    FakeHost machine;
    ScriptedPrompts person;
    RecordingSwitchboard board;
    TempDatabase database;
    std::unique_ptr<frmCustomerList> list;
    ListView *lv = nullptr;
    qint32 ann = 0;
    qint32 bob = 0;
};

} // namespace

TEST_F(CustomerList, PrintsWhatItShowsUnderItsCaption)
{
    const PdfPrinter printer;
    addFour();
    search({}, 0);
    QTest::keyClick(list.get(), Qt::Key_P, Qt::ControlModifier);
    EXPECT_EQ(printer.titles(), QStringList(list->windowTitle()));
    EXPECT_TRUE(printer.pages().value(0).contains("Smith, Ann"));
}

TEST_F(CustomerList, EachTagSearchFindsWhatStartsWithTheTextInAnyCase)
{
    addFour();
    search("smith", SearchLastName);
    EXPECT_EQ(names(), QStringList({"Smith, Ann", "Smithers, Bob"}));
    EXPECT_EQ(count(), "2 Customer(s)");
    EXPECT_EQ(list->windowTitle(), "Customers (Last Name='smith') @3:05:09 PM");
    EXPECT_EQ(person.progress().back().message, "Searching Customers. Please wait...");
    EXPECT_TRUE(person.progress().back().cancel);
    EXPECT_TRUE(person.progress().back().closed);

    search("NORTH", SearchCompany);
    EXPECT_EQ(column(1), QStringList({"Northwind Mills", "northern lights"}));
    EXPECT_EQ(list->windowTitle(), "Customers (Company='NORTH') @3:05:09 PM");

    search(" a-1001 ", SearchNumber); // blanks around the text are not sought
    EXPECT_EQ(names(), QStringList({"Smithers, Bob"}));
    EXPECT_EQ(list->windowTitle(), "Customers (Customer Number=' a-1001 ') @3:05:09 PM");

    search("(503) 555-01", SearchWorkPhone);
    EXPECT_EQ(column(3), QStringList({"(503) 555-0101", "(503) 555-0199"}));
    EXPECT_EQ(list->windowTitle(), "Customers (Work Phone='(503) 555-01') @3:05:09 PM");

    search("mill", SearchCompany);
    EXPECT_TRUE(names().isEmpty());
    EXPECT_EQ(count(), "0 Customer(s)");
}

TEST_F(CustomerList, ContainsSearchLooksIntoAddressesAndAllPhones)
{
    addFour();
    search("SALEM", SearchAddress);
    EXPECT_EQ(names(), QStringList({"blacksmith", "Smith, Ann"}));
    EXPECT_EQ(list->windowTitle(), "Customers (Address contains 'SALEM') @3:05:09 PM");
    EXPECT_EQ(person.progress().back().message, "Listing Customers. Please wait...");
    for (const auto &[text, name] : {std::pair<QString, QString>{"main str", "Smith, Ann"},
                                     {"7301", "blacksmith"},
                                     {"(971)", "Smithers, Bob"},
                                     {"-0777", ""}}) {
        search(text, SearchAddress);
        EXPECT_EQ(names(), QStringList(name)) << qPrintable(text);
    }
    search("Northwind", SearchAddress); // a company is no part of an address
    EXPECT_EQ(lv->itemCount(), 0);
    search("main  str", SearchAddress);
    EXPECT_EQ(lv->itemCount(), 0);
}

TEST_F(CustomerList, EmptyTextListsEverybodyWhateverTheSearch)
{
    addFour();
    for (const qint32 type : {SearchLastName, SearchNumber, SearchAddress}) {
        search("", type);
        EXPECT_EQ(names(), QStringList({"", "blacksmith", "Smith, Ann", "Smithers, Bob"}));
        EXPECT_EQ(list->windowTitle(), "All Customers @3:05:09 PM");
        EXPECT_EQ(count(), "4 Customer(s)");
    }
    search("x", 9);
    EXPECT_EQ(lv->itemCount(), 0);
}

TEST_F(CustomerList, ShowsTrimmedFieldsUnderTheLabelsOfTheDatabase)
{
    addFour();
    gDB.SetParamValue(clsDB::MakeCustomFieldParamName("nvncust.dbf", "city"), "Town");
    search("A-100", SearchNumber);
    EXPECT_EQ(lv->itemKey(0), QString(u'N' + QString::number(ann)));
    EXPECT_EQ(QStringList({lv->itemText(0, 0), lv->itemText(0, 1), lv->itemText(0, 2),
                           lv->itemText(0, 3), lv->itemText(0, 4)}),
              QStringList({"Smith, Ann", "Northwind Mills", "A-100", "(503) 555-0101", "Salem"}));
    QStringList titles;
    QStringList keys;
    for (const ListView::Column &column : lv->columns()) {
        titles += column.title;
        keys += column.key;
    }
    EXPECT_EQ(titles, QStringList({"Name", "Company", "Customer Number", "Work Phone", "Town"}));
    EXPECT_EQ(keys, QStringList({"N", "C", "O", "P", "L"}));
}

TEST_F(CustomerList, EnterDoubleClickAndOpenShowTheSelectedCustomer)
{
    addFour();
    search("smith", SearchLastName);
    QTest::keyClick(lv, Qt::Key_Return);
    LvSelectItem(lv, u'N' + QString::number(bob));
    clickButton(list.get(), "cmdProperties");
    const QPoint first = lv->visualRect(lv->model()->index(0, 0)).center();
    QTest::mouseClick(lv->viewport(), Qt::LeftButton, {}, first);
    QTest::mouseDClick(lv->viewport(), Qt::LeftButton, {}, first);
    EXPECT_EQ(board.calls(), QStringList({QStringLiteral("ShowCustomer %1 false").arg(ann),
                                          QStringLiteral("ShowCustomer %1 false").arg(bob),
                                          QStringLiteral("ShowCustomer %1 false").arg(ann)}));
}

TEST_F(CustomerList, NothingToOpenWithoutASelection)
{
    search("nobody", SearchLastName);
    EXPECT_FALSE(button("cmdProperties")->isEnabled());
    QTest::keyClick(lv, Qt::Key_Return);
    EXPECT_TRUE(board.calls().isEmpty());
    addFour();
    search("smith", SearchLastName);
    EXPECT_TRUE(button("cmdProperties")->isEnabled());
    LvSelectAllItems(lv, false);
    EXPECT_FALSE(button("cmdProperties")->isEnabled());
}

TEST_F(CustomerList, RefreshReadsAgainAndKeepsTheSelectionAndTheOrder)
{
    addFour();
    search("smith", SearchLastName);
    LvSelectItem(lv, u'N' + QString::number(bob));
    lv->sortBy(1, Qt::DescendingOrder);
    RecColl zoe = gDB.NewCustomerRecColl();
    zoe.setExisting("lastname", "Smith");
    zoe.setExisting("firstname", "Zoe");
    ASSERT_TRUE(database.otherStation()->SaveRecord(zoe));
    machine.advance(std::chrono::seconds(60));
    QTest::keyClick(lv, Qt::Key_F5);
    EXPECT_EQ(names(), QStringList({"Smith, Ann", "Smith, Zoe", "Smithers, Bob"}));
    EXPECT_EQ(LvGetSelectedItemKey(lv), QString(u'N' + QString::number(bob)));
    EXPECT_EQ(lv->sortColumn(), 0);
    EXPECT_EQ(list->windowTitle(), "Customers (Last Name='smith') @3:06:09 PM");

    ASSERT_TRUE(gDB.DeleteRecord(bob, gDB.CustomerTable()));
    clickButton(list.get(), "cmdRefresh");
    EXPECT_EQ(LvGetSelectedItemText(lv), "Smith, Ann"); // no longer a hit: the first
}

TEST_F(CustomerList, CancelKeepsTheHitsSoFar)
{
    for (int number = 0; number < 5; ++number)
        database.addCustomer({{"lastname", QStringLiteral("Hit %1").arg(number)}});
    person.cancelProgressAt(3);
    search("hit", SearchLastName);
    EXPECT_EQ(names(), QStringList({"Hit 0", "Hit 1", "Hit 2"}));
    EXPECT_EQ(count(), "3 Customer(s)");
    EXPECT_TRUE(person.progress().back().closed);
    search("", SearchAddress);
    EXPECT_EQ(lv->itemCount(), 3);
}

// The wait dialog is not modal, so a person may press F5 or close the window during a load.
TEST_F(CustomerList, ALoadIsNotDisturbedByWhatTheWindowIsTold)
{
    for (int number = 0; number < 120; ++number)
        database.addCustomer({{"lastname", QStringLiteral("Hit %1").arg(number)}});
    search("none", SearchLastName);
    list->Init("hit", SearchLastName);
    ASSERT_EQ(lv->itemCount(), 120);
    const auto pump = host().pumpEvents;
    int rounds = 0;
    host().pumpEvents = [&] {
        ++rounds;
        list->LoadData();
        list->close();
    };
    clickButton(list.get(), "cmdRefresh");
    host().pumpEvents = pump;
    EXPECT_GE(rounds, 2);
    EXPECT_EQ(lv->itemCount(), 120);
    EXPECT_TRUE(list->isVisible());
}

TEST_F(CustomerList, EscapeClosesTheWindow)
{
    search("nobody", SearchLastName);
    QTest::keyClick(lv, Qt::Key_Escape);
    EXPECT_FALSE(list->isVisible());
}
