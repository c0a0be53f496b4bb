#include "ctl/DatabaseFolder.h"
#include "ctl/DemoRecords.h"
#include "ctl/ImportTarget.h"

#include "common/base/AppInfo.h"
#include "db/clsDB.h"

namespace ctl
{

namespace
{

struct DemoFile {
    const char *target;
    const char *file;
};

// Lists first: the customers find their categories there.
constexpr DemoFile DemoFiles[] = {
    {"categories", "categories.csv"},
    {"products", "products.csv"},
    {"customers", "customers.csv"},
};

constexpr char16_t FirstLogin[] = u"SYSOP";

bool fill(clsDB &db, Console &console)
{
    const QString folder = clsDB::MakePath(app::programFolder(), QStringLiteral("demo"));
    for (const DemoFile &demo : DemoFiles) {
        const QString path = clsDB::MakePath(folder, QLatin1String(demo.file));
        const std::optional<ImportTarget> target = importTarget(QLatin1String(demo.target));
        if (!target || !fileIsReadable(path, console))
            return false;
        const std::optional<qint32> count = importFile(db, *target, path, {}, console);
        if (!count)
            return false;
        console.out << QStringLiteral("Added %1 %2.\n").arg(*count).arg(target->things);
    }
    return addDemoRecords(db, folder, console);
}

int run(const Arguments &arguments, Console &console)
{
    const QString dir = arguments.words.first();
    if (!prepareNewFolder(dir, console))
        return Problem;
    clsDB db;
    const QString login = QString::fromUtf16(FirstLogin);
    if (!db.NewDB(dir) || !db.OpenUnattended(dir, login, login) || !fill(db, console)) {
        console.err << QStringLiteral("The demonstration database in '%1' was not finished.\n")
                           .arg(shownPath(dir));
        return Problem;
    }
    console.out << QStringLiteral("Created a demonstration database in '%1'. The login name and "
                                  "password are both SYSOP.\n")
                       .arg(shownPath(dir));
    return Done;
}

} // namespace

Command demoCommand()
{
    return {QStringLiteral("demo"),
            {QStringLiteral("DIR")},
            {},
            QStringLiteral("Create a database with made-up customers"),
            QStringLiteral("Like 'new', and then adds the customers and lists that come with "
                           "Norvane, in the way\nan import does, and what they hold and have "
                           "raised, with dates up to today. The login\nname and password are "
                           "both SYSOP; of the four users that are added, each one's\npassword is "
                           "the login name. All persons, firms, telephone numbers and addresses "
                           "are\ninvented."),
            run};
}

} // namespace ctl
