#include "ctl/DatabaseFolder.h"
#include "ctl/TableDump.h"
#include "ctl/TableNames.h"

#include "db/clsDB.h"

#include <QDir>

namespace ctl
{

namespace
{

// The name of the data file as the command line gives it: a table's name or a file's. Empty when
// it is neither.
QString wantedFile(const QString &name)
{
    if (const schema::TableInfo *table = tableNamed(name))
        return table->dataFile();
    return name.endsWith(QLatin1String(".dbf"), Qt::CaseInsensitive) ? name : QString();
}

// As it is written in the folder; empty when it is not there.
QString fileInFolder(const QString &dir, const QString &wanted)
{
    const QStringList files = QDir(dir).entryList(QDir::Files);
    for (const QString &file : files)
        if (file.compare(wanted, Qt::CaseInsensitive) == 0)
            return file;
    return {};
}

int run(const Arguments &arguments, Console &console)
{
    const QString dir = arguments.words.at(0);
    if (!folderIsThere(dir, console))
        return Problem;
    const QString wanted = wantedFile(arguments.words.at(1));
    if (wanted.isEmpty()) {
        console.err << QStringLiteral("'%1' is no table; TABLE is one of %2, or a table file.\n")
                           .arg(arguments.words.at(1), tableNames().join(QStringLiteral(", ")));
        return WrongUse;
    }
    const QString file = fileInFolder(dir, wanted);
    if (file.isEmpty()) {
        console.err << QStringLiteral("There is no file '%1' in the folder '%2'.\n")
                           .arg(wanted, shownPath(dir));
        return Problem;
    }
    clsDB db;
    if (!db.OpenForReading(dir))
        return Problem;
    const clsDB::Handle table = db.OpenTable(clsDB::MakePath(dir, file));
    if (table < 1)
        return Problem;
    const bool damaged = bool(norvane::engine::lastError(db.CBEngine()));
    const RowFormat format =
        arguments.has(QStringLiteral("--csv")) ? RowFormat::Csv : RowFormat::Json;
    const bool whole = dumpTable(table, format, console) && !damaged;
    db.CloseTable(table);
    if (!whole && console.out.status() == QTextStream::Ok)
        console.err << QStringLiteral("The table '%1' could not be read in full.\n").arg(file);
    return whole ? Done : Problem;
}

} // namespace

Command dumpCommand()
{
    return {QStringLiteral("dump"),
            {QStringLiteral("DIR"), QStringLiteral("TABLE")},
            {{QStringLiteral("--csv"), QString(),
              QStringLiteral("comma-separated values with a heading row instead of JSON")}},
            QStringLiteral("Write the rows of a table to standard output"),
            QStringLiteral("One JSON object a line, in the order of the rowid, deleted rows left "
                           "out. Field names are\nin lower case, identifiers are numbers, memos "
                           "are whole, dates stand as stored (YYYYMMDD).\n\nTABLE is one of\n"
                           "%1,\nor the name of a table file in the folder, such as nvncust.dbf.")
                .arg(wrappedList(tableNames())),
            run};
}

} // namespace ctl
