// Which commands there are, and where they stand: a line for each menu entry and a line for each
// button or drop-down item of the toolbar.
#include "shell/frmMain.h"

#include "common/base/Preferences.h"
#include "common/ui/Icons.h"
#include "db/clsCustomLabels.h"
#include "db/clsDB.h"
#include "ui_frmMain.h"

#include <QMenu>
#include <QToolButton>

#include <algorithm>

// Without a command it is a menu; without a text, a separator; without a name, a caption line.
struct frmMain::MenuLine {
    const char *menu; // that it stands in; null: the menu bar
    const char *name = nullptr;
    const char *text = nullptr;
    void (frmMain::*run)() = nullptr;
    const char *icon = nullptr;
    const char *keys = nullptr;
};

// A button runs the menu entry of that name. When that is a menu, it only opens its items, which
// are the lines behind it.
struct frmMain::ToolLine {
    const char *button; // its key
    const char *item;   // the key of its drop-down item; null: the button itself
    const char *text;
    const char *entry;
};

const std::vector<frmMain::MenuLine> &frmMain::menuLines()
{
    static const std::vector<MenuLine> lines{
        {nullptr, "mnuFile", QT_TR_NOOP("&File")},
        {"mnuFile", "mnuFileNew", QT_TR_NOOP("&New Database..."), &frmMain::fileNew,
         "database-new"},
        {"mnuFile", "mnuFileOpen", QT_TR_NOOP("&Open Database..."), &frmMain::fileOpen,
         "database-open", "Ctrl+O"},
        {"mnuFile", "mnuFileRecent", QT_TR_NOOP("&Recent Databases"), nullptr, "database-open"},
        {"mnuFile", "mnuFileClose", QT_TR_NOOP("Close Database"), &frmMain::fileClose,
         "database-close"},
        {"mnuFile"},
        {"mnuFile", "mnuDisplayDataFolder", QT_TR_NOOP("Display Data Folder"),
         &frmMain::displayDataFolder, "folder-open"},
        {"mnuFile", "mnuFileChangePWDBar"},
        {"mnuFile", "mnuFileChangePWD", QT_TR_NOOP("&Change Password..."), &frmMain::ChangePassword,
         "password"},
        {"mnuFile"},
        {"mnuFile", "mnuFileExit", QT_TR_NOOP("E&xit"), &frmMain::fileExit, "exit", "Ctrl+Q"},

        {nullptr, "mnuView", QT_TR_NOOP("&View")},
        {"mnuView", "mnuViewLookupCustomer", QT_TR_NOOP("&Lookup Customer..."),
         &frmMain::LookupCustomer, "lookup-customer", "Ctrl+L"},
        {"mnuView", "mnuViewNewCustomer", QT_TR_NOOP("&New Customer"), &frmMain::NewCustomer,
         "new-customer", "Ctrl+N"},
        {"mnuView", "mnuViewSearchIssues", QT_TR_NOOP("Search &Issues..."), &frmMain::SearchIssues,
         "search-issues", "Ctrl+Shift+I"},
        {"mnuView", "mnuViewLookupByIssueNumber", QT_TR_NOOP("Lookup by Issue ID..."),
         &frmMain::LookupByIssueNumber, "issues", "Ctrl+I"},
        {"mnuView", "mnuViewMyIssues", QT_TR_NOOP("&My Issues"), &frmMain::MyIssues, "my-issues",
         "Ctrl+M"},
        {"mnuView", "mnuViewReports", QT_TR_NOOP("&Reports"), &frmMain::Reports, "reports"},
        {"mnuView", nullptr, QT_TR_NOOP("Administration")},
        {"mnuView", "mnuViewListMgmt", QT_TR_NOOP("List Management"), nullptr, "lists"},
        {"mnuViewListMgmt", "mnuViewLMCustCat", QT_TR_NOOP("Customer Categories..."),
         &frmMain::EditCustomerCategory, "category"},
        {"mnuViewListMgmt", "mnuViewLMPS", QT_TR_NOOP("Products && Services..."),
         &frmMain::EditProductServiceCategory, "product"},
        {"mnuViewListMgmt", "mnuViewLMPSContractTypes", QT_TR_NOOP("Contract Types..."),
         &frmMain::EditContractTypesCategory, "contract"},
        {"mnuViewListMgmt", "mnuViewLMPSContractDurations", QT_TR_NOOP("Contract Durations..."),
         &frmMain::EditContractDurationsCategory, "duration"},
        {"mnuViewListMgmt", "mnuViewLMStatesProvinces", QT_TR_NOOP("States/Provinces..."),
         &frmMain::EditStateCategory, "place"},
        {"mnuViewListMgmt", "mnuViewLMCountries", QT_TR_NOOP("Countries..."),
         &frmMain::EditCountryCategory, "country"},
        {"mnuViewListMgmt", "mnuViewLMIssueStatuses", QT_TR_NOOP("Issue Statuses..."),
         &frmMain::EditIssueStatusCategory, "status"},
        {"mnuViewListMgmt", "mnuViewLMIssueActionStatuses", QT_TR_NOOP("Issue Actions..."),
         &frmMain::EditIssueActionsCategory, "action"},
        {"mnuViewListMgmt", "mnuViewLMIssuePriorities", QT_TR_NOOP("Issue Priorities..."),
         &frmMain::EditIssuePriorityCategory, "priority"},
        {"mnuViewListMgmt", "mnuViewLMIssueCategory", QT_TR_NOOP("Issue Categories..."),
         &frmMain::EditIssueCategory, "issues"},
        {"mnuView", "mnuViewDatabaseAdmin", QT_TR_NOOP("Database Admin"), nullptr, "admin"},
        {"mnuViewDatabaseAdmin", "mnuViewDatabaseAdminUserMgmt", QT_TR_NOOP("User Management..."),
         &frmMain::UserManagement, "user"},
        {"mnuViewDatabaseAdmin", "mnuViewDatabaseAdminIssueTemplates",
         QT_TR_NOOP("Issue Templates..."), &frmMain::ManageIssueTemplates, "copy"},
        {"mnuViewDatabaseAdmin", "mnuViewDatabaseAdminImportData",
         QT_TR_NOOP("Import Data Wizard..."), &frmMain::ImportData, "import"},
        {"mnuViewDatabaseAdmin", "mnuViewDatabaseAdminCustomizations",
         QT_TR_NOOP("Customizations..."), &frmMain::Customizations, "label"},
        {"mnuViewDatabaseAdmin", "mnuViewOptions", QT_TR_NOOP("Email Options..."),
         &frmMain::EmailHandlerDlg, "email"},
        {"mnuViewDatabaseAdmin", "mnuViewDatabaseAdminPurgeOldIssues",
         QT_TR_NOOP("Purge Old Issues Wizard..."), &frmMain::PurgeOldIssues, "delete"},
        {"mnuViewDatabaseAdmin", "mnuViewDatabaseAdminStatistics", QT_TR_NOOP("Statistics"),
         &frmMain::showStatistics, "statistics"},

        {nullptr, "mnuWindow", QT_TR_NOOP("&Window")},
        {"mnuWindow", "mnuWindowTH", QT_TR_NOOP("Tile &Horizontally"), &frmMain::tileHorizontally,
         "window-tile-horizontal"},
        {"mnuWindow", "mnuWindowTV", QT_TR_NOOP("Tile &Vertically"), &frmMain::tileVertically,
         "window-tile-vertical"},
        {"mnuWindow", "mnuWindowCascade", QT_TR_NOOP("&Cascade"), &frmMain::cascade,
         "window-cascade"},
        {"mnuWindow", "mnuWindowArrangeIcons", QT_TR_NOOP("&Arrange Icons"),
         &frmMain::arrangeMinimised, "window-arrange"},
        {"mnuWindow", "mnuWindowCloseAll", QT_TR_NOOP("&Close All"), &frmMain::closeAllWindows,
         "window-close"},

        {nullptr, "mnuHelp", QT_TR_NOOP("&Help")},
        {"mnuHelp", "menuHelpDatabaseMaintenance", QT_TR_NOOP("Database &Maintenance..."),
         &frmMain::databaseMaintenance, "database"},
        {"mnuHelp", "mnuHelpBulkIssues", QT_TR_NOOP("Add Bulk Issues"), &frmMain::addBulkIssues,
         "add"},
        {"mnuHelp", "mnuHelpFAQs", QT_TR_NOOP("FAQs"), &frmMain::helpFAQs, "faq"},
        {"mnuHelp", "mnuHelpQuickTour", QT_TR_NOOP("Product Overview"),
         &frmMain::helpProductOverview, "overview"},
        {"mnuHelp", "mnuHelpSpecSheet", QT_TR_NOOP("Specifications Sheet (pdf)"),
         &frmMain::helpSpecSheet, "properties"},
        {"mnuHelp", "mnuHelpUserManual", QT_TR_NOOP("&User Manual"), &frmMain::helpUserManual,
         "help"},
        {"mnuHelp", "mnuHelpTutorial", QT_TR_NOOP("&Tutorial"), &frmMain::helpTutorial, "tutorial"},
        {"mnuHelp", "mnuHelpTip", QT_TR_NOOP("Tip of the day"), &frmMain::TipOfTheDay, "tip"},
        {"mnuHelp", "mnuHelpSupport", QT_TR_NOOP("Support"), &frmMain::helpSupport, "support"},
        {"mnuHelp", "mnuHelpBackup", QT_TR_NOOP("How to backup your data?"), &frmMain::helpBackup,
         "backup"},
        {"mnuHelp", "mnuHelpAbout", QT_TR_NOOP("&About"), &frmMain::helpAbout, "about"},
    };
    return lines;
}

