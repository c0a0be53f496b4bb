#include "ctl/CtlRun.h"
#include "ctl/TableDump.h"
#include "db/clsDB.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>

namespace
{

void importCustomers(const CtlFolder &folder, const QByteArray &csv)
{
    const CtlResult result =
        ctlRun({"import", folder.path(), "customers", folder.file("customers.csv", csv)});
    ASSERT_EQ(result.code, 0) << qPrintable(result.err);
}

} // namespace

TEST(Dump, TextsSurviveJsonAndCsv)
{
    const QString nasty = QStringLiteral("a\"b\\c\n\r\t\x01 \u20ac,\u00df");
    const QByteArray json = "[" + ctl::jsonText(nasty).toUtf8() + "]";
    EXPECT_EQ(QJsonDocument::fromJson(json).array()[0].toString(), nasty);
    EXPECT_EQ(ctl::csvText("plain text"), "plain text");
    EXPECT_EQ(ctl::csvText("a \"b\", c"), "\"a \"\"b\"\", c\"");
    EXPECT_EQ(ctl::csvText("two\nlines"), "\"two\nlines\"");
}

TEST(Dump, GivesLiveRowsInRowidOrderWithMemosWholeAndIdsAsNumbers)
{
    const CtlFolder folder;
    // Longer than any window would show.
    const QString longNote = QString("0123456789 ").repeated(6000).trimmed();
    importCustomers(folder, "LASTNAME,COMPANY,NOTES\nZimmer,,first\nAdams,,gone\nMay,Caf\xE9,\"" +
                                longNote.toLatin1() + "\"\n");
    {
        clsDB db;
        ASSERT_TRUE(db.OpenUnattended(folder.path(), "sysop", "sysop"));
        ASSERT_TRUE(db.DeleteRecord(1001, db.CustomerTable()));
    }
    const QList<QJsonObject> rows = dumpedRows(folder.path(), "customers");
    ASSERT_EQ(rows.size(), 2);
    EXPECT_EQ(rows[0]["rowid"].toInt(), 1000);
    EXPECT_TRUE(rows[0]["custcat"].isDouble());
    EXPECT_EQ(rows[0]["lastname"].toString(), "Zimmer");
    EXPECT_EQ(rows[0]["lastmoddt"].toString().size(), 8);
    EXPECT_EQ(rows[1]["rowid"].toInt(), 1002);
    EXPECT_EQ(rows[1]["company"].toString(), QStringLiteral("Café"));
    EXPECT_EQ(rows[1]["contacts"].toString(), "");
    EXPECT_EQ(rows[1]["notes"].toString().size(), longNote.size());
}

TEST(Dump, CsvHasAHeadingAndTheSameRows)
{
    const CtlFolder folder;
    importCustomers(folder, "LASTNAME,COMPANY\nDoe,\"Doe, Inc.\"\n");
    const QStringList lines = ctlRun({"dump", folder.path(), "customers", "--csv"}).lines();
    ASSERT_EQ(lines.size(), 2);
    EXPECT_TRUE(lines[0].startsWith("rowid,custno,firstname,lastname,company,custcat,"));
    EXPECT_TRUE(lines[1].startsWith("1000,,,Doe,\"Doe, Inc.\",0,")) << qPrintable(lines[1]);
}

TEST(Dump, TakesTheNamesOfTablesAndOfFiles)
{
    const CtlFolder folder;
    for (const char *name : {"customers", "subscriptions", "issues", "actions", "templates",
                             "users", "reports", "lookups", "counters", "parameters"})
        dumpedRows(folder.path(), name);
    const QString users = ctlRun({"dump", folder.path(), "users"}).out;
    EXPECT_EQ(ctlRun({"dump", folder.path(), "NVNUSER.DBF"}).out, users);
    EXPECT_EQ(ctlRun({"dump", folder.path(), "nvnuser"}).out, users);
    EXPECT_FALSE(users.isEmpty());

    EXPECT_EQ(ctlRun({"dump", folder.path(), "gadgets"}).code, 2);
    const CtlResult missing = ctlRun({"dump", folder.path(), "gadgets.dbf"});
    EXPECT_EQ(missing.code, 1);
    EXPECT_TRUE(missing.err.contains("gadgets.dbf"));
    const CtlResult noFolder = ctlRun({"dump", folder.path() + "x", "users"});
    EXPECT_EQ(noFolder.code, 1);
    EXPECT_TRUE(noFolder.err.contains("does not exist"));
}

TEST(Dump, ADamagedTableIsSaidAndNotPassedOffAsEmpty)
{
    const CtlFolder folder;
    writeAll(folder.at("nvncat.dbf"), "this is no table");
    const CtlResult result = ctlRun({"dump", folder.path(), "lookups"});
    EXPECT_EQ(result.code, 1);
    EXPECT_TRUE(result.err.contains("nvncat.dbf")) << qPrintable(result.err);
}

TEST(Dump, RowsAndMemosThatCannotBeReadAreSaidWithTheirFile)
{
    const CtlFolder folder;
    importCustomers(folder, "LASTNAME,COMPANY,NOTES\nA,,one\nB,,two\nC,,three\n");
    const QByteArray memos = readAll(folder.at("nvncust.fpt"));
    writeAll(folder.at("nvncust.fpt"), memos.left(512));
    const CtlResult noMemos = ctlRun({"dump", folder.path(), "customers"});
    EXPECT_EQ(noMemos.code, 1);
    EXPECT_EQ(noMemos.lines().size(), 3) << "what is left is given";
    EXPECT_TRUE(noMemos.err.contains("nvncust.fpt")) << qPrintable(noMemos.err);
    writeAll(folder.at("nvncust.fpt"), memos);

    const QByteArray rows = readAll(folder.at("nvncust.dbf"));
    writeAll(folder.at("nvncust.dbf"), rows.left(rows.size() - 1500));
    const CtlResult cut = ctlRun({"dump", folder.path(), "customers"});
    EXPECT_EQ(cut.code, 0) << "the count is put right, and the file kept as it was";
    EXPECT_EQ(cut.lines().size(), 1);
    EXPECT_EQ(readAll(folder.at("nvncust.dbf.bad")), rows.left(rows.size() - 1500));
}
