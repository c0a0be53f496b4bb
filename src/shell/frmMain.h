// The main window: menus, toolbar, status bar, the child windows, and the switchboard through
// which every other screen is opened.
//
// frmMain.cpp: its life and states. frmMainFile.cpp: the File commands. frmMainCommands.cpp:
// customers and Help. frmMainWindows.cpp: child windows and the Window menu.
#pragma once

#include "common/ui/Switchboard.h"

#include <QMainWindow>

#include <memory>

class QMdiSubWindow;
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
    void NotifyCustomer(qint32 custid, int what, qint32 id) override;
    void LookupCustomer() override;
    void NewCustomer() override;
    void EditCategory(qint32) override {}
    void SendMail(const QString &to, const QString &subject, const QString &body) override;
    void showChild(QWidget *form) override;
    void showHelp(int) override {}

protected:
    void closeEvent(QCloseEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void InitToolBar();
    void buildStatusBar();
    void connectFileMenu();
    void connectViewMenu();
    void connectWindowMenu();
    void connectHelpMenu();
    void answerDatabaseCore();
    void setAreaColour();

    void fileNew();
    void createDatabase();
    void fileOpen();
    void fileClose();
    void helpSupport();
    void helpAbout();

    void noteSizesGiven();
    void fillWindowMenu();
    void listWindow(QMdiSubWindow *window, int number);
    void closeAllWindows();

    std::unique_ptr<Ui::frmMain> ui;
    StatusPanel *m_location = nullptr;
    StatusPanel *m_user = nullptr;
    StatusPanel *m_edition = nullptr;
};
