#include "ctl/CtlRun.h"

#include <gtest/gtest.h>

#include <QHash>

namespace
{

CtlResult importCsv(const CtlFolder &folder, const QString &target, const QByteArray &csv,
                    const QStringList &options = {})
{
    QStringList words{"import", folder.path(), target, folder.file("import.csv", csv)};
    return ctlRun(words + options);
}

} // namespace

TEST(Import, VerbosePrintsTheRowidOfEachNewRowAndNothingElse)
{
    const CtlFolder folder;
    const CtlResult result = importCsv(folder, "customers",
                                       "LastName,Company,Category,Notes\r\n"
                                       "Doe,,VIP,\"one, two\"\r\n"
                                       "\r\n"
                                       ",\"B\xFCrgi & S\xF6hne\",vip,\r\n"
                                       ",,,\r\n",
                                       {"--verbose"});
    ASSERT_EQ(result.code, 0);
    EXPECT_EQ(result.err, "Imported 3 customers.\n");
    EXPECT_EQ(result.lines(), QStringList({"1000", "1001", "1002"}));

    const QList<QJsonObject> rows = dumpedRows(folder.path(), "customers");
    ASSERT_EQ(rows.size(), 3);
    EXPECT_EQ(rows[0]["notes"].toString(), "one, two");
    EXPECT_EQ(rows[1]["company"].toString(), QStringLiteral("Bürgi & Söhne"));
    EXPECT_EQ(rows[0]["custcat"], rows[1]["custcat"]) << "one entry whatever the letter case";
    EXPECT_EQ(rows[2]["lastname"].toString(), "Un-named");
    EXPECT_EQ(problemsOf(folder.path()), QString());
}

TEST(Import, EveryListTargetGoesIntoItsOwnList)
{
    const CtlFolder folder;
    const QHash<QString, int> types{{"categories", 1},
                                    {"products", 2},
                                    {"states", 3},
                                    {"countries", 4},
                                    {"statuses", 101},
                                    {"priorities", 102},
                                    {"contracttypes", 103},
                                    {"contractdurations", 104},
                                    {"issuecategories", 105},
                                    {"actions", 106}};
    for (auto it = types.begin(); it != types.end(); ++it) {
        const QByteArray csv = "DESCRIPTION\nNew for " + it.key().toLatin1() + "\n";
        EXPECT_EQ(importCsv(folder, it.key(), csv).code, 0);
    }
    QHash<QString, int> found;
    for (const QJsonObject &row : dumpedRows(folder.path(), "lookups"))
        if (row["desc"].toString().startsWith("New for "))
            found.insert(row["desc"].toString().mid(8), row["type"].toInt());
    EXPECT_EQ(found, types);
}

TEST(Import, TheSameListTwiceAddsNothingTheSecondTime)
{
    const CtlFolder folder;
    const QByteArray csv = "DESCRIPTION\nopen\nBrand New\n";
    EXPECT_EQ(importCsv(folder, "statuses", csv, {"--verbose"}).lines(), QStringList("1000"));
    const qsizetype count = dumpedRows(folder.path(), "lookups").size();
    const CtlResult again = importCsv(folder, "statuses", csv);
    EXPECT_EQ(again.code, 0);
    EXPECT_EQ(again.out, "Imported 2 issue statuses.\n");
    EXPECT_EQ(dumpedRows(folder.path(), "lookups").size(), count);
}

TEST(Import, ABadFileIsExplainedAndNothingIsWritten)
{
    const CtlFolder folder;
    const CtlResult heading = importCsv(folder, "customers", "LASTNAME,FULLNAME\nDoe,J\n");
    EXPECT_EQ(heading.code, 1);
    EXPECT_TRUE(heading.err.contains("IMPORT FAILED FROM FILE"));
    EXPECT_TRUE(heading.err.contains("Required column 'COMPANY' is missing from the first row."));
    EXPECT_TRUE(heading.err.contains("Unrecognized column 'FULLNAME' found on the first row."));

    const CtlResult row = importCsv(folder, "customers", "LASTNAME,COMPANY\nA,B\nDoe,J,X\n");
    EXPECT_EQ(row.code, 1);
    EXPECT_TRUE(row.err.contains("Row 3: Missing data.")) << qPrintable(row.err);
    EXPECT_EQ(importCsv(folder, "products", "DESCRIPTION\nA\n\"\"\n").code, 1);
    EXPECT_EQ(importCsv(folder, "customers", "").code, 1);
    EXPECT_TRUE(dumpedRows(folder.path(), "customers").isEmpty());
}

TEST(Import, MissingFilesFoldersAndTargetsAreNamed)
{
    const CtlFolder folder;
    const QString csv = folder.file("a.csv", "DESCRIPTION\nA\n");
    const CtlResult noFile = ctlRun({"import", folder.path(), "products", csv + "x"});
    EXPECT_EQ(noFile.code, 1);
    EXPECT_TRUE(noFile.err.contains("does not exist"));
    const CtlResult noFolder = ctlRun({"import", folder.path() + "x", "products", csv});
    EXPECT_EQ(noFolder.code, 1);
    EXPECT_TRUE(noFolder.err.contains(folder.path() + "x"));
    const QTemporaryDir empty;
    const CtlResult noDatabase = ctlRun({"import", empty.path(), "products", csv});
    EXPECT_EQ(noDatabase.code, 1);
    EXPECT_TRUE(noDatabase.err.contains("nvncust.dbf"));
    const CtlResult noTarget = ctlRun({"import", folder.path(), "gadgets", csv});
    EXPECT_EQ(noTarget.code, 2);
    EXPECT_TRUE(noTarget.err.contains("issuecategories"));
}

TEST(Import, WantsAPasswordAndTheRightOfDatabaseAdministration)
{
    const CtlFolder folder;
    folder.addUser("clerk", "1111110" + QString(23, u'0'));
    folder.addUser("chief", "0000001" + QString(23, u'0'));
    const QString csv = folder.file("a.csv", "DESCRIPTION\nA\n");
    const auto attempt = [&](const QString &user, const QString &password) {
        return ctlRun({"import", folder.path(), "products", csv, "--user", user}, password);
    };
    const CtlResult wrong = attempt("chief", "guess");
    EXPECT_EQ(wrong.code, 1);
    EXPECT_TRUE(wrong.err.contains("password is wrong"));
    const CtlResult none = attempt("chief", "");
    EXPECT_EQ(none.code, 1);
    EXPECT_TRUE(none.err.contains("NORVANE_PASSWORD"));
    const CtlResult refused = attempt("clerk", "clerk");
    EXPECT_EQ(refused.code, 1);
    EXPECT_TRUE(refused.err.contains("not permitted")) << qPrintable(refused.err);
    for (const QJsonObject &row : dumpedRows(folder.path(), "lookups"))
        EXPECT_NE(row["type"].toInt(), 2);
    EXPECT_EQ(attempt("Chief", "CHIEF").code, 0);
}
