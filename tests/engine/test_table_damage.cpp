// Wrecked, short and lying files: an answer every time, never a crash, a hang or a wild allocation.
#include "engine/TableFixture.h"

#include "db/engine/Bytes.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

using namespace norvane::engine;
using namespace enginetest;

namespace
{

class TableDamage : public testing::Test
{
protected:
    void SetUp() override
    {
        makeTable(m_path, peopleTable());
        TestSession session;
        const Handle table = d4open(session, m_path);
        for (int id = 1; id <= 8; ++id)
            ASSERT_EQ(addPerson(table, id, "Person", id % 2 ? "some text " : ""), r4success);
        d4close(table);
        m_dbf = readFile(m_path);
        m_cdx = readFile(m_folder / "people.cdx");
        m_fpt = readFile(m_folder / "people.fpt");
    }

    void restore()
    {
        writeFile(m_path, m_dbf);
        writeFile(m_folder / "people.cdx", m_cdx);
        writeFile(m_folder / "people.fpt", m_fpt);
    }

    // Everything the program does with a table; what comes out does not matter here.
    std::size_t useAll()
    {
        TestSession session;
        const Handle table = d4open(session, m_path);
        if (table == 0)
            return 0;
        std::size_t rows = 0;
        for (const char *tag : {"", "rowid", "name"}) {
            d4tagSelect(table, *tag ? d4tag(table, tag) : 0);
            for (Code code = d4top(table); code == r4success && rows < 100;
                 code = d4skip(table, 1)) {
                ++rows;
                (void)memo(table, "notes");
                (void)f4double(d4field(table, "amount"));
            }
        }
        if (d4tag(table, "rowid") > 0 && findPerson(table, 3) == r4success &&
            d4lock(table, d4recNo(table)) == r4success) {
            assign(table, "name", "Changed");
            assignMemo(table, "detail", "and a memo");
        }
        (void)d4unlock(table);
        (void)addPerson(table, 99, "Added", "text");
        (void)d4check(table);
        d4close(table);
        return rows;
    }

