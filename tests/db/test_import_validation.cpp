// The checks of an import file before anything is written.
#include "db/import/clsImportData.h"
#include "db/import/CsvText.h"
#include "ImportFile.h"
#include "support/FakeHost.h"
#include "support/ScriptedPrompts.h"

#include <gtest/gtest.h>

#include <QFile>

namespace
{

class ImportChecks : public ::testing::Test
{
protected:
    bool checkHeadings(const QByteArray &row, const clsImportColDefs &columns)
    {
        m_file.write(row);
        return m_import.ValidateCols(m_file.path(), columns, m_headings, m_errors);
    }
    bool checkRows(const QByteArray &bytes, const clsImportColDefs &columns)
    {
        m_errors.clear();
        m_file.write(bytes);
        return m_import.ValidateCols(m_file.path(), columns, m_headings, m_errors) &&
               m_import.ValidateRows(m_file.path(), columns, m_headings, m_errors, m_rowCount);
    }
    // What one value of a column of that kind is told; empty when it is good.
    QString fault(const QString &value, int kind, bool range = false)
    {
        clsImportColDef def;
        def.name = "QTY";
        def.kind = kind;
        def.rangeCheck = range;
        def.high = 10;
        def.low = -0.5;
        QString errors;
        const bool good = m_import.ValidateARow(7, value, {def}, {"QTY"}, errors);
        EXPECT_EQ(good, errors.isEmpty());
        return errors;
    }

    ScriptedPrompts m_person;
    ImportFile m_file;
    clsImportData m_import;
    QStringList m_headings;
    QString m_errors;
    qint32 m_rowCount = -1;
};

} // namespace

TEST_F(ImportChecks, HeadingsInAnyCaseAndWithBlanksAreKnown)
{
    EXPECT_TRUE(checkHeadings(" firstname , LastName,COMPANY\r\n", customerImportColumns()));
    EXPECT_EQ(QStringList({"FIRSTNAME", "LASTNAME", "COMPANY"}), m_headings);
    EXPECT_EQ("", m_errors);
}

TEST_F(ImportChecks, AllWrongHeadingsAreToldAtOnce)
{
    EXPECT_FALSE(checkHeadings("FULLNAME,\"LASTNAME\",\n", customerImportColumns()));
    EXPECT_EQ("Required column 'LASTNAME' is missing from the first row.\r\n\r\n"
              "Required column 'COMPANY' is missing from the first row.\r\n\r\n"
              "Unrecognized column 'FULLNAME' found on the first row.\r\n\r\n"
              "Unrecognized column '\"LASTNAME\"' found on the first row.\r\n\r\n"
              "Unrecognized column '' found on the first row.\r\n\r\n",
              m_errors);
}

TEST_F(ImportChecks, AnEmptyOrMissingFileHasNoHeadings)
{
    EXPECT_FALSE(checkHeadings("", lookupImportColumns()));
    const QString refusal =
        "Unable to read column headers from row 1 of file " + m_file.path() + "\r\n\r\n";
    EXPECT_EQ(refusal, m_errors);
    QFile::remove(m_file.path());
    EXPECT_FALSE(m_import.ValidateCols(m_file.path(), lookupImportColumns(), m_headings, m_errors));
    EXPECT_EQ(refusal, m_errors);
}

TEST_F(ImportChecks, AFileOfHeadingsAlonePasses)
{
    EXPECT_TRUE(checkRows("DESCRIPTION", lookupImportColumns()));
    EXPECT_EQ(0, m_rowCount);
    ASSERT_EQ(1U, m_person.progress().size());
    EXPECT_EQ("Import Data", m_person.progress()[0].title);
    EXPECT_EQ("Validating Data. Please wait...", m_person.progress()[0].message);
    EXPECT_TRUE(m_person.progress()[0].cancel);
    EXPECT_FALSE(m_person.progress()[0].bar);
    EXPECT_TRUE(m_person.progress()[0].closed);
}

TEST_F(ImportChecks, BlankRowsCountButAreNotChecked)
{
    EXPECT_TRUE(checkRows("DESCRIPTION\r\n\r\n   \r\nGold\r\n", lookupImportColumns()));
    EXPECT_EQ(3, m_rowCount);
}

TEST_F(ImportChecks, AnEmptyDescriptionIsRefusedByItsRowInTheFile)
{
    EXPECT_FALSE(checkRows("DESCRIPTION\nGold\n\"\"\n", lookupImportColumns()));
    EXPECT_EQ("Row 3: A value must be entered for column DESCRIPTION.\r\n", m_errors);
}

TEST_F(ImportChecks, FewerValuesPassAndMoreDoNot)
{
    EXPECT_TRUE(checkRows("LASTNAME,COMPANY,CITY\nDoe\nDoe,ACME\n", customerImportColumns()));
    EXPECT_FALSE(checkRows("LASTNAME,COMPANY\nDoe,\"A, B\",x\n", customerImportColumns()));
    EXPECT_EQ("Row 2: Missing data. Number of entries on this row do NOT equal the number of "
              "columns on the first row. LINE CONTENT: Doe,\"A, B\",x\r\n",
              m_errors);
    EXPECT_FALSE(checkRows("LASTNAME,COMPANY\nDoe,A,\n", customerImportColumns()));
    EXPECT_FALSE(checkRows("LASTNAME,COMPANY\nDoe,A\xFE\n", customerImportColumns()));
    EXPECT_TRUE(m_errors.endsWith("LINE CONTENT: Doe,A,\r\n")); // as commas, whatever it was
}

