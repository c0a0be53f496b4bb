#include "CtlRun.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

TEST(Report, GivesTheRowsInTheOrderOfTheFirstColumn)
{
    const CtlFolder folder;
    const QString customers = folder.file(
        "customers.csv", "LASTNAME,COMPANY,WORKPHONE\nZimmer,\"Zoo, Inc.\",1\nAdams,Acme,2\n");
    ASSERT_EQ(0, ctlRun({"import", folder.path(), "customers", customers}).code);
    const CtlResult byTitle = ctlRun({"report", folder.path(), "customer telephone LIST"});
    ASSERT_EQ(0, byTitle.code) << qPrintable(byTitle.err);
    EXPECT_EQ((QStringList{"Last Name,First Name,Company,Work Phone,Home Phone", "Adams,,Acme,2,",
                           "Zimmer,,\"Zoo, Inc.\",1,"}),
              byTitle.lines());
    const QString file = folder.file("out.csv", "old");
    EXPECT_EQ(0, ctlRun({"report", folder.path(), "102", "--out", file}).code);
    EXPECT_EQ(byTitle.out.toUtf8(), readAll(file));

    const CtlResult unknown = ctlRun({"report", folder.path(), "4711"});
    EXPECT_EQ(1, unknown.code);
    EXPECT_TRUE(unknown.err.contains("There is no report '4711'."));
    const CtlResult unwritable =
        ctlRun({"report", folder.path(), "102", "--out", "/no/such/folder/out.csv"});
    EXPECT_EQ(1, unwritable.code);
    EXPECT_FALSE(unwritable.err.isEmpty());
}

TEST(Report, EveryReportOfANewDatabaseShowsRowsOfTheDemonstration)
{
    const QTemporaryDir root;
    const QString folder = root.filePath("demo");
    ASSERT_EQ(0, ctlRun({"demo", folder}).code);
    const QList<QJsonObject> reports = dumpedRows(folder, "reports");
    ASSERT_GE(reports.size(), 10);
    for (const QJsonObject &report : reports) {
        const CtlResult result =
            ctlRun({"report", folder, QString::number(report["rowid"].toInt())});
        EXPECT_EQ(0, result.code) << qPrintable(result.err);
        EXPECT_GT(result.lines().size(), 1) << qPrintable(report["title"].toString());
    }
}
