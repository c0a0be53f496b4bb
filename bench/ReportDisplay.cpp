// How long a large report takes until it can be shown: build/release/bin/norvane_bench_report
// [ISSUES [CUSTOMERS [ROUNDS]]], 100,000, 20,000 and 5 when not given. All issues with customer,
// product and status by their names, in the order of the customers; SQLite, which has the
// customers' names put together already, answers by a joined and sorted query, by turns in the same
// run. Fails when the two find different rows.
#include "Clock.h"
#include "Sqlite.h"

#include "db/report/ReportRun.h"
#include "db/TableUse.h"
#include "db/volume/VolumeLoad.h"

#include <QCoreApplication>
#include <QTemporaryDir>

#include <algorithm>
#include <array>
#include <cstdio>

namespace
{

const QString kDefinition = QStringLiteral("0\n302~303~307~301\n\n\n\n0\n1");

constexpr char kQuery[] =
    "SELECT c.detail, p.text, s.text, i.id FROM issues i LEFT JOIN customers c ON c.id = i.custid"
    " LEFT JOIN entries p ON p.id = i.psid LEFT JOIN entries s ON s.id = i.status"
    " ORDER BY c.detail COLLATE NOCASE";

std::string bytes(const TableUse &rows, const char *field)
{
    return rows.text(QString::fromLatin1(field)).toStdString();
}

int number(const TableUse &rows, const char *field)
{
    return rows.number(QString::fromLatin1(field));
}

// One of our tables into one of SQLite's, row by row.
template <class Bind>
void copyRows(const bench::Connection &to, const QString &path, const char *insert, Bind bind)
{
    TableUse rows(gDB, path);
    bench::Statement statement(to, insert);
    to.run("BEGIN");
    for (bool more = rows.top(); more; more = rows.next())
        bind(rows, statement);
    to.run("COMMIT");
}

void copyToSqlite(const bench::Connection &to)
{
    to.run("CREATE TABLE issues (id INTEGER PRIMARY KEY, custid INT, psid INT, status INT)");
    to.run("CREATE TABLE customers (id INTEGER PRIMARY KEY, detail TEXT)");
    to.run("CREATE TABLE entries (id INTEGER PRIMARY KEY, text TEXT)");
    copyRows(to, gDB.IssuesTable(), "INSERT INTO issues VALUES (?, ?, ?, ?)",
             [](const TableUse &rows, bench::Statement &insert) {
                 insert.bind(number(rows, "rowid"))
                     .bind(number(rows, "custid"))
                     .bind(number(rows, "psid"))
                     .bind(number(rows, "status"))
                     .run();
             });
    copyRows(to, gDB.CustomerTable(), "INSERT INTO customers VALUES (?, ?)",
             [](const TableUse &rows, bench::Statement &insert) {
                 const int id = number(rows, "rowid");
                 const std::string detail = gDB.GetCustomerDetail(id).toStdString();
                 insert.bind(id).bind(detail).run();
             });
    copyRows(to, gDB.CategoryTable(), "INSERT INTO entries VALUES (?, ?)",
             [](const TableUse &rows, bench::Statement &insert) {
                 const std::string text = bytes(rows, "desc");
                 insert.bind(number(rows, "rowid")).bind(text).run();
             });
}

ReportTable ours()
{
    clsRepDefParser definition;
    definition.InitFromRptDef(kDefinition);
    ReportTable table;
    table.columns = ReportRun::columns(definition);
    ReportRun(QStringLiteral("I"), definition).run(table, [](qint32) { return true; });
    table.sortBy(table.firstDataColumn());
    return table;
}

using SqliteRow = std::array<std::string, 4>;

std::vector<SqliteRow> sqlites(const bench::Connection &from)
{
    bench::Statement query(from, kQuery);
    std::vector<SqliteRow> rows;
    while (query.step()) {
        SqliteRow row;
        for (int column = 0; column < 4; ++column)
            row[static_cast<std::size_t>(column)] = query.text(column);
        rows.push_back(std::move(row));
    }
    return rows;
}

// The same rows, whatever the order of the letters is.
bool alike(const ReportTable &table, std::vector<SqliteRow> rows)
{
    std::vector<SqliteRow> mine;
    for (const ReportTable::Row &row : table.rows)
        mine.push_back({row.cells.value(0).toStdString(), row.cells.value(1).toStdString(),
                        row.cells.value(2).toStdString(), row.cells.value(3).toStdString()});
    std::sort(mine.begin(), mine.end());
    std::sort(rows.begin(), rows.end());
    return mine == rows;
}

bool fill(const QString &folder, int issues, int customers)
{
    volume::Size size;
    size.customers = customers;
    size.issues = issues;
    const QString login = QStringLiteral("SYSOP");
    return gDB.NewDB(folder) && gDB.OpenUnattended(folder, login, login.toLower()) &&
           volume::fill(gDB, size, [] { return true; });
}

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    const QTemporaryDir folder;
    if (!fill(folder.path(), arguments.value(1, QStringLiteral("100000")).toInt(),
              arguments.value(2, QStringLiteral("20000")).toInt())) {
        std::fputs("norvane_bench_report: no database\n", stderr);
        return 1;
    }
    const bench::Connection sqlite(folder.filePath(QStringLiteral("peer.sqlite")).toStdString(),
                                   false);
    copyToSqlite(sqlite);
    const int rounds = arguments.value(3, QStringLiteral("5")).toInt();
    double mine = 1e9;
    double peers = 1e9;
    for (int round = 0; round < rounds; ++round) {
        ReportTable table;
        std::vector<SqliteRow> rows;
        mine = std::min(mine, bench::seconds([&] { table = ours(); }));
        peers = std::min(peers, bench::seconds([&] { rows = sqlites(sqlite); }));
        if (round == 0 && !alike(table, rows)) {
            std::fputs("norvane_bench_report: not the rows that SQLite found\n", stderr);
            return 1;
        }
    }
    std::printf("report_display %.3f s, SQLite %.3f s, ratio %.2f\n", mine, peers, mine / peers);
    return 0;
}
