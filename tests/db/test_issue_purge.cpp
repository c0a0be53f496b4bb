// The deletion of many issues with what belongs to them.
#include "DbTest.h"

#include "db/IssuePurge.h"
#include "db/TableUse.h"
#include "support/Station.h"

#include <QDir>
#include <QFile>
#include <QSet>

#include <chrono>
#include <thread>

using schema::Table;

namespace
{

class IssuePurging : public DbTest
{
protected:
    // An issue with two actions and an attachment.
    qint32 addIssue()
    {
        const qint32 id = db.addIssue({{"shortdesc", "old"}, {"status", 401}});
        for (const char *what : {"first", "second"})
            db.add(u"_issueaction"_s, {{"issueid", id}, {"desc", what}});
        attach(id);
        return id;
    }
    static void attach(qint32 id)
    {
        const QString folder = gDB.GetAttachmentSubDir(id, u"_i"_s);
        EXPECT_TRUE(QDir().mkpath(folder));
        QFile file(folder + u"/note.txt");
        EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write("x") == 1);
    }
    static QSet<qint32> values(Table table, const char *field)
    {
        QSet<qint32> found;
        TableUse rows(gDB, gDB.TablePath(table));
        rows.select(u"rowid"_s);
        for (bool more = rows.top(); more; more = rows.next())
            found.insert(rows.number(QLatin1String(field)));
        return found;
    }
    static QSet<qint32> issues() { return values(Table::Issues, "rowid"); }
    // Actions and folders whose issue is not there.
    static QStringList orphans()
    {
        const QSet<qint32> present = issues();
        QStringList found;
        for (const qint32 id : values(Table::IssuesActions, "issueid") - present)
            found += u"action of %1"_s.arg(id);
        for (const QString &name : QDir(gDB.AttachPath()).entryList({u"_i_*"_s}, QDir::Dirs))
            if (!present.contains(name.mid(3).toInt()))
                found += name;
        return found;
    }
    static PurgeResult purge(const QList<qint32> &ids)
    {
        return IssuePurge(gDB).DeleteIssues(ids, [](qint32, qint32) {});
    }
};

} // namespace

TEST_F(IssuePurging, TakesWhatBelongsToTheIssuesAndNothingElse)
{
    const qint32 kept = addIssue();
    const qint32 gone = addIssue();
    const qint32 edited = addIssue();
    gDB.SetEditInfo(gDB.IssuesTable(), u"nvnissues.dbf"_s, edited, false);
    std::vector<qint32> steps;
    const PurgeResult result =
        IssuePurge(gDB).DeleteIssues({gone, 99999, edited}, [&steps](qint32 done, qint32 all) {
            EXPECT_EQ(all, 3);
            if (steps.empty() || steps.back() != done)
                steps.push_back(done);
        });
    EXPECT_EQ(result.deleted, 3) << "one that is gone already counts as deleted";
    EXPECT_EQ(result.remaining, 0);
    EXPECT_EQ(steps, (std::vector<qint32>{0, 1, 2, 3}));
    EXPECT_EQ(issues(), QSet<qint32>{kept});
    EXPECT_EQ(values(Table::IssuesActions, "issueid"), QSet<qint32>{kept});
    EXPECT_TRUE(QFile::exists(gDB.GetAttachmentSubDir(kept, u"_i"_s) + u"/note.txt"));
    EXPECT_EQ(orphans(), QStringList());
}

TEST_F(IssuePurging, AnIssueThatIsLockedStaysAndTheRestGoes)
{
    const QList<qint32> ids{addIssue(), addIssue(), addIssue()};
    hurry(gDB);
    Station other(db.path());
    ASSERT_EQ(other.ask(u"lockrow nvnissues.dbf %1"_s.arg(ids[1])), "ok");
    person.expect("RECORD LOCKED: Unable to Delete from");
    const PurgeResult result = purge(ids);
    EXPECT_EQ(result.deleted, 2);
    EXPECT_EQ(result.remaining, 1);
    EXPECT_EQ(issues(), QSet<qint32>{ids[1]});
    ASSERT_EQ(other.ask(u"unlock"_s), "ok");
    EXPECT_EQ(purge(ids).remaining, 0);
    EXPECT_EQ(issues(), QSet<qint32>());
    EXPECT_EQ(orphans(), QStringList());
}

// With whatever delay the process dies, an issue that is gone took everything along.
TEST_F(IssuePurging, WhatAKilledPurgeLeftTheNextOneFinishes)
{
    constexpr int many = 120;
    QList<qint32> ids;
    for (int i = 0; i < many; ++i)
        ids += addIssue();
    for (int round = 0; round < 3 && !issues().isEmpty(); ++round) {
        const qsizetype before = issues().size();
        Station victim(db.path());
        victim.send(u"purge %1 %2"_s.arg(ids.first()).arg(ids.last()));
        using namespace std::chrono_literals;
        for (int looks = 0; looks < 4000 && issues().size() > before - 5; ++looks)
            std::this_thread::sleep_for(5ms);
        EXPECT_LT(issues().size(), before);
        victim.kill();
        EXPECT_EQ(orphans(), QStringList());
    }
    EXPECT_EQ(purge(ids).remaining, 0);
    EXPECT_EQ(issues(), QSet<qint32>());
    EXPECT_EQ(values(Table::IssuesActions, "rowid"), QSet<qint32>());
    EXPECT_EQ(orphans(), QStringList());
}
