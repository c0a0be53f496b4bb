// Every command of the menus and the toolbar, tried by people with different rights: what it
// opens, and that without its right it opens nothing.
#include "MainWindowFixture.h"

#include "common/ui/FormWindow.h"
#include "common/ui/HelpWindow.h"

#include <QApplication>
#include <QDialog>
#include <QMenu>
#include <QScopeGuard>
#include <QTimer>
#include <QToolBar>
#include <QToolButton>

namespace
{

enum Right { None = 0, Customers = 1, Lists = 6, Admin = 7 };
constexpr int Rights = 7;

struct Command {
    const char *entry; // of the menu
    const char *tool;  // of the toolbar; null: none there
    Right right;
    const char *opens; // how the title, text, tag or address begins; null: nothing
};

constexpr Command commands[] = {
    {"mnuDisplayDataFolder", nullptr, None, "/"},
    {"mnuFileChangePWD", nullptr, None, "Change Password"},
    {"mnuViewLookupCustomer", "LOOKUPCUST", None, "Lookup Customer"},
    {"mnuViewNewCustomer", "NEWCUST", Customers, "C-1"},
    {"mnuViewSearchIssues", "SEARCHISSUES", None, "Search Issues"},
    {"mnuViewLookupByIssueNumber", "SEARCHISSUESBYID", None, "Enter Issue ID"},
    {"mnuViewMyIssues", "MYISSUES", None, "MYISSUES"},
    {"mnuViewReports", "REPORTS", None, "REPORTS"},
    {"mnuViewLMCustCat", "CATCUST", Lists, "Edit Customer Categories"},
    {"mnuViewLMPS", "CATPS", Lists, "Edit Products/Services"},
    {"mnuViewLMPSContractTypes", "CATCONT", Lists, "Edit Contract Types"},
    {"mnuViewLMPSContractDurations", "CATCONTDUR", Lists, "Edit Contract Durations"},
    {"mnuViewLMStatesProvinces", "CATSTATES", Lists, "Edit States/Provinces"},
    {"mnuViewLMCountries", "CATCOUNTRIES", Lists, "Edit Countries"},
    {"mnuViewLMIssueStatuses", "CATISTAT", Lists, "Edit Issue Statuses"},
    {"mnuViewLMIssueActionStatuses", "CATIACT", Lists, "Edit Issue Actions"},
    {"mnuViewLMIssuePriorities", "CATIPRIOR", Lists, "Edit Issue Priorities"},
    {"mnuViewLMIssueCategory", "CATICAT", Lists, "Edit Issue Categories"},
    {"mnuViewDatabaseAdminUserMgmt", "ADUSERMAN", Admin, "Edit Users"},
    {"mnuViewDatabaseAdminIssueTemplates", "ADITEMP", Admin,
     "3/14/2004 @ 3:05:09 PM - Edit Issue Templates"},
    {"mnuViewDatabaseAdminImportData", "ADIMPWIZ", Admin, "Import Data Wizard"},
    {"mnuViewDatabaseAdminCustomizations", "ADCUSTOM", Admin, "Customizations"},
    {"mnuViewOptions", "ADEMAILOPT", None, "Email Options"},
    {"mnuViewDatabaseAdminPurgeOldIssues", "ADIPURGE", Admin, "PURGEISSUES"},
    {"mnuViewDatabaseAdminStatistics", "ADSTAT", Admin, "DATABASE STATISTICS"},
    {"mnuWindowTH", nullptr, None, nullptr},
    {"mnuWindowTV", nullptr, None, nullptr},
    {"mnuWindowCascade", nullptr, None, nullptr},
    {"mnuWindowArrangeIcons", nullptr, None, nullptr},
    {"mnuWindowCloseAll", nullptr, None, nullptr},
    {"menuHelpDatabaseMaintenance", nullptr, Admin, "Database Maintenance"},
    {"mnuHelpFAQs", nullptr, None, "https://"},
    {"mnuHelpQuickTour", nullptr, None, "Norvane Help"},
    {"mnuHelpSpecSheet", nullptr, None, "/"},
    {"mnuHelpUserManual", nullptr, None, "Norvane Help"},
    {"mnuHelpTutorial", nullptr, None, "Norvane Help"},
    {"mnuHelpTip", nullptr, None, "TIPOFDAY"},
    {"mnuHelpSupport", nullptr, None, "Support for Norvane"},
    {"mnuHelpBackup", nullptr, None, "BACKING UP"},
    {"mnuHelpAbout", nullptr, None, "About Norvane"},
};

// End the session or stand disabled while one is open: test_file_commands.cpp.
const QStringList sessionCommands{"mnuFileNew", "mnuFileOpen", "mnuFileClose", "mnuFileExit"};
// Adds a million issues: tests/db/test_bulk_issues.cpp.
constexpr char hiddenCommand[] = "mnuHelpBulkIssues";

// Somebody who looks at what comes up and sends it away again.
class Onlooker
{
public:
    explicit Onlooker(const FakeHost &machine) : m_machine(machine)
    {
        prompts::backend().message = [this](const prompts::Message &box) {
            m_seen += box.text;
            return m_leaving ? prompts::Answer::Yes : prompts::Answer::No;
        };
        prompts::backend().text = [this](const prompts::Message &box) { m_seen += box.text; };
        prompts::backend().input = [this](const QString &prompt, const QString &, const QString &,
                                          int) {
            m_seen += prompt;
            return std::optional<QString>();
        };
        QObject::connect(&m_timer, &QTimer::timeout, [this] { sendModalAway(); });
        m_timer.start(1);
    }
    ~Onlooker() { prompts::backend() = m_before; }
    Q_DISABLE_COPY_MOVE(Onlooker)