TEST_F(ImportChecks, FiftyBadRowsGoOnAndFiftyOneStop)
{
    const QByteArray bad("\"\"\n");
    EXPECT_FALSE(checkRows("DESCRIPTION\n" + bad.repeated(50) + "Gold\n", lookupImportColumns()));
    EXPECT_EQ(51, m_rowCount);
    EXPECT_EQ(50, m_errors.count("\r\n"));
    EXPECT_FALSE(checkRows("DESCRIPTION\n" + bad.repeated(60), lookupImportColumns()));
    EXPECT_EQ(51, m_rowCount);
    EXPECT_EQ(51, m_errors.count("A value must be entered"));
    EXPECT_TRUE(m_errors.endsWith("MORE THAN 50 ERRORS ENCOUNTERED. ABORTING...\r\n\r\n"));
}

TEST_F(ImportChecks, CancelMakesTheCheckFailWithoutAMessage)
{
    m_person.cancelProgressAt(3);
    EXPECT_FALSE(
        checkRows("DESCRIPTION\n" + QByteArray("Gold\n").repeated(500), lookupImportColumns()));
    EXPECT_LT(m_rowCount, 500);
    EXPECT_EQ("", m_errors);
    EXPECT_TRUE(m_person.progress()[0].closed);
}

TEST_F(ImportChecks, EventsPassAtEachHundredthRow)
{
    const Host before = host();
    int pauses = 0;
    host().pumpEvents = [&pauses] { ++pauses; };
    EXPECT_TRUE(
        checkRows("DESCRIPTION\n" + QByteArray("Gold\n").repeated(250), lookupImportColumns()));
    EXPECT_EQ(2, pauses);
    host() = before;
}

TEST_F(ImportChecks, AFileThatChangesMeanwhileIsRefused)
{
    const QByteArray rows = "DESCRIPTION\n" + QByteArray("Gold\n").repeated(20000);
    const struct {
        const char *what;
        std::function<bool(const QString &)> change;
    } cases[] = {
        {"longer",
         [](const QString &path) {
             QFile file(path);
             return file.open(QIODevice::Append) && file.write("Silver\n") == 7;
         }},
        {"cut off", [](const QString &path) { return QFile::resize(path, 70000); }},
        {"replaced",
         [&rows](const QString &path) {
             QFile file(path + ".new");
             return file.open(QIODevice::WriteOnly) && file.write(rows + "\n") > 0 &&
                    QFile::remove(path) && file.rename(path);
         }},
        {"gone", [](const QString &path) { return QFile::remove(path); }},
    };
    const Host before = host();
    for (const auto &[what, change] : cases) {
        SCOPED_TRACE(what);
        int pauses = 0;
        host().pumpEvents = [&, &act = change] {
            if (++pauses == 50) {
                EXPECT_TRUE(act(m_file.path()));
            }
        };
        EXPECT_FALSE(checkRows(rows, lookupImportColumns()));
        EXPECT_TRUE(m_errors.startsWith("The file changed while it was checked."))
            << m_errors.toStdString();
    }
    host() = before;
}

TEST_F(ImportChecks, NumbersAreCheckedByKindAndRange)
{
    const QString value = "Row 7: The value [%1] entered for column QTY must be ";
    EXPECT_EQ("", fault("1.5", 1));
    EXPECT_EQ(value.arg("x") + "numeric.\r\n", fault("x", 1));
    EXPECT_EQ(value.arg("1x") + "numeric.\r\n", fault("1x", 2, true));
    EXPECT_EQ("", fault("10", 2, true));
    EXPECT_EQ("", fault("-0.5", 2, true));
    EXPECT_EQ(value.arg("10.01") + "between 10 and -0.5.\r\n", fault("10.01", 2, true));
    EXPECT_EQ(value.arg("1,000") + "between 10 and -0.5.\r\n", fault("\"1,000\"", 1, true));
    EXPECT_EQ("", fault("\"\"", 1, true)); // empty is not checked further
}

TEST_F(ImportChecks, FlagsAndDatesAreCheckedAsTheyAre)
{
    const QString value = "Row 7: The value [%1] entered for column QTY must be ";
    EXPECT_EQ("", fault("Y", 3));
    EXPECT_EQ("", fault("N", 3));
    EXPECT_EQ(value.arg("y") + "either 'Y' or 'N'.\r\n", fault("y", 3));
    EXPECT_EQ(value.arg("3/14/2004") + "a valid date.\r\n", fault("3/14/2004", 4));
    EXPECT_EQ("", fault("\"\"", 4));
}

TEST_F(ImportChecks, OneRowMayHaveSeveralFaults)
{
    clsImportColDefs columns = lookupImportColumns();
    clsImportColDef number;
    number.name = "QTY";
    number.kind = 1;
    columns += number;
    QString errors = "before\r\n";
    EXPECT_FALSE(m_import.ValidateARow(2, ",x", columns, {"DESCRIPTION", "QTY"}, errors));
    EXPECT_EQ("before\r\nRow 2: A value must be entered for column DESCRIPTION.\r\n"
              "Row 2: The value [x] entered for column QTY must be numeric.\r\n",
              errors);
    EXPECT_TRUE(m_import.ValidateARow(2, "Gold,1", columns, {"DESCRIPTION", "OTHER"}, errors));
}

TEST_F(ImportChecks, ColumnsAreKnownByTheirExactName)
{
    EXPECT_TRUE(ImportIsColumnRelevant("NOTES", customerImportColumns()));
    EXPECT_FALSE(ImportIsColumnRelevant("Notes", customerImportColumns()));
    EXPECT_EQ(22, customerImportColumns().size());
}
