// What holds for every window of the program: a name for the screen reader on all that can be
// worked, no key with two meanings, and a topic of the manual.
#include "MainWindowFixture.h"

#include "admin/frmChangePWD.h"
#include "admin/frmDataImport.h"
#include "admin/frmDBMaint.h"
#include "admin/frmEditCategories.h"
#include "admin/frmImportPreview.h"
#include "admin/frmPreferences.h"
#include "admin/frmPurgeIssues.h"
#include "admin/frmUser.h"
#include "admin/frmUsers.h"
#include "admin/LookupLists.h"
#include "common/form/frmUnderEditMsg.h"
#include "common/ui/frmCalendar.h"
#include "common/ui/frmFind.h"
#include "common/ui/frmMessage.h"
#include "common/ui/frmOptions.h"
#include "common/ui/frmPreview.h"
#include "common/ui/frmProgress.h"
#include "common/ui/frmRichEdit.h"
#include "common/ui/frmRptOption.h"
#include "common/ui/Help.h"
#include "common/ui/HelpWindow.h"
#include "forms/frmCustomer.h"
#include "forms/frmEditIssueTemplates.h"
#include "forms/frmIssue.h"
#include "forms/frmIssueAction.h"
#include "forms/frmIssueTemplate.h"
#include "forms/frmPS.h"
#include "forms/frmSelectIssueTemplate.h"
#include "reports/frmProductReportDisplay.h"
#include "reports/frmPSFilterDlg.h"
#include "reports/frmReportDef.h"
#include "reports/frmReportDisplay.h"
#include "reports/frmReportList.h"
#include "reports/frmRptDisplayColumns.h"
#include "reports/frmRptFilterColumns.h"
#include "search/frmCustomerList.h"
#include "search/frmIssueList.h"
#include "search/frmLookupCustomer.h"
#include "search/frmMyIssues.h"
#include "search/frmSearchIssues.h"
#include "shell/frmLogin.h"
#include "shell/frmSplash.h"
#include "shell/frmTip.h"
#include "shell/frmWelcome.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAccessible>
#include <QAction>
#include <QComboBox>
#include <QDialog>
#include <QKeySequence>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QRegularExpression>
#include <QShortcut>
#include <QTabBar>
#include <QTextEdit>

#include <algorithm>

namespace
{

using Maker = std::function<std::unique_ptr<QWidget>()>;

template <class Form>
Maker plain()
{
    return [] { return std::make_unique<Form>(); };
}

// Parts that the toolkit puts into its controls answer for themselves.
bool isInside(const QWidget *part)
{
    if (part->objectName().startsWith(QLatin1String("qt_")) || part->inherits("QComboBoxListView"))
        return true;
    for (const QWidget *outer = part->parentWidget(); outer != nullptr && !part->isWindow();
         outer = outer->parentWidget()) {
        for (const char *control :
             {"QComboBox", "QLineEdit", "QCalendarWidget", "QTabBar", "QAbstractItemView",
              "QMdiSubWindow", "QAbstractSpinBox", "QDockWidget"})
            if (outer->inherits(control))
                return true;
        if (outer->isWindow())
            break;
    }
    return false;
}

bool wantsName(const QWidget *part)
{
    if (const auto *button = qobject_cast<const QAbstractButton *>(part))
        return button->text().isEmpty();
    for (const char *control :
         {"QComboBox", "QLineEdit", "QPlainTextEdit", "QTextEdit", "QAbstractItemView"})
        if (part->inherits(control))
            return true;
    return false;
}

QStringList namelessParts(const QWidget *window)
{
    QStringList nameless;
    for (QWidget *part : window->findChildren<QWidget *>()) {
        if (!wantsName(part) || isInside(part))
            continue;
        const QAccessibleInterface *told = QAccessible::queryAccessibleInterface(part);
        if (told == nullptr || told->text(QAccessible::Name).trimmed().isEmpty())
            nameless.append(QLatin1String(part->metaObject()->className()) + u' ' +
                            part->objectName());
    }
    return nameless;
}

QStringList keysWithTwoMeanings(const QWidget *window)
{
    QStringList keys;
    for (const QAction *action : window->findChildren<QAction *>()) {
        for (const QKeySequence &sequence : action->shortcuts())
            keys.append(sequence.toString());
    }
    for (const QShortcut *shortcut : window->findChildren<QShortcut *>())
        keys.append(shortcut->key().toString());
    keys.removeAll(QString());
    QStringList twice;
    for (const QString &key : std::as_const(keys))
        if (keys.count(key) > 1 && !twice.contains(key))
            twice.append(key);
    return twice;
}

// The letter behind a single "&"; none without one.
QChar accessLetter(const QString &caption)
{
    static const QRegularExpression mark(QStringLiteral("(?:^|[^&])(?:&&)*&([^&])"));
    const auto match = mark.match(caption);
    return match.hasMatch() ? match.captured(1).at(0).toUpper() : QChar();
}

// Captions in a window inside the main window whose letter a menu has already.
QStringList captionsWithLettersOfMenus(const frmMain *main, const QWidget *window)
{
    QString letters;
    for (const QAction *menu : main->menuBar()->actions())
        letters += accessLetter(menu->text());
    QStringList captions;
    for (const QAbstractButton *button : window->findChildren<QAbstractButton *>())
        captions.append(button->text());
    for (const QLabel *label : window->findChildren<QLabel *>()) {
        if (label->buddy() != nullptr)
            captions.append(label->text());
    }
    for (const QTabBar *bar : window->findChildren<QTabBar *>()) {
        for (int tab = 0; tab < bar->count(); ++tab)
            captions.append(bar->tabText(tab));
    }
    captions.erase(std::remove_if(captions.begin(), captions.end(),
                                  [&letters](const QString &caption) {
                                      const QChar letter = accessLetter(caption);
                                      return letter.isNull() || !letters.contains(letter);
                                  }),
                   captions.end());
    return captions;
}

} // namespace

