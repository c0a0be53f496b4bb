#include "ctl/CheckReport.h"

#include "ctl/DatabaseFolder.h"
#include "db/maintenance/FolderCheck.h"

namespace ctl
{

using maintenance::Finding;

bool databaseIsThere(const QString &dir, Console &console)
{
    if (!folderIsThere(dir, console))
        return false;
    if (maintenance::FolderFiles(dir).hasDatabase())
        return true;
    console.err << QStringLiteral("The folder '%1' holds no database.\n").arg(shownPath(dir));
    return false;
}

int reportCheck(const QString &dir, Console &console)
{
    maintenance::FolderCheck check(dir);
    const QList<Finding> &findings = check.run();
    qint64 problems = 0;
    for (const Finding &finding : findings) {
        console.out << QStringLiteral("%1%2: %3. %4\n")
                           .arg(finding.serious ? QString() : QStringLiteral("Note: "),
                                finding.file, finding.text, finding.advice);
        problems += finding.serious ? finding.count : 0;
    }
    if (problems == 0) {
        console.out << QStringLiteral("The database in '%1' is sound.\n").arg(shownPath(dir));
        return Done;
    }
    console.err << QStringLiteral("%1 in '%2'.\n")
                       .arg(problems == 1 ? QStringLiteral("1 problem was found")
                                          : QStringLiteral("%1 problems were found").arg(problems),
                            shownPath(dir));
    return Problem;
}

} // namespace ctl