    TempFolder m_folder;
    std::string m_path = m_folder / "people.dbf";
    Bytes m_dbf, m_cdx, m_fpt;
};

TEST_F(TableDamage, EachByteOfTheHeaderChanged)
{
    for (std::size_t at = 0; at < 32 + 8 * 32 + 1; at += at < 64 ? 1 : 3) {
        for (const int value : {0xFF, m_dbf[at] + 1, m_dbf[at] ^ 0x20}) {
            restore();
            Bytes bytes = m_dbf;
            bytes[at] = static_cast<std::uint8_t>(value);
            writeFile(m_path, bytes);
            EXPECT_LT(useAll(), 100U) << at;
        }
    }
}

TEST_F(TableDamage, EachFileCutShort)
{
    for (std::size_t size = 0; size < m_dbf.size(); size += 7) {
        restore();
        std::filesystem::resize_file(m_path, size);
        EXPECT_LT(useAll(), 100U) << size;
    }
    for (std::size_t size = 0; size < m_fpt.size(); size += 9) {
        restore();
        std::filesystem::resize_file(m_folder / "people.fpt", size);
        EXPECT_LT(useAll(), 100U) << size;
    }
    for (std::size_t size = 0; size < m_cdx.size(); size += 100) {
        restore();
        std::filesystem::resize_file(m_folder / "people.cdx", size);
        EXPECT_LT(useAll(), 100U) << size;
    }
}

TEST_F(TableDamage, MemoBytesAndPointersChanged)
{
    for (std::size_t at = 0; at < m_fpt.size(); at += at < 16 ? 1 : 5) {
        restore();
        Bytes bytes = m_fpt;
        bytes[at] = static_cast<std::uint8_t>(~bytes[at]);
        writeFile(m_folder / "people.fpt", bytes);
        EXPECT_LT(useAll(), 100U) << at;
    }
    const std::size_t pointer = 32 + 8 * 32 + 1 + 107 - 20;
    for (const char *value : {"4294967296", "2147483647", "         0", "         7", "        -9",
                              "       abc", "\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF"}) {
        restore();
        Bytes bytes = m_dbf;
        std::copy_n(value, 10, bytes.begin() + static_cast<std::ptrdiff_t>(pointer));
        writeFile(m_path, bytes);
        EXPECT_NE(findings(m_path), "") << value;
        TestSession session;
        const Handle table = d4open(session, m_path);
        ASSERT_EQ(d4go(table, 1), r4success);
        EXPECT_EQ(f4memoLenVB(d4field(table, "notes")), 0U);
        if (std::string(value) != "         0") {
            EXPECT_EQ(f4memoPtr(d4field(table, "notes")), nullptr);
            EXPECT_EQ(session.takeErrors().size(), 1U) << value;
        }
        d4lock(table, 1); // saving the empty text it shows does not lose the pointer
        assignMemo(table, "notes", "");
        d4unlock(table);
        EXPECT_EQ(readFile(m_path)[pointer], bytes[pointer]);
        d4close(table);
    }
}

TEST_F(TableDamage, TwoRowsThatShareAMemoAreFound)
{
    Bytes bytes = m_dbf;
    const std::size_t first = 32 + 8 * 32 + 1 + 107 - 20;
    std::copy_n(bytes.begin() + static_cast<std::ptrdiff_t>(first), 10,
                bytes.begin() + static_cast<std::ptrdiff_t>(first + 107));
    writeFile(m_path, bytes);
    EXPECT_NE(findings(m_path).find("share memo blocks"), std::string::npos);
}

TEST_F(TableDamage, ACountThatLiesIsPutRightAtOnce)
{
    // too many, as in a file that was cut; too few, so that rows lie behind the count
    for (const std::uint32_t claimed : {9U, 1008U, 0x80000000U, 0xFFFFFFFFU, 7U, 6U, 1U, 0U}) {
        SCOPED_TRACE(claimed);
        restore();
        std::filesystem::remove(m_path + ".bad");
        Bytes bytes = m_dbf;
        putLe32(&bytes[4], claimed);
        writeFile(m_path, bytes);
        {
            TestSession reader;
            code4readOnly(reader, 1); // may not, so it tells and shows what is sure
            const Handle table = d4open(reader, m_path);
            EXPECT_EQ(d4recCountDo(table), std::min(claimed, 8U));
            EXPECT_EQ(d4damage(table).kind, ErrorKind::Damaged);
            EXPECT_TRUE(readFile(m_path) == bytes);
        }
        TestSession session;
        const Handle table = d4open(session, m_path);
        EXPECT_TRUE(session.takeErrors().empty());
        EXPECT_EQ(d4damage(table).kind, ErrorKind::None);
        EXPECT_EQ(d4recCountDo(table), 8U);
        EXPECT_EQ(findPerson(table, 8), r4success);
        EXPECT_EQ(addPerson(table, 9, "Ninth"), r4success);
        d4close(table);
        EXPECT_EQ(findings(m_path), "");
        EXPECT_TRUE(readFile(m_path + ".bad") == bytes);
    }
}

TEST_F(TableDamage, AMissingPartIsNamed)
{
    for (const char *part : {"people.cdx", "people.fpt", "people.dbf"}) {
        restore();
        std::filesystem::remove(m_folder / part);
        TestSession session;
        // rows can be read without an index, but nobody knows here which tags there were
        const Handle table = d4open(session, m_path);
        EXPECT_EQ(table > 0, std::string(part) == "people.cdx");
        EXPECT_EQ(session.lastKind(), ErrorKind::NotFound);
        EXPECT_EQ(lastError(session).file, m_folder / part);
        if (table > 0) {
            EXPECT_EQ(d4damage(table).file, m_folder / part);
            EXPECT_EQ(d4bottom(table), r4success);
            EXPECT_EQ(text(table, "rowid"), "         8"); // as it is stored
            EXPECT_NE(d4lock(table, 8), r4success);
            EXPECT_NE(addPerson(table, 9, "Ninth"), r4success);
            EXPECT_EQ(session.takeErrors().front().file, m_folder / part);
            EXPECT_TRUE(readFile(m_path) == m_dbf);
            continue;
        }
        // the caller tells of a table that is not there; of its parts only the engine knows
        EXPECT_EQ(session.takeErrors().size(), std::string(part) == "people.dbf" ? 0U : 1U);
        code4errorCode(session, 0);
        EXPECT_EQ(session.lastKind(), ErrorKind::None);
    }
}

TEST_F(TableDamage, AFullTableTakesNoRowIntoItsLockBytes)
{
    constexpr std::uint32_t most = (0x80000000U - (32 + 8 * 32 + 1) - 2) / 108;
    Bytes bytes = m_dbf;
    putLe32(&bytes[4], most - 1);
    writeFile(m_path, bytes);
    std::filesystem::resize_file(m_path, 289 + std::uint64_t{most - 1} * 107 + 1); // sparse
    std::filesystem::resize_file(m_folder / "people.fpt", 0x7FFFFFFE - 64);
    TestSession session;
    const Handle table = d4open(session, m_path);
    EXPECT_EQ(addPerson(table, 4999, "The last"), r4success);
    EXPECT_EQ(findPerson(table, 4999), r4success);
    EXPECT_EQ(d4recNo(table), most);
    EXPECT_EQ(d4recCountDo(table), most);
    const std::uint64_t size = std::filesystem::file_size(m_path);
    EXPECT_LT(size, 0x80000000U - most); // before its own row locks
    EXPECT_EQ(addPerson(table, 5000, "One too many"), r4failure);
    EXPECT_EQ(session.lastKind(), ErrorKind::TooLarge);
    ASSERT_EQ(findPerson(table, 1), r4success);
    d4lock(table, 1);
    assignMemo(table, "notes", std::string(200, 'x'));
    EXPECT_EQ(d4unlock(table), r4failure);
    EXPECT_EQ(session.lastKind(), ErrorKind::TooLarge);
    EXPECT_EQ(memo(table, "notes"), "some text ");
    EXPECT_EQ(std::filesystem::file_size(m_path), size);
}

// Renamed or unmounted while stations are at work, and back again.
TEST_F(TableDamage, AFolderThatGoesAwayAndComesBackNeedsNoRestart)
{
    const std::filesystem::path folder = std::filesystem::path(m_path).parent_path();
    const std::string away = folder.string() + ".away";
    TestSession session;
    const Handle walking = d4open(session, m_path);
    selectTag(walking, "rowid");
    ASSERT_EQ(d4top(walking), r4success);
    std::filesystem::rename(folder, away);
    TestSession other;
    EXPECT_EQ(d4open(other, m_path), 0);
    EXPECT_EQ(other.lastKind(), ErrorKind::NotFound);
    EXPECT_EQ(lastError(other).file, m_path);
    EXPECT_EQ(d4skip(walking, 1), r4success); // what is open stays open
    const Code added = addPerson(walking, 90, "Meanwhile", "text");
    d4close(walking);
    std::filesystem::rename(away, folder);
    const Handle table = d4open(other, m_path);
    ASSERT_GT(table, 0);
    EXPECT_EQ(findPerson(table, 90) == r4success, added == r4success);
    EXPECT_EQ(addPerson(table, 91, "Afterwards"), r4success);
    d4close(table);
    EXPECT_EQ(findings(m_path), "");
}

} // namespace
