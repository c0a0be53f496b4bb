// Single rows and values of a table: found, compared, counted, deleted.
#include "db/clsDB.h"

#include "common/base/clsSystem.h"
#include "common/base/Failure.h"
#include "common/base/Host.h"
#include "common/base/Numbers.h"
#include "common/base/Prompts.h"
#include "db/FieldText.h"
#include "db/TableUse.h"

#include <QCoreApplication>

using namespace norvane::engine;

namespace
{

struct Words {
    Q_DECLARE_TR_FUNCTIONS(clsDB)
};

constexpr int NumberKind = 2;
const QString RowidTag = QStringLiteral("rowid");

enum class Deletion { Done, NoRow, HeldElsewhere, Failed };

// Deletes the row that the key leads to in the selected tag.
Deletion deleteRow(TableUse &rows, qint32 key)
{
    const Code found = rows.seekCode(key);
    if (found != r4success)
        return found == r4failure || found == d4locked ? Deletion::Failed : Deletion::NoRow;
    const RowLock lock(rows.handle());
    if (!lock)
        return lock.heldElsewhere() ? Deletion::HeldElsewhere : Deletion::Failed;
    // Gone by now: another station was faster.
    if (d4deleted(rows.handle()))
        return Deletion::Done;
    const bool marked = d4delete(rows.handle()) == r4success;
    return storeChange(rows.handle()) && marked ? Deletion::Done : Deletion::Failed;
}

void tellLocked(const QString &path, qint32 key)
{
    prompts::critical(Words::tr("RECORD LOCKED: Unable to Delete from %1(id=%2) !")
                          .arg(path, QString::number(key)));
}

} // namespace

bool clsDB::IsUniqueVal(qint32 rowid, const QString &value, const QString &tag, const QString &path)
{
    return guarded("clsDB_IsUniqueVal", false, [&] {
        TableUse rows(*this, path);
        if (!rows)
            return false;
        rows.select(tag);
        for (bool found = rows.seekText(value, tag); found; found = rows.seekNextText(value, tag)) {
            if (rows.number(RowidTag) != rowid)
                return false;
        }
        return true;
    });
}

qint32 clsDB::RecordExists(int kind, const QString &value, const QString &path, const QString &tag,
                           const QString &field, Handle table)
{
    return guarded("clsDB_RecordExists", -1, [&] {
        TableUse rows(*this, path, table);
        if (!rows)
            return -1;
        rows.select(tag);
        bool found = false;
        if (kind == NumberKind) {
            const std::optional<double> number = NumberInText(value);
            found = number && rows.seek(*number);
        } else {
            found = rows.seekText(value, tag);
        }
        return found ? rows.number(field) : -1;
    });
}

bool clsDB::RecordExistsNoTag(int kind, const QString &value, const QString &path,
                              const QString &field, Handle table)
{
    return guarded("clsDB_RecordExistsNoTag", false, [&] {
        TableUse rows(*this, path, table);
        if (!rows)
            return false;
        const Handle column = rows.field(field);
        const std::optional<double> number = NumberInText(value);
        const QString text = clsSystem::Trim(value);
        d4tagSelect(rows.handle(), 0);
        for (bool more = rows.top(); more; more = rows.next()) {
            if (d4deleted(rows.handle()))
                continue;
            const bool equal = kind == NumberKind ? number && f4double(column) == *number
                                                  : clsSystem::Trim(FieldText(column)) == text;
            if (equal)
                return true;
        }
        return false;
    });
}

bool clsDB::DeleteRecord(qint32 rowid, const QString &path, Handle table)
{
    return guarded("clsDB_DeleteRecord", false, [&] {
        if (!MayWrite())
            return false;
        TableUse rows(*this, path, table);
        if (!rows)
            return false;
        const LockAttempts tenAttempts(m_hSession);
        rows.select(RowidTag);
        const Deletion outcome = deleteRow(rows, rowid);
        if (outcome == Deletion::HeldElsewhere)
            tellLocked(path, rowid);
        // A row that is not there any more counts as deleted.
        return outcome == Deletion::Done || outcome == Deletion::NoRow;
    });
}

bool clsDB::DeleteAllRecords(qint32 key, const QString &path, const QString &tag, Handle table)
{
    return guarded("clsDB_DeleteAllRecords", false, [&] {
        if (!MayWrite())
            return false;
        TableUse rows(*this, path, table);
        if (!rows || !rows.select(tag))
            return false;
        const LockAttempts tenAttempts(m_hSession);
        // Deleted rows drop out of the tag, so the same key leads to the next one.
        for (;;) {
            const Deletion outcome = deleteRow(rows, key);
            if (outcome == Deletion::HeldElsewhere)
                tellLocked(path, key);
            else if (outcome != Deletion::Done)
                return outcome == Deletion::NoRow;
        }
    });
}

qint32 clsDB::GetRecCount(const QString &path, const QString &tag)
{
    return guarded("clsDB_GetRecCount", -1, [&] {
        TableUse rows(*this, path);
        if (!rows)
            return -1;
        rows.select(tag);
        qint32 count = 0;
        for (bool more = rows.top(); more; more = rows.next()) {
            if (++count % 10000 == 0)
                host().pumpEvents();
        }
        return count;
    });
}

qint32 clsDB::GetRecCountFast(const QString &path, const QString &tag)
{
    return guarded("clsDB_GetRecCountFast", -1, [&] {
        TableUse rows(*this, path);
        if (!rows)
            return -1;
        rows.select(tag);
        return static_cast<qint32>(d4recCountDo(rows.handle()));
    });
}

bool clsDB::TorF2Bool(const QString &value)
{
    return value.toUpper() == u"T";
}

QString clsDB::TorF2Str(const QString &value)
{
    return TorF2Bool(value) ? Words::tr("Yes") : Words::tr("No");
}
