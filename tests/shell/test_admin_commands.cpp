// What the main window offers to those who look after the database, and the boxes it asks with.
#include "MainWindowFixture.h"

#include "admin/frmChangePWD.h"
#include "common/base/AppInfo.h"
#include "common/base/Failure.h"
#include "common/ui/FormWindow.h"
#include "db/Screens.h"
#include "support/DialogDriver.h"

#include <QCalendarWidget>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

namespace
{

void typePassword(QWidget *dialog, const QString &first, const QString &second = {})
{
    dialog->findChild<QLineEdit *>("txtPassword")->setText(first);
    dialog->findChild<QLineEdit *>("txtPasswordRetype")->setText(second);
    QTest::keyClick(dialog, Qt::Key_Return);
}

QString caption(QWidget *dialog)
{
    return dialog->findChild<QLabel *>("lblCaption")->text();
}

} // namespace

// When a database opens, and after the names were changed.
TEST_F(MainWindow, ListCommandsGoByTheNamesOfTheFields)
{
    openWithDatabase();
    const auto text = [this](const char *name) { return find<QAction>(name)->text(); };
    EXPECT_TRUE(gDB.SetParamValue("nvncust.dbf_state", "Kanton & Land"));
    EXPECT_TRUE(gDB.SetParamValue("nvnissues.dbf_issuecat", "Kind"));
    ASSERT_TRUE(screens().databaseOpened);
    screens().databaseOpened();
    EXPECT_EQ(text("CATSTATES"), "Kanton && Land");
    EXPECT_EQ(text("mnuViewLMStatesProvinces"), "Kanton && Land...");
    EXPECT_EQ(text("mnuViewLMIssueCategory"), "Issue Kind...");
    EXPECT_EQ(text("CATCUST"), "Customer Category");
    EXPECT_EQ(text("CATCONTDUR"), "Contract Duration");
    EXPECT_EQ(text("CATPS"), "Products && Services");

    const DialogDriver driver([](QWidget *names) {
        EXPECT_TRUE(gDB.SetParamValue("nvncust.dbf_state", QString()));
        QTest::keyClick(names, Qt::Key_Escape);
    });
    main->ToolbarCommand("ADCUSTOM");
    EXPECT_EQ(text("CATSTATES"), "State");

    QLabel label("Custom 1:");
    main->SetCustomFieldLabel(&label, "nvncust.dbf_custom1");
    EXPECT_EQ(label.text(), "Custom 1:");
    for (const char *name : {"Region", "Region:"}) {
        EXPECT_TRUE(gDB.SetParamValue("nvncust.dbf_custom1", name));
        main->SetCustomFieldLabel(&label, "nvncust.dbf_custom1");
        EXPECT_EQ(label.text(), "Region:");
    }
}

TEST_F(MainWindow, ThePasswordIsChangedBehindTheOneInForce)
{
    openWithDatabase();
    const qint32 id = database->addUser("Ann", gDB.GetDefaultPermissionsStr());
    database->loginAs("Ann", "ANN");
    {
        const DialogDriver first([](QWidget *box) {
            EXPECT_EQ(caption(box), "*CURRENT* Password for 'Ann'");
            typePassword(box, "ann");
        });
        const DialogDriver second([](QWidget *box) {
            EXPECT_EQ(caption(box), "*NEW* Password for 'Ann'");
            QTest::keyClick(box, Qt::Key_Escape);
        });
        choose("mnuFileChangePWD");
    }
    EXPECT_EQ(gDB.GetUserPassword("ann"), "ann");
    {
        const DialogDriver first([](QWidget *box) { typePassword(box, "Ann"); });
        const DialogDriver second([](QWidget *box) { typePassword(box, "Lantern", "Lantern"); });
        person.expect("Your password has been changed!").kind(prompts::Kind::Information);
        choose("mnuFileChangePWD");
    }
    EXPECT_EQ(gDB.password(), "lantern");
    database->loginAs("ann", "LANTERN");

    // The user is deleted by another station while the new password is typed.
    const DialogDriver first([](QWidget *box) { typePassword(box, "lantern"); });
    const DialogDriver second([id](QWidget *box) {
        EXPECT_TRUE(gDB.DeleteRecord(id, gDB.UserTable()));
        typePassword(box, "candle", "candle");
    });
    person.expect("ROWID NOT FOUND: Unable to update record!");
    choose("mnuFileChangePWD");
    EXPECT_EQ(gDB.password(), "LANTERN");
}

