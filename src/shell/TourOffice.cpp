// The steps of the tour that look after the database: lookup lists, import, users, purge,
// maintenance, and the way to help.
#include "admin/frmPurgeIssues.h"
#include "common/base/AppInfo.h"
#include "common/base/clsSystem.h"
#include "common/ui/Controls.h"
#include "common/ui/ListView.h"
#include "db/clsDB.h"
#include "db/LookupTypes.h"
#include "shell/TourHands.h"

#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QDialogButtonBox>
#include <QDir>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>

namespace
{

using hands::typeInto;

const QString newCategory = QStringLiteral("Orchards & Farms");
const QString colleague = QStringLiteral("maria");
constexpr qint32 closedStatus = 401; // as new databases have it

} // namespace

void Tour::extendList()
{
    m_visitor->expect(QStringLiteral("frmEditCategories"), [this](QWidget *editor) {
        control<QPushButton>(editor, "cmdNew")->click();
        auto *entries = control<ListView>(editor, "lv");
        auto *label = entries->findChild<QLineEdit *>();
        need(label != nullptr, QStringLiteral("the new entry is not being named"));
        typeInto(label, newCategory);
        shoot(QStringLiteral("list-new-entry"));
        entries->finishEditing();
        control<QPushButton>(editor, "cmdRefresh")->click();
        shoot(QStringLiteral("list"));
        control<QPushButton>(editor, "cmdClose")->click();
    });
    pressAndAnswer(QStringLiteral("CATCUST"));
    need(gDB.CategoryExists(newCategory, lookup_type::CustomerCategories) > 0,
         QStringLiteral("the new entry is not stored"));
}

void Tour::importSpreadsheet()
{
    const QString file =
        QDir(app::programFolder()).filePath(QStringLiteral("Sample Customer Import.csv"));
    const qint32 before = gDB.GetRecCount(gDB.CustomerTable(), QStringLiteral("rowid"));
    m_visitor->expect(QStringLiteral("frmDataImport"), [this, file](QWidget *wizard) {
        auto *next = control<QPushButton>(wizard, "cmdNext");
        shoot(QStringLiteral("import-target"));
        next->click();
        typeInto(control<QLineEdit>(wizard, "txtFilename"), QDir::toNativeSeparators(file));
        shoot(QStringLiteral("import-file"));
        next->click();
        shoot(QStringLiteral("import-rows"));
        m_visitor->expect(QStringLiteral("frmImportPreview"), [this](QWidget *rows) {
            shoot(QStringLiteral("import-larger"));
            control<QPushButton>(rows, "cmdCancel")->click();
        });
        control<QPushButton>(wizard, "cmdLargerView")->click();
        m_visitor->expect(QStringLiteral("QMessageBox"), [this](QWidget *told) {
            shoot(QStringLiteral("import-done"));
            static_cast<QDialog *>(told)->accept();
        });
        next->click();
        control<QPushButton>(wizard, "CancelButton")->click();
    });
    pressAndAnswer(QStringLiteral("ADIMPWIZ"));
    need(gDB.GetRecCount(gDB.CustomerTable(), QStringLiteral("rowid")) == before + 4,
         QStringLiteral("the rows of the sample file are not stored"));
}

void Tour::addUser()
{
    m_visitor->expect(QStringLiteral("frmUsers"), [this](QWidget *users) {
        control<QPushButton>(users, "cmdAdd")->click();
        shoot(QStringLiteral("users"));
        control<QPushButton>(users, "CancelButton")->click();
    });
    m_visitor->expect(QStringLiteral("frmUser"), [this](QWidget *user) {
        typeInto(control<QLineEdit>(user, "txtLogin"), colleague);
        typeInto(control<QLineEdit>(user, "txtFname"), QStringLiteral("Maria"));
        typeInto(control<QLineEdit>(user, "txtLname"), QStringLiteral("Lindqvist"));
        control<QRadioButton>(user, "UserType_1")->click();
        control<QListWidget>(user, "lstPermissions")->item(5)->setCheckState(Qt::Checked);
        shoot(QStringLiteral("user-rights"));
        control<QPushButton>(user, "OKButton")->click();
    });
    pressAndAnswer(QStringLiteral("ADUSERMAN"));
    need(gDB.GetUserPassword(colleague) == colleague,
         QStringLiteral("the new user's first password is not the login name"));
}

