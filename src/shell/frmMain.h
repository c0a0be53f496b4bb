// The main window: menus, toolbar, status bar, the child windows, and the switchboard through
// which every other screen is opened.
//
// frmMain.cpp: its life and states. frmMainMenus.cpp: which commands there are and where they
// stand. frmMainFile.cpp: the File commands. frmMainCommands.cpp: customers. frmMainIssues.cpp:
// lists of issues. frmMainRecords.cpp: the records that belong to customers. frmMainReports.cpp:
// reports. frmMainHelp.cpp: Help. frmMainAdmin.cpp: users, passwords, import, purge, maintenance
// and statistics. frmMainLists.cpp: lookup lists.
// frmMainMail.cpp: mail. frmMainWindows.cpp: child windows and the Window menu.
// frmMainSession.cpp: the windows that the next start takes up again.
#pragma once

#include "common/ui/Switchboard.h"

#include <QMainWindow>
#include <QTimer>

#include <memory>
#include <vector>

class QLabel;
class QMdiSubWindow;
class QMenu;
class StatusPanel;
namespace Ui
{
class frmMain;
}

class frmMain : public QMainWindow, public Switchboard
{
    Q_OBJECT
public:
    // Installs itself as the switchboard and answers the database core (Screens.h) until it ends.
    explicit frmMain(QWidget *parent = nullptr);
    ~frmMain() override;

    // Menus, status bar and caption as the database is open or not, in this order.
    void SetUI();
    void SetMenus();
    void SetStatusBar();
    void SetWindowCaption();
    // The advice for a data folder; the open one when none is given.
    QString BackupMsg(const QString &dir = {}) const;

    void ShowCustomer(qint32 rowid, bool bEdit) override;
    void ShowPS(qint32 rowid, qint32 custid, bool bEdit) override;
    void ShowIssue(qint32 rowid, qint32 custid, bool bEdit, qint32 templateId) override;
    void ShowIssueTemplate(qint32 rowid, bool bEdit);
    void ShowReport(qint32 rowid) override;
    void ShowProductReport() override;
    void ShowReportDef(qint32 rowid, const QString &type) override;
    void NotifyReportList(qint32 rowid) override;
    void Reports(); // the list of all reports
    bool GetIssueTemplateID(qint32 &id) override;
    void NotifyCustomer(qint32 custid, int what, qint32 id) override;
    void LookupCustomer() override;
    void LookupByCustomerNumber(); // asks for the Customer ID until it is one
    void LookupByIssueNumber();    // the same for an issue
    void SearchIssues();
    void MyIssues();
    void NewCustomer() override;
    void EditCategory(qint32 type) override;
    QString GetShortDateFromPopupCalendar(const QString &start) override;
    bool SendMail(const QString &to, const QString &subject, const QString &body) override;
    void showChild(QWidget *form) override;
    void showHelp(int topic) override;
    void HelpCenter();
    void TipOfTheDay();
    // The windows that were open when this person last left this database.
    void reopenWindows();
    // What a person who has not said otherwise sees behind the start.
    void showStartupHelp();

    // What common/ui/Mail.h does, under the names the other windows know.
    bool SendMailMAPI(const QString &to, const QString &subject, const QString &body);
    bool SendMailOutlook(const QString &to, const QString &subject, const QString &body);
    int GetEmailHandler();
    void SetEmailHandler(int handler);
    void EmailHandlerDlg();
    void NoMAPIMsg();
    void NoOutlookMsg();

    // The label says what the parameter holds, and a colon; it stays when there is no such one.
    void SetCustomFieldLabel(QLabel *label, const QString &name);
    // The list commands go by the names that the database gives to its fields.
    void SetCustomMenuLabels();

    void ChangePassword();
    void UserManagement();
    void Customizations();
    void ImportData();
    void PurgeOldIssues();
    void ManageIssueTemplates();
    void EditCustomerCategory();
    void EditProductServiceCategory();
    void EditContractTypesCategory();
    void EditContractDurationsCategory();
    void EditStateCategory();
    void EditCountryCategory();
    void EditIssueStatusCategory();
    void EditIssueActionsCategory();
    void EditIssuePriorityCategory();
    void EditIssueCategory();
    void EditCustomFieldCategory(qint32 type);
    // What the toolbar's button or drop-down item of that key does; unknown keys do nothing.
    void ToolbarCommand(const QString &key);

protected:
    void closeEvent(QCloseEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    struct MenuLine;
    struct ToolLine;
    static const std::vector<MenuLine> &menuLines();
    static const std::vector<ToolLine> &toolLines();
    static const ToolLine *toolLine(const QString &key); // null: there is none

    void InitMenus();
    void InitToolBar();
    void addMenuLine(const MenuLine &line);
    void addToolLine(const ToolLine &line);
    QAction *command(const QString &name) const; // by the name of its menu entry
    QMenu *menuNamed(const QString &name) const;
    void buildStatusBar();
    void answerDatabaseCore();
    void setAreaColour();

    void showCustomerOfNumber(const QString &number);

    void fileNew();
    void createDatabase();
    void fileOpen();
    void fillRecentFolders();
    void openRecent(const QString &folder);
    void fileClose();
    void displayDataFolder();
    void fileExit();
    void showStatistics();
    void countRecords();
    void databaseMaintenance();
    void addBulkIssues();
    void helpFAQs();
    void helpProductOverview();
    void helpSpecSheet();
    void helpUserManual();
    void helpTutorial();
    void helpSupport();
    void helpBackup();
    void helpAbout();

    void tileHorizontally();
    void tileVertically();
    void cascade();
    void arrangeMinimised();
    void noteSizesGiven();
    void fillWindowMenu();
    void listWindow(QMenu *menu, QMdiSubWindow *window, int number);
    void closeAllWindows();
    QStringList namesOfOpenWindows() const;
    static QString ownerOfWindows();
    static void rememberWindows(const QStringList &names, const QString &owner);
    void reopenWindow(const QString &name);

    std::unique_ptr<Ui::frmMain> ui;
    QTimer m_watch; // over the other stations' locks
    StatusPanel *m_location = nullptr;
    StatusPanel *m_user = nullptr;
    StatusPanel *m_edition = nullptr;
    bool m_counting = false;
};