    // Everything that came up through the command.
    QStringList watch(QAction *command)
    {
        m_seen.clear();
        const qsizetype opened = m_machine.opened().size();
        command->trigger();
        m_seen += m_machine.opened().mid(opened);
        for (const FormWindow *form : openForms())
            m_seen += form->tagText();
        for (QWidget *window : QApplication::topLevelWidgets()) {
            if (qobject_cast<HelpWindow *>(window) == nullptr || !window->isVisible())
                continue;
            m_seen += window->windowTitle();
            window->close();
        }
        const QStringList seen = m_seen;
        m_leaving = true; // and discards what was begun
        UnloadAll("MAINFORM");
        m_leaving = false;
        return seen;
    }

private:
    void sendModalAway()
    {
        auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
        if (dialog == nullptr || !dialog->isVisible())
            return;
        m_seen += dialog->windowTitle();
        dialog->done(QDialog::Rejected);
    }

    const FakeHost &m_machine;
    const prompts::Backend m_before = prompts::backend();
    QTimer m_timer;
    QStringList m_seen;
    bool m_leaving = false;
};

// The actions that a person can choose, by name.
QStringList choices(const frmMain &main)
{
    QStringList names;
    for (const QAction *action : main.findChildren<QAction *>()) {
        const QString name = action->objectName();
        const bool ofMenu = name.startsWith("mnu") || name.startsWith("menu");
        const bool ofToolbar = !name.isEmpty() && name == name.toUpper();
        if ((ofMenu || ofToolbar) && action->menu() == nullptr && !action->isSeparator())
            names += name;
    }
    return names;
}

} // namespace

TEST_F(MainWindow, EveryCommandOpensItsWindowForThoseWithItsRight)
{
    openWithDatabase();
    const QString everyRight(Rights, u'1');
    QStringList people{"SYSOP"};
    QStringList permissions{everyRight};
    for (int right = 0; right <= Rights; ++right) { // user0 has none
        people += QStringLiteral("user%1").arg(right);
        permissions += QString(30, u'0');
        if (right > 0)
            permissions.last()[right - 1] = u'1';
        database->addUser(people.last(), permissions.last());
    }
    Onlooker onlooker(machine);
    for (int at = 0; at < people.size(); ++at) {
        database->loginAs(people[at], people[at]);
        main->SetUI();
        const auto tryOut = [&](const char *name, const Command &command) {
            const QStringList seen = onlooker.watch(find<QAction>(name));
            const bool may = command.right == None || permissions[at][command.right - 1] == u'1';
            const QString expected =
                may ? QString::fromLatin1(command.opens)
                    : QStringLiteral("Sorry, you are not permitted to perform this action.");
            EXPECT_EQ(seen.size(), expected.isEmpty() ? 0 : 1)
                << name << " by " << qPrintable(people[at] + u": " + seen.join(u'\n'));
            EXPECT_TRUE(seen.value(0).startsWith(expected))
                << name << " by " << qPrintable(people[at] + u": " + seen.value(0));
        };
        for (const Command &command : commands) {
            tryOut(command.entry, command);
            if (command.tool != nullptr)
                tryOut(command.tool, command);
        }
    }
}

TEST_F(MainWindow, EveryCommandIsInTheTableAboveAndHasAPicture)
{
    openWithDatabase();
    EXPECT_FALSE(find<QAction>(hiddenCommand)->isVisible());
    QStringList tried = sessionCommands + QStringList{hiddenCommand};
    for (const Command &command : commands)
        tried += {command.entry, command.tool};
    for (const QString &name : choices(*main)) {
        EXPECT_TRUE(tried.contains(name)) << "add it to the table: " << qPrintable(name);
        EXPECT_FALSE(find<QAction>(qPrintable(name))->icon().isNull()) << qPrintable(name);
    }
    auto *toolbar = find<QToolBar>("TB");
    for (QAction *button : toolbar->actions()) {
        const auto *shown = qobject_cast<QToolButton *>(toolbar->widgetForAction(button));
        EXPECT_FALSE(button->icon().isNull()) << qPrintable(button->text());
        if (button->menu() != nullptr && !button->data().toBool()) {
            EXPECT_EQ(shown->popupMode(), QToolButton::InstantPopup);
        }
    }
}

// Screens ask by key; an old spelling of one is still known.
TEST_F(MainWindow, ToolbarCommandsGoByTheirKeys)
{
    openWithDatabase();
    Onlooker onlooker(machine);
    QAction run;
    const auto opened = [&](const std::function<void()> &command) {
        const QMetaObject::Connection once = QObject::connect(&run, &QAction::triggered, command);
        const auto off = qScopeGuard([once] { QObject::disconnect(once); });
        return onlooker.watch(&run).join(u'\n').section(u' ', 0, 2);
    };
    EXPECT_EQ(opened([this] { main->ToolbarCommand("CATSTATE"); }), "Edit States/Provinces -");
    EXPECT_EQ(opened([this] { main->EditCustomFieldCategory(204); }), "Edit Quick Entry");
    EXPECT_EQ(opened([this] { main->ToolbarCommand("mnuFileExit"); }), "");
    EXPECT_TRUE(main->isVisible());
}