TEST_F(MainWindow, StatisticsCountEveryTableUntilCancelled)
{
    openWithDatabase();
    for (int at = 0; at < 1001; ++at)
        database->addListItem(1, "Item");
    database->addCustomer({{"lastname", "Smith"}});
    const qint32 items = gDB.GetRecCountFast(gDB.CategoryTable(), "rowid");
    const qint32 reports = gDB.GetRecCountFast(gDB.ReportTable(), "rowid");
    person.expectText("DATABASE STATISTICS [" + gDB.DBPath() +
                      "]\n\n   1 Customers\n   0 Issues\n" +
                      QString("   %1 Reports\n   1,%2 Lookup List Items\n   1 Users\n\n")
                          .arg(reports)
                          .arg(items - 1000, 3, 10, QChar(u'0')) +
                      "Please note this count may include deleted records as well.");
    choose("ADSTAT");
    ASSERT_EQ(person.progress().size(), 1U);
    EXPECT_EQ(person.progress().front().title, "Database Statistics");
    EXPECT_EQ(person.progress().front().message, "Counting records. Please wait...");
    EXPECT_TRUE(person.progress().front().cancel);
    EXPECT_TRUE(person.progress().front().closed);

    person.cancelProgressAt(2);
    choose("mnuViewDatabaseAdminStatistics"); // says nothing
    person.cancelProgressAt(0);
    QFile::remove(database->file("nvnissues.dbf"));
    person.expect("nvnissues.dbf");
    person.expectText("   ? Issues\n");
    choose("ADSTAT");
}

TEST_F(MainWindow, CustomerIdIsAskedForUntilItIsANumber)
{
    openWithDatabase();
    const qint32 ann = database->addCustomer({{"lastname", "Smith"}});
    const auto typed = [this](const std::optional<QString> &answer) {
        person.expectInput("Enter Customer ID", answer).title("Norvane").helpContext(1220);
    };
    typed("abc");
    person.expect("Please enter a numeric value for Customer ID!");
    typed(u' ' + QString::number(ann));
    main->LookupByCustomerNumber();
    EXPECT_EQ(openTags(), QStringList(u'C' + QString::number(ann)));
    typed(std::nullopt);
    main->LookupByCustomerNumber();
    typed("   ");
    main->LookupByCustomerNumber();
    for (const char *id : {"99999", "-3", "1e12"}) {
        typed(id);
        person.expectText("Record cannot be accessed or no longer exists.");
        main->LookupByCustomerNumber();
    }
    EXPECT_EQ(openForms().size(), 1);
}

TEST_F(MainWindow, ADateIsPickedFromTheCalendar)
{
    openWithoutDatabase();
    const auto pick = [this](const QString &start, std::function<void(QWidget *)> steps) {
        const DialogDriver driver(std::move(steps));
        return main->GetShortDateFromPopupCalendar(start);
    };
    const auto shown = [](QWidget *box) { return box->findChild<QLabel *>("lblDate")->text(); };
    EXPECT_EQ("3/14/2004", pick("rubbish", [&](QWidget *box) {
                  EXPECT_EQ(shown(box), "Sunday, March 14, 2004"); // today
                  clickButton(box, "OK");
              }));
    EXPECT_EQ("12/24/1999", pick("12/25/1999", [&](QWidget *box) {
                  auto *calendar = box->findChild<QCalendarWidget *>();
                  EXPECT_EQ(shown(box), "Saturday, December 25, 1999");
                  // Still held down from what opened the calendar.
                  QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, {}, QString(), true);
                  QApplication::sendEvent(calendar, &held);
                  EXPECT_TRUE(box->isVisible());
                  calendar->setSelectedDate({1999, 12, 24});
                  Q_EMIT calendar->activated(calendar->selectedDate()); // a double click
              }));
    EXPECT_EQ("3/14/2004", pick("12/25/1999", [](QWidget *box) {
                  clickButton(box, "cmdToday");
                  clickButton(box, "OKButton");
              }));
    EXPECT_EQ("", pick("12/25/1999", [](QWidget *box) { QTest::keyClick(box, Qt::Key_Escape); }));

    const auto before = host().locale;
    host().locale = []() -> QLocale { throw Failure(7, "calendar", "not there"); };
    person.expect("frmMain_GetShortDateFromPopupCalendar").kind(prompts::Kind::Critical);
    person.expect("To correct this problem, please re-install Norvane");
    EXPECT_EQ("", main->GetShortDateFromPopupCalendar("12/25/1999"));
    host().locale = before;
}