// The next message box.
void Tour::answerBox(int button, const char *picture)
{
    m_visitor->expect(QStringLiteral("QMessageBox"), [this, button, picture](QWidget *box) {
        shoot(QLatin1String(picture));
        box->findChild<QDialogButtonBox *>()
            ->button(static_cast<QDialogButtonBox::StandardButton>(button))
            ->click();
    });
}

// Three closed issues of last year, made for this: the others are still needed.
void Tour::purgeIssues()
{
    const qint32 before = gDB.GetRecCount(gDB.IssuesTable(), QStringLiteral("rowid"));
    const schema::TableInfo &issues = schema::table(schema::Table::Issues);
    for (const char *what : {"Paper jams in the old copier", "Move to the new office",
                             "Training for two colleagues"}) {
        RecColl issue(gDB.IssuesTable(), issues.dataFile(), -1, QStringLiteral("_issue"));
        for (const schema::RecordField &field :
             schema::recordType(QStringLiteral("_issue"))->writes)
            issue.add(QLatin1String(field.name), QString());
        issue.setExisting(QStringLiteral("custid"), m_customer);
        issue.setExisting(QStringLiteral("status"), closedStatus);
        issue.setExisting(QStringLiteral("shortdesc"), QLatin1String(what));
        issue.setExisting(QStringLiteral("submitdt"), QStringLiteral("20010315"));
        need(gDB.SaveRecord(issue), QStringLiteral("an old issue is not stored"));
    }
    press(QStringLiteral("ADIPURGE"));
    auto *wizard = newestForm<frmPurgeIssues>();
    auto *next = control<QPushButton>(wizard, "cmdNext");
    shoot(QStringLiteral("purge-backup"));
    next->click();
    typeInto(control<QLineEdit>(wizard, "txtDateSubmit"),
             clsSystem::DBDateToDislayDate(QStringLiteral("20011231")));
    cboSelectAtID(control<QComboBox>(wizard, "cboStatus"), closedStatus);
    shoot(QStringLiteral("purge-criteria"));
    next->click();
    shoot(QStringLiteral("purge-preview"));
    answerBox(QDialogButtonBox::Yes, "purge-question");
    answerBox(QDialogButtonBox::Ok, "purge-done");
    next->click();
    control<QPushButton>(wizard, "CancelButton")->click();
    need(gDB.GetRecCount(gDB.IssuesTable(), QStringLiteral("rowid")) == before,
         QStringLiteral("the purge did not delete the old issues alone"));
}

void Tour::rebuildIndex()
{
    m_visitor->expect(QStringLiteral("frmDBMaint"), [this](QWidget *maintenance) {
        control<QListWidget>(maintenance, "lstDataFiles")->setCurrentRow(0);
        shoot(QStringLiteral("maintenance"));
        answerBox(QDialogButtonBox::Ok, "maintenance-check");
        control<QPushButton>(maintenance, "CheckButton")->click();
        answerBox(QDialogButtonBox::Yes, "maintenance-question");
        answerBox(QDialogButtonBox::Ok, "maintenance-done");
        control<QPushButton>(maintenance, "IndexButton")->click();
        control<QPushButton>(maintenance, "CloseButton")->click();
    });
    pressAndAnswer(QStringLiteral("menuHelpDatabaseMaintenance"));
}

void Tour::readHelp()
{
    frmMain *main = m_startup->mainWindow();
    main->HelpCenter();
    shoot(QStringLiteral("help-center"));
    UnloadAll(QStringLiteral("MAINFORM"));
    press(QStringLiteral("mnuHelpTip"));
    shoot(QStringLiteral("tip"));
    UnloadAll(QStringLiteral("MAINFORM"));
    press(QStringLiteral("mnuHelpTutorial"));
    for (QWidget *window : QApplication::topLevelWidgets()) {
        if (!window->isVisible() || window->objectName() != QLatin1String("helpWindow"))
            continue;
        window->resize(main->size());
        settle();
        need(!m_camera.shoot(window, QStringLiteral("manual")).isEmpty(),
             QStringLiteral("a picture cannot be written"));
        window->close();
        return;
    }
    throw TourProblem(QStringLiteral("the manual did not open"));
}
