// How long the lists of a large customer take: build/release/bin/norvane_bench_customer
// [SUBSCRIPTIONS ISSUES], 300 and 2,000 when not given, among as many of other customers again
// times ten. A line a round, the fastest last.
#include "Clock.h"

#include "common/base/AppInfo.h"
#include "db/CustomerLists.h"

#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>

namespace
{

constexpr int kRounds = 7;
constexpr int kOthers = 10; // rows of other customers to each of ours
constexpr int kProducts = 25;

void copyTemplates(const QString &folder)
{
    for (const schema::TableInfo &table : schema::tables()) {
        const QStringList files = table.files();
        const QStringList templates = table.templateFiles();
        for (qsizetype i = 0; i < files.size(); ++i)
            QFile::copy(clsDB::MakePath(app::programFolder(), templates.at(i)),
                        clsDB::MakePath(folder, files.at(i)));
    }
}

void addRow(clsDB &db, schema::Table which, const QString &recType, qint32 custid, int number)
{
    const schema::TableInfo &table = schema::table(which);
    RecColl record(db.TablePath(which), table.dataFile(), -1, recType);
    for (const schema::RecordField &field : schema::recordType(recType)->writes)
        record.add(QLatin1String(field.name), QString());
    record.setExisting(QStringLiteral("custid"), custid);
    record.setExisting(QStringLiteral("psid"), 100 + number % kProducts);
    record.setExisting(QStringLiteral("shortdesc"),
                       QStringLiteral("Something that happened, number %1").arg(number));
    if (which == schema::Table::Issues) {
        record.setExisting(QStringLiteral("status"), 400 + number % 3);
        record.setExisting(QStringLiteral("submitdt"), QStringLiteral("3/14/2004"));
    } else {
        record.setExisting(QStringLiteral("dateinit"), QStringLiteral("3/14/2004"));
        record.setExisting(QStringLiteral("dateterm"), QStringLiteral("3/14/2006"));
    }
    db.SaveRecord(record);
}

// Ours among the others, as they come in over the years.
void addRows(clsDB &db, schema::Table which, const QString &recType, int ours)
{
    constexpr qint32 customer = 1000;
    for (int i = 0; i < ours; ++i) {
        addRow(db, which, recType, customer, i);
        for (int other = 1; other <= kOthers; ++other)
            addRow(db, which, recType, customer + other, i);
    }
}

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = application.arguments();
    const int subscriptions = arguments.value(1, QStringLiteral("300")).toInt();
    const int issues = arguments.value(2, QStringLiteral("2000")).toInt();
    const QTemporaryDir folder;
    copyTemplates(folder.path());
    clsDB db;
    if (!db.OpenUnattended(folder.path(), QStringLiteral("SYSOP"), QStringLiteral("sysop")))
        return 1;
    norvane::engine::code4durability(db.CBEngine(), "process");
    addRows(db, schema::Table::Customer2PS, QStringLiteral("_ps"), subscriptions);
    addRows(db, schema::Table::Issues, QStringLiteral("_issue"), issues);
    double best = 1e9;
    for (int round = 0; round < kRounds; ++round) {
        std::size_t held = 0;
        std::size_t raised = 0;
        const double first =
            1000 * bench::seconds([&] { held = customerSubscriptions(db, 1000).size(); });
        const double second =
            1000 * bench::seconds([&] { raised = customerIssues(db, 1000).size(); });
        std::printf("%zu subscriptions %.1f ms, %zu issues %.1f ms\n", held, first, raised, second);
        best = std::min(best, first + second);
    }
    std::printf("together %.1f ms\n", best);
    return 0;
}
