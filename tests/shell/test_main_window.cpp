// The main window with and without a database, and as the switchboard of the other windows.
#include "MainWindowFixture.h"

#include "common/base/AppInfo.h"
#include "common/base/Preferences.h"
#include "common/ui/Controls.h"
#include "common/ui/FormWindow.h"
#include "common/ui/ListView.h"
#include "forms/frmCustomer.h"
#include "search/frmCustomerList.h"
#include "search/frmLookupCustomer.h"
#include "support/DialogDriver.h"

#include <QComboBox>
#include <QFile>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPushButton>
#include <QTest>
#include <QToolBar>

namespace
{

constexpr char gone[] = "Record cannot be accessed or no longer exists.";

// Fills the lookup dialog when it comes up.
DialogDriver lookingUp(qint32 type, const QString &text)
{
    return DialogDriver([=](QWidget *dialog) {
        cboSelectAtID(dialog->findChild<QComboBox *>("cboType"), type);
        dialog->findChild<QLineEdit *>("txtSearch")->setText(text);
        clickButton(dialog, "OKButton");
    });
}

} // namespace

TEST_F(MainWindow, WithoutADatabaseOffersNewAndOpenOnly)
{
    openWithoutDatabase();
    EXPECT_TRUE(enabled("mnuFileNew"));
    EXPECT_TRUE(enabled("mnuFileOpen"));
    EXPECT_FALSE(enabled("mnuFileClose"));
    EXPECT_FALSE(enabled("mnuDisplayDataFolder"));
    EXPECT_FALSE(enabled("mnuViewNewCustomer"));
    EXPECT_FALSE(find<QAction>("mnuFileChangePWD")->isVisible());
    EXPECT_FALSE(menuShown("mnuView"));
    EXPECT_FALSE(menuShown("mnuWindow"));
    EXPECT_FALSE(find<QToolBar>("TB")->isVisible());
    EXPECT_TRUE(find<QWidget>("lblHint")->isVisible());
    EXPECT_EQ(statusTexts(), QStringList({"Choose File menu to open or create database.",
                                          "Machine: STATION1  ", "Multi-User version "}));
    EXPECT_EQ(main->windowTitle(),
              QStringLiteral("Norvane - v%1.%2").arg(app::versionMajor()).arg(app::versionMinor()));
    QTest::keyClick(main.get(), Qt::Key_L, Qt::ControlModifier); // no lookup behind hidden menus
    QTest::keyClick(main.get(), Qt::Key_N, Qt::ControlModifier);
    EXPECT_TRUE(openForms().isEmpty());
}

TEST_F(MainWindow, WithADatabaseOffersItsCommands)
{
    machine.setComputerName("frontdesk");
    openWithDatabase();
    EXPECT_FALSE(enabled("mnuFileNew"));
    EXPECT_FALSE(enabled("mnuFileOpen"));
    EXPECT_TRUE(enabled("mnuFileClose"));
    EXPECT_TRUE(enabled("mnuDisplayDataFolder"));
    EXPECT_TRUE(enabled("mnuFileChangePWD") && find<QAction>("mnuFileChangePWD")->isVisible());
    EXPECT_TRUE(menuShown("mnuView"));
    EXPECT_TRUE(menuShown("mnuWindow"));
    EXPECT_TRUE(find<QToolBar>("TB")->isVisible());
    EXPECT_FALSE(find<QWidget>("lblHint")->isVisible());
    EXPECT_EQ(statusTexts(),
              QStringList({"Database Location: " + gDB.DBPath(),
                           "User: FRONTDESK\\" + gDB.LoginName() + "  ", "Multi-User version "}));
    choose("mnuDisplayDataFolder");
    EXPECT_EQ(machine.opened(), QStringList(gDB.DBPath()));
}

TEST_F(MainWindow, AReadOnlyDatabaseShowsItAndStartsNoRecord)
{
    openWithDatabase();
    QFile table(gDB.ReportTable());
    ASSERT_TRUE(table.open(QIODevice::WriteOnly | QIODevice::Truncate));
    table.close();
    person.expect("open for reading only");
    person.expect("Unable to open: ");
    gDB.OpenTable(gDB.ReportTable());
    EXPECT_EQ(statusTexts().first(), "Database Location: " + gDB.DBPath() + " (read-only)");
    person.expect("Nothing was changed: this database is open for reading only");
    choose("NEWCUST");
    EXPECT_EQ(openTags(), QStringList());
    gDB.CloseDB();
    main->SetUI();
    EXPECT_FALSE(statusTexts().first().contains("read-only"));
}

