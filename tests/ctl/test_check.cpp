#include "ctl/CtlRun.h"
#include "db/clsDB.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QRegularExpression>

using namespace norvane::engine;

namespace
{

// A line of the findings that begins with the file's name and holds the words.
bool says(const QString &findings, const QString &file, const QString &words)
{
    const QStringList lines = findings.split(u'\n');
    for (const QString &line : lines)
        if (line.startsWith(file + ": ") && line.contains(words))
            return true;
    return false;
}

void cutTo(const QString &path, qsizetype size)
{
    writeAll(path, readAll(path).left(size));
}

// Sets the number in the given field of the first row for which `which` holds.
void setNumber(const CtlFolder &folder, schema::Table table, const char *field, qint32 value,
               const char *whichField, const QByteArray &whichText)
{
    clsDB db;
    ASSERT_TRUE(db.OpenForReading(folder.path()));
    const clsDB::Handle rows = db.OpenTable(db.TablePath(table));
    ASSERT_GT(rows, 0);
    d4tagSelect(rows, 0);
    for (Code code = d4top(rows); code == r4success; code = d4skip(rows, 1)) {
        const Handle which = d4field(rows, whichField);
        if (QByteArray(f4ptr(which), f4len_v(which)).trimmed() != whichText)
            continue;
        ASSERT_EQ(d4lock(rows, d4recNo(rows)), r4success);
        f4assignLong(d4field(rows, field), value);
        ASSERT_EQ(d4flush(rows), r4success);
        break;
    }
    db.CloseTable(rows);
}

void importStatuses(const CtlFolder &folder, const QByteArray &csv)
{
    ASSERT_EQ(ctlRun({"import", folder.path(), "statuses", folder.file("a.csv", csv)}).code, 0);
}

} // namespace

TEST(Check, SaysWhichFileIsMissingAndWhatToDo)
{
    const CtlFolder folder;
    ASSERT_TRUE(QFile::remove(folder.at("nvnrep.fpt")));
    ASSERT_TRUE(QFile::remove(folder.at("nvncust.cdx")));
    const CtlResult check = ctlRun({"check", folder.path()});
    EXPECT_EQ(check.code, 1);
    EXPECT_TRUE(says(check.out, "nvnrep.fpt", "missing. Restore")) << qPrintable(check.out);
    EXPECT_TRUE(says(check.out, "nvncust.cdx", "missing. No data is lost"));
    EXPECT_TRUE(check.err.contains("2 problems were found")) << qPrintable(check.err);
    EXPECT_FALSE(QFile::exists(folder.at("nvnrep.fpt"))) << "a check changes nothing";
}

TEST(Check, FindsATruncatedIndex)
{
    const CtlFolder folder;
    const qsizetype size = readAll(folder.at("nvncat.cdx")).size();
    for (const qsizetype kept : {size - 512, size / 2 / 512 * 512, qsizetype(700), qsizetype(0)}) {
        cutTo(folder.at("nvncat.cdx"), kept);
        EXPECT_TRUE(says(problemsOf(folder.path()), "nvncat.cdx", "rebuild the index"))
            << kept << " bytes: " << qPrintable(problemsOf(folder.path()));
    }
}

TEST(Check, FindsGarbledHeadersOfTableIndexAndMemo)
{
    for (const char *name : {"nvnrep.dbf", "nvnrep.cdx", "nvnrep.fpt"}) {
        const CtlFolder folder;
        QByteArray bytes = readAll(folder.at(name));
        std::fill(bytes.begin(), bytes.begin() + 32, '\x5A');
        writeAll(folder.at(name), bytes);
        const QString problems = problemsOf(folder.path());
        EXPECT_TRUE(says(problems, name, "")) << name << ": " << qPrintable(problems);
        EXPECT_FALSE(problems.contains("nvncat")) << "only what is damaged is named";
    }
}

