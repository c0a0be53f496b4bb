#include "ctl/CheckReport.h"
#include "ctl/DatabaseFolder.h"
#include "ctl/TableNames.h"

#include "db/clsDB.h"
#include "db/maintenance/Reindex.h"

namespace ctl
{

namespace
{

bool reindex(const clsDB &db, const clsDBFile &files, Console &console)
{
    using maintenance::ReindexOutcome;
    const maintenance::ReindexResult result = maintenance::reindexTable(db, files);
    if (result.outcome == ReindexOutcome::Done) {
        console.out << QStringLiteral("%1 has been re-indexed.\n").arg(shownPath(files.table));
        return true;
    }
    console.err << QStringLiteral("Unable to index file: %1 (%2)\n")
                       .arg(shownPath(files.table), result.reason);
    if (result.outcome == ReindexOutcome::InUse)
        console.err << QStringLiteral("Nothing was changed. Close the database at all other "
                                      "stations and try again.\n");
    if (!result.kept.isEmpty())
        console.err
            << QStringLiteral("The index as it was is kept in '%1'.\n").arg(shownPath(result.kept));
    return false;
}

int run(const Arguments &arguments, Console &console)
{
    const QString dir = arguments.words.first();
    const schema::TableInfo *only = nullptr;
    if (arguments.words.size() > 1) {
        only = tableNamed(arguments.words.at(1));
        if (only == nullptr) {
            console.err << QStringLiteral("'%1' is no table; TABLE is one of %2.\n")
                               .arg(arguments.words.at(1), tableNames().join(QLatin1String(", ")));
            return WrongUse;
        }
    }
    clsDB db;
    if (!databaseIsThere(dir, console) || !logInForMaintenance(db, dir, arguments, console))
        return Problem;
    bool good = true;
    const QList<clsDBFile> all = db.DataFilePaths();
    for (const schema::TableInfo &table : schema::tables())
        if (only == nullptr || only == &table)
            good = reindex(db, all.at(static_cast<int>(table.table)), console) && good;
    return good ? Done : Problem;
}

} // namespace

Command reindexCommand()
{
    return {QStringLiteral("reindex"),
            {QStringLiteral("DIR"), QStringLiteral("[TABLE]")},
            {userOption(), withoutLoginOption()},
            QStringLiteral("Build the index of a table anew, or of all tables"),
            QStringLiteral(
                "The index as it was is kept beside the new one, with a number behind its name. "
                "Needs the\ntable alone: close the database at all stations. TABLE is one of\n"
                "%1,\nor the name of its file.\n\n"
                "The login needs the right of database administration. --without-login is for "
                "folders\nwhose table of users cannot be read, as with repair.")
                .arg(wrappedList(tableNames())),
            run};
}

} // namespace ctl
