#include "db/IssuePurge.h"

#include "common/base/Failure.h"
#include "db/TableUse.h"

#include <algorithm>

using namespace norvane::engine;

namespace
{

// Whose rows go in one save; others wait for it no longer than for a few ordinary ones.
constexpr qsizetype Together = 200;

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

PurgeResult IssuePurge::DeleteIssues(const QList<qint32> &ids, const Progress &progress)
{
    const auto all = static_cast<qint32>(ids.size());
    PurgeResult result{0, all};
    guarded("frmPurgeIssues_DeleteIssues", [&] {
        if (!m_db.MayWrite())
            return;
        // A folder that goes away on the way fails every issue that is left.
        const clsDB::TellOnce tellOnce(m_db);
        const TableUse issues(m_db, m_db.IssuesTable());
        if (!issues)
            return;
        const TableUse actions(m_db, m_db.IssuesActionsTable());
        if (!actions)
            return;
        for (qint32 done = 0; done < all && !m_db.IsReadOnly();) {
            const QList<qint32> some = ids.mid(done, Together);
            const QList<qint32> bare =
                deleteWhatBelongsTo(some, actions.handle(), [&] { progress(done, all); });
            deleteTogether(issues.handle(), QStringLiteral("rowid"), bare);
            for (const qint32 id : some) {
                if (bare.contains(id) && m_db.DeleteRecord(id, m_db.IssuesTable(), issues.handle()))
                    ++result.deleted;
                progress(++done, all);
            }
        }
    });
    result.remaining = all - result.deleted;
    return result;
}

// Those issues of which nothing is left but themselves.
QList<qint32> IssuePurge::deleteWhatBelongsTo(const QList<qint32> &ids, clsDB::Handle actions,
                                              const std::function<void()> &goOn)
{
    const QString tag = QStringLiteral("issueid");
    deleteTogether(actions, tag, ids);
    QList<qint32> bare;
    for (const qint32 id : ids) {
        goOn();
        if (m_db.IsReadOnly())
            return {};
        if (m_db.DeleteAllRecords(id, m_db.IssuesActionsTable(), tag, actions) &&
            m_db.DeleteAttachments(id, QStringLiteral("_i")))
            bare.append(id);
    }
    deleteTogether(actions, tag, bare); // what another station added to them meanwhile
    return bare;
}

// One save for all rows that can be had at once. Each is deleted once more by itself afterwards,
// which finds nothing, or waits for the row and tells what is wrong.
void IssuePurge::deleteTogether(clsDB::Handle table, const QString &tag, const QList<qint32> &keys)
{
    TableUse rows(m_db, {}, table);
    if (!rows.select(tag))
        return;
    const std::vector<std::uint32_t> records = recordsOf(rows, keys);
    SaveGroup group(table);
    {
        const LockAttempts atOnce(m_db.CBEngine(), 0);
        for (const std::uint32_t record : records)
            deleteWaiting(table, record);
    }
    const LockAttempts tenAttempts(m_db.CBEngine());
    group.store();
}
