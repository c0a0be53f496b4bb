// Lines of an import file, and the values in a row.
#include "db/import/CsvReader.h"
#include "db/import/CsvText.h"
#include "ImportFile.h"

#include <gtest/gtest.h>

#include <QDir>

namespace
{

QStringList linesOf(const QByteArray &bytes)
{
    const ImportFile file(bytes);
    CsvReader reader(file.path());
    EXPECT_TRUE(reader.open());
    QStringList lines;
    while (const auto line = reader.readLine())
        lines += *line;
    EXPECT_FALSE(reader.failed());
    return lines;
}

} // namespace

TEST(CsvReader, EveryLineEndIsOne)
{
    const QStringList abc{"a", "b", "c"};
    EXPECT_EQ(abc, linesOf("a\r\nb\r\nc\r\n"));
    EXPECT_EQ(abc, linesOf("a\nb\nc"));
    EXPECT_EQ(abc, linesOf("a\rb\rc\r"));
    EXPECT_EQ(abc, linesOf("a\r\nb\nc\r"));
    EXPECT_EQ(QStringList({"a", "", "b"}), linesOf("a\r\rb"));
    EXPECT_EQ(QStringList({"a", "", "b"}), linesOf("a\n\r\nb"));
    EXPECT_EQ(QStringList({"\"a", "b\""}), linesOf("\"a\nb\"")); // quotes do not hold a row open
    EXPECT_EQ(QStringList(), linesOf(""));
    EXPECT_EQ(QStringList(""), linesOf("\r\n"));
}

TEST(CsvReader, APairAcrossTwoBlocksIsOneEnd)
{
    for (const int length : {65534, 65535, 65536, 65537}) {
        const QByteArray first(length, 'x');
        EXPECT_EQ(QStringList({QString::fromLatin1(first), "b"}), linesOf(first + "\r\nb"))
            << length;
    }
}

TEST(CsvReader, TheMarkDecidesTheEncoding)
{
    EXPECT_EQ(QStringList("Müller – €"), linesOf("M\xFCller \x96 \x80"));
    EXPECT_EQ(QStringList("Müller"), linesOf("\xEF\xBB\xBFM\xC3\xBCller\n"));
    EXPECT_EQ(QStringList("MÃ¼ller"), linesOf("M\xC3\xBCller")); // no mark
    EXPECT_EQ(QStringList(), linesOf("\xEF\xBB\xBF"));
    EXPECT_EQ(QStringList("?x"), linesOf("\xEF\xBB\xBF\xFCx"));
}

TEST(CsvReader, OddBytesAreSurvived)
{
    EXPECT_EQ(QStringList({"ab", "c"}), linesOf(QByteArray("a\0b\nc\0", 6)));
    EXPECT_EQ(QStringList("a"), linesOf("a\r\n\x1A")); // the end mark of old programs
    const QByteArray long1(1 << 20, 'x');
    EXPECT_EQ(1 << 20, linesOf(long1 + "\nb").at(0).size());
    const QByteArray endless(CsvReader::maxLineBytes + 100, 'x');
    const QStringList cut = linesOf(endless + "\nb");
    ASSERT_EQ(2, cut.size());
    EXPECT_EQ(CsvReader::maxLineBytes, cut[0].size());
    EXPECT_EQ("b", cut[1]);
}

TEST(CsvReader, WhatCannotBeReadIsNotOpened)
{
    EXPECT_FALSE(CsvReader("/no/such/file.csv").open());
    EXPECT_FALSE(CsvReader(QDir::tempPath()).open());
    EXPECT_FALSE(CsvReader("").open());
}

TEST(CsvText, RowsAreFoundByNumber)
{
    const ImportFile file(" one \r\n\r\nthree");
    QString text = "before";
    EXPECT_TRUE(FileReadRowNum(file.path(), 1, text));
    EXPECT_EQ("one", text);
    EXPECT_TRUE(FileReadRowNum(file.path(), 2, text));
    EXPECT_EQ("", text);
    EXPECT_TRUE(FileReadRowNum(file.path(), 3, text));
    EXPECT_EQ("three", text);
    EXPECT_FALSE(FileReadRowNum(file.path(), 4, text));
    EXPECT_FALSE(FileReadRowNum(file.path() + "x", 1, text));
    EXPECT_EQ("three", text);
}

TEST(CsvText, ValuesLoseTheirOuterQuotes)
{
    EXPECT_EQ("Smith, Jr.", CSVField_GetValue(" \"Smith, Jr.\" "));
    EXPECT_EQ("", CSVField_GetValue("\"\""));
    EXPECT_EQ("\"", CSVField_GetValue("\""));
    EXPECT_EQ("5 disk\"", CSVField_GetValue("\"5 disk\"\"\""));
    EXPECT_EQ("5\"", CSVField_GetValue("5\""));
    EXPECT_EQ("a \"b\" c", CSVField_GetValue("\"a \"\"b\"\" c\""));
    EXPECT_EQ("\"open", CSVField_GetValue("\"open"));
    EXPECT_EQ(" in ", CSVField_GetValue("\" in \"")); // blanks inside quotes stay
}

TEST(CsvText, CommasInQuotesBelongToTheValue)
{
    EXPECT_EQ(QStringList({"A", "\"B,C\"", "D"}), SplitCsvRow("A, \"B,C\" ,D"));
    EXPECT_EQ(QStringList({"A", "\"B,C,D"}), SplitCsvRow("A,\"B,C,D")); // hides the rest
    EXPECT_EQ(QStringList({"A", ""}), SplitCsvRow("A,"));
    EXPECT_EQ(QStringList({"A", "B", "C"}), SplitCsvRow("A,BþC")); // the forbidden character
}

TEST(CsvText, StoredValuesHaveNoQuotesAtAll)
{
    EXPECT_EQ(QStringList({"a b c", "B,C", ""}),
              SplitCsvRowForStoring("\"a \"\"b\"\" c\",\"B,C\",\"\""));
}
