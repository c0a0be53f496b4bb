// New, Open and Close Database, and leaving the program.
#include "MainWindowFixture.h"

#include "common/base/Preferences.h"
#include "common/ui/FormWindow.h"
#include "forms/frmCustomer.h"
#include "support/DialogDriver.h"

#include <QDir>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>

namespace
{

class FileCommands : public MainWindow
{
protected:
    // The default data folder is made in a home that goes with the test.
    FileCommands() { qputenv("HOME", QFile::encodeName(home.path())); }
    ~FileCommands() override
    {
        main.reset();
        gDB.CloseDB();
        qputenv("HOME", before);
    }
    // A customer in edit mode: what is typed there is not saved yet.
    void editCustomer()
    {
        main->ShowCustomer(database->addCustomer({{"lastname", "Smith"}}), false);
        clickButton(window("frmCustomer"), "lblEdit");
    }

    static constexpr char discard[] = "Do you wish to discard your changes (if any)?";
    const QByteArray before = qgetenv("HOME");
    QTemporaryDir home;
    QTemporaryDir folder;
};

const auto pressOk = [](QWidget *login) { clickButton(login, "OKButton"); };
const auto pressCancel = [](QWidget *login) { clickButton(login, "CancelButton"); };

} // namespace

TEST_F(FileCommands, NewDatabaseIsExplainedCreatedAndOpened)
{
    openWithoutDatabase();
    person.expectText("You are about to create a NEW Norvane Database.\n\nSHARED/NETWORK");
    person.expectFolder("NEW DATABASE: Please select the Directory where you want to store the "
                        "new Norvane database:",
                        folder.path());
    person.expectText("NEW DATABASE CREATED! Initial Login and Password is SYSOP (Multi-user "
                      "version only)\nNew Norvane database has been created in:");
    const DialogDriver login([](QWidget *box) {
        EXPECT_EQ(box->findChild<QLineEdit *>("txtLogin")->text(), "sysop");
        EXPECT_EQ(box->findChild<QLineEdit *>("txtPassword")->text().toLower(), "sysop");
        QTest::keyClick(box, Qt::Key_Return);
    });
    choose("mnuFileNew");
    EXPECT_TRUE(gDB.IsOpen());
    EXPECT_TRUE(menuShown("mnuView"));
    EXPECT_EQ(QDir(GetPrefStr("db")), QDir(folder.path()));
    const QString created = person.texts().last();
    EXPECT_TRUE(created.contains(QDir::toNativeSeparators(folder.path())));
    EXPECT_TRUE(created.contains(main->BackupMsg(QDir::toNativeSeparators(folder.path()))));
}

TEST_F(FileCommands, NewDatabaseCancelledOrRefusedLeavesNone)
{
    openWithoutDatabase();
    person.expectText("You are about to create");
    person.expectFolder("NEW DATABASE:", "");
    choose("mnuFileNew");

    QFile old(folder.filePath("nvnparam.fpt"));
    ASSERT_TRUE(old.open(QIODevice::WriteOnly));
    old.close();
    person.expectText("You are about to create");
    person.expectFolder("NEW DATABASE:", folder.path());
    person.expectText("NEW DATABASE CREATION FAILED!");
    choose("mnuFileNew");
    EXPECT_FALSE(gDB.IsOpen());
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files), QStringList("nvnparam.fpt"));
}

TEST_F(FileCommands, OpenAsksForFolderAndLogin)
{
    database = std::make_unique<TempDatabase>(TempDatabase::Start::Closed);
    openWithoutDatabase();
    person.expectFolder("EXISTING DATABASE: Please select the Directory that contains an existing "
                        "Norvane database:",
                        database->path());
    const DialogDriver login(pressOk);
    choose("mnuFileOpen");
    EXPECT_TRUE(gDB.IsOpen());
    EXPECT_TRUE(enabled("mnuFileClose"));
    choose("mnuFileClose");
    EXPECT_FALSE(gDB.IsOpen());
    EXPECT_FALSE(menuShown("mnuView"));
    EXPECT_EQ(QDir(GetPrefStr("db")), QDir(database->path()));
}

