// Rows that a walk reads together: fewer reads, and nothing older than the rules allow.
#include "engine/TableFixture.h"
#include "support/MemoryFile.h"

#include "db/engine/TableCreate.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>

using namespace norvane::engine;
using namespace enginetest;
using norvane::test::MemoryFileSystem;

namespace
{

constexpr int kPeople = 300;

class ReadAhead : public testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(
            createTable(m_disk, peopleTable(), {m_path, "/people.cdx", "/people.fpt"}).ok());
        for (const Handle session : {m_ours, m_theirs}) {
            code4lockAttempts(session, 1);
            code4durability(session, "process");
        }
        m_here = d4open(m_ours, m_path);
        for (int id = 1; id <= kPeople; ++id)
            ASSERT_EQ(addPerson(m_here, id, "Name " + std::to_string(id * 7919 % 1000),
                                id % 3 ? "" : "text of " + std::to_string(id)),
                      r4success);
        m_there = d4open(m_theirs, m_path);
    }
    ~ReadAhead() override
    {
        d4initUndo(m_ours);
        d4initUndo(m_theirs);
    }

    static void move(Handle table, int id, std::string_view city)
    {
        ASSERT_EQ(findPerson(table, id), r4success);
        ASSERT_EQ(d4lock(table, d4recNo(table)), r4success);
        assign(table, "city", city);
        ASSERT_EQ(d4unlock(table), r4success);
    }
    void walkTo(int id)
    {
        ASSERT_EQ(findPerson(m_here, 1), r4success);
        while (f4long(d4field(m_here, "rowid")) < id)
            ASSERT_EQ(d4skip(m_here, 1), r4success);
    }
    int readsOf(const std::function<void()> &work)
    {
        const int before = m_disk.content(m_path).reads;
        work();
        return m_disk.content(m_path).reads - before;
    }

    MemoryFileSystem m_disk;
    const std::string m_path = "/people.dbf";
    Handle m_ours = d4init_v(&m_disk);
    Handle m_theirs = d4init_v(&m_disk);
    Handle m_here = 0;
    Handle m_there = 0;
};

TEST_F(ReadAhead, AWalkReadsRowsTogetherAndALookUpReadsOne)
{
    for (const char *tag : {"rowid", "name"}) { // as they lie, and here and there
        for (const bool forward : {true, false}) {
            std::vector<int> ids;
            const int reads = readsOf([&] {
                selectTag(m_here, tag);
                Code code = forward ? d4top(m_here) : d4bottom(m_here);
                for (; code == r4success; code = d4skip(m_here, forward ? 1 : -1)) {
                    const int id = f4long(d4field(m_here, "rowid"));
                    ids.push_back(id);
                    EXPECT_EQ(memo(m_here, "notes"), id % 3 ? "" : "text of " + std::to_string(id));
                }
            });
            EXPECT_LT(reads, kPeople / 4) << tag << forward;
            std::sort(ids.begin(), ids.end());
            EXPECT_EQ(ids.size(), static_cast<std::size_t>(kPeople));
            EXPECT_TRUE(std::adjacent_find(ids.begin(), ids.end()) == ids.end());
        }
    }
    EXPECT_LT(readsOf([&] { EXPECT_EQ(findPerson(m_here, 150), r4success); }), 4);
}

TEST_F(ReadAhead, RowsAreNeverOlderThanTheEntriesThatLedToThem)
{
    walkTo(5);
    move(m_there, 10, "Elsewhere");
    ASSERT_EQ(findPerson(m_here, 9), r4success);
    ASSERT_EQ(d4skip(m_here, 1), r4success);
    EXPECT_EQ(text(m_here, "city"), "Elsewhere");
}

TEST_F(ReadAhead, ALockedRowAndOnesOwnChangesAreReadAnew)
{
    walkTo(5);
    move(m_there, 10, "Elsewhere");
    ASSERT_EQ(d4lock(m_here, 10), r4success);
    while (f4long(d4field(m_here, "rowid")) < 10)
        ASSERT_EQ(d4skip(m_here, 1), r4success);
    EXPECT_EQ(text(m_here, "city"), "Elsewhere");
    assign(m_here, "name", "Changed");
    EXPECT_EQ(d4unlock(m_here), r4success);

    walkTo(5);
    const Handle second = d4open(m_ours, m_path);
    move(second, 7, "Nearby");
    d4close(second);
    ASSERT_EQ(d4skip(m_here, 2), r4success);
    EXPECT_EQ(text(m_here, "city"), "Nearby");
    EXPECT_EQ(d4check(m_here), std::vector<std::string>());
}

} // namespace
