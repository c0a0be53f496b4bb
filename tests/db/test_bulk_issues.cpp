// The made-up issues for trials of volume.
#include "DbTest.h"

#include "db/TableUse.h"
#include "support/Station.h"

TEST_F(DbTest, BulkIssuesAreNumberedInTurnAndStayWhenCancelled)
{
    person.cancelProgressAt(1);
    gDB.AddBulkIssues();
    ASSERT_EQ(person.progress().size(), 1U);
    EXPECT_EQ(person.progress().front().title, "Adding issues");
    EXPECT_TRUE(person.progress().front().closed);
    EXPECT_EQ(person.progress().front().percents, std::vector<int>{1});
    EXPECT_EQ(gDB.GetRecCount(gDB.IssuesTable(), u"rowid"_s), 10000);
    const struct {
        qint32 rowid, psid, custid, status;
    } cases[] = {{1, 1001, 1, 401}, {999, 1999, 999, 401}, {1000, 1001, 1000, 400}};
    for (const auto &issue : cases) {
        const auto stored = [&](const char *field) {
            return db.stored(schema::Table::Issues, issue.rowid, QLatin1String(field));
        };
        EXPECT_EQ(stored("psid"), QString::number(issue.psid));
        EXPECT_EQ(stored("custid"), QString::number(issue.custid));
        EXPECT_EQ(stored("status"), QString::number(issue.status));
        EXPECT_EQ(stored("shortdesc"), u"%1 : issue short desc"_s.arg(issue.rowid));
        EXPECT_EQ(stored("desc"), u"%1 : issue memo description"_s.arg(issue.rowid));
    }
}

TEST_F(DbTest, BulkIssuesNeedTheTableAlone)
{
    const qint32 issue = db.addIssue({{"shortdesc", "here"}});
    Station other(db.path());
    ASSERT_EQ(other.ask(u"lockrow nvnissues.dbf %1"_s.arg(issue)), "ok");
    person.expect("Unable to open: ");
    gDB.AddBulkIssues();
    EXPECT_TRUE(person.progress().empty());
    ASSERT_EQ(other.ask(u"unlock"_s), "ok");
    EXPECT_EQ(gDB.GetRecCount(gDB.IssuesTable(), u"rowid"_s), 1);
    // Sharing and locks are as before.
    EXPECT_EQ(other.ask(u"delete nvnissues.dbf %1"_s.arg(issue)), "ok");
}
