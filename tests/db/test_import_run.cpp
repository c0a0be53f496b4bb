// What an import leaves in the database.
#include "DbTest.h"
#include "ImportFile.h"

#include "db/import/ImportRun.h"

#include <vector>

using schema::Table;

namespace
{

class Import : public DbTest
{
protected:
    // Checks the file and imports it, as the wizard does.
    ImportResult import(qint32 target, const QByteArray &bytes)
    {
        const ImportFile file(bytes);
        clsImportData data;
        QStringList headings;
        QString errors;
        qint32 rows = 0;
        const clsImportColDefs columns = ImportRun::columns(target);
        EXPECT_TRUE(data.ValidateCols(file.path(), columns, headings, errors) &&
                    data.ValidateRows(file.path(), columns, headings, errors, rows))
            << qPrintable(errors);
        ImportRun run(gDB, target, headings, rows);
        m_rowids.clear();
        run.onStored([this](qint32 rowid) { m_rowids.push_back(rowid); });
        return run.ImportData_Detail(file.path());
    }
    QString customer(std::size_t index, const QString &field) const
    {
        return db.stored(Table::Customer, m_rowids.at(index), field);
    }
    QString listText(const QString &rowid) const
    {
        return db.stored(Table::Category, rowid.toInt(), u"desc"_s);
    }

    static constexpr qint32 Products = 2;
    static constexpr qint32 States = 3;
    std::vector<qint32> m_rowids;
};

} // namespace

TEST_F(Import, EveryColumnGoesToItsField)
{
    QByteArray headings;
    QByteArray values;
    for (const clsImportColDef &def : customerImportColumns()) {
        headings += def.name.toLatin1() + ',';
        values += "v " + def.target.toLatin1().left(6) + ',';
    }
    headings.chop(1);
    values.chop(1);
    const ImportResult result = import(ImportRun::NewCustomers, headings + "\n" + values + "\n");
    EXPECT_TRUE(result.ok);
    ASSERT_EQ(1U, m_rowids.size());
    for (const clsImportColDef &def : customerImportColumns()) {
        const QString stored = customer(0, def.target);
        const QString wanted = "v " + def.target.left(6);
        EXPECT_EQ(wanted, def.lookupType == 0 ? stored : listText(stored)) << qPrintable(def.name);
    }
}

TEST_F(Import, QuotesAndAccentsComeInAsTheyShould)
{
    const ImportResult result =
        import(ImportRun::NewCustomers, "LASTNAME,COMPANY,NOTES\n"
                                        "M\xFCller,\"Smith, Jr.\",\"a \"\"b\"\" c\"\n");
    EXPECT_TRUE(result.ok);
    EXPECT_EQ(u"Müller"_s, customer(0, u"lastname"_s));
    EXPECT_EQ(u"Smith, Jr."_s, customer(0, u"company"_s));
    EXPECT_EQ(u"a b c"_s, customer(0, u"notes"_s)); // the doubled mark goes too
}

TEST_F(Import, ACustomerWithoutNamesIsUnnamed)
{
    const ImportResult result = import(ImportRun::NewCustomers,
                                       "LASTNAME,COMPANY,CITY\n,,Paris\n\n  \n,ACME\n\"\",\"\",\n");
    EXPECT_TRUE(result.ok);
    EXPECT_EQ(3, result.tried);
    EXPECT_EQ(3, result.stored);
    EXPECT_EQ(u"Un-named"_s, customer(0, u"lastname"_s));
    EXPECT_EQ(u""_s, customer(1, u"lastname"_s));
    EXPECT_EQ(u"Un-named"_s, customer(2, u"lastname"_s));
}

TEST_F(Import, OneTextInTwoCasesIsOneListEntry)
{
    const ImportResult result =
        import(ImportRun::NewCustomers, "LASTNAME,COMPANY,STATE,CATEGORY\n"
                                        "A,,Qzland,Qz\nB,,QZLAND,QZ\nC,,,\nD,,Qz,Qzland\n");
    EXPECT_TRUE(result.ok);
    EXPECT_EQ(customer(0, u"state"_s), customer(1, u"state"_s));
    EXPECT_EQ(customer(0, u"custcat"_s), customer(1, u"custcat"_s));
    EXPECT_NE(customer(0, u"custcat"_s), customer(3, u"state"_s)); // lists do not share entries
    EXPECT_EQ(u"Qzland"_s, listText(customer(1, u"state"_s)));
    EXPECT_LE(customer(2, u"state"_s).toInt(), 0);
}

