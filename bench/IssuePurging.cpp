// Purging old issues of a large folder: norvane_bench_purge FOLDER COUNT
// gives the first COUNT issues two actions each and every tenth an attachment, and deletes
// them as the wizard does. Prints what one issue costs.
#include "Clock.h"

#include "db/IssuePurge.h"
#include "db/search/IssueSearch.h"
#include "db/SoleUse.h"
#include "db/TableUse.h"
#include "db/volume/RowAdder.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>

#include <algorithm>
#include <cstdio>

namespace
{

QList<qint32> firstIssues(qsizetype count)
{
    QList<qint32> ids;
    const TableUse issues(gDB, gDB.IssuesTable());
    IssueSearch(issues.handle())
        .search(
            {}, [&ids](const IssueHit &hit) { ids.append(hit.rowid); },
            [&] { return ids.size() < count; });
    return ids;
}

bool addActions(const QList<qint32> &ids)
{
    const SoleUse alone(gDB.CBEngine(), SoleUse::Locks::NotNeeded);
    volume::RowAdder rows(gDB, schema::Table::IssuesActions);
    const QString actions = schema::table(schema::Table::IssuesActions).dataFile();
    qint32 next = gDB.GetNextID(actions);
    if (next <= 0)
        return false;
    for (const qint32 id : ids) {
        for (const char *what : {"Called the customer", "Sent a technician"}) {
            rows.begin(next++);
            rows.number("issueid", id);
            rows.text("desc", what);
            rows.memo("notes", "The customer was not in and will be called again tomorrow.");
            if (!rows.store())
                return false;
        }
    }
    return gDB.GetNextID(actions) > 0; // behind the last row
}

void attach(qint32 id)
{
    const QString folder = gDB.GetAttachmentSubDir(id, QStringLiteral("_i"));
    QDir().mkpath(folder);
    QFile file(folder + QStringLiteral("/note.txt"));
    if (file.open(QIODevice::WriteOnly))
        file.write("x");
}

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    const QStringList words = QCoreApplication::arguments();
    const qsizetype count = words.value(2).toLongLong();
    const QString login = QStringLiteral("SYSOP");
    if (count < 1 || !gDB.OpenUnattended(words.at(1), login, login)) {
        std::fputs("norvane_bench_purge FOLDER COUNT\n", stderr);
        return 2;
    }
    const QList<qint32> ids = firstIssues(count);
    if (!addActions(ids))
        return 1;
    for (qsizetype i = 0; i < ids.size(); i += 10)
        attach(ids.at(i));
    PurgeResult result;
    const double seconds =
        bench::seconds([&] { result = IssuePurge(gDB).DeleteIssues(ids, [](qint32, qint32) {}); });
    std::printf("%d issues deleted, %d remain: %.1f s, %.0f us an issue\n", result.deleted,
                result.remaining, seconds, seconds * 1e6 / std::max<double>(1, result.deleted));
    return result.remaining == 0 ? 0 : 1;
}
