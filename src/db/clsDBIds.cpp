// What all stations of a database count and set together: identifiers and named parameters.
#include "db/clsDB.h"

#include "common/base/clsSystem.h"
#include "common/base/Failure.h"
#include "common/base/Prompts.h"
#include "db/FieldText.h"
#include "db/TableUse.h"

#include <QCoreApplication>

#include <algorithm>
#include <limits>
#include <utility>

using namespace norvane::engine;

namespace
{

struct Words {
    Q_DECLARE_TR_FUNCTIONS(clsDB)
};

constexpr qint32 FirstID = 1000;
constexpr qint32 Locked = -1;
constexpr qint32 Failed = 0;
constexpr qint32 Garbled = -2;
const QString CounterName = QStringLiteral("tblname");
const QString ParamName = QStringLiteral("sid");

// The highest identifier in use in the table, as far as one step tells: the last key of its
// tag, and the row added last, which may be deleted by now. 0 when there is none to be had.
qint32 highestInUse(Handle session, const std::string &path)
{
    const Handle table = d4open(session, path);
    if (table < 1) {
        code4errorCode(session, 0);
        return 0;
    }
    qint32 highest = 0;
    const Handle rowid = d4field(table, "rowid");
    if (rowid > 0) {
        const Handle tag = d4tag(table, "rowid");
        d4tagSelect(table, tag);
        if (tag > 0 && d4bottom(table) == r4success)
            highest = f4long(rowid);
        const std::uint32_t rows = d4recCountDo(table);
        if (rows > 0 && d4go(table, rows) == r4success)
            highest = std::max(highest, f4long(rowid));
    }
    d4close(table);
    // Nothing can come behind the last number there is.
    return highest == std::numeric_limits<qint32>::max() ? 0 : highest;
}

// What the counter says after `count` numbers from `taken` on were given out.
qint32 counterBehind(qint32 taken, qint32 count)
{
    qint32 next = taken + std::min(count - 1, std::numeric_limits<qint32>::max() - taken);
    clsSystem::IncL(next);
    return next;
}

// Takes the next values of the counter that `rows` stands on, or higher ones when numbers from
// there on are in use: the counter was lost or comes from a backup. Locking reads the row anew, so
// what another station counted in the meantime is not given out twice.
qint32 takeNext(TableUse &rows, qint32 inUse, qint32 count)
{
    const RowLock lock(rows.handle());
    if (!lock)
        return lock.heldElsewhere() ? Locked : Failed;
    const Handle counter = rows.field(QStringLiteral("lastid"));
    qint32 taken = f4long(counter);
    // Lower ones were never given out. Without a row to go by two records could get the same.
    if (taken < FirstID && inUse < FirstID)
        return Garbled;
    taken = std::max(taken, inUse + 1);
    f4assignLong(counter, counterBehind(taken, count));
    return storeChange(rows.handle()) ? taken : Failed;
}

// Starts a counter. The append lock is taken before looking again, so that of two stations that
// both found no counter only one starts it.
qint32 startCounter(TableUse &rows, const QString &name, qint32 inUse, qint32 count)
{
    {
        const RowLock appending(rows.handle(), 0);
        if (!appending)
            return appending.heldElsewhere() ? Locked : Failed;
        if (!rows.seekText(name, CounterName)) {
            const qint32 taken = std::max(FirstID, inUse + 1);
            d4appendStartVB(rows.handle(), 0);
            d4blank(rows.handle());
            f4assignLong(rows.field(QStringLiteral("lastid")), counterBehind(taken, count));
            AssignText(rows.field(CounterName), name);
            return storeNewRow(rows.handle()) ? taken : Failed;
        }
    }
    return takeNext(rows, inUse, count);
}

} // namespace

qint32 clsDB::highestIdInUse(const QString &tableName) const
{
    for (const schema::TableInfo &table : schema::tables()) {
        const bool counted =
            table.table != schema::Table::LastID && table.table != schema::Table::Param;
        if (counted && table.dataFile().compare(tableName, Qt::CaseInsensitive) == 0) {
            const QString path = clsSystem::LocalPath(TablePath(table.table));
            return highestInUse(m_hSession, path.toStdString());
        }
    }
    return 0;
}

