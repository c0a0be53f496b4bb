// How long the import of a spreadsheet takes: build/release/bin/norvane_bench_import
// [ROWS [CUSTOMERS]], 50,000 rows with all columns into 130,000 customers when not given. SQLite
// gets the same values by prepared statements into a table with the same indexes, a durable
// transaction every 1,000 rows, in the same run. Fails when not every row was stored.
#include "Clock.h"
#include "Sqlite.h"

#include "db/clsDB.h"
#include "db/import/ImportRun.h"
#include "db/Schema.h"
#include "db/volume/VolumeLoad.h"
#include "db/volume/VolumeTexts.h"

#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>

#include <cstdio>

namespace
{

constexpr int kRowsInTransaction = 1000;
constexpr std::uint64_t kFirstNew = 5000000; // makes other people than the folder's own

using Row = std::vector<std::string>; // by the order of customerImportColumns()

Row makeRow(std::uint64_t number)
{
    static const char *const states[] = {"North", "South", "East", "West", "Highlands", "Coast"};
    const volume::Customer one = volume::makeCustomer(number);
    const std::string digits = std::to_string(number);
    return {"K" + digits,
            "Ms.",
            one.firstName,
            one.lastName,
            one.company,
            "Manager",
            one.address,
            "Floor " + digits.substr(4),
            one.city,
            states[number % std::size(states)],
            one.postalCode,
            number % 3 == 0 ? "Freedonia" : "Ruritania",
            "Custom " + digits,
            "Group " + std::to_string(number % 40),
            one.phone,
            one.phone + "1",
            one.phone + "2",
            one.phone + "3",
            one.email,
            "a." + one.email,
            number % 5 == 0 ? "Gold" : "Silver",
            "Came with the list of " + digits + ", to be called in spring."};
}

QStringList headings()
{
    QStringList names;
    for (const clsImportColDef &column : customerImportColumns())
        names << column.name;
    return names;
}

bool writeCsv(const QString &path, const std::vector<Row> &rows)
{
    QByteArray text = headings().join(u',').toLatin1() + "\r\n";
    for (const Row &row : rows) {
        QByteArrayList cells;
        for (const std::string &value : row)
            cells << '"' + QByteArray::fromStdString(value) + '"';
        text += cells.join(',') + "\r\n";
    }
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(text) == text.size();
}

// The customers' table with its indexes, and as many rows as the folder has.
void prepare(const bench::Connection &peer, int customers)
{
    std::string columns = "ROWID_ INTEGER PRIMARY KEY";
    for (const clsImportColDef &column : customerImportColumns())
        columns += ", " + column.target.toUpper().toStdString() + " TEXT";
    peer.run("CREATE TABLE customers (" + columns + ")");
    for (const auto &tag : schema::table(schema::Table::Customer).def.tags) {
        if (tag.name != "ROWID")
            peer.run("CREATE INDEX " + tag.name + "_ ON customers (" + tag.expression + ")");
    }
    peer.run("CREATE TABLE entries (id INTEGER PRIMARY KEY, text TEXT UNIQUE)");
    bench::Statement insert(peer, "INSERT INTO customers (CUSTNO, FIRSTNAME, LASTNAME, COMPANY,"
                                  " WORKPHONE) VALUES (?, ?, ?, ?, ?)");
    peer.run("BEGIN");
    for (int number = 0; number < customers; ++number) {
        const auto one = volume::makeCustomer(static_cast<std::uint64_t>(number));
        const std::string custno = std::to_string(number);
        insert.bind(custno).bind(one.firstName).bind(one.lastName);
        insert.bind(one.company).bind(one.phone).run();
    }
    peer.run("COMMIT");
}

void insertAll(const bench::Connection &peer, const std::vector<Row> &rows)
{
    std::string names = "INSERT INTO customers VALUES (NULL";
    for (qsizetype i = 0; i < customerImportColumns().size(); ++i)
        names += ", ?";
    bench::Statement insert(peer, (names + ")").c_str());
    int waiting = 0;
    peer.run("BEGIN");
    for (const Row &row : rows) {
        for (const std::string &value : row)
            insert.bind(value);
        insert.run();
        if (++waiting == kRowsInTransaction) {
            peer.run("COMMIT");
            peer.run("BEGIN");
            waiting = 0;
        }
    }
    peer.run("COMMIT");
}

bool fill(const QString &folder, int customers)
{
    volume::Size size;
    size.customers = customers;
    const QString login = QStringLiteral("SYSOP");
    return gDB.NewDB(folder) && gDB.OpenUnattended(folder, login, login.toLower()) &&
           volume::fill(gDB, size, [] { return true; });
}

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    const int count = arguments.value(1, QStringLiteral("50000")).toInt();
    const int customers = arguments.value(2, QStringLiteral("130000")).toInt();
    // Not the system's folder for temporary files, which may lie in memory.
    const QTemporaryDir folder(QStringLiteral("norvane-bench-XXXXXX"));
    const QString csv = folder.filePath(QStringLiteral("customers.csv"));
    std::vector<Row> rows;
    for (int i = 0; i < count; ++i)
        rows.push_back(makeRow(kFirstNew + static_cast<std::uint64_t>(i)));
    if (!fill(folder.path(), customers) || !writeCsv(csv, rows)) {
        std::fputs("norvane_bench_import: no database\n", stderr);
        return 1;
    }
    const bench::Connection peer(folder.filePath(QStringLiteral("peer.sqlite")).toStdString(),
                                 true);
    prepare(peer, customers);

    ImportResult result;
    const double mine = bench::seconds([&] {
        result = ImportRun(gDB, ImportRun::NewCustomers, headings(), count).ImportData_Detail(csv);
    });
    if (!result.ok || result.stored != count) {
        std::fprintf(stderr, "norvane_bench_import: %d of %d rows stored\n", result.stored, count);
        return 1;
    }
    const double peers = bench::seconds([&] { insertAll(peer, rows); });
    std::printf("import_%d\t%.2f s (%.0f rows/s)\t%.2f s (%.0f rows/s)\t%.2f\n", count, mine,
                count / mine, peers, count / peers, mine / peers);
    return 0;
}