const std::vector<frmMain::ToolLine> &frmMain::toolLines()
{
    static const std::vector<ToolLine> lines{
        {"NEWCUST", nullptr, QT_TR_NOOP("New Customer"), "mnuViewNewCustomer"},
        {"LOOKUPCUST", nullptr, QT_TR_NOOP("Lookup Customer"), "mnuViewLookupCustomer"},
        {"SEARCHISSUES", nullptr, QT_TR_NOOP("Search Issues"), "mnuViewSearchIssues"},
        {"SEARCHISSUES", "SEARCHISSUES", QT_TR_NOOP("Search Issues"), "mnuViewSearchIssues"},
        {"SEARCHISSUES", "SEARCHISSUESBYID", QT_TR_NOOP("Lookup by Issue ID"),
         "mnuViewLookupByIssueNumber"},
        {"MYISSUES", nullptr, QT_TR_NOOP("My Issues"), "mnuViewMyIssues"},
        {"REPORTS", nullptr, QT_TR_NOOP("Reports"), "mnuViewReports"},
        {"LISTMGMT", nullptr, QT_TR_NOOP("List Management"), "mnuViewListMgmt"},
        {"LISTMGMT", "CATCUST", QT_TR_NOOP("Customer Categories"), "mnuViewLMCustCat"},
        {"LISTMGMT", "CATPS", QT_TR_NOOP("Products && Services"), "mnuViewLMPS"},
        {"LISTMGMT", "CATCONT", QT_TR_NOOP("Contract Types"), "mnuViewLMPSContractTypes"},
        {"LISTMGMT", "CATCONTDUR", QT_TR_NOOP("Contract Durations"),
         "mnuViewLMPSContractDurations"},
        {"LISTMGMT", "CATSTATES", QT_TR_NOOP("States && Provinces"), "mnuViewLMStatesProvinces"},
        {"LISTMGMT", "CATCOUNTRIES", QT_TR_NOOP("Countries"), "mnuViewLMCountries"},
        {"LISTMGMT", "CATISTAT", QT_TR_NOOP("Issue Statuses"), "mnuViewLMIssueStatuses"},
        {"LISTMGMT", "CATIACT", QT_TR_NOOP("Issue Actions"), "mnuViewLMIssueActionStatuses"},
        {"LISTMGMT", "CATIPRIOR", QT_TR_NOOP("Issue Priorities"), "mnuViewLMIssuePriorities"},
        {"LISTMGMT", "CATICAT", QT_TR_NOOP("Issue Categories"), "mnuViewLMIssueCategory"},
        {"ADMIN", nullptr, QT_TR_NOOP("Administration"), "mnuViewDatabaseAdmin"},
        {"ADMIN", "ADUSERMAN", QT_TR_NOOP("User Management"), "mnuViewDatabaseAdminUserMgmt"},
        {"ADMIN", "ADITEMP", QT_TR_NOOP("Issue Templates"), "mnuViewDatabaseAdminIssueTemplates"},
        {"ADMIN", "ADIMPWIZ", QT_TR_NOOP("Import Data Wizard"), "mnuViewDatabaseAdminImportData"},
        {"ADMIN", "ADCUSTOM", QT_TR_NOOP("Customizations"), "mnuViewDatabaseAdminCustomizations"},
        {"ADMIN", "ADEMAILOPT", QT_TR_NOOP("Email Options"), "mnuViewOptions"},
        {"ADMIN", "ADIPURGE", QT_TR_NOOP("Purge Old Issues Wizard"),
         "mnuViewDatabaseAdminPurgeOldIssues"},
        {"ADMIN", "ADSTAT", QT_TR_NOOP("Statistics"), "mnuViewDatabaseAdminStatistics"},
    };
    return lines;
}

