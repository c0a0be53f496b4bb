// When a database is open for reading only: damage that a repair has to decide about, files that
// may not be changed, and record locks that do not reach the other stations.
#include "db/clsDB.h"

#include "common/base/clsSystem.h"
#include "common/base/Host.h"
#include "common/base/Prompts.h"
#include "db/Screens.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

#include <chrono>
#include <cstdlib>
#include <utility>

using namespace norvane::engine;

namespace
{

struct Words {
    Q_DECLARE_TR_FUNCTIONS(clsDB)
};

const QString StationFile = QStringLiteral("nvnstations.nvs");

} // namespace

// False, after a message, when the folder knows no locks. `thorough`: for programs that may end
// before the next look at the other stations.
bool clsDB::startWatch(bool thorough)
{
    const QString path = clsSystem::LocalPath(MakePath(m_sDBPath, StationFile));
    const bool isNew = !QFile::exists(path);
    m_lastBeat = host().ticks();
    StationWatch::Finding found =
        m_watch.start(m_files ? *m_files : systemFiles(), path.toStdString());
    // Whoever may write to the tables counts in it too.
    if (isNew)
        QFile::setPermissions(path, QFile::permissions(clsSystem::LocalPath(LastIDTable())));
    if (found == StationWatch::Finding::Refused) {
        prompts::critical(
            Words::tr("OPEN FAILED!\nThe directory '%1' does not take record locks (%2). "
                      "Without them workstations would overwrite each other's work.\n\n"
                      "Please ask your administrator to switch on file locking for this "
                      "network directory.")
                .arg(m_sDBPath, QString::fromStdString(m_watch.refusal())));
        return false;
    }
    if (thorough)
        found = m_watch.probe();
    if (found == StationWatch::Finding::Deaf)
        noteDeafLocks();
    return true;
}

void clsDB::WatchStations()
{
    const qint64 now = host().ticks();
    const qint64 apart = now - m_lastBeat;
    if (m_hSession < 1 || apart < std::chrono::milliseconds(StationWatch::Interval).count())
        return;
    m_lastBeat = now;
    if (m_watch.beat() == StationWatch::Finding::Deaf)
        noteDeafLocks();
    tellReadOnly();
}

void clsDB::noteDeafLocks()
{
    becomeReadOnly(
        Words::tr("the record locks of the workstations do not reach each other"),
        Words::tr(
            "The record locks of the workstations in '%1' do not reach each other, so that two "
            "people could overwrite each other's work. Therefore this database is now open for "
            "reading only.\n\nPlease ask your administrator to connect this network directory "
            "with working locks at every workstation (without options like nolock, local_lock or "
            "nobrl). Then open the database again.")
            .arg(m_sDBPath));
}

void clsDB::noteDamage(const Error &damage)
{
    const QString file = QString::fromStdString(damage.file);
    becomeReadOnly(
        Words::tr("the file '%1' is damaged").arg(file),
        Words::tr(
            "The file '%1' is damaged (%2), and mending it could lose something. Therefore this "
            "database is open for reading only: what can be read can be looked at, and nothing "
            "can be changed.\n\nPlease make a copy of the whole data folder first. Then let "
            "everybody close the database and run 'norvanectl repair', or restore the data folder "
            "from your latest backup.")
            .arg(file, QString::fromStdString(damage.detail)));
}

void clsDB::lookAtRight(const QString &path)
{
    const QFileInfo file(clsSystem::LocalPath(path));
    if (!file.exists() || file.isWritable())
        return;
    becomeReadOnly(
        Words::tr("you have no right to change the file '%1'").arg(path),
        Words::tr("You have no right to change the file '%1'. Therefore this database is open "
                  "for reading only: everything can be looked at, and nothing can be "
                  "changed.\n\nPlease ask your administrator for the right to change the "
                  "files in the data folder. Then open the database again.")
            .arg(path));
}

void clsDB::becomeReadOnly(const QString &reason, const QString &notice)
{
    if (IsReadOnly())
        return;
    m_readOnlyReason = reason;
    m_readOnlyNotice = notice;
    // What does not ask MayWrite is refused by the engine.
    code4readOnly(m_hSession, 1);
    if (screens().databaseReadOnly)
        screens().databaseReadOnly();
}

// A box waits for the person, so it comes when no table is open.
void clsDB::tellReadOnly()
{
    if (m_openTables == 0 && !m_readOnlyNotice.isEmpty())
        prompts::critical(std::exchange(m_readOnlyNotice, {}));
}

bool clsDB::MayWrite()
{
    WatchStations();
    if (!IsReadOnly())
        return true;
    QString text = std::exchange(m_readOnlyNotice, {});
    if (text.isEmpty())
        text = Words::tr("Nothing was changed: this database is open for reading only, "
                         "because %1.")
                   .arg(m_readOnlyReason);
    prompts::critical(text);
    return false;
}