TEST(Check, DamageThatRepeatsItselfIsCounted)
{
    const CtlFolder folder;
    QByteArray csv = "LASTNAME,COMPANY,NOTES\n";
    for (int i = 0; i < 30; ++i)
        csv += "Doe,,one of thirty\n";
    ASSERT_EQ(ctlRun({"import", folder.path(), "customers", folder.file("c.csv", csv)}).code, 0);
    cutTo(folder.at("nvncust.fpt"), 512);
    const CtlResult check = ctlRun({"check", folder.path()});
    EXPECT_EQ(check.code, 1);
    EXPECT_TRUE(says(check.out, "nvncust.fpt", "NOTES")) << qPrintable(check.out);
    EXPECT_TRUE(says(check.out, "nvncust.fpt", "more findings"));
    EXPECT_LT(check.lines().size(), 12);
    EXPECT_TRUE(check.err.contains(QRegularExpression("^3\\d problems")));
}

TEST(Check, FindsAnIndexThatDoesNotMatchItsRows)
{
    const CtlFolder folder;
    const QByteArray before = readAll(folder.at("nvncat.cdx"));
    importStatuses(folder, "DESCRIPTION\nA\nB\nC\n");
    writeAll(folder.at("nvncat.cdx"), before);
    EXPECT_TRUE(says(problemsOf(folder.path()), "nvncat.cdx", ""))
        << qPrintable(problemsOf(folder.path()));
}

TEST(Check, FindsACounterThatWouldGiveANumberTwice)
{
    const CtlFolder folder;
    importStatuses(folder, "DESCRIPTION\nA\nB\n");
    ASSERT_EQ(problemsOf(folder.path()), QString());
    setNumber(folder, schema::Table::LastID, "lastid", 1001, "tblname", "nvncat.dbf");
    EXPECT_TRUE(says(problemsOf(folder.path()), "nvnid.dbf",
                     "next identifier for nvncat.dbf is 1001, but 1001 is in use"))
        << qPrintable(problemsOf(folder.path()));
}

TEST(Check, FindsIdentifiersThatAreSharedOrImpossible)
{
    const CtlFolder folder;
    setNumber(folder, schema::Table::Category, "rowid", 400, "desc", "Closed");
    EXPECT_TRUE(says(problemsOf(folder.path()), "nvncat.dbf", "2 rows share the rowid 400"));
    setNumber(folder, schema::Table::Category, "rowid", 0, "desc", "Pending");
    EXPECT_TRUE(says(problemsOf(folder.path()), "nvncat.dbf", "have the rowid 0"));
}

TEST(Check, ALookupThatIsGoneIsANoteAndNoProblem)
{
    const CtlFolder folder;
    const QString csv = folder.file("c.csv", "LASTNAME,COMPANY,CATEGORY\nDoe,,Passing\n");
    ASSERT_EQ(ctlRun({"import", folder.path(), "customers", csv}).code, 0);
    {
        clsDB db;
        ASSERT_TRUE(db.OpenUnattended(folder.path(), "sysop", "sysop"));
        ASSERT_TRUE(db.DeleteRecord(db.CategoryExists("Passing", 1), db.CategoryTable()));
    }
    const CtlResult check = ctlRun({"check", folder.path()});
    EXPECT_EQ(check.code, 0) << qPrintable(check.out);
    EXPECT_TRUE(check.out.contains("Note: nvncust.dbf: 1 rows name a record of nvncat.dbf"));
}

TEST(Check, AFolderWithoutADatabaseIsNotSound)
{
    const QTemporaryDir empty;
    EXPECT_TRUE(problemsOf(empty.path()).contains("holds no database"));
    EXPECT_TRUE(problemsOf(empty.filePath("nowhere")).contains("does not exist"));
}

TEST(Check, FileNamesMayBeWrittenInUpperCase)
{
    const CtlFolder folder;
    const QStringList files = QDir(folder.path()).entryList(QDir::Files);
    for (const QString &file : files)
        ASSERT_TRUE(QFile::rename(folder.at(file), folder.at(file.toUpper())));
    EXPECT_EQ(problemsOf(folder.path()), QString());
}
