// Opening and closing tables, and what the procedures hold while they use one.
#include "db/clsDB.h"

#include "common/base/clsSystem.h"
#include "common/base/Prompts.h"
#include "db/FieldText.h"
#include "db/TableUse.h"

#include <QCoreApplication>

#include <algorithm>

using namespace norvane::engine;

std::string engineText(const QString &text)
{
    return toStored(text).toStdString();
}

namespace
{

struct Words {
    Q_DECLARE_TR_FUNCTIONS(clsDB)
};

// A file of ours that holds something else altogether is no less damaged.
bool isDamage(const Error &error)
{
    return error.kind == ErrorKind::Damaged || error.kind == ErrorKind::Refused;
}

} // namespace

bool clsDB::isTableOfOurs(const QString &path) const
{
    const auto &all = schema::tables();
    return std::any_of(all.begin(), all.end(), [&](const schema::TableInfo &table) {
        return path == TablePath(table.table);
    });
}

// Finds damage and missing rights at the opening, before somebody fills in a form that could not be
// saved. Other troubles are told when the table is used.
void clsDB::lookAtTables()
{
    for (const schema::TableInfo &table : schema::tables()) {
        for (const QString &name : table.files() + QStringList(table.journalFile()))
            lookAtRight(MakePath(m_sDBPath, name));
        const Handle handle =
            d4open(m_hSession, clsSystem::LocalPath(TablePath(table.table)).toStdString());
        const Error &damage = handle > 0 ? d4damage(handle) : lastError(m_hSession);
        if (isDamage(damage))
            noteDamage(damage);
        code4errorCode(m_hSession, 0);
        d4close(handle);
    }
    m_failures.clear();
    tellReadOnly();
}

clsDB::Handle clsDB::OpenTable(const QString &path)
{
    if (m_openTables == 0)
        m_failures.clear();
    WatchStations();
    const Handle table = d4open(m_hSession, clsSystem::LocalPath(path).toStdString());
    if (table > 0) {
        ++m_openTables;
        if (const Error &damage = d4damage(table); damage && isTableOfOurs(path))
            noteDamage(damage);
        return table;
    }

    // A table that is not there needs no other words than those below; for damage and the like the
    // engine's come first.
    const Error failure = lastError(m_hSession);
    code4errorCode(m_hSession, 0);
    if (isDamage(failure) && isTableOfOurs(path))
        noteDamage(failure);
    if (m_told.contains(path)) {
        m_failures.clear();
        return 0;
    }
    if (m_tellingOnce > 0)
        m_told.append(path);
    if (!m_readOnlyNotice.isEmpty())
        m_failures.clear(); // names the damage too
    m_failures.show();
    tellReadOnly();
    prompts::critical(Words::tr("Unable to open: %1").arg(path));
    return 0;
}

void clsDB::CloseTable(Handle table)
{
    if (table < 1)
        return;
    d4close(table);
    m_openTables = std::max(0, m_openTables - 1);
    if (m_openTables > 0)
        return;
    m_failures.show(m_tellingOnce > 0 ? &m_told : nullptr);
    tellReadOnly();
}

clsDB::TellOnce::TellOnce(clsDB &db) : m_db(db)
{
    ++m_db.m_tellingOnce;
}

clsDB::TellOnce::~TellOnce()
{
    if (--m_db.m_tellingOnce == 0)
        m_db.m_told.clear();
}

TableUse::TableUse(clsDB &db, const QString &path, clsDB::Handle given)
    : m_db(db), m_table(given > 0 ? given : db.OpenTable(path)), m_opened(given < 1)
{
}

TableUse::~TableUse()
{
    if (m_opened)
        m_db.CloseTable(m_table);
}

clsDB::Handle TableUse::field(const QString &name) const
{
    return d4field(m_table, engineText(name));
}

bool TableUse::select(const QString &tag)
{
    // A folder made elsewhere may lack a tag; the walk then goes in record order.
    code4errTagName(m_db.CBEngine(), 0);
    const clsDB::Handle found = d4tag(m_table, engineText(tag));
    code4errTagName(m_db.CBEngine(), 1);
    d4tagSelect(m_table, found);
    m_seekable = found > 0;
    return m_seekable;
}

std::string TableUse::wholeKey(const QString &text, const QString &fieldName) const
{
    std::string key = engineText(text);
    const clsDB::Handle keyField = field(fieldName);
    if (keyField > 0)
        key.resize(f4len_v(keyField), ' ');
    return key;
}

bool TableUse::seekText(const QString &text, const QString &fieldName)
{
    return m_seekable && d4seek(m_table, wholeKey(text, fieldName)) == 0;
}

bool TableUse::seekNextText(const QString &text, const QString &fieldName)
{
    return d4seekNext(m_table, wholeKey(text, fieldName)) == 0;
}

qint32 TableUse::number(const QString &fieldName) const
{
    const clsDB::Handle found = field(fieldName);
    return found > 0 ? f4long(found) : 0;
}

QString TableUse::text(const QString &fieldName) const
{
    return clsSystem::Trim(FieldText(field(fieldName)));
}

LockAttempts::LockAttempts(clsDB::Handle session, int attempts) : m_session(session)
{
    code4lockAttempts(m_session, attempts);
}

LockAttempts::~LockAttempts()
{
    code4lockAttempts(m_session, -1);
}

RowLock::RowLock(clsDB::Handle table) : RowLock(table, d4recNo(table)) {}

RowLock::RowLock(clsDB::Handle table, std::uint32_t record)
    : m_table(table), m_code(d4lock(table, record))
{
}

RowLock::~RowLock()
{
    d4unlock(m_table);
}

SaveGroup::SaveGroup(clsDB::Handle table) : m_table(table)
{
    d4groupBegin(m_table);
}

SaveGroup::~SaveGroup()
{
    d4groupDrop(m_table);
}

bool SaveGroup::store()
{
    const bool stored = d4groupEnd(m_table) == r4success;
    d4groupBegin(m_table);
    return stored;
}

void expectOurTags(clsDB::Handle session)
{
    for (const schema::TableInfo &table : schema::tables())
        d4expectTags(session, table.baseName.toStdString(), table.def.tags);
}

bool storeChange(clsDB::Handle table)
{
    const bool stored = d4flush(table) == r4success;
    if (!stored)
        d4discard(table);
    return stored;
}

bool storeNewRow(clsDB::Handle table)
{
    const bool appended = d4append(table) == r4success;
    const bool stored = storeChange(table) && appended;
    d4unlock(table);
    return stored;
}
