#include "ctl/CheckReport.h"
#include "ctl/DatabaseFolder.h"

#include "db/clsDB.h"
#include "db/maintenance/FolderRepair.h"

namespace ctl
{

namespace
{

int run(const Arguments &arguments, Console &console)
{
    const QString dir = arguments.words.first();
    clsDB db; // stays, so that other stations see somebody at work
    if (!databaseIsThere(dir, console) || !logInForMaintenance(db, dir, arguments, console))
        return Problem;
    bool left = false;
    {
        maintenance::FolderRepair repair(dir);
        const QList<maintenance::RepairStep> &steps = repair.run();
        for (const maintenance::RepairStep &step : steps) {
            console.out << QStringLiteral("%1: %2: %3.\n")
                               .arg(step.mended ? QStringLiteral("Repaired")
                                                : QStringLiteral("Not repaired"),
                                    step.file, step.text);
            left = left || !step.mended;
        }
    }
    const int sound = reportCheck(dir, console);
    return left ? Problem : sound;
}

} // namespace

Command repairCommand()
{
    return {
        QStringLiteral("repair"),
        {QStringLiteral("DIR")},
        {userOption(), withoutLoginOption()},
        QStringLiteral("Repair the files of a database"),
        QStringLiteral(
            "Puts right what the files themselves prove: saves that were left unfinished, row "
            "counts,\nindexes that are missing or do not match their rows, counters. One line on "
            "standard output\ntells each thing that was repaired or not; then the folder is "
            "checked, and what is left\nis told with advice. What is damaged beyond that is never "
            "guessed at.\n\n"
            "Make a copy of the folder first, and close the database at all stations: a table "
            "that is\nin use is left alone.\n\n"
            "The login needs the right of database administration. When the table of users "
            "itself\ncannot be read, nobody can log in; --without-login then repairs for whoever "
            "may change\nthe files of the folder."),
        run};
}

} // namespace ctl
