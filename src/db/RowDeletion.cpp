#include "db/RowDeletion.h"

#include "db/TableUse.h"

#include <algorithm>

using namespace norvane::engine;

namespace
{

// The records of the rows with these keys; in the order of the file, which is the quickest.
std::vector<std::uint32_t> recordsOf(TableUse &rows, const QList<qint32> &keys)
{
    std::vector<std::uint32_t> records;
    for (const qint32 key : keys) {
        for (bool found = rows.seek(key); found; found = rows.seekNext(key))
            records.push_back(d4recNo(rows.handle()));
    }
    std::sort(records.begin(), records.end());
    records.erase(std::unique(records.begin(), records.end()), records.end());
    return records;
}

void deleteWaiting(clsDB::Handle table, std::uint32_t record)
{
    if (d4go(table, record) != r4success)
        return;
    const RowLock lock(table);
    if (lock && !d4deleted(table) && d4delete(table) == r4success)
        storeChange(table);
}

} // namespace

void deleteTogether(clsDB &db, clsDB::Handle table, const QString &tag, const QList<qint32> &keys)
{
    TableUse rows(db, {}, table);
    if (db.IsReadOnly() || !rows.select(tag))
        return;
    const std::vector<std::uint32_t> records = recordsOf(rows, keys);
    SaveGroup group(table);
    {
        const LockAttempts atOnce(db.CBEngine(), 0);
        for (const std::uint32_t record : records)
            deleteWaiting(table, record);
    }
    const LockAttempts tenAttempts(db.CBEngine());
    group.store();
}