TEST_F(MainWindow, ShowingACustomerTwiceRaisesItsWindow)
{
    openWithDatabase();
    const qint32 ann = database->addCustomer({{"lastname", "Smith"}});
    const qint32 bob = database->addCustomer({{"lastname", "Brown"}});
    main->ShowCustomer(ann, false);
    main->ShowCustomer(bob, false);
    const auto *first = qobject_cast<frmCustomer *>(openForms().first());
    area()->activeSubWindow()->showMinimized();
    main->ShowCustomer(ann, false);
    EXPECT_EQ(openTags(), QStringList({u'C' + QString::number(ann), u'C' + QString::number(bob)}));
    EXPECT_EQ(openForms().first(), first);
    EXPECT_EQ(area()->activeSubWindow()->widget(), first);
    main->ShowCustomer(bob, false);
    EXPECT_FALSE(area()->activeSubWindow()->isMinimized());
    EXPECT_EQ(area()->activeSubWindow()->widget(), openForms().last());
}

TEST_F(MainWindow, ADeletedCustomerIsToldAndOpensNothing)
{
    openWithDatabase();
    const qint32 ann = database->addCustomer({{"lastname", "Smith"}});
    ASSERT_TRUE(gDB.DeleteRecord(ann, gDB.CustomerTable()));
    person.expectText(gone);
    main->ShowCustomer(ann, false);
    EXPECT_TRUE(openForms().isEmpty());
}

TEST_F(MainWindow, ASecondNewCustomerRaisesTheFirstWithItsText)
{
    openWithDatabase();
    choose("NEWCUST");
    auto *form = window("frmCustomer");
    ASSERT_NE(form, nullptr);
    form->findChild<QLineEdit *>("txtLname")->setText("Halfway");
    choose("mnuViewNewCustomer");
    EXPECT_EQ(openTags(), QStringList("C-1"));
    EXPECT_EQ(form->findChild<QLineEdit *>("txtLname")->text(), "Halfway");
    person.expect("Do you wish to discard", Answer::Yes);
    form->close();
}

// The first window of all, and one beside others.
TEST_F(MainWindow, ANewWindowHasTheKeyboard)
{
    openWithDatabase();
    main->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(main.get()));
    choose("mnuViewNewCustomer");
    ASSERT_NE(QApplication::focusWidget(), nullptr);
    EXPECT_EQ(QApplication::focusWidget()->objectName(), "txtCustNo");

    const DialogDriver driver = lookingUp(SearchLastName, QString());
    choose("mnuViewLookupCustomer");
    main->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(main.get()));
    ASSERT_NE(QApplication::focusWidget(), nullptr);
    EXPECT_EQ(QApplication::focusWidget()->objectName(), "lvCustomers");
}

TEST_F(MainWindow, LookupOpensAListAndFromThereTheCustomer)
{
    openWithDatabase();
    const qint32 ann = database->addCustomer({{"lastname", "Smith"}, {"company", "Mills"}});
    database->addCustomer({{"lastname", "Brown"}});
    {
        const DialogDriver driver = lookingUp(SearchCompany, "mil");
        choose("LOOKUPCUST");
    }
    FormWindow *list = window("frmCustomerList");
    ASSERT_NE(list, nullptr);
    EXPECT_EQ(area()->activeSubWindow()->widget(), list);
    EXPECT_EQ(area()->activeSubWindow()->windowTitle(), "Customers (Company='mil') @3:05:09 PM");
    QTest::keyClick(list->findChild<ListView *>("lvCustomers"), Qt::Key_Return);
    EXPECT_TRUE(IsFormLoaded(u'C' + QString::number(ann)));
    EXPECT_FALSE(qobject_cast<frmCustomer *>(window("frmCustomer"))->inEditMode());
    {
        const DialogDriver driver = lookingUp(SearchCompany, "mil");
        choose("mnuViewLookupCustomer");
    }
    EXPECT_EQ(openForms().size(), 3); // each lookup has a list of its own
}

TEST_F(MainWindow, LookupByIdOpensTheCustomerOrTellsThatItIsGone)
{
    openWithDatabase();
    const qint32 ann = database->addCustomer({{"lastname", "Smith"}});
    {
        const DialogDriver driver = lookingUp(SearchId, QString::number(ann));
        main->LookupCustomer();
    }
    EXPECT_EQ(openTags(), QStringList(u'C' + QString::number(ann)));
    for (const QString &id : {QString("99999"), QString("0"), QString("-1"), QString("1e12")}) {
        const DialogDriver driver = lookingUp(SearchId, id);
        person.expectText(gone);
        main->LookupCustomer();
        EXPECT_EQ(openForms().size(), 1) << qPrintable(id);
    }
}

