#include "ctl/DatabaseFolder.h"

#include "db/clsDB.h"
#include "db/volume/VolumeLoad.h"

#include <optional>

namespace ctl
{

namespace
{

constexpr char CustomersOption[] = "--customers";
constexpr char IssuesOption[] = "--issues";
constexpr int MostRows = 1500000; // about where a table's file reaches its largest size
constexpr char16_t FirstLogin[] = u"SYSOP";

// The option's number, or the one usual; nothing after a message.
std::optional<qint32> numberOf(const Arguments &arguments, const char *option, qint32 usual,
                               Console &console)
{
    const QString name = QLatin1String(option);
    if (!arguments.has(name))
        return usual;
    bool isNumber = false;
    const qint32 number = arguments.values.value(name).toInt(&isNumber);
    if (isNumber && number >= 1 && number <= MostRows)
        return number;
    console.err << QStringLiteral("%1 takes a number from 1 to %2.\n").arg(name).arg(MostRows);
    return std::nullopt;
}

int run(const Arguments &arguments, Console &console)
{
    const QString dir = arguments.words.first();
    const auto customers = numberOf(arguments, CustomersOption, 130000, console);
    const auto issues = numberOf(arguments, IssuesOption, 1000000, console);
    if (!customers || !issues)
        return WrongUse;
    if (!prepareNewFolder(dir, console))
        return Problem;
    clsDB db;
    const QString login = QString::fromUtf16(FirstLogin);
    volume::Size size;
    size.customers = *customers;
    size.issues = *issues;
    if (!db.NewDB(dir) || !db.OpenUnattended(dir, login, login) ||
        !volume::fill(db, size, [] { return true; })) {
        console.err
            << QStringLiteral("The database in '%1' was not finished.\n").arg(shownPath(dir));
        return Problem;
    }
    console.out << QStringLiteral("Created a database of %1 customers and %2 issues in '%3'. The "
                                  "login name and password are both SYSOP.\n")
                       .arg(*customers)
                       .arg(*issues)
                       .arg(shownPath(dir));
    return Done;
}

} // namespace

Command bulkCommand()
{
    return {QStringLiteral("bulk"),
            {QStringLiteral("DIR")},
            {{QLatin1String(CustomersOption), QStringLiteral("N"),
              QStringLiteral("how many customers (130000)")},
             {QLatin1String(IssuesOption), QStringLiteral("N"),
              QStringLiteral("how many issues (1000000)")}},
            QStringLiteral("Create a large database for trials"),
            QStringLiteral("Like 'new', and then adds customers, issues, products and users, all "
                           "of them invented\nand the same each time. A million issues take about "
                           "a gigabyte and a few minutes at most.\nThe login name and password are "
                           "both SYSOP."),
            run};
}

} // namespace ctl