QAction *frmMain::command(const QString &name) const
{
    return findChild<QAction *>(name);
}

QMenu *frmMain::menuNamed(const QString &name) const
{
    return findChild<QMenu *>(name);
}

void frmMain::InitMenus()
{
    for (const MenuLine &line : menuLines())
        addMenuLine(line);
    // For trials of large databases, and no command for people at work.
    command(QStringLiteral("mnuHelpBulkIssues"))
        ->setVisible(GetPrefStr(QStringLiteral("VolumeTrials")) == u"Y");
    command(QStringLiteral("mnuFileExit"))->setMenuRole(QAction::QuitRole);
    command(QStringLiteral("mnuHelpAbout"))->setMenuRole(QAction::AboutRole);
    connect(menuNamed(QStringLiteral("mnuWindow")), &QMenu::aboutToShow, this,
            &frmMain::fillWindowMenu);
    connect(menuNamed(QStringLiteral("mnuFileRecent")), &QMenu::aboutToShow, this,
            &frmMain::fillRecentFolders);
}

void frmMain::addMenuLine(const MenuLine &line)
{
    const QString name = QString::fromLatin1(line.name);
    const QString text = line.text == nullptr ? QString() : tr(line.text);
    const QIcon picture = line.icon == nullptr ? QIcon() : icon(QString::fromLatin1(line.icon));
    QMenu *parent = line.menu == nullptr ? nullptr : menuNamed(QString::fromLatin1(line.menu));
    if (parent == nullptr) {
        ui->menuBar->addMenu(text)->setObjectName(name);
    } else if (line.text == nullptr) {
        parent->addSeparator()->setObjectName(name);
    } else if (line.name == nullptr) {
        parent->addSection(text);
    } else if (line.run == nullptr) {
        parent->addMenu(picture, text)->setObjectName(name);
    } else {
        auto *entry = new QAction(picture, text, this);
        entry->setObjectName(name);
        entry->setMenuRole(QAction::NoRole);
        entry->setShortcut(QKeySequence(QString::fromLatin1(line.keys)));
        connect(entry, &QAction::triggered, this, line.run);
        parent->addAction(entry);
    }
}

