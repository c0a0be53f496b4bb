#include "ctl/CheckReport.h"
#include "ctl/Command.h"

namespace ctl
{

namespace
{

int run(const Arguments &arguments, Console &console)
{
    const QString dir = arguments.words.first();
    return databaseIsThere(dir, console) ? reportCheck(dir, console) : Problem;
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
                "of something\nallowed. Nothing is changed. The exit code is 1 when there is a "
                "problem."),
            run};
}

} // namespace ctl
