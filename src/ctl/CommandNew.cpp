#include "ctl/DatabaseFolder.h"

#include "db/clsDB.h"

namespace ctl
{

namespace
{

int run(const Arguments &arguments, Console &console)
{
    const QString dir = arguments.words.first();
    if (!prepareNewFolder(dir, console))
        return Problem;
    clsDB db;
    if (!db.NewDB(dir))
        return Problem;
    console.out << QStringLiteral("Created an empty database in '%1'. The first login name and "
                                  "password are both SYSOP.\n")
                       .arg(shownPath(dir));
    return Done;
}

} // namespace

Command newCommand()
{
    return {QStringLiteral("new"),
            {QStringLiteral("DIR")},
            {},
            QStringLiteral("Create an empty database"),
            QStringLiteral("DIR is created when it is not there. A folder that already holds "
                           "files of a database\nis refused; other files in it do not matter. "
                           "The first login name and password are\nboth SYSOP."),
            run};
}

} // namespace ctl
