// Deletes issues for good, each with its actions and attachments. An issue goes last, behind what
// belongs to it: whatever ends the work early, nothing is left without its issue, and deleting the
// same issues again finishes it.
#pragma once

#include "db/clsDB.h"

#include <QList>

#include <functional>

struct PurgeResult {
    qint32 deleted = 0;   // issues that are gone, by whoever
    qint32 remaining = 0; // of those given
};

class IssuePurge
{
public:
    // Called now and then, and behind each issue, with the number of those done and of all.
    using Progress = std::function<void(qint32 done, qint32 all)>;

    explicit IssuePurge(clsDB &db) : m_db(db) {}

    // The numbers of issues; edit marks are not asked. What could not be deleted was or will be
    // told, and does not hold up the rest.
    PurgeResult DeleteIssues(const QList<qint32> &ids, const Progress &progress);

private:
    QList<qint32> deleteWhatBelongsTo(const QList<qint32> &ids, clsDB::Handle actions,
                                      const std::function<void()> &goOn);

    clsDB &m_db;
};
