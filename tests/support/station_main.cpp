// norvane_station COMPUTER: a workstation without a screen, for tests. Reads one command a line
// and answers each with one line (Station.h):
//   open FOLDER LOGIN PASSWORD      delay HUNDREDTHS (between attempts for a lock)
//   setmark TABLE ROWID             clearmark TABLE ROWID
//   lockrow TABLE ROWID             lockcounter TABLE        unlock
//   save ROWID FIELD VALUE          delete TABLE ROWID       read TABLE ROWID FIELD
//   saverow RECTYPE TABLE ROWID FIELD VALUE
//   nextid TABLE [COUNT]            purge FIRSTISSUE LASTISSUE
//   quit
// TABLE is a data file's name, ROWID of save is a customer's.
#include "common/base/clsSystem.h"
#include "common/base/Host.h"
#include "common/base/Prompts.h"
#include "db/clsDB.h"
#include "db/FieldText.h"
#include "db/IssuePurge.h"
#include "db/TableUse.h"

#include <QCoreApplication>

#include <iostream>
#include <memory>
#include <string>

namespace
{

using Words = QStringList;
using norvane::engine::d4locked;

class Workstation
{
public:
    Workstation();
    // The answer; nothing after "quit".
    std::optional<QString> obey(const QString &line);

private:
    QString run(const Words &words);
    QString open(const Words &words);
    QString mark(const Words &words);
    QString lock(const Words &words);
    QString save(const QString &recType, const QString &tableFile, const Words &words);
    QString read(const Words &words);
    QString nextIds(const Words &words);
    QString purge(const Words &words);
    QString done(bool ok, const QString &value = {});
    QString path(const QString &table) const { return clsDB::MakePath(m_db.DBPath(), table); }

    clsDB m_db;
    std::unique_ptr<TableUse> m_locked;
    QStringList m_told; // what the person saw during the command
};

Workstation::Workstation()
{
    prompts::backend().message = [this](const prompts::Message &message) {
        m_told.append(message.text);
        return message.preset;
    };
    prompts::backend().text = [this](const prompts::Message &message) {
        m_told.append(message.text);
    };
}

std::optional<QString> Workstation::obey(const QString &line)
{
    const Words words = line.split(u' ');
    m_told.clear();
    if (words.first() == u"quit")
        return std::nullopt;
    QString answer = run(words);
    return answer.replace(u'\n', u' ').replace(u'\r', u' ');
}

QString Workstation::run(const Words &words)
{
    const QString &command = words.first();
    if (command == u"open")
        return open(words);
    if (command == u"delay") {
        norvane::engine::code4lockDelay(m_db.CBEngine(), words.at(1).toInt());
        return done(true);
    }
    if (command == u"setmark" || command == u"clearmark")
        return mark(words);
    if (command == u"lockrow" || command == u"lockcounter")
        return lock(words);
    if (command == u"unlock") {
        norvane::engine::d4unlock(m_locked->handle());
        m_locked.reset();
        return done(true);
    }
    if (command == u"save")
        return save(QStringLiteral("_customer"), QStringLiteral("nvncust.dbf"), words.mid(1));
    if (command == u"saverow")
        return save(words.at(1), words.at(2), words.mid(3));
    if (command == u"delete")
        return done(m_db.DeleteRecord(words.at(2).toInt(), path(words.at(1))));
    if (command == u"read")
        return read(words);
    if (command == u"nextid")
        return nextIds(words);
    if (command == u"purge")
        return purge(words);
    return QStringLiteral("failed: no such command");
}

QString Workstation::done(bool ok, const QString &value)
{
    if (!ok)
        return u"failed: " % m_told.join(u" | ");
    return value.isEmpty() ? QStringLiteral("ok") : QString(u"ok " % value);
}

QString Workstation::open(const Words &words)
{
    return done(m_db.OpenUnattended(words.at(1), words.at(2), words.at(3)));
}

QString Workstation::mark(const Words &words)
{
    const bool clear = words.first() == u"clearmark";
    m_db.SetEditInfo(path(words.at(1)), words.at(1), words.at(2).toInt(), clear);
    return done(m_told.isEmpty());
}

QString Workstation::lock(const Words &words)
{
    m_locked = std::make_unique<TableUse>(m_db, path(words.at(1)));
    bool found = false;
    if (words.first() == u"lockrow") {
        m_locked->select(QStringLiteral("rowid"));
        found = m_locked->seek(words.at(2).toInt());
    } else {
        m_locked = std::make_unique<TableUse>(m_db, m_db.LastIDTable());
        found = m_locked->seekText(words.at(1), QStringLiteral("tblname"));
    }
    const auto table = m_locked->handle();
    return done(found && norvane::engine::d4lock(table, norvane::engine::d4recNo(table)) == 0);
}

QString Workstation::save(const QString &recType, const QString &tableFile, const Words &words)
{
    RecColl record(path(tableFile), tableFile, words.at(0).toInt(), recType);
    if (!m_db.ReadRecord(record))
        return done(false);
    record.setExisting(words.at(1), Words(words.mid(2)).join(u' '));
    return done(m_db.SaveRecord(record));
}

QString Workstation::read(const Words &words)
{
    TableUse rows(m_db, path(words.at(1)));
    rows.select(QStringLiteral("rowid"));
    if (!rows || !rows.seek(words.at(2).toInt()))
        return done(false);
    return done(true, rows.text(words.at(3)));
}

QString Workstation::nextIds(const Words &words)
{
    QStringList ids;
    for (int left = words.value(2, QStringLiteral("1")).toInt(); left > 0; --left) {
        const qint32 id = m_db.GetNextID(words.at(1));
        if (id < 1)
            return done(false);
        ids.append(QString::number(id));
    }
    return done(true, ids.join(u','));
}

QString Workstation::purge(const Words &words)
{
    QList<qint32> ids;
    for (qint32 id = words.at(1).toInt(); id <= words.at(2).toInt(); ++id)
        ids.append(id);
    const PurgeResult result = IssuePurge(m_db).DeleteIssues(ids, [](qint32, qint32) {});
    return done(result.remaining == 0, QString::number(result.deleted));
}

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    host().computerName = [] { return QCoreApplication::arguments().value(1); };
    Workstation station;
    for (std::string line; std::getline(std::cin, line);) {
        const std::optional<QString> answer = station.obey(QString::fromStdString(line));
        if (!answer)
            return 0;
        std::cout << answer->toStdString() << std::endl;
    }
    return 0;
}
