// The working day of the tour.
#include "shell/TourHands.h"

#include "common/base/AppInfo.h"
#include "common/base/Preferences.h"
#include "common/ui/Controls.h"
#include "common/ui/frmRichEdit.h"
#include "common/ui/ListView.h"
#include "db/clsDB.h"
#include "forms/frmCustomer.h"
#include "search/frmCustomerList.h"
#include "search/frmLookupCustomer.h"

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QTimer>

namespace
{

using hands::pressEnter;
using hands::pressOk;
using hands::typeInto;

const QString newPhone = QStringLiteral("(503) 555-0188");

} // namespace

void Tour::allSteps()
{
    step(QStringLiteral("Start without a database"), [this] { start(); });
    step(QStringLiteral("Create a new database and log in"), [this] { createDatabase(); });
    step(QStringLiteral("Enter a customer and apply"), [this] { enterFirstCustomer(); });
    step(QStringLiteral("A second workstation imports customers"),
         [this] { importOnSecondStation(); });
    step(QStringLiteral("Look up by name, company, number, phone and city"), [this] { lookups(); });
    step(QStringLiteral("Open a customer from the list, and one by its ID"),
         [this] { openCustomer(); });
    step(QStringLiteral("Edit the customer and save"), [this] { editCustomer(); });
    step(QStringLiteral("Preview the customer and its mailing label"), [this] { showPreviews(); });
    step(QStringLiteral("Note what the customer holds, and attach the contract"),
         [this] { addSubscription(); });
    step(QStringLiteral("Prepare a template for issues"), [this] { prepareTemplate(); });
    step(QStringLiteral("Log an issue from it, note an action, close it"),
         [this] { workOnIssue(); });
    step(QStringLiteral("Find the issue by words of its texts"), [this] { findIssue(); });
    step(QStringLiteral("Look at one's own issues"), [this] { seeMyIssues(); });
    step(QStringLiteral("Show a report, its pages, and what customers hold"),
         [this] { showReports(); });
    step(QStringLiteral("See what the second workstation changed"), [this] { seeSecondStation(); });
    step(QStringLiteral("Add an entry to a lookup list"), [this] { extendList(); });
    step(QStringLiteral("Import a spreadsheet's customers"), [this] { importSpreadsheet(); });
    step(QStringLiteral("Give a colleague a login"), [this] { addUser(); });
    step(QStringLiteral("Delete old issues for good"), [this] { purgeIssues(); });
    step(QStringLiteral("Make a report"), [this] { makeReport(); });
    step(QStringLiteral("Arrange the windows"), [this] { arrangeWindows(); });
    step(QStringLiteral("Build an index anew"), [this] { rebuildIndex(); });
    step(QStringLiteral("Close the database and open it again"), [this] { reopen(); });
    step(QStringLiteral("Help Center, tip of the day and manual"), [this] { readHelp(); });
    step(QStringLiteral("About the program"), [this] { showAbout(); });
    step(QStringLiteral("Leave"), [this] { leave(); });
}

void Tour::start()
{
    m_startup = std::make_unique<Startup>(QString());
    QString splash;
    QTimer::singleShot(frmSplash::minimumTime / 2, m_visitor.get(), [this, &splash] {
        for (QWidget *window : QApplication::topLevelWidgets()) {
            if (window->isVisible() && qobject_cast<frmSplash *>(window) != nullptr)
                splash = m_camera.shoot(window, QStringLiteral("splash"));
        }
    });
    need(m_startup->run(), QStringLiteral("the program did not start"));
    need(!splash.isEmpty(), QStringLiteral("there was no splash screen"));
    frmMain *main = m_startup->mainWindow();
    main->showNormal();
    main->setGeometry(0, 0, 1280, 800);
    need(!gDB.IsOpen(), QStringLiteral("a database is open already"));
    UnloadAll(QStringLiteral("MAINFORM")); // the tip of the day has its turn later
    shoot(QStringLiteral("no-database"));
}

