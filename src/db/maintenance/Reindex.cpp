#include "db/maintenance/Reindex.h"

#include "common/base/clsSystem.h"
#include "db/maintenance/Advice.h"
#include "db/SoleUse.h"
#include "db/TableUse.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>

using namespace norvane::engine;

namespace maintenance
{

namespace
{

struct Words {
    Q_DECLARE_TR_FUNCTIONS(Reindex)
};

// A name that is not taken yet: the path with a number behind.
QString asidePath(const QString &path)
{
    int number = 1;
    while (QFile::exists(path % u'.' % QString::number(number)))
        ++number;
    return path % u'.' % QString::number(number);
}

Code rebuild(Handle session, const std::string &path)
{
    const SoleUse alone(session);
    const Handle table = d4open(session, path);
    if (table > 0) {
        const Code code = d4reindex(table);
        return d4close(table) == r4success ? code : r4failure;
    }
    return lastError(session).kind == ErrorKind::Locked ? d4locked : r4failure;
}

} // namespace

ReindexResult reindexTable(const clsDB &db, const clsDBFile &files)
{
    ReindexResult result;
    // The rows give the keys and the tags are known here, but a program folder without its
    // templates is not to be trusted with anything.
    if (!QFile::exists(files.indexSource)) {
        result.reason = Words::tr("the file '%1' is missing; please re-install the program")
                            .arg(QDir::toNativeSeparators(files.indexSource));
        return result;
    }
    // A copy and no move: at no moment an empty or missing index stands under the live name. It is
    // made before the table is opened, since the opening already mends what it finds damaged.
    const QString index = clsSystem::LocalPath(files.index);
    const QString aside = QFile::exists(index) ? asidePath(index) : QString();
    if (!aside.isEmpty() && !clsSystem::FileCopyFn(index, aside)) {
        clsSystem::DeleteFile(aside);
        result.reason = Words::tr("the index could not be copied to '%1'; the folder may be "
                                  "read-only or the disk full")
                            .arg(QDir::toNativeSeparators(aside));
        return result;
    }
    const Handle session = db.CBEngine();
    code4errorCode(session, 0);
    const Code code = rebuild(session, clsSystem::LocalPath(files.table).toStdString());
    const Error failure = lastError(session);
    code4errorCode(session, 0);
    result.kept = aside;
    if (code == r4success) {
        result.outcome = ReindexOutcome::Done;
    } else if (code == d4locked || failure.kind == ErrorKind::Locked) {
        result.outcome = ReindexOutcome::InUse;
        result.reason = Words::tr("it is open at another station");
        clsSystem::DeleteFile(aside);
        result.kept.clear();
    } else {
        result.reason = failureText(failure);
    }
    return result;
}

} // namespace maintenance
