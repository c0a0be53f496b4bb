// The bytes other programs read: headers, rows and memos as they lie in the files, and tables of
// other programs read by ours.
#include "engine/TableFixture.h"

#include "db/engine/Bytes.h"
#include "db/engine/TableFormat.h"
#include "TestPlaces.h"

#include <gtest/gtest.h>

#include <filesystem>

using namespace norvane::engine;
using namespace enginetest;

namespace
{

std::string bytesAt(const Bytes &bytes, std::size_t from, std::size_t length)
{
    return {bytes.begin() + static_cast<std::ptrdiff_t>(from),
            bytes.begin() + static_cast<std::ptrdiff_t>(from + length)};
}

TEST(TableFormat, ANewTableHasTheHeaderOfItsKind)
{
    const TempFolder folder;
    makeTable(folder / "people.dbf", peopleTable());
    makeTable(folder / "counter.dbf", counterTable());
    const Bytes people = readFile(folder / "people.dbf");
    ASSERT_EQ(people.size(), 32 + 8 * 32 + 1 + 1U);
    EXPECT_EQ(people[0], 0xF5);
    const Date now = today();
    EXPECT_EQ(people[1], now.year % 100);
    EXPECT_EQ(people[2], now.month);
    EXPECT_EQ(getLe32(&people[4]), 0U);
    EXPECT_EQ(getLe16(&people[8]), 32 + 8 * 32 + 1);
    EXPECT_EQ(getLe16(&people[10]), 1 + 10 + 30 + 25 + 12 + 8 + 1 + 10 + 10);
    EXPECT_EQ(people[28], 0x01); // index; no memo flag in this kind
    EXPECT_EQ(people[29], 0x03); // code page 1252
    EXPECT_EQ(bytesAt(people, 64, 12), std::string("NAME\0\0\0\0\0\0\0C", 12));
    EXPECT_EQ(getLe32(&people[64 + 12]), 11U);
    EXPECT_EQ(people[64 + 16], 30);
    EXPECT_EQ(people[people.size() - 2], 0x0D);
    EXPECT_EQ(people.back(), 0x1A);
    const Bytes counter = readFile(folder / "counter.dbf");
    EXPECT_EQ(counter[0], 0x03);
    EXPECT_FALSE(std::filesystem::exists(folder / "counter.fpt"));
    const Bytes memo = readFile(folder / "people.fpt");
    ASSERT_EQ(memo.size(), 512U);
    EXPECT_EQ(getBe32(memo.data()), 8U);
    EXPECT_EQ(getBe16(&memo[6]), 64);
}

TEST(TableFormat, RowsAndMemosLieAsOtherProgramsExpect)
{
    const TempFolder folder;
    const std::string path = folder / "people.dbf";
    makeTable(path, peopleTable());
    const TestSession session;
    const Handle table = d4open(session, path);
    ASSERT_EQ(addPerson(table, 42, "Eve", "hello"), r4success);
    ASSERT_EQ(addPerson(table, 43, "Bob", std::string(60, 'b')), r4success);
    const Bytes dbf = readFile(path);
    const std::size_t start = 32 + 8 * 32 + 1;
    const std::size_t length = 107;
    ASSERT_EQ(dbf.size(), start + 2 * length + 1);
    EXPECT_EQ(getLe32(&dbf[4]), 2U);
    EXPECT_EQ(bytesAt(dbf, start, 15), "         42Eve ");
    EXPECT_EQ(bytesAt(dbf, start + length - 20, 20), std::string("         8") + "          ");
    EXPECT_EQ(bytesAt(dbf, start + length + length - 20, 10), "         9");
    EXPECT_EQ(dbf.back(), 0x1A);
    const Bytes fpt = readFile(folder / "people.fpt");
    ASSERT_EQ(fpt.size(), 11 * 64U); // 512, one block, two blocks
    EXPECT_EQ(getBe32(fpt.data()), 11U);
    EXPECT_EQ(getBe32(&fpt[512]), 1U);
    EXPECT_EQ(getBe32(&fpt[516]), 5U);
    EXPECT_EQ(bytesAt(fpt, 520, 6), std::string("hello\0", 6));
}

TEST(TableFormat, ImpossibleDefinitionsMakeNoTable)
{
    const TempFolder folder;
    for (const FieldDef &field : {FieldDef{"lower", 'C', 0, 5, 0},
                                  {"ELEVENCHARS", 'C', 0, 5, 0},
                                  {"1ST", 'C', 0, 5, 0},
                                  {"WIDE", 'C', 0, 255, 0},
                                  {"TIGHT", 'N', 0, 3, 2},
                                  {"DAY", 'D', 0, 10, 0},
                                  {"ODD", 'X', 0, 5, 0},
                                  {"", 'C', 0, 5, 0}})
        EXPECT_FALSE(layOutFields({field}).ok()) << field.name;
    EXPECT_FALSE(layOutFields({{"A", 'C', 0, 1, 0}, {"A", 'N', 0, 2, 0}}).ok());
    EXPECT_FALSE(layOutFields({}).ok());
}

TEST(TableFormat, TablesOfOtherProgramsAreReadChangedAndStaySound)
{
    const std::string source = NORVANE_SOURCE_DIR "/tests/data/foreign/";
    for (const char *name : {"people30", "people33"}) {
        const TempFolder folder;
        for (const char *extension : {".dbf", ".cdx", ".fpt"})
            std::filesystem::copy_file(source + name + extension,
                                       folder / (std::string(name) + extension));
        const std::string path = folder / (std::string(name) + ".dbf");
        ASSERT_EQ(findings(path), "") << name;
        const TestSession session;
        const Handle table = d4open(session, path);
        ASSERT_GT(table, 0);
        for (std::uint32_t record = 1; d4go(table, record) == r4success; ++record) {
            const int id = f4long(d4field(table, "rowid"));
            const std::string here = text(table, "name");
            if (d4deleted(table))
                continue;
            ASSERT_EQ(findPerson(table, id), r4success) << id;
            ASSERT_EQ(text(table, "name"), here);
        }
        d4top(table);
        ASSERT_EQ(d4lock(table, d4recNo(table)), r4success);
        assign(table, "name", "Other Name");
        assignMemo(table, "notes", "a new text");
        ASSERT_EQ(d4unlock(table), r4success);
        EXPECT_EQ(memo(table, "notes"), "a new text");
        ASSERT_EQ(addPerson(table, 900001, "Added", "with a text"), r4success);
        selectTag(table, "name");
        ASSERT_EQ(d4seek(table, "ADDED"), r4success);
        EXPECT_EQ(memo(table, "notes"), "with a text");
        d4close(table);
        EXPECT_EQ(findings(path), "") << name;
    }
}

TEST(TableFormat, FilesAreFoundWhateverTheirLetterCase)
{
    const TempFolder folder;
    makeTable(folder / "people.dbf", peopleTable());
    std::filesystem::rename(folder / "people.dbf", folder / "PEOPLE.DBF");
    std::filesystem::rename(folder / "people.cdx", folder / "People.CDX");
    std::filesystem::rename(folder / "people.fpt", folder / "PEOPLE.FPT");
    const TestSession session;
    const Handle table = d4open(session, folder / "people.dbf");
    ASSERT_GT(table, 0) << lastError(session).detail;
    EXPECT_EQ(addPerson(table, 1, "One", "memo"), r4success);
}

TEST(TableFormat, DatesAreShownByPicture)
{
    EXPECT_EQ(date4format("20040314", "MM"), "03");
    EXPECT_EQ(date4format("20040314", "DD"), "14");
    EXPECT_EQ(date4format("20040314", "YY"), "04");
    EXPECT_EQ(date4format("20040314", "MM/DD/CCYY"), "03/14/2004");
    EXPECT_EQ(date4format("        ", "DD.MM.YY"), "  .  .  ");
    EXPECT_EQ(date4format("2004", "CCYY"), "    ");
}

} // namespace
