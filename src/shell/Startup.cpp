#include "shell/Startup.h"

#include "common/base/AppInfo.h"
#include "common/base/clsSystem.h"
#include "common/base/Failure.h"
#include "common/base/Prompts.h"
#include "common/ui/GuiDialogs.h"
#include "db/clsDB.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QDir>
#include <QWindow>

QString Startup::folderFromCommandLine(const QStringList &arguments)
{
    return gSys.RemoveSurroundingQuote(arguments.join(u' ').trimmed());
}

Startup::Startup(QString folder) : m_folder(std::move(folder))
{
    connect(&m_instance, &SingleInstance::raiseWanted, this, &Startup::raiseMain);
}

Startup::~Startup()
{
    m_main.reset();
    gDB.CloseDB();
}

bool Startup::run()
{
    if (!mayRun(m_instance, m_folder))
        return false;
    step([this] { showSplash(); });
    step([this] { m_main = std::make_unique<frmMain>(); });
    step([this] { waitForSplash(); });
    m_splash.reset();
    if (!m_main)
        return false;
    step([this] { showMain(); });
    step([this] { openDatabase(); });
    step([this] { m_main->SetUI(); });
    step([this] { m_main->reopenWindows(); });
    step([this] { m_main->showStartupHelp(); });
    return true;
}

void Startup::step(const std::function<void()> &body)
{
    try {
        body();
    } catch (...) {
        m_splash.reset();
        reportCurrentException("Startup");
    }
}

bool Startup::mayRun(SingleInstance &instance, const QString &folder)
{
    if (instance.begin() || !folder.isEmpty())
        return true;
    prompts::warn(app::title() + tr(" is already running!"));
    instance.raiseRunning();
    return false;
}

void Startup::showSplash()
{
    m_splash = std::make_unique<frmSplash>();
    m_splash->setWindowFlags(Qt::SplashScreen | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint);
    m_splash->setSmartUnload(true);
    m_splash->show();
    m_splash->repaint();
}

void Startup::waitForSplash()
{
    while (m_splash && !m_splash->minimumTimePassed())
        QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
}

// A window system places and maximises a window in its own time; the login box that comes next is
// centred over where the window is by then.
void Startup::showMain()
{
    guidialogs::setMainWindow(m_main.get());
    m_main->show();
    const QDeadlineTimer patience(500);
    while (!m_main->windowHandle()->isExposed() && !patience.hasExpired())
        QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
    QCoreApplication::processEvents();
}

void Startup::openDatabase()
{
    if (m_folder.isEmpty())
        gDB.OpenLastDB();
    else // remembered for starts from other places
        gDB.OpenDBOnCommandLine(QDir::toNativeSeparators(
            QDir::cleanPath(QDir(QDir::fromNativeSeparators(m_folder)).absolutePath())));
}

void Startup::raiseMain()
{
    if (!m_main)
        return;
    m_main->setWindowState(m_main->windowState() & ~Qt::WindowMinimized);
    m_main->show();
    m_main->raise();
    m_main->activateWindow();
}