qint32 clsDB::GetNextID(const QString &tableName)
{
    return m_idBlock != nullptr && m_idBlock->isFor(tableName) ? m_idBlock->next()
                                                               : takeIDs(tableName, 1);
}

// The first of `count` numbers that are this session's own from here on.
qint32 clsDB::takeIDs(const QString &tableName, qint32 count)
{
    return guarded("clsDB_GetNextID", -1, [&] {
        if (!MayWrite())
            return -1;
        qint32 taken = -1;
        {
            TableUse rows(*this, LastIDTable());
            if (!rows)
                return -1;
            if (rows.field(CounterName) < 1 || rows.field(QStringLiteral("lastid")) < 1)
                return -1; // a garbled header; the engine says so
            // Before any tag is selected: the first tag of the index is the one by name.
            const bool found = rows.seekText(tableName, CounterName);
            d4tagSelect(rows.handle(), d4tag(rows.handle(), "TBLNAME"));
            // What is added behind our back from here on has its number from the counter.
            const qint32 inUse = highestIdInUse(tableName);
            taken =
                found ? takeNext(rows, inUse, count) : startCounter(rows, tableName, inUse, count);
            if (taken == Garbled)
                m_failures.note({ErrorKind::Damaged, LastIDTable().toStdString(), "counter"});
        }
        if (taken == Locked)
            prompts::critical(Words::tr("RECORD LOCKED: Unable to get next id (locked)!"));
        return taken > 0 ? taken : -1;
    });
}

clsDB::IdBlock::IdBlock(clsDB &db, QString tableName, qint32 size)
    : m_db(db), m_table(std::move(tableName)), m_size(size)
{
    m_db.m_idBlock = this;
}

clsDB::IdBlock::~IdBlock()
{
    m_db.m_idBlock = nullptr;
    if (m_next < m_end)
        guarded("clsDB_GetNextID", [this] { m_db.giveBackIDs(m_table, m_next, m_end); });
}

qint32 clsDB::IdBlock::next()
{
    if (m_next >= m_end) {
        const qint32 first = m_db.takeIDs(m_table, m_size);
        if (first < 1)
            return first;
        m_next = first;
        m_end = counterBehind(first, m_size);
    }
    return m_next++;
}

// Unless another station took numbers behind them meanwhile; then they stay unused.
void clsDB::giveBackIDs(const QString &tableName, qint32 from, qint32 behind)
{
    TableUse rows(*this, LastIDTable());
    if (!rows || !rows.seekText(tableName, CounterName))
        return;
    const RowLock lock(rows.handle());
    const Handle counter = rows.field(QStringLiteral("lastid"));
    if (lock && f4long(counter) == behind) {
        f4assignLong(counter, from);
        storeChange(rows.handle());
    }
}

QString clsDB::GetParamValue(const QString &name)
{
    return guarded("clsDB_GetParamValue", QString(), [&] {
        TableUse rows(*this, ParamTable());
        if (!rows)
            return QString();
        rows.select(ParamName);
        return rows.seekText(name.toUpper(), ParamName)
                   ? clsSystem::Trim(MemoText(rows.field(QStringLiteral("value"))))
                   : QString();
    });
}

bool clsDB::SetParamValue(const QString &name, const QString &value)
{
    return guarded("clsDB_SetParamValue", false, [&] {
        if (!MayWrite())
            return false;
        {
            TableUse rows(*this, ParamTable());
            if (!rows)
                return false;
            const Handle valueField = rows.field(QStringLiteral("value"));
            rows.select(ParamName);
            if (!rows.seekText(name.toUpper(), ParamName)) {
                d4appendStartVB(rows.handle(), 0);
                d4blank(rows.handle());
                AssignValue(rows.field(ParamName), name.toUpper(), schema::FieldKind::Text);
                AssignValue(valueField, value, schema::FieldKind::Memo);
                return storeNewRow(rows.handle());
            }
            const RowLock lock(rows.handle());
            if (lock) {
                AssignValue(valueField, value, schema::FieldKind::Memo);
                return storeChange(rows.handle());
            }
            if (!lock.heldElsewhere())
                return false;
        }
        prompts::critical(Words::tr("RECORD LOCKED: Unable to update record!"));
        return false;
    });
}

QString clsDB::MakeCustomFieldParamName(const QString &table, const QString &field)
{
    return table % u'_' % field;
}