void Tour::logIn(const QString &picture)
{
    m_visitor->expect(QStringLiteral("frmLogin"), [this, picture](QWidget *login) {
        need(control<QLineEdit>(login, "txtLogin")->text() == QLatin1String("sysop"),
             QStringLiteral("the login box is not filled"));
        need(!control<QLineEdit>(login, "txtPassword")->text().isEmpty(),
             QStringLiteral("the password box is not filled"));
        if (!picture.isEmpty())
            shoot(picture);
        pressOk(login);
    });
}

void Tour::pickFolder(const QString &picture)
{
    m_visitor->expect(QStringLiteral("QFileDialog"), [this, picture](QWidget *dialog) {
        control<QLineEdit>(dialog, "fileNameEdit")->setText(QDir::toNativeSeparators(m_folder));
        if (!picture.isEmpty())
            shoot(picture);
        QMetaObject::invokeMethod(dialog, "accept");
    });
}

void Tour::createDatabase()
{
    const auto read = [this](const QString &picture) {
        m_visitor->expect(QStringLiteral("frmMessage"), [this, picture](QWidget *message) {
            shoot(picture);
            control<QPushButton>(message, "cmdClose")->click();
        });
    };
    read(QStringLiteral("new-database"));
    pickFolder(QStringLiteral("new-database-folder"));
    read(QStringLiteral("new-database-created"));
    logIn(QStringLiteral("login"));
    pressAndAnswer(QStringLiteral("mnuFileNew"));
    need(gDB.IsOpen() && gDB.LoginName() == QLatin1String("sysop"),
         QStringLiteral("the new database is not open"));
    shoot(QStringLiteral("logged-in"));
}

void Tour::enterFirstCustomer()
{
    press(QStringLiteral("NEWCUST"));
    auto *form = newestForm<frmCustomer>();
    need(form->inEditMode() && form->rowid() == -1,
         QStringLiteral("a new customer is not open for editing"));
    typeInto(control<QLineEdit>(form, "txtCustNo"), QStringLiteral("T-1001"));
    control<QComboBox>(form, "cboSalutation")->setCurrentText(QStringLiteral("Ms."));
    typeInto(control<QLineEdit>(form, "txtFname"), QStringLiteral("Ann"));
    typeInto(control<QLineEdit>(form, "txtLname"), QStringLiteral("Merriweather"));
    typeInto(control<QLineEdit>(form, "txtCoName"), QStringLiteral("Merriweather & Daughters"));
    typeInto(control<QLineEdit>(form, "txtTitle"), QStringLiteral("Owner"));
    typeInto(control<QLineEdit>(form, "txtAddress1"), QStringLiteral("18 Orchard Lane"));
    typeInto(control<QLineEdit>(form, "txtCity"), QStringLiteral("Salem"));
    control<QComboBox>(form, "cboStates")->setCurrentText(QStringLiteral("Oregon"));
    control<QComboBox>(form, "cboCountry")->setCurrentText(QStringLiteral("United States"));
    typeInto(control<QLineEdit>(form, "txtPostalCode"), QStringLiteral("97301"));
    typeInto(control<QLineEdit>(form, "txtWorkPhone"), QStringLiteral("(503) 555-0142"));
    typeInto(control<QLineEdit>(form, "txtEmailName"), QStringLiteral("ann@merriweather.example"));
    shoot(QStringLiteral("new-customer"));
    control<QPushButton>(form, "cmdApply")->click();
    m_customer = form->rowid();
    need(m_customer >= 1000 && !form->inEditMode(), QStringLiteral("the customer was not saved"));
    need(storedField(m_customer, QStringLiteral("lastname")) == QLatin1String("Merriweather"),
         QStringLiteral("the stored last name is another one"));
    shoot(QStringLiteral("customer-saved"));
    form->close();
}

