#include "ctl/DatabaseFolder.h"
#include "ctl/ImportTarget.h"

#include "db/clsDB.h"

namespace ctl
{

namespace
{

int run(const Arguments &arguments, Console &console)
{
    const QString dir = arguments.words.at(0);
    const QString file = arguments.words.at(2);
    const std::optional<ImportTarget> target = importTarget(arguments.words.at(1));
    if (!target) {
        console.err << QStringLiteral("'%1' cannot be imported; TARGET is one of %2.\n")
                           .arg(arguments.words.at(1),
                                importTargetNames().join(QStringLiteral(", ")));
        return WrongUse;
    }
    if (!fileIsReadable(file, console))
        return Problem;
    clsDB db;
    if (!logIn(db, dir, arguments, console) || !db.Perm_DBAdmin())
        return Problem;

    const bool verbose = arguments.has(QStringLiteral("--verbose"));
    std::function<void(qint32)> eachRow;
    if (verbose)
        eachRow = [&console](qint32 rowid) {
            console.out << rowid << '\n';
            console.out.flush();
        };
    const std::optional<qint32> count = importFile(db, *target, file, eachRow, console);
    if (!count)
        return Problem;
    // With --verbose standard output holds the rowids and nothing else.
    (verbose ? console.err : console.out)
        << QStringLiteral("Imported %1 %2.\n").arg(*count).arg(target->things);
    return Done;
}

} // namespace

Command importCommand()
{
    return {
        QStringLiteral("import"),
        {QStringLiteral("DIR"), QStringLiteral("TARGET"), QStringLiteral("FILE")},
        {userOption(),
         {QStringLiteral("--verbose"), QString(),
          QStringLiteral("print the rowid of each row as soon as it is saved")}},
        QStringLiteral("Add the rows of a CSV file"),
        QStringLiteral(
            "TARGET is one of\n%1.\n\n"
            "FILE is a comma-separated file in Windows-1252, or in UTF-8 with a byte-order mark. "
            "Its\nfirst row holds the headings: DESCRIPTION for a list; LASTNAME and COMPANY and "
            "any of the\nother columns for customers. The whole file is checked before anything "
            "is written. An\nentry that a list has already is not added again.\n\n"
            "The login needs the right of database administration.")
            .arg(wrappedList(importTargetNames())),
        run};
}

} // namespace ctl
