// Each byte of a table of 30 rows, its index and its memo file to 0, 255, one more and one bit
// else: an answer every time, rows that were not hit survive a save and a repair, and damage in an
// index is found, or it changes nothing that is read.
#include "engine/SimPeople.h"
#include "support/MatrixLength.h"

#include "db/engine/Bytes.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

using namespace norvane::engine;
using namespace enginetest;
using norvane::test::countPoint;
using norvane::test::matrixLength;

namespace
{

constexpr std::size_t kHeader = 32 + 8 * 32 + 1;
constexpr std::size_t kRow = 107;
constexpr std::size_t kRows = 30;
constexpr std::size_t kChanged = 5; // the row that is saved, counted from 0

class ByteFlips : public testing::TestWithParam<const char *>
{
protected:
    void SetUp() override
    {
        SimSession session(*m_start);
        for (int id = 1; id <= static_cast<int>(kRows); ++id) {
            const Save save = insertOf(id, std::string(static_cast<std::size_t>(id), 't'));
            ASSERT_TRUE(session.perform(save));
            note(m_people, save);
        }
        m_start->files.erase("/people.nvj");
        m_rows = m_start->bytes(kPeoplePath);
        m_memos = m_start->bytes("/people.fpt");
    }

    // The tag gives all rows, or is not there, which is told. Walks end.
    static bool walks(Handle table, const char *tag)
    {
        const Handle handle = d4tag(table, tag);
        if (handle == 0)
            return true;
        d4tagSelect(table, handle);
        std::set<int> found;
        std::size_t steps = 0;
        for (Code code = d4top(table); code == r4success && steps <= 2 * kRows;
             code = d4skip(table, 1), ++steps) {
            found.insert(f4long(d4field(table, "rowid")));
            (void)memo(table, "notes");
        }
        EXPECT_LE(steps, 2 * kRows);
        return found.size() >= kRows;
    }

    // Rows and texts that the save and the flipped byte had nothing to do with.
    void expectUntouched(const SimDisk &disk, const std::string &path, std::size_t place) const
    {
        const std::vector<Byte> &rows = disk.files.at(kPeoplePath)->bytes;
        for (std::size_t row = 0; row < kRows; ++row) {
            const std::size_t from = kHeader + row * kRow;
            const bool hit = path == kPeoplePath && place >= from && place < from + kRow;
            if (row == kChanged || hit)
                continue;
            ASSERT_LE(from + kRow, rows.size());
            ASSERT_TRUE(std::equal(rows.begin() + static_cast<std::ptrdiff_t>(from),
                                   rows.begin() + static_cast<std::ptrdiff_t>(from + kRow),
                                   m_rows.begin() + static_cast<std::ptrdiff_t>(from)))
                << "row " << row + 1;
        }
        const std::vector<Byte> &memos = disk.files.at("/people.fpt")->bytes;
        ASSERT_GE(memos.size(), m_memos.size());
        for (std::size_t at = 512; at < m_memos.size(); ++at)
            ASSERT_TRUE(memos[at] == m_memos[at] || (path == "/people.fpt" && at == place)) << at;
    }

    void useAndRepair(SimDisk &disk, bool inIndex)
    {
        SimSession session(disk);
        d4expectTags(session, "people", peopleTable().tags);
        Handle table = d4open(session, kPeoplePath);
        if (table == 0) {
            EXPECT_NE(lastError(session).kind, ErrorKind::None);
            EXPECT_NE(lastError(session).file, "");
            return;
        }
        const bool sound = d4check(table).empty();
        bool right = true;
        for (const char *tag : {"rowid", "name", "city", "opened"})
            right = walks(table, tag) && right;
        EXPECT_TRUE(right || !sound || !inIndex) << "wrong answers, and nothing found by the check";
        d4tagSelect(table, d4tag(table, "rowid"));
        if (d4seekDouble(table, static_cast<double>(kChanged) + 1) == r4success &&
            d4lock(table, d4recNo(table)) == r4success) {
            assign(table, "name", "Changed");
            assignMemo(table, "notes", "a new text");
            if (d4flush(table) != r4success)
                d4discard(table);
        }
        (void)d4unlock(table);
        (void)addPerson(table, 900, "Added", "text");
        EXPECT_TRUE(!sound || d4check(table).empty());
        (void)d4close(table);
        code4accessMode(session, 1);
        table = d4open(session, kPeoplePath);
        const bool repaired = table > 0 && d4reindex(table) == r4success;
        if (inIndex && repaired) {
            EXPECT_EQ(d4check(table), std::vector<std::string>());
            EXPECT_TRUE(walks(table, "rowid") && walks(table, "name"));
        }
        (void)d4close(table);
    }

    std::unique_ptr<SimDisk> m_start = diskWithPeople();
    People m_people;
    std::vector<Byte> m_rows, m_memos;
};

TEST_P(ByteFlips, AreSurvivedAndFound)
{
    const std::string path = std::string("/people.") + GetParam();
    const std::vector<Byte> &sound = m_start->bytes(path);
    const std::size_t step = matrixLength<std::size_t>(13, 2, 1);
    for (std::size_t place = 0; place < sound.size(); place += place < 64 ? 1 : step) {
        const Byte was = sound[place];
        const Byte bit = static_cast<Byte>(was ^ (1U << place % 8));
        for (const Byte value : {Byte{0}, Byte{255}, static_cast<Byte>(was + 1), bit}) {
            if (value == was)
                continue;
            countPoint("changed bytes");
            const auto disk = m_start->copy();
            disk->bytes(path)[place] = value;
            useAndRepair(*disk, std::string(GetParam()) == "cdx");
            expectUntouched(*disk, path, place);
            ASSERT_FALSE(HasFailure())
                << path << " at " << place << ": " << int{was} << " to " << int{value};
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Files, ByteFlips, testing::Values("dbf", "cdx", "fpt"),
                         [](const auto &one) { return std::string(one.param); });

} // namespace
