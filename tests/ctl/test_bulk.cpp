#include "ctl/CtlRun.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QSet>

TEST(Bulk, MakesASoundDatabaseOfThatSizeTheSameEachTime)
{
    const QTemporaryDir root;
    const auto bulk = [&](const QString &name) {
        const CtlResult made =
            ctlRun({"bulk", root.filePath(name), "--customers", "150", "--issues", "1200"});
        EXPECT_EQ(made.code, 0) << qPrintable(made.err);
        EXPECT_TRUE(made.out.contains("150 customers and 1200 issues"));
        return root.filePath(name);
    };
    const QString one = bulk("one");
    EXPECT_EQ(problemsOf(one), QString());
    const QList<QJsonObject> issues = dumpedRows(one, "issues");
    ASSERT_EQ(issues.size(), 1200);
    QSet<int> customers;
    for (const QJsonObject &row : dumpedRows(one, "customers"))
        customers.insert(row["rowid"].toInt());
    EXPECT_EQ(customers.size(), 150);
    QHash<int, int> lookups;
    for (const QJsonObject &row : dumpedRows(one, "lookups"))
        lookups.insert(row["rowid"].toInt(), row["type"].toInt());
    QSet<int> users{-1};
    for (const QJsonObject &row : dumpedRows(one, "users"))
        users.insert(row["rowid"].toInt());
    for (const QJsonObject &row : issues) {
        EXPECT_TRUE(customers.contains(row["custid"].toInt()));
        EXPECT_EQ(lookups.value(row["psid"].toInt()), 2);
        EXPECT_EQ(lookups.value(row["status"].toInt()), 101);
        EXPECT_TRUE(users.contains(row["assignedto"].toInt()));
        EXPECT_FALSE(row["desc"].toString().isEmpty());
    }
    EXPECT_EQ(issues, dumpedRows(bulk("two"), "issues"));
    EXPECT_EQ(ctlRun({"bulk", one}).code, 1); // there is one already
}

TEST(Bulk, RefusesOtherSizes)
{
    const QTemporaryDir root;
    for (const char *number : {"0", "-5", "many", "2000000"}) {
        const QString dir = root.filePath("none");
        EXPECT_EQ(ctlRun({"bulk", dir, "--issues", number}).code, 2) << number;
        EXPECT_FALSE(QDir(dir).exists());
    }
}
