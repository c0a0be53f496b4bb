// The steps of the tour that look after the database: lookup lists, import, users, and the way to
// help.
#include "common/base/AppInfo.h"
#include "common/ui/ListView.h"
#include "db/clsDB.h"
#include "db/LookupTypes.h"
#include "shell/TourHands.h"

#include <QApplication>
#include <QDialog>
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
