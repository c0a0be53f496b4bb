#include "db/IssuePurge.h"

#include "common/base/Failure.h"
#include "db/RowDeletion.h"
#include "db/TableUse.h"

namespace
{

// Whose rows go in one save; others wait for it no longer than for a few ordinary ones.
constexpr qsizetype Together = 200;

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
            deleteTogether(m_db, issues.handle(), QStringLiteral("rowid"), bare);
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

// Those issues of which nothing is left but themselves. What could not go together goes by itself.
QList<qint32> IssuePurge::deleteWhatBelongsTo(const QList<qint32> &ids, clsDB::Handle actions,
                                              const std::function<void()> &goOn)
{
    const QString tag = QStringLiteral("issueid");
    deleteTogether(m_db, actions, tag, ids);
    QList<qint32> bare;
    for (const qint32 id : ids) {
        goOn();
        if (m_db.IsReadOnly())
            return {};
        if (m_db.DeleteAllRecords(id, m_db.IssuesActionsTable(), tag, actions) &&
            m_db.DeleteAttachments(id, QStringLiteral("_i")))
            bare.append(id);
    }
    deleteTogether(m_db, actions, tag, bare); // what another station added to them meanwhile
    return bare;
}