TEST_F(Import, ImportingAListTwiceChangesNothing)
{
    const QByteArray list("DESCRIPTION\nGold plan\nSilver plan\ngold PLAN\n");
    const ImportResult first = import(Products, list);
    EXPECT_TRUE(first.ok);
    EXPECT_EQ(3, first.tried);
    EXPECT_EQ(2, first.stored);
    EXPECT_EQ(1, first.skipped);
    EXPECT_EQ(2U, m_rowids.size());
    EXPECT_EQ(u"Gold plan"_s, listText(QString::number(m_rowids[0])));
    const qint32 entries = gDB.GetRecCountFast(gDB.CategoryTable(), u"rowid"_s);
    const ImportResult second = import(Products, list);
    EXPECT_TRUE(second.ok);
    EXPECT_EQ(3, second.tried);
    EXPECT_EQ(0, second.stored);
    EXPECT_EQ(entries, gDB.GetRecCountFast(gDB.CategoryTable(), u"rowid"_s));
}

TEST_F(Import, TheRowsAfterAFailedOneAreTriedAllTheSame)
{
    // A lone quotation mark passes the check, and nothing is left of it.
    const ImportResult result = import(States, "DESCRIPTION\nQuebec Q\n\"\nYukon Q\n");
    EXPECT_FALSE(result.ok);
    EXPECT_EQ(3, result.tried);
    EXPECT_EQ(2, result.stored);
    EXPECT_EQ(u"Yukon Q"_s, listText(QString::number(m_rowids.at(1))));
}

TEST_F(Import, ProgressGoesUpToTheLastRow)
{
    EXPECT_TRUE(import(States, "DESCRIPTION\nA1\nB1\nC1\n").ok);
    const auto &progress = person.progress().back();
    EXPECT_EQ(u"Import Data"_s, progress.title);
    EXPECT_EQ(u"Integrating data. Please wait..."_s, progress.message);
    EXPECT_TRUE(progress.bar);
    EXPECT_FALSE(progress.cancel);
    EXPECT_TRUE(progress.closed);
    EXPECT_EQ((std::vector<int>{25, 50, 75, 100}), progress.percents);
}

TEST_F(Import, AMissingTableEndsTheImportBeforeItBegins)
{
    const ImportFile file("DESCRIPTION\nA1\n");
    ASSERT_TRUE(QFile::remove(gDB.CustomerTable()));
    person.expect(u"Unable to open: "_s);
    person.expect(u"Unable to open Customer table!"_s).kind(prompts::Kind::Critical);
    ImportRun run(gDB, States, {u"DESCRIPTION"_s}, 1);
    const ImportResult result = run.ImportData_Detail(file.path());
    EXPECT_FALSE(result.ok);
    EXPECT_EQ(0, result.tried);
    EXPECT_TRUE(person.progress().back().closed);
}

TEST_F(Import, AFolderThatGoesAwayOnTheRunIsToldOnce)
{
    const ImportFile file("DESCRIPTION\nA1\nB1\nC1\nD1\n");
    person.expect(u"Unable to open: "_s + gDB.LastIDTable());
    ImportRun run(gDB, States, {u"DESCRIPTION"_s}, 4);
    run.onStored([](qint32) { QFile::remove(gDB.LastIDTable()); });
    const ImportResult result = run.ImportData_Detail(file.path());
    EXPECT_EQ(4, result.tried);
    EXPECT_EQ(4, result.stored) << "their identifiers were taken before";
}

TEST_F(Import, AFileThatWentAwayIsReported)
{
    person.expect(u"frmDataImport_ImportData_Detail"_s).title(u"Error"_s);
    ImportRun run(gDB, States, {u"DESCRIPTION"_s}, 1);
    EXPECT_FALSE(run.ImportData_Detail(db.file(u"none.csv"_s)).ok);
}
