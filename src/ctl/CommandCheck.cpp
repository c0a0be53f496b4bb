#include "ctl/DatabaseFolder.h"
#include "ctl/FolderCheck.h"

namespace ctl
{

namespace
{

int run(const Arguments &arguments, Console &console)
{
    const QString dir = arguments.words.first();
    if (!folderIsThere(dir, console))
        return Problem;
    FolderCheck check(dir);
    if (!check.hasDatabase()) {
        console.err << QStringLiteral("The folder '%1' holds no database.\n").arg(shownPath(dir));
        return Problem;
    }
    const QList<Finding> &findings = check.run();
    for (const Finding &finding : findings)
        console.out << QStringLiteral("%1%2: %3. %4\n")
                           .arg(finding.serious ? QString() : QStringLiteral("Note: "),
                                finding.file, finding.text, finding.advice);
    qint64 problems = 0;
    for (const Finding &finding : findings)
        problems += finding.serious ? finding.count : 0;
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

} // namespace

Command checkCommand()
{
    return {QStringLiteral("check"),
            {QStringLiteral("DIR")},
            {},
            QStringLiteral("Check the files of a database"),
            QStringLiteral(
                "Reads every table with its index and memo file, compares them, and looks at the\n"
                "identifiers and counters. One line on standard output for each finding says "
                "which\nfile, what is wrong, and what to do. Lines that begin with \"Note:\" tell "
                "of something\nallowed. The exit code is 1 when there is a problem."),
            run};
}

} // namespace ctl