void Tour::importOnSecondStation()
{
    const QString file = QDir(app::programFolder()).filePath(QStringLiteral("demo/customers.csv"));
    secondStation({QStringLiteral("import"), m_folder, QStringLiteral("customers"), file});
    secondStation({QStringLiteral("import"), m_folder, QStringLiteral("products"),
                   QDir(app::programFolder()).filePath(QStringLiteral("demo/products.csv"))});
    need(gDB.GetRecCount(gDB.CustomerTable(), QStringLiteral("rowid")) > 100,
         QStringLiteral("the imported customers are not to be seen"));
}

frmCustomerList *Tour::lookup(qint32 type, const QString &text, const QString &picture)
{
    m_visitor->expect(QStringLiteral("frmLookupCustomer"), [=, this](QWidget *dialog) {
        cboSelectAtID(control<QComboBox>(dialog, "cboType"), type);
        typeInto(control<QLineEdit>(dialog, "txtSearch"), text);
        if (type == SearchLastName || type == SearchId)
            shoot(QLatin1String("lookup-") + picture);
        pressOk(dialog);
    });
    pressAndAnswer(QStringLiteral("LOOKUPCUST"));
    if (type == SearchId)
        return nullptr;
    auto *list = newestForm<frmCustomerList>();
    need(control<ListView>(list, "lvCustomers")->itemCount() > 0,
         QLatin1String("nothing was found for ") + text);
    shoot(QLatin1String("found-by-") + picture);
    return list;
}

void Tour::lookups()
{
    lookup(SearchLastName, QStringLiteral("mer"), QStringLiteral("name"))->close();
    lookup(SearchCompany, QStringLiteral("MERRI"), QStringLiteral("company"))->close();
    lookup(SearchNumber, QStringLiteral("t-1001"), QStringLiteral("number"))->close();
    lookup(SearchWorkPhone, QStringLiteral("(503) 555-01"), QStringLiteral("phone"))->close();
    lookup(SearchAddress, QStringLiteral("Portland"), QStringLiteral("city"))->close();
}

void Tour::openCustomer()
{
    auto *list = lookup(SearchCompany, QStringLiteral("Merriweather"), QStringLiteral("one"));
    pressEnter(control<ListView>(list, "lvCustomers"));
    need(newestForm<frmCustomer>()->rowid() == m_customer,
         QStringLiteral("another customer opened"));
    shoot(QStringLiteral("customer"));
    newestForm<frmCustomer>()->close();
    list->close();
    lookup(SearchId, QString::number(m_customer), QStringLiteral("id"));
    need(newestForm<frmCustomer>()->rowid() == m_customer,
         QStringLiteral("the lookup by ID opened another customer"));
}

void Tour::editCustomer()
{
    auto *form = newestForm<frmCustomer>();
    control<QPushButton>(form, "lblEdit")->click();
    need(form->inEditMode(), QStringLiteral("Edit Data did not go into edit mode"));
    typeInto(control<QLineEdit>(form, "txtWorkPhone"), newPhone);
    shoot(QStringLiteral("customer-edit"));
    auto *tabs = control<QTabWidget>(form, "tabs");
    tabs->setCurrentIndex(1);
    control<QPushButton>(form, "cmdDTStamp_Notes")->click();
    control<QPlainTextEdit>(form, "txtNote")
        ->appendPlainText(QStringLiteral("New number; the old one goes to the warehouse."));
    shoot(QStringLiteral("customer-notes"));
    control<QPushButton>(form, "cmdApply")->click();
    tabs->setCurrentIndex(0);
    need(!form->inEditMode(), QStringLiteral("the customer was not saved"));
    need(storedField(m_customer, QStringLiteral("workphone")) == newPhone,
         QStringLiteral("the new phone number is not stored"));
    need(storedField(m_customer, QStringLiteral("notes")).contains(QLatin1String(" by sysop")),
         QStringLiteral("the stamped note is not stored"));
    shoot(QStringLiteral("customer-changed"));
}

void Tour::showPreviews()
{
    auto *form = newestForm<frmCustomer>();
    control<QPushButton>(form, "cmdPrint")->click();
    shoot(QStringLiteral("preview"));
    newestForm<frmRichEdit>()->close();
    control<QPushButton>(form, "cmdLabel")->click();
    shoot(QStringLiteral("mailing-label"));
    newestForm<frmRichEdit>()->close();
}

