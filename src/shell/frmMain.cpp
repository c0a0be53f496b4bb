// The main window's life, and its states with and without a database.
#include "shell/frmMain.h"

#include "common/base/AppInfo.h"
#include "common/base/clsSystem.h"
#include "common/form/frmUnderEditMsg.h"
#include "common/ui/FormWindow.h"
#include "common/ui/Icons.h"
#include "db/clsDB.h"
#include "db/Screens.h"
#include "shell/clsWndStartupPos.h"
#include "shell/frmLogin.h"
#include "shell/RecentFolders.h"
#include "shell/StatusPanel.h"
#include "ui_frmMain.h"

#include <QCloseEvent>
#include <QMenu>

namespace
{

constexpr std::chrono::seconds WatchPause{1};

} // namespace

frmMain::frmMain(QWidget *parent) : QMainWindow(parent), ui(std::make_unique<Ui::frmMain>())
{
    ui->setupUi(this);
    installSwitchboard(this);
    answerDatabaseCore();
    SetWindowCaption();
    InitMenus();
    InitToolBar();
    buildStatusBar();
    setAreaColour();
    ui->imgHint->setPixmap(applicationIcon().pixmap(QSize(64, 64)));
    connect(&m_watch, &QTimer::timeout, this, [] { gDB.WatchStations(); });
    m_watch.start(WatchPause);
    clsWndStartupPos::RestorePosition(this);
    SetUI();
}

frmMain::~frmMain()
{
    screens() = {};
    installSwitchboard(nullptr);
}

void frmMain::answerDatabaseCore()
{
    screens().promptLogin = [this](const LoginRequest &request) {
        frmLogin login(this);
        login.Init(request.folder, request.login, request.password);
        login.exec();
        return login.outcome();
    };
    screens().askUnderEdit = &frmUnderEditMsg::ask;
    screens().databaseOpened = [this] { SetCustomMenuLabels(); };
    screens().unloadAll = [] { return UnloadAll(QStringLiteral("MAINFORM")); };
    screens().databaseReadOnly = [this] { SetStatusBar(); };
}

void frmMain::buildStatusBar()
{
    m_location = new StatusPanel(this);
    m_user = new StatusPanel(this);
    m_edition = new StatusPanel(this);
    m_location->setObjectName(QStringLiteral("pnlLocation"));
    m_user->setObjectName(QStringLiteral("pnlUser"));
    m_edition->setObjectName(QStringLiteral("pnlEdition"));
    ui->STATUS->addWidget(m_location, 1);
    ui->STATUS->addPermanentWidget(m_user);
    ui->STATUS->addPermanentWidget(m_edition);
}

// The area behind the child windows is quiet: a shade of the window colour, not the dark field
// some styles draw there.
void frmMain::setAreaColour()
{
    const QColor window = palette().color(QPalette::Window);
    const bool dark = window.lightness() < 128;
    ui->mdiArea->setBackground(dark ? window.lighter(120) : window.darker(108));
}

void frmMain::SetUI()
{
    if (gDB.IsOpen())
        recentfolders::note(gDB.DBPath());
    SetMenus();
    SetStatusBar();
    SetWindowCaption();
}

void frmMain::SetMenus()
{
    const bool open = gDB.IsOpen();
    for (const char *name : {"mnuFileNew", "mnuFileOpen"})
        command(QLatin1String(name))->setEnabled(!open);
    menuNamed(QStringLiteral("mnuFileRecent"))
        ->menuAction()
        ->setEnabled(!recentfolders::list().isEmpty());
    for (const char *name : {"mnuFileClose", "mnuFileChangePWD", "mnuDisplayDataFolder"})
        command(QLatin1String(name))->setEnabled(open);
    for (const char *name :
         {"mnuFileChangePWDBar", "mnuFileChangePWD", "mnuViewDatabaseAdminUserMgmt", "ADUSERMAN"})
        command(QLatin1String(name))->setVisible(open);
    for (const char *name : {"mnuView", "mnuWindow"})
        menuNamed(QLatin1String(name))->menuAction()->setVisible(open);
    // Their shortcuts would work in hidden menus too.
    for (QAction *entry : menuNamed(QStringLiteral("mnuView"))->actions())
        entry->setEnabled(open);
    ui->TB->setVisible(open);
    ui->stkCentre->setCurrentWidget(open ? static_cast<QWidget *>(ui->mdiArea) : ui->pagClosed);
}

void frmMain::SetStatusBar()
{
    const QString computer = gSys.GetLocalComputerName().toUpper();
    if (gDB.IsOpen()) {
        const QString readOnly = gDB.IsReadOnly() ? tr(" (read-only)") : QString();
        m_location->setText(tr("Database Location: ") + gDB.DBPath() + readOnly);
        m_user->setText(tr("User: ") + computer + u'\\' + gDB.LoginName() + u"  ");
    } else {
        m_location->setText(tr("Choose File menu to open or create database."));
        m_user->setText(tr("Machine: ") + computer + u"  ");
    }
    m_edition->setText(tr("Multi-User version "));
}

void frmMain::SetWindowCaption()
{
    setWindowTitle(app::title() + u" - v" + QString::number(app::versionMajor()) + u'.' +
                   QString::number(app::versionMinor()));
}

// The database closes first, and with it every other window; when one of them refuses, the
// program stays.
void frmMain::closeEvent(QCloseEvent *event)
{
    const QStringList windows = namesOfOpenWindows();
    const QString owner = ownerOfWindows();
    if (!gDB.CloseDB()) {
        event->ignore();
        return;
    }
    rememberWindows(windows, owner);
    clsWndStartupPos::SavePosition(this);
    event->accept();
}

void frmMain::changeEvent(QEvent *event)
{
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && m_edition != nullptr)
        setAreaColour();
}