TEST_F(FileCommands, ACancelledLoginLeavesTheLastFolderAlone)
{
    SetPrefStr("db", "/the/one/before");
    database = std::make_unique<TempDatabase>(TempDatabase::Start::Closed);
    openWithoutDatabase();
    person.expectFolder("EXISTING DATABASE:", database->path());
    const DialogDriver login(pressCancel);
    choose("mnuFileOpen");
    EXPECT_FALSE(gDB.IsOpen());
    EXPECT_EQ(statusTexts().first(), "Choose File menu to open or create database.");
    EXPECT_EQ(GetPrefStr("db"), "/the/one/before");
}

TEST_F(FileCommands, CloseDatabaseClosesItsWindows)
{
    openWithDatabase();
    main->ShowCustomer(database->addCustomer({{"lastname", "Smith"}}), false);
    choose("mnuFileClose");
    EXPECT_TRUE(openForms().isEmpty());
    EXPECT_FALSE(gDB.IsOpen());
}

TEST_F(FileCommands, AWindowThatRefusesKeepsDatabaseAndProgramOpen)
{
    openWithDatabase();
    editCustomer();
    for (const Answer answer : {Answer::No, Answer::Cancel}) {
        person.expect(discard, answer);
        choose("mnuFileClose");
        EXPECT_TRUE(gDB.IsOpen());
        EXPECT_TRUE(menuShown("mnuView"));
        person.expect(discard, answer);
        choose("mnuFileExit");
        EXPECT_TRUE(main->isVisible());
        EXPECT_TRUE(gDB.IsOpen());
    }
    EXPECT_EQ(openForms().size(), 1);
    EXPECT_EQ(GetPrefStr("width"), "");

    person.expect(discard, Answer::Yes);
    choose("mnuFileExit");
    EXPECT_FALSE(main->isVisible());
    EXPECT_FALSE(gDB.IsOpen());
    EXPECT_EQ(GetPrefLong("width"), main->width());
}

TEST_F(FileCommands, RecentDatabasesAreOpenedAgainAndForgottenWhenTheyAreGone)
{
    SetPrefStr("recentdb1", "/no/longer/there");
    openWithDatabase();
    main->SetUI();
    auto *menu = find<QMenu>("mnuFileRecent");
    const auto entries = [&] {
        Q_EMIT menu->aboutToShow();
        QStringList texts;
        for (const QAction *entry : menu->actions())
            texts << entry->text();
        return texts;
    };
    const QString here = gDB.DBPath();
    EXPECT_EQ(entries(), QStringList({"&1 " + here, "&2 /no/longer/there"}));
    EXPECT_TRUE(menu->actions()[0]->isChecked());

    // What is not saved keeps the database open.
    editCustomer();
    person.expect(discard, Answer::No);
    menu->actions()[1]->trigger();
    EXPECT_EQ(gDB.DBPath(), here);

    person.expect(discard, Answer::Yes);
    person.expectText("OPEN FAILED!");
    menu->actions()[1]->trigger();
    EXPECT_FALSE(gDB.IsOpen());
    EXPECT_EQ(entries(), QStringList("&1 " + here));

    const DialogDriver login(pressOk);
    menu->actions()[0]->trigger();
    EXPECT_EQ(gDB.DBPath(), here);
}

TEST_F(FileCommands, TheNextStartTakesUpTheWindowsOfTheLastOne)
{
    openWithDatabase();
    const qint32 kept = database->addCustomer({{"lastname", "Smith"}});
    const qint32 deleted = database->addCustomer({{"lastname", "Gone"}});
    main->ShowCustomer(kept, false);
    main->ShowCustomer(deleted, false);
    main->ShowCustomer(-1, true); // a new one is not taken up
    main->MyIssues();
    person.expect(discard, Answer::Yes);
    choose("mnuFileExit");
    ASSERT_FALSE(main->isVisible());

    const auto startAgain = [this](const QString &login) {
        main.reset();
        database->loginAs(login, login.toLower());
        main = std::make_unique<frmMain>();
        main->show();
    };
    startAgain("SYSOP");
    ASSERT_TRUE(gDB.DeleteRecord(deleted, gDB.CustomerTable()));
    main->reopenWindows();
    EXPECT_EQ(openTags(), QStringList({u'C' + QString::number(kept), "MYISSUES"}));

    choose("mnuFileExit");
    database->loginAs("SYSOP", "sysop");
    database->addUser("JANE", "1111");
    startAgain("JANE");
    main->reopenWindows();
    EXPECT_EQ(openTags(), QStringList()) << "another person begins anew";
}