void Tour::seeSecondStation()
{
    need(storedField(m_customer, QStringLiteral("workphone")) == newPhone,
         QStringLiteral("the second workstation does not see the change"));
    auto *list =
        lookup(SearchCompany, QStringLiteral("Merriweather"), QStringLiteral("company-here"));
    auto *rows = control<ListView>(list, "lvCustomers");
    const int before = rows->itemCount();
    importRows({QStringLiteral("LASTNAME,COMPANY,CITY"),
                QStringLiteral("Okafor,Merriweather Orchards,Portland")});
    control<QPushButton>(list, "cmdRefresh")->click();
    need(rows->itemCount() == before + 1,
         QStringLiteral("Refresh does not show the second workstation's customer"));
    shoot(QStringLiteral("refreshed"));
}

void Tour::arrangeWindows()
{
    lookup(SearchAddress, QStringLiteral("street"), QStringLiteral("address"));
    press(QStringLiteral("mnuWindowCascade"));
    shoot(QStringLiteral("cascaded"));
    newestForm<frmCustomer>()->close();
    press(QStringLiteral("mnuWindowTH"));
    shoot(QStringLiteral("tiled"));
    press(QStringLiteral("mnuWindowCloseAll"));
    need(openForms().isEmpty(), QStringLiteral("Close All left a window open"));
}

void Tour::reopen()
{
    press(QStringLiteral("mnuFileClose"));
    need(!gDB.IsOpen(), QStringLiteral("the database is still open"));
    pickFolder(QString());
    logIn(QString());
    pressAndAnswer(QStringLiteral("mnuFileOpen"));
    need(gDB.IsOpen(), QStringLiteral("the database did not open again"));
    lookup(SearchId, QString::number(m_customer), QStringLiteral("id-again"));
    auto *form = newestForm<frmCustomer>();
    need(control<QLineEdit>(form, "txtWorkPhone")->text() == newPhone,
         QStringLiteral("the new phone number is gone"));
    shoot(QStringLiteral("reopened"));
}

void Tour::showAbout()
{
    m_visitor->expect(QStringLiteral("frmSplash"), [this](QWidget *about) {
        shoot(QStringLiteral("about"));
        QMouseEvent release(QEvent::MouseButtonRelease, QPointF(10, 10),
                            about->mapToGlobal(QPointF(10, 10)), Qt::LeftButton, Qt::NoButton,
                            Qt::NoModifier);
        QApplication::sendEvent(about, &release);
    });
    pressAndAnswer(QStringLiteral("mnuHelpAbout"));
}

void Tour::leave()
{
    press(QStringLiteral("mnuFileExit"));
    need(!m_startup->mainWindow()->isVisible() && !gDB.IsOpen(),
         QStringLiteral("the program did not end"));
    need(!GetPrefStr(QStringLiteral("db")).isEmpty(),
         QStringLiteral("the data folder was not remembered"));
}

void Tour::importRows(const QStringList &rows)
{
    QFile file(m_temporary.filePath(QStringLiteral("import.csv")));
    need(file.open(QIODevice::WriteOnly), QStringLiteral("the import file cannot be written"));
    file.write(rows.join(QLatin1String("\r\n")).toLatin1() + "\r\n");
    file.close();
    secondStation(
        {QStringLiteral("import"), m_folder, QStringLiteral("customers"), file.fileName()});
}

// As another process reads it from the same files.
QString Tour::storedField(qint32 rowid, const QString &field, const QString &table)
{
    const QString rows = secondStation({QStringLiteral("dump"), m_folder, table});
    for (const QString &row : rows.split(u'\n')) {
        const QJsonObject record = QJsonDocument::fromJson(row.toUtf8()).object();
        if (record.value(QLatin1String("rowid")).toInt() == rowid)
            return record.value(field).toString().trimmed();
    }
    return {};
}