void frmMain::InitToolBar()
{
    for (const ToolLine &line : toolLines())
        addToolLine(line);
    // The toolbar follows the database; a person may not take it away.
    ui->TB->toggleViewAction()->setVisible(false);
    setContextMenuPolicy(Qt::NoContextMenu);
}

void frmMain::addToolLine(const ToolLine &line)
{
    const QString target = QString::fromLatin1(line.entry);
    const QMenu *menu = menuNamed(target);
    QAction *entry = menu != nullptr ? menu->menuAction() : command(target);
    auto *tool = new QAction(entry->icon(), tr(line.text), this);
    tool->setObjectName(QString::fromLatin1(line.item == nullptr ? line.button : line.item));
    if (!entry->shortcut().isEmpty())
        tool->setToolTip(tool->text() + u" (" +
                         entry->shortcut().toString(QKeySequence::NativeText) + u')');
    if (menu == nullptr)
        connect(tool, &QAction::triggered, entry, &QAction::trigger);
    if (line.item == nullptr) {
        ui->TB->addAction(tool);
        tool->setData(menu == nullptr); // whether it has a command of its own
        return;
    }
    QAction *button = command(QString::fromLatin1(line.button));
    if (button->menu() == nullptr) {
        button->setMenu(new QMenu(this));
        qobject_cast<QToolButton *>(ui->TB->widgetForAction(button))
            ->setPopupMode(button->data().toBool() ? QToolButton::MenuButtonPopup
                                                   : QToolButton::InstantPopup);
    }
    button->menu()->addAction(tool);
}

const frmMain::ToolLine *frmMain::toolLine(const QString &key)
{
    const auto found =
        std::find_if(toolLines().begin(), toolLines().end(), [&key](const ToolLine &line) {
            return key == QLatin1String(line.item == nullptr ? line.button : line.item);
        });
    return found == toolLines().end() ? nullptr : &*found;
}

void frmMain::ToolbarCommand(const QString &key)
{
    const QString name = key == u"CATSTATE" ? QStringLiteral("CATSTATES") : key;
    if (toolLine(name) != nullptr)
        command(name)->trigger();
}

void frmMain::SetCustomMenuLabels()
{
    const clsDB::TellOnce tellOnce(gDB);
    for (const auto &[key, name] : CustomLabels.MenuLabels()) {
        // A name is plain text, but in a menu an "&" would mark an access key.
        const QString caption = QString(name).replace(u'&', QLatin1String("&&"));
        command(key)->setText(caption);
        command(QString::fromLatin1(toolLine(key)->entry))->setText(caption + u"...");
    }
}
