// Edit marks: who edits a row from which station. A mark warns and never refuses.
#include "db/clsDB.h"

#include "common/base/clsSystem.h"
#include "common/base/Failure.h"
#include "db/Screens.h"

#include <QCoreApplication>

namespace
{

struct Words {
    Q_DECLARE_TR_FUNCTIONS(clsDB)
};

const QString LockInfo = QStringLiteral("_lockinfo");

} // namespace

bool clsDB::GetUnderEditInfo(const QString &path, const QString &tableName, qint32 rowid,
                             qint32 &userid, QString &station)
{
    return guarded("clsDB_GetUnderEditInfo", false, [&] {
        RecColl mark(path, tableName, rowid, LockInfo);
        if (!ReadRecord(mark, true))
            return false;
        userid = mark.number(QStringLiteral("underedit"));
        station = mark.text(QStringLiteral("edtstation"));
        return true;
    });
}

bool clsDB::CheckIfRecExists(const QString &path, const QString &tableName, qint32 rowid,
                             bool NoMsg)
{
    qint32 userid = 0;
    QString station;
    if (GetUnderEditInfo(path, tableName, rowid, userid, station))
        return true;
    if (!NoMsg) {
        clsSystem::ShowMsg(
            Words::tr("Record cannot be accessed or no longer exists. It may have been "
                      "deleted by another user."));
    }
    return false;
}

bool clsDB::CheckIfRecNotUnderEdit(const QString &path, const QString &tableName, qint32 rowid)
{
    return guarded("clsDB_CheckIfRecNotUnderEdit", true, [&] {
        qint32 userid = 0;
        QString station;
        if (!GetUnderEditInfo(path, tableName, rowid, userid, station) || userid < 1)
            return true;
        const auto &ask = screens().askUnderEdit;
        return ask && ask(GetUsername(userid), station);
    });
}

void clsDB::SetEditInfo(const QString &path, const QString &tableName, qint32 rowid, bool Clear)
{
    guarded("clsDB_SetEditInfo", [&] {
        // A mark that cannot be set is no reason to keep anybody from looking.
        if (rowid < 1 || IsReadOnly())
            return;
        // Only one's own mark is cleared: the row may have a new editor by now.
        qint32 userid = 0;
        QString station;
        if (Clear && GetUnderEditInfo(path, tableName, rowid, userid, station) &&
            userid != m_nLoginID)
            return;
        RecColl mark(path, tableName, rowid, LockInfo);
        mark.add(QStringLiteral("editoper"), Clear ? QStringLiteral("C") : QStringLiteral("S"));
        SaveRecord(mark, true);
    });
}