TEST_F(MainWindow, EveryWindowCanBeReadAloudAndHasKeysOfOneMeaning)
{
    openWithDatabase();
    const std::vector<std::pair<const char *, Maker>> windows{
        {"frmCustomer",
         [] {
             auto form = std::make_unique<frmCustomer>();
             form->Init(-1, true);
             return form;
         }},
        {"frmIssue",
         [] {
             auto form = std::make_unique<frmIssue>();
             form->Init(-1, true);
             return form;
         }},
        {"frmIssueTemplate", plain<frmIssueTemplate>()},
        {"frmIssueAction",
         [] {
             auto form = std::make_unique<frmIssueAction>();
             form->Init(-1, 1, frmIssueAction::Add);
             return form;
         }},
        {"frmEditIssueTemplates", plain<frmEditIssueTemplates>()},
        {"frmSelectIssueTemplate", plain<frmSelectIssueTemplate>()},
        {"frmPS",
         [] {
             auto form = std::make_unique<frmPS>();
             form->Init(-1, true);
             return form;
         }},
        {"frmReportDef",
         [] {
             auto form = std::make_unique<frmReportDef>();
             form->Init(-1, true);
             return form;
         }},
        {"frmReportList", plain<frmReportList>()},
        {"frmRptDisplayColumns", plain<frmRptDisplayColumns>()},
        {"frmRptFilterColumns", plain<frmRptFilterColumns>()},
        {"frmUser",
         [] {
             auto form = std::make_unique<frmUser>();
             form->Init(-1, true);
             return form;
         }},
        {"frmChangePWD",
         [] {
             auto form = std::make_unique<frmChangePWD>();
             form->NewMode(QStringLiteral("New"));
             return form;
         }},
        {"frmFind", [this] { return std::make_unique<frmFind>(main.get()); }},
        {"frmPreview", [] { return std::make_unique<frmPreview>(printing::Document{}); }},
        {"frmWelcome",
         [] {
             return std::make_unique<frmWelcome>(QList<WelcomeLink>{
                 {QStringLiteral("help"), QStringLiteral("Help"), false, [] {}}});
         }},
        {"HelpWindow", [] { return std::make_unique<HelpWindow>(HelpFilename()); }},
        {"frmCalendar", plain<frmCalendar>()},
        {"frmCustomerList", plain<frmCustomerList>()},
        {"frmEditCategories",
         [] {
             auto form = std::make_unique<frmEditCategories>();
             form->Init(*lookupList(3));
             return form;
         }},
        {"frmDataImport", plain<frmDataImport>()},
        {"frmImportPreview", plain<frmImportPreview>()},
        {"frmDBMaint", plain<frmDBMaint>()},
        {"frmLogin", plain<frmLogin>()},
        {"frmIssueList", plain<frmIssueList>()},
        {"frmLookupCustomer", plain<frmLookupCustomer>()},
        {"frmMyIssues", plain<frmMyIssues>()},
        {"frmSearchIssues", plain<frmSearchIssues>()},
        {"frmMessage", plain<frmMessage>()},
        {"frmOptions", plain<frmOptions>()},
        {"frmPreferences", plain<frmPreferences>()},
        {"frmProgress", plain<frmProgress>()},
        {"frmProductReportDisplay", plain<frmProductReportDisplay>()},
        {"frmPurgeIssues", plain<frmPurgeIssues>()},
        {"frmPSFilterDlg", plain<frmPSFilterDlg>()},
        {"frmReportDisplay", plain<frmReportDisplay>()},
        {"frmRichEdit", plain<frmRichEdit>()},
        {"frmRptOption", plain<frmRptOption>()},
        {"frmSplash", plain<frmSplash>()},
        {"frmTip", plain<frmTip>()},
        {"frmUnderEditMsg", plain<frmUnderEditMsg>()},
        {"frmUsers", plain<frmUsers>()},
    };
    EXPECT_EQ(namelessParts(main.get()), QStringList()) << "frmMain";
    EXPECT_EQ(keysWithTwoMeanings(main.get()), QStringList()) << "frmMain";
    QStringList shared;
    for (const auto &[name, make] : windows) {
        const std::unique_ptr<QWidget> window = make();
        EXPECT_EQ(namelessParts(window.get()), QStringList()) << name;
        EXPECT_EQ(keysWithTwoMeanings(window.get()), QStringList()) << name;
        // a user has a window of its own, beside the main one
        if (qobject_cast<QDialog *>(window.get()) == nullptr && name != QLatin1String("frmUser"))
            shared += captionsWithLettersOfMenus(main.get(), window.get());
    }
    // Two captions that people know by these letters.
    EXPECT_EQ(shared, QStringList({"Attac&hments", "&View"}));
}
