// Files that no spreadsheet wrote: the checks must come to an answer, whatever the bytes.
#include "db/import/clsImportData.h"
#include "db/import/CsvText.h"
#include "ImportFile.h"
#include "support/ScriptedPrompts.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string_view>

namespace
{

const QByteArray heading("LASTNAME,COMPANY,NOTES\r\n");

QByteArray soundFile()
{
    return heading + "Doe,ACME,\"says \"\"hi\"\", twice\"\r\n\r\nM\xFCller,,\"\"\r\nRoe\r\n";
}

// Checks the file; when it passes, its rows must be cut into no more values than headings.
bool passes(const QByteArray &bytes)
{
    const ImportFile file(bytes);
    clsImportData import;
    QStringList headings;
    QString errors;
    qint32 rows = 0;
    const clsImportColDefs columns = customerImportColumns();
    const bool good = import.ValidateCols(file.path(), columns, headings, errors) &&
                      import.ValidateRows(file.path(), columns, headings, errors, rows);
    EXPECT_EQ(good, errors.isEmpty());
    QString row;
    for (qint32 i = 2; good && FileReadRowNum(file.path(), i, row); ++i) {
        EXPECT_LE(SplitCsvRow(row).size(), headings.size());
        EXPECT_LE(SplitCsvRowForStoring(row).size(), headings.size());
    }
    return good;
}

// Mostly the characters that mean something in such a file.
QByteArray noise(std::mt19937 &random, int length)
{
    static constexpr std::string_view alphabet("\0,,,\"\"\r\n\xFE\x1A \t\xEF\xBB\xBF"
                                               "aA9",
                                               18);
    std::uniform_int_distribution<std::size_t> pick(0, alphabet.size() * 2 - 1);
    std::uniform_int_distribution<int> any(0, 255);
    QByteArray bytes;
    for (int i = 0; i < length; ++i) {
        const std::size_t at = pick(random);
        bytes += at < alphabet.size() ? alphabet[at] : static_cast<char>(any(random));
    }
    return bytes;
}

} // namespace

TEST(ImportRobustness, ASoundFilePassesAtFirst)
{
    EXPECT_TRUE(passes(soundFile()));
}

TEST(ImportRobustness, EveryTruncationComesToAnAnswer)
{
    const ScriptedPrompts person;
    const QByteArray whole = soundFile();
    for (qsizetype length = 0; length <= whole.size(); ++length) {
        // The headings are whole, or cut in the last one.
        const bool headings = length >= heading.size() - 2;
        EXPECT_EQ(headings, passes(whole.left(length)) && headings) << length;
    }
}

TEST(ImportRobustness, NoiseComesToAnAnswer)
{
    const ScriptedPrompts person;
    std::mt19937 random(20040314);
    int accepted = 0;
    for (int round = 0; round < 400; ++round) {
        const QByteArray rows = noise(random, round % 200);
        passes(rows);
        accepted += passes(heading + rows) ? 1 : 0;
    }
    EXPECT_GT(accepted, 0);
    EXPECT_LT(accepted, 400);
}

TEST(ImportRobustness, EveryChangedByteComesToAnAnswer)
{
    const ScriptedPrompts person;
    const QByteArray whole = soundFile();
    for (qsizetype at = 0; at < whole.size(); ++at) {
        for (const char byte : {'\0', '"', ',', '\n', '\r', '\xFE', '\xFF'}) {
            QByteArray changed = whole;
            changed[at] = byte;
            passes(changed);
        }
    }
}

TEST(ImportRobustness, ASpreadsheetsOtherFormsAreToldFromCsv)
{
    const ScriptedPrompts person;
    EXPECT_TRUE(passes("\xEF\xBB\xBF" + soundFile()));
    EXPECT_FALSE(passes(QByteArray("PK\x03\x04\0\0\0\0", 8) + soundFile()));
    EXPECT_FALSE(passes("LASTNAME;COMPANY\nDoe;ACME\n"));
    EXPECT_FALSE(passes("LASTNAME\tCOMPANY\nDoe\tACME\n"));
}

TEST(ImportRobustness, AHugeRowIsRefusedLikeASmallOne)
{
    const ScriptedPrompts person;
    EXPECT_FALSE(passes(heading + QByteArray(1 << 20, ',') + "\n"));
    EXPECT_TRUE(passes(heading + QByteArray(1 << 20, 'x') + "\n"));
    EXPECT_FALSE(passes(heading + "Doe,ACME," + QByteArray(5 << 20, 'x') + "\n"))
        << "what is behind the limit would be missing";
}