TEST_F(MainWindow, NothingClosesWhileAListIsFilling)
{
    openWithDatabase();
    const qint32 id = database->addCustomer({{"lastname", "Smith"}});
    main->ShowCustomer(id, false);
    auto *list = new frmCustomerList;
    main->showChild(list);
    const QStringList tags = openTags();
    bool tried = false;
    QMetaObject::invokeMethod(
        main.get(),
        [&] {
            tried = true;
            EXPECT_FALSE(main->close());
            choose("mnuWindowCloseAll");
        },
        Qt::QueuedConnection);
    list->Init(QString(), SearchLastName); // lets events through on its way
    EXPECT_TRUE(tried);
    EXPECT_EQ(openTags(), tags);
    EXPECT_TRUE(gDB.IsOpen());
    EXPECT_TRUE(main->close());
    EXPECT_FALSE(gDB.IsOpen());
}

TEST_F(MainWindow, ACancelledLookupOpensNothing)
{
    openWithDatabase();
    const DialogDriver driver([](QWidget *dialog) { QTest::keyClick(dialog, Qt::Key_Escape); });
    main->LookupCustomer();
    EXPECT_TRUE(openForms().isEmpty());
}

namespace
{

// A customer window that notes which of its lists it was told to read again.
class TaggedForm : public FormWindow
{
    Q_OBJECT
public:
    QStringList loads;
    Q_INVOKABLE void LV_LoadIssues(int id) { loads += QStringLiteral("issues %1").arg(id); }
    Q_INVOKABLE void LV_LoadPS(int id) { loads += QStringLiteral("ps %1").arg(id); }
};

} // namespace

TEST_F(MainWindow, NotifyReachesTheCustomersWindowByItsTag)
{
    openWithDatabase();
    auto *form = new TaggedForm;
    form->setTagText("C42");
    main->showChild(form);
    main->NotifyCustomer(42, 1, 7);
    main->NotifyCustomer(42, 2, 8);
    main->NotifyCustomer(42, 3, 9);
    main->NotifyCustomer(43, 1, 10);
    EXPECT_EQ(form->loads, QStringList({"issues 7", "ps 8"}));
}

TEST_F(MainWindow, HelpCommands)
{
    openWithDatabase();
    choose("mnuHelpFAQs");
    EXPECT_EQ(machine.opened(), QStringList(app::website() + "/products/norvane/faqs/"));

    person.expectText("BACKING UP, COPYING OR MOVING YOUR DATABASE");
    choose("mnuHelpBackup");
    EXPECT_TRUE(person.texts().last().contains(gDB.DBPath()));
    EXPECT_TRUE(person.texts().last().endsWith(gDB.DBMSFiles()));

    const QString question = "Support for Norvane can be obtained online at";
    person.expect(question, Answer::No).buttons({Answer::Yes, Answer::No, Answer::Cancel});
    choose("mnuHelpSupport");
    EXPECT_EQ(machine.opened().size(), 1);
    person.expect(question, Answer::Yes);
    choose("mnuHelpSupport");
    EXPECT_EQ(machine.opened().last(), app::website());

    const DialogDriver driver([](QWidget *about) {
        EXPECT_EQ(about->objectName(), "frmSplash");
        QTest::mouseClick(about, Qt::LeftButton);
    });
    choose("mnuHelpAbout");
}

TEST_F(MainWindow, BackupAdviceNamesTheFolderItIsFor)
{
    openWithoutDatabase();
    EXPECT_TRUE(main->BackupMsg().contains("[The data directory will be specified here once you "
                                           "create/open a Norvane Database]"));
    EXPECT_TRUE(main->BackupMsg("/some/folder").contains("\n/some/folder\n"));
}

TEST_F(MainWindow, MailGoesTheWayThatWasChosen)
{
    openWithDatabase();
    {
        const DialogDriver driver([](QWidget *options) {
            EXPECT_EQ(options->objectName(), "frmOptions");
            QTest::keyClick(options, Qt::Key_Escape);
        });
        choose("ADEMAILOPT");
    }
    EXPECT_EQ(main->GetEmailHandler(), 0);
    main->SetEmailHandler(1);
    EXPECT_EQ(main->GetEmailHandler(), 1);
    machine.setAccepts(false);
    person.expectText("Unable to initiate your email software!");
    EXPECT_FALSE(main->SendMail("ann@mills.example", "Lamps", "text"));
    person.expectText("Unable to initiate Microsoft Outlook!");
    EXPECT_FALSE(main->SendMailOutlook("ann@mills.example", "Lamps", "text"));
}

#include "test_main_window.moc"
