// Opening and closing: only a folder that passes the file check and a login counts as open.
#include "db/clsDB.h"

#include "common/base/clsSystem.h"
#include "common/base/Failure.h"
#include "common/base/Host.h"
#include "common/base/Preferences.h"
#include "common/base/Prompts.h"
#include "db/Screens.h"

using namespace norvane::engine;

clsDB gDB;

namespace
{

// A wait for a lock shorter than this needs no repainted window.
constexpr std::chrono::milliseconds QuietWait{500};
// "process": a save survives a killed program but no power cut; for slow shares.
const QString DurabilityPref = QStringLiteral("durability");

} // namespace

clsDB::~clsDB()
{
    endSession();
}

bool clsDB::startSession(const QString &dir)
{
    m_hSession = d4init_v(m_files);
    if (m_hSession > 0) {
        code4accessMode(m_hSession, 0);
        code4readOnly(m_hSession, 0);
        code4readLock(m_hSession, 0);
        code4lockAttempts(m_hSession, -1);
        code4lockEnforce(m_hSession, 1);
        code4lockDelay(m_hSession, 100);
        code4durability(m_hSession, GetPrefStr(DurabilityPref).toStdString());
        code4errorHandler(m_hSession, [this](const Error &error) { m_failures.note(error); });
        code4waitHandler(m_hSession, [](std::chrono::milliseconds waited) {
            if (waited > QuietWait && host().repaint)
                host().repaint();
        });
    }
    m_sDBPath = clsSystem::LocalPath(dir);
    m_sStation = clsSystem::GetLocalComputerName();
    if (m_hSession > 0)
        return true;
    prompts::critical(QStringLiteral("CODE4 could NOT be initialized!"));
    m_sDBPath.clear();
    return false;
}

void clsDB::endSession()
{
    if (m_hSession > 0)
        d4initUndo(m_hSession);
    m_hSession = 0;
    m_openTables = 0;
    m_failures.clear();
    m_bIsOpen = false;
    m_sDBPath.clear();
    m_sStation.clear();
    clearLogin();
}

bool clsDB::OpenDB(const QString &dir)
{
    return guarded("clsDB_OpenDB", false, [&] {
        if (!DirContainsValidData(dir) || !CloseDB() || !startSession(dir))
            return false;
        if (!PromptLogin(m_sDBPath)) {
            endSession();
            return false;
        }
        m_bIsOpen = true;
        SetLastDBDir(m_sDBPath);
        if (screens().databaseOpened)
            screens().databaseOpened();
        CreateAttachDir();
        return true;
    });
}

bool clsDB::CloseDB()
{
    return guarded("clsDB_CloseDB", false, [&] {
        // A window that stays keeps its unsaved work, and with it the database.
        if (screens().unloadAll && !screens().unloadAll())
            return false;
        endSession();
        return true;
    });
}

void clsDB::OpenLastDB()
{
    guarded("clsDB_OpenLastDB", [&] {
        const QString dir = GetLastDBDir();
        if (dir.isEmpty())
            return;
        if (clsSystem::DirExists(dir))
            OpenDB(dir);
        else
            CantOpenLastDB(dir);
    });
}

void clsDB::OpenDBOnCommandLine(const QString &dir)
{
    guarded("clsDB_OpenDB", [&] {
        if (clsSystem::DirExists(dir))
            OpenDB(dir);
        else
            CantOpenLastDB(dir);
    });
}

void clsDB::CantOpenLastDB(const QString &dir)
{
    clsSystem::ShowMsg(QString(u"OPEN FAILED!\nDirectory '" % dir %
                               u"' does not exist OR is NOT accessible at this time. If this "
                               u"directory is located on another computer on the network, please "
                               u"verify that computer is up and running.\n\n" %
                               openingHelp()),
                       prompts::Kind::Critical);
}

bool clsDB::OpenUnattended(const QString &dir, const QString &login, const QString &password)
{
    return guarded("clsDB_OpenDB", false, [&] {
        endSession();
        if (!DirContainsValidData(dir) || !startSession(dir))
            return false;
        if (!acceptLogin(login, password)) {
            endSession();
            return false;
        }
        m_bIsOpen = true;
        CreateAttachDir();
        return true;
    });
}

bool clsDB::OpenForReading(const QString &dir)
{
    return guarded("clsDB_OpenDB", false, [&] {
        endSession();
        if (!clsSystem::DirExists(dir)) {
            CantOpenLastDB(dir);
            return false;
        }
        m_bIsOpen = startSession(dir);
        return m_bIsOpen;
    });
}
