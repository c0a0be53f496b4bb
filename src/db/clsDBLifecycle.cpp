// Opening and closing: only a folder that passes the file check and a login counts as open.
#include "db/clsDB.h"

#include "common/base/clsSystem.h"
#include "common/base/Failure.h"
#include "common/base/Host.h"
#include "common/base/Preferences.h"
#include "common/base/Prompts.h"
#include "db/FieldText.h"
#include "db/Screens.h"
#include "db/TableUse.h"

#include <QCoreApplication>

using namespace norvane::engine;

clsDB gDB;

namespace
{

struct Words {
    Q_DECLARE_TR_FUNCTIONS(clsDB)
};

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
        expectOurTags(m_hSession);
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
    prompts::critical(Words::tr("CODE4 could NOT be initialized!"));
    m_sDBPath.clear();
    return false;
}

void clsDB::endSession()
{
    m_watch.stop();
    m_readOnlyReason.clear();
    m_readOnlyNotice.clear();
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
        if (!startWatch(false) || !PromptLogin(m_sDBPath)) {
            endSession();
            return false;
        }
        m_bIsOpen = true;
        SetLastDBDir(m_sDBPath);
        if (screens().databaseOpened)
            screens().databaseOpened();
        CreateAttachDir();
        lookAtTables();
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
    clsSystem::ShowMsg(Words::tr("OPEN FAILED!\nDirectory '%1' does not exist OR is NOT accessible "
                                 "at this time. If this "
                                 "directory is located on another computer on the network, please "
                                 "verify that computer is up and running.")
                               .arg(dir) +
                           u"\n\n" + openingHelp(),
                       prompts::Kind::Critical);
}

bool clsDB::OpenUnattended(const QString &dir, const QString &login, const QString &password)
{
    return guarded("clsDB_OpenDB", false, [&] {
        endSession();
        if (!DirContainsValidData(dir) || !startSession(dir))
            return false;
        if (!startWatch(true) || !acceptLogin(login, password)) {
            endSession();
            return false;
        }
        m_bIsOpen = true;
        CreateAttachDir();
        lookAtTables();
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

bool clsDB::OpenForMaintenance(const QString &dir)
{
    return guarded("clsDB_OpenDB", false, [&] {
        endSession();
        if (!startSession(dir) || !startWatch(true))
            return false;
        tellReadOnly();
        return !IsReadOnly();
    });
}

bool clsDB::UsersReadable()
{
    const std::string path = clsSystem::LocalPath(UserTable()).toStdString();
    Handle users = d4open(m_hSession, path);
    if (users < 1) { // an index must not keep out those who can build it anew
        std::vector<RepairLine> report;
        d4repair(m_hSession, path, report);
        users = d4open(m_hSession, path);
    }
    code4errorCode(m_hSession, 0);
    const Handle active = users > 0 ? d4field(users, "useractive") : 0;
    bool found = false;
    if (active > 0 && d4field(users, "login") > 0 && d4field(users, "password") > 0) {
        d4tagSelect(users, 0);
        for (Code code = d4top(users); code == r4success && !found; code = d4skip(users, 1))
            found = !d4deleted(users) && TorF2Bool(clsSystem::Trim(FieldText(active)));
    }
    d4close(users);
    m_failures.clear();
    return found;
}

bool clsDB::LogInForMaintenance(const QString &login, const QString &password)
{
    m_bIsOpen = acceptLogin(login, password);
    return m_bIsOpen;
}
