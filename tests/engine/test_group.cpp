// Rows stored together: what others see of them before and after, and which rows are held.
#include "engine/TableFixture.h"

#include <gtest/gtest.h>

using namespace norvane::engine;
using namespace enginetest;

namespace
{

class Group : public testing::Test
{
protected:
    void SetUp() override
    {
        makeTable(m_path, peopleTable());
        m_table = d4open(m_session, m_path);
        for (int id = 1; id <= 5; ++id)
            ASSERT_EQ(addPerson(m_table, id, "Name " + std::to_string(id), "text"), r4success);
        m_other = d4open(m_otherSession, m_path);
    }

    void change(int id, const std::string &name)
    {
        ASSERT_EQ(findPerson(m_table, id), r4success);
        ASSERT_EQ(d4lock(m_table, d4recNo(m_table)), r4success);
        assign(m_table, "name", name);
        ASSERT_EQ(d4flush(m_table), r4success);
        d4unlock(m_table);
    }
    // The name that somebody finds under the number; empty when there is none.
    static std::string nameOf(Handle table, int id)
    {
        return findPerson(table, id) == r4success ? text(table, "name") : std::string();
    }

    TempFolder m_folder;
    std::string m_path = m_folder / "people.dbf";
    TestSession m_session;
    TestSession m_otherSession;
    Handle m_table = 0;
    Handle m_other = 0;
};

TEST_F(Group, IsSeenAtItsEndByEverybody)
{
    d4groupBegin(m_table);
    change(3, "Changed");
    for (int id = 6; id <= 1005; ++id)
        ASSERT_EQ(addPerson(m_table, id, "New", "a text"), r4success);
    for (const Handle reader : {m_table, m_other}) {
        EXPECT_EQ(nameOf(reader, 3), "Name 3");
        EXPECT_EQ(nameOf(reader, 6), "");
        EXPECT_EQ(d4recCountDo(reader), 5U);
    }
    ASSERT_EQ(d4groupEnd(m_table), r4success);
    for (const Handle reader : {m_table, m_other}) {
        EXPECT_EQ(nameOf(reader, 3), "Changed");
        EXPECT_EQ(nameOf(reader, 1005), "New");
        EXPECT_EQ(memo(reader, "notes"), "a text");
        EXPECT_EQ(d4recCountDo(reader), 1005U);
    }
    EXPECT_EQ(findings(m_path), "");
    // ... and ordinary saves go on behind it
    EXPECT_EQ(addPerson(m_other, 1006, "Later"), r4success);
    EXPECT_EQ(nameOf(m_table, 1006), "Later");
}

TEST_F(Group, HoldsItsRowsUntilItsEnd)
{
    d4groupBegin(m_table);
    change(2, "Changed");
    change(4, "Changed too");
    ASSERT_EQ(findPerson(m_other, 2), r4success);
    EXPECT_EQ(d4lock(m_other, d4recNo(m_other)), d4locked);
    EXPECT_EQ(addPerson(m_other, 6, "Not held up"), r4success);
    // what was read here is no longer what will be stored
    ASSERT_EQ(findPerson(m_table, 2), r4success);
    EXPECT_EQ(d4delete(m_table), r4failure);
    EXPECT_EQ(m_session.lastKind(), ErrorKind::Misuse);
    ASSERT_EQ(d4groupEnd(m_table), r4success);
    ASSERT_EQ(findPerson(m_other, 2), r4success);
    EXPECT_EQ(d4lock(m_other, d4recNo(m_other)), r4success);
    EXPECT_EQ(text(m_other, "name"), "Changed");
    change(4, "And again");
    EXPECT_EQ(nameOf(m_other, 4), "And again") << "after the group a save is one of its own";
}

TEST_F(Group, WhatIsNotEndedIsForgotten)
{
    for (const bool closed : {false, true}) {
        d4groupBegin(m_table);
        change(1, "Changed");
        addPerson(m_table, 7, "New");
        EXPECT_EQ(closed ? d4close(m_table) : d4groupDrop(m_table), r4success);
        EXPECT_EQ(nameOf(m_other, 1), "Name 1");
        EXPECT_EQ(nameOf(m_other, 7), "");
        ASSERT_EQ(findPerson(m_other, 1), r4success);
        EXPECT_EQ(d4lock(m_other, d4recNo(m_other)), r4success);
        d4unlock(m_other);
    }
}

TEST_F(Group, ThatGetsNoAppendLockStoresNothing)
{
    ASSERT_EQ(d4lock(m_other, 0), r4success); // the append lock
    d4groupBegin(m_table);
    change(1, "Changed");
    addPerson(m_table, 7, "New");
    EXPECT_NE(d4groupEnd(m_table), r4success);
    EXPECT_EQ(m_session.lastKind(), ErrorKind::Locked);
    EXPECT_EQ(nameOf(m_other, 1), "Name 1");
    d4unlock(m_other);
    EXPECT_EQ(findings(m_path), "");
}

TEST_F(Group, ASessionForReadingOnlyStoresNone)
{
    d4groupBegin(m_table);
    change(3, "Changed");
    ASSERT_EQ(addPerson(m_table, 6, "New", "a text"), r4success);
    code4readOnly(m_session, 1);
    EXPECT_NE(d4groupEnd(m_table), r4success);
    EXPECT_EQ(lastError(m_session).kind, ErrorKind::ReadOnly);
    EXPECT_EQ(nameOf(m_table, 3), "Name 3");
    EXPECT_EQ(nameOf(m_other, 6), "");
}

TEST_F(Group, TakesTheRowAtHandAlong)
{
    d4groupBegin(m_table);
    ASSERT_EQ(findPerson(m_table, 3), r4success);
    ASSERT_EQ(d4lock(m_table, d4recNo(m_table)), r4success);
    assign(m_table, "name", "Changed");
    ASSERT_EQ(d4groupEnd(m_table), r4success);
    EXPECT_EQ(nameOf(m_other, 3), "Changed");
}

} // namespace
