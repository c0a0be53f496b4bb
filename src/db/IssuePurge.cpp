#include "db/IssuePurge.h"

#include "common/base/Failure.h"
#include "db/TableUse.h"

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
        for (qint32 done = 0; done < all;) {
            if (deleteIssue(ids.at(done), issues.handle(), actions.handle())) {
                ++result.deleted;
                --result.remaining;
            }
            progress(++done, all);
        }
    });
    return result;
}

bool IssuePurge::deleteIssue(qint32 id, clsDB::Handle issues, clsDB::Handle actions)
{
    return m_db.DeleteAllRecords(id, m_db.IssuesActionsTable(), QStringLiteral("issueid"),
                                 actions) &&
           m_db.DeleteAttachments(id, QStringLiteral("_i")) &&
           m_db.DeleteRecord(id, m_db.IssuesTable(), issues);
}
