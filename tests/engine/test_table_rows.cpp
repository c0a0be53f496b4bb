#include "engine/TableFixture.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

using namespace norvane::engine;
using namespace enginetest;

namespace
{

class TableRows : public testing::Test
{
protected:
    void SetUp() override
    {
        makeTable(m_path, peopleTable());
        m_table = d4open(m_session, m_path);
        ASSERT_GT(m_table, 0) << lastError(m_session).detail;
    }
    void TearDown() override
    {
        d4close(m_table);
        EXPECT_EQ(findings(m_path), "");
    }

    TempFolder m_folder;
    std::string m_path = m_folder / "people.dbf";
    TestSession m_session;
    Handle m_table = 0;
};

TEST_F(TableRows, ValuesOfEachTypeComeBackAfterReopening)
{
    const std::string note(5000, 'x');
    ASSERT_EQ(d4appendStartVB(m_table, 0), r4success);
    d4blank(m_table);
    f4assignLong(d4field(m_table, "rowid"), 1000);
    assign(m_table, "name", "M\xFCller");
    assign(m_table, "amount", -1234.565);
    assign(m_table, "opened", "20240229");
    assign(m_table, "active", "T");
    assignMemo(m_table, "notes", note);
    ASSERT_EQ(d4append(m_table), r4success);
    d4close(m_table);

    m_table = d4open(m_session, m_path);
    ASSERT_EQ(findPerson(m_table, 1000), r4success);
    EXPECT_EQ(d4recNo(m_table), 1U);
    EXPECT_EQ(f4long(d4field(m_table, "ROWID")), 1000);
    EXPECT_EQ(text(m_table, "Name"), "M\xFCller");
    EXPECT_EQ(text(m_table, "city"), "");
    EXPECT_NEAR(f4double(d4field(m_table, "amount")), -1234.57, 0.011);
    EXPECT_EQ(text(m_table, "opened"), "20240229");
    EXPECT_EQ(text(m_table, "active"), "T");
    EXPECT_EQ(memo(m_table, "notes"), note);
    EXPECT_EQ(memo(m_table, "detail"), "");
}

TEST_F(TableRows, NumbersStandInTheFileAsOtherProgramsExpect)
{
    d4appendStartVB(m_table, 0);
    d4blank(m_table);
    struct Case {
        double value;
        const char *stored;
    };
    for (const Case &c : {Case{0.5, "        0.50"},
                          {-0.0, "        0.00"},
                          {-0.001, "        0.00"},
                          {1e8, "100000000.00"},
                          {-12345678.9, "-12345678.90"}}) {
        assign(m_table, "amount", c.value);
        EXPECT_EQ(std::string(f4ptr(d4field(m_table, "amount")), 12), c.stored);
    }
    EXPECT_TRUE(m_session.takeErrors().empty());
    for (const double tooWide : {1e9, -1e8 * 10, 1e300}) {
        assign(m_table, "amount", tooWide);
        EXPECT_EQ(text(m_table, "amount"), "-12345678.90") << tooWide;
        EXPECT_EQ(m_session.takeErrors().size(), 1U);
    }
    f4assignLong(d4field(m_table, "rowid"), INT32_MIN);
    EXPECT_EQ(m_session.takeErrors().size(), 1U); // eleven characters
    f4assignLong(d4field(m_table, "rowid"), INT32_MAX);
    EXPECT_EQ(f4long(d4field(m_table, "rowid")), INT32_MAX);
    assign(m_table, "rowid", "9999999999");
    EXPECT_EQ(f4long(d4field(m_table, "rowid")), INT32_MAX);
    assign(m_table, "rowid", "");
    EXPECT_EQ(f4long(d4field(m_table, "rowid")), 0);
}

TEST_F(TableRows, TextThatIsNoValueOfItsFieldIsNotStored)
{
    d4appendStartVB(m_table, 0);
    d4blank(m_table);
    assign(m_table, "name", std::string(40, 'n'));
    EXPECT_EQ(text(m_table, "name"), std::string(30, 'n'));
    assign(m_table, "name", std::string("a\0b", 3));
    EXPECT_EQ(text(m_table, "name"), "a b");
    assign(m_table, "amount", "12.345");
    assign(m_table, "amount", "a dozen");
    EXPECT_EQ(text(m_table, "amount"), "       12.35");
    assign(m_table, "opened", "20230229");
    EXPECT_EQ(text(m_table, "opened"), "");
    assign(m_table, "active", "y");
    assign(m_table, "active", "maybe");
    EXPECT_EQ(text(m_table, "active"), "T");
    EXPECT_EQ(m_session.takeErrors().size(), 2U);
}

TEST_F(TableRows, SeeksFindByNumberTextAndPrefix)
{
    int id = 1000;
    for (const char *name : {"Smith", "smithers", "Adams", "Smith", "Young"})
        ASSERT_EQ(addPerson(m_table, id++, name), r4success);

    selectTag(m_table, "name");
    EXPECT_EQ(d4seek(m_table, "SMITH"), r4success);
    EXPECT_EQ(f4long(d4field(m_table, "rowid")), 1000);
    EXPECT_EQ(d4seekNext(m_table, "SMITH"), r4success);
    EXPECT_EQ(f4long(d4field(m_table, "rowid")), 1003);
    EXPECT_EQ(d4seekNext(m_table, "smith"), r4success);
    EXPECT_EQ(f4long(d4field(m_table, "rowid")), 1001);
    EXPECT_EQ(d4seekNext(m_table, "SMITH"), r4after);
    EXPECT_EQ(text(m_table, "name"), "Young");
    EXPECT_EQ(d4seek(m_table, "ZZ"), r4eof);
    EXPECT_EQ(d4recNo(m_table), 0U);
    EXPECT_EQ(text(m_table, "name"), "");
    EXPECT_EQ(d4seek(m_table, "Bo"), r4after);
    EXPECT_EQ(text(m_table, "name"), "Smith");

    selectTag(m_table, "rowid");
    EXPECT_EQ(d4seek(m_table, "1002"), r4success); // text is read as a number
    EXPECT_EQ(text(m_table, "name"), "Adams");
    EXPECT_NE(d4seek(m_table, "Adams"), r4success);
    EXPECT_EQ(d4seekDouble(m_table, 999), r4after);
    EXPECT_EQ(d4seekNextDouble(m_table, 1000), r4after);

    d4tagSelect(m_table, 0); // the first tag serves seeks without a selection
    EXPECT_EQ(d4seekDouble(m_table, 1004), r4success);
    EXPECT_EQ(d4skip(m_table, -1), r4success);
    EXPECT_EQ(d4recNo(m_table), 4U);
}

TEST_F(TableRows, WalksGoBothWaysAndStopAtTheEnds)
{
    EXPECT_EQ(d4top(m_table), r4eof);
    EXPECT_EQ(d4bottom(m_table), r4eof);
    constexpr int count = 300;
    for (int i = 0; i < count; ++i)
        ASSERT_EQ(addPerson(m_table, 2000 - i, "n" + std::to_string(i % 7)), r4success);
    for (const char *tag : {"rowid", "name", ""}) {
        d4tagSelect(m_table, *tag ? d4tag(m_table, tag) : 0);
        std::vector<std::uint32_t> forward;
        for (Code code = d4top(m_table); code == r4success; code = d4skip(m_table, 1))
            forward.push_back(d4recNo(m_table));
        EXPECT_EQ(d4skip(m_table, 1), r4eof);
        std::vector<std::uint32_t> backward;
        for (Code code = d4skip(m_table, -1); code == r4success; code = d4skip(m_table, -1))
            backward.push_back(d4recNo(m_table));
        std::reverse(backward.begin(), backward.end());
        ASSERT_EQ(forward.size(), count) << tag;
        EXPECT_EQ(forward, backward) << tag;
        EXPECT_EQ(d4bottom(m_table), r4success);
        EXPECT_EQ(d4recNo(m_table), forward.back());
        EXPECT_EQ(d4skip(m_table, -10), r4success);
        EXPECT_EQ(d4recNo(m_table), forward[count - 11]);
    }
    EXPECT_EQ(d4recCountDo(m_table), count);
    EXPECT_EQ(d4go(m_table, count + 1), r4eof);
    EXPECT_NE(d4go(m_table, 0), r4success);
}

TEST_F(TableRows, ADeletedRowLeavesItsTagsAndStaysInTheFile)
{
    for (int id = 1; id <= 5; ++id)
        ASSERT_EQ(addPerson(m_table, id, "same", "kept"), r4success);
    selectTag(m_table, "name");
    int deleted = 0;
    while (d4seek(m_table, "same") == r4success) {
        ASSERT_EQ(d4lock(m_table, d4recNo(m_table)), r4success);
        ASSERT_EQ(d4delete(m_table), r4success);
        ASSERT_EQ(d4flush(m_table), r4success);
        ASSERT_EQ(d4unlock(m_table), r4success);
        ++deleted;
    }
    EXPECT_EQ(deleted, 5);
    EXPECT_EQ(d4top(m_table), r4eof);
    EXPECT_EQ(d4recCountDo(m_table), 5U);
    d4tagSelect(m_table, 0);
    ASSERT_EQ(d4top(m_table), r4success);
    EXPECT_TRUE(d4deleted(m_table));
    EXPECT_EQ(memo(m_table, "notes"), "kept");
}

TEST_F(TableRows, DeletingOnAWalkGoesOnToTheNextRow)
{
    for (int id = 1; id <= 40; ++id)
        ASSERT_EQ(addPerson(m_table, id, "walk"), r4success);
    selectTag(m_table, "rowid");
    int visited = 0;
    for (Code code = d4top(m_table); code == r4success; code = d4skip(m_table, 1)) {
        ++visited;
        ASSERT_EQ(d4lock(m_table, d4recNo(m_table)), r4success);
        d4delete(m_table);
        d4unlock(m_table);
    }
    EXPECT_EQ(visited, 40);
}

TEST_F(TableRows, AnUpdateMovesOnlyWhatChanged)
{
    ASSERT_EQ(addPerson(m_table, 7, "Before", "note"), r4success);
    const Bytes index = readFile(m_folder / "people.cdx");
    const Bytes memos = readFile(m_folder / "people.fpt");
    ASSERT_EQ(findPerson(m_table, 7), r4success);
    ASSERT_EQ(d4lock(m_table, 1), r4success);
    assign(m_table, "amount", 5);
    assignMemo(m_table, "notes", "note");
    ASSERT_EQ(d4unlock(m_table), r4success);
    EXPECT_EQ(readFile(m_folder / "people.cdx"), index);
    EXPECT_EQ(readFile(m_folder / "people.fpt"), memos);

    ASSERT_EQ(d4lock(m_table, 1), r4success);
    assign(m_table, "name", "After");
    assignMemo(m_table, "notes", "");
    ASSERT_EQ(d4flush(m_table), r4success);
    d4unlock(m_table);
    selectTag(m_table, "name");
    EXPECT_EQ(d4seek(m_table, "BEFORE"), r4eof);
    EXPECT_EQ(d4seek(m_table, "AFTER"), r4success);
    EXPECT_EQ(memo(m_table, "notes"), "");
    EXPECT_EQ(text(m_table, "notes"), ""); // no pointer
}

TEST_F(TableRows, AMoveStoresAndADiscardForgets)
{
    ASSERT_EQ(addPerson(m_table, 1, "One", "first"), r4success);
    ASSERT_EQ(addPerson(m_table, 2, "Two"), r4success);
    findPerson(m_table, 1);
    d4lock(m_table, 1);
    assign(m_table, "city", "Bern");
    EXPECT_EQ(d4skip(m_table, 1), r4success);
    EXPECT_EQ(text(m_table, "name"), "Two");
    EXPECT_EQ(d4skip(m_table, -1), r4success);
    EXPECT_EQ(text(m_table, "city"), "Bern");
    assign(m_table, "city", "Basel");
    assignMemo(m_table, "notes", "other");
    EXPECT_EQ(memo(m_table, "notes"), "other");
    d4discard(m_table);
    EXPECT_EQ(text(m_table, "city"), "Bern");
    EXPECT_EQ(memo(m_table, "notes"), "first");
    d4unlock(m_table);

    d4appendStartVB(m_table, 0); // begun and left: nothing comes of it
    assign(m_table, "name", "Never");
    EXPECT_EQ(d4top(m_table), r4success);
    EXPECT_EQ(d4append(m_table), r4failure);
    EXPECT_EQ(d4recCountDo(m_table), 2U);
}

TEST_F(TableRows, WritingARowThatIsNotLockedIsRefused)
{
    ASSERT_EQ(addPerson(m_table, 1, "One"), r4success);
    findPerson(m_table, 1);
    assign(m_table, "name", "Other");
    EXPECT_EQ(text(m_table, "name"), "One");
    EXPECT_EQ(d4delete(m_table), r4failure);
    EXPECT_EQ(m_session.takeErrors().size(), 2U);
    EXPECT_EQ(m_session.lastKind(), ErrorKind::Misuse);
    code4lockEnforce(m_session, 0); // then the engine takes the lock itself
    assign(m_table, "name", "Other");
    EXPECT_EQ(d4unlock(m_table), r4success);
    EXPECT_EQ(findPerson(m_table, 1), r4success);
    EXPECT_EQ(text(m_table, "name"), "Other");
}

TEST_F(TableRows, ACopyBegunFromARowSharesNoMemo)
{
    ASSERT_EQ(addPerson(m_table, 1, "One", "of row one"), r4success);
    findPerson(m_table, 1);
    ASSERT_EQ(d4appendStartVB(m_table, 0), r4success);
    EXPECT_EQ(text(m_table, "name"), "One");
    EXPECT_EQ(memo(m_table, "notes"), "");
    f4assignLong(d4field(m_table, "rowid"), 2);
    EXPECT_EQ(d4append(m_table), r4success);
}

TEST_F(TableRows, ReindexMakesTheSameIndexAnew)
{
    for (int id = 1; id <= 500; ++id)
        ASSERT_EQ(addPerson(m_table, id, "p" + std::to_string(id * 7919 % 500)), r4success);
    EXPECT_EQ(d4reindex(m_table), r4failure); // not alone
    d4close(m_table);

    code4accessMode(m_session, 1);
    m_table = d4open(m_session, m_path);
    ASSERT_GT(m_table, 0);
    EXPECT_EQ(d4reindex(m_table), r4success);
    EXPECT_EQ(findPerson(m_table, 250), r4success);
    EXPECT_EQ(addPerson(m_table, 501, "after"), r4success);
    d4close(m_table);
    code4accessMode(m_session, 0);
    m_table = d4open(m_session, m_path);
    EXPECT_EQ(findPerson(m_table, 501), r4success);
    EXPECT_FALSE(std::filesystem::exists(m_folder / "people.cdx.new"));
}

TEST_F(TableRows, BulkRowsOfAnExclusiveSessionAreAllThereAfterClosing)
{
    d4close(m_table);
    code4accessMode(m_session, 1);
    m_table = d4open(m_session, m_path);
    const Handle second = d4open(m_session, m_path); // sees what only waits in memory
    for (int id = 1; id <= 3000; ++id)
        ASSERT_EQ(addPerson(m_table, id, "bulk", id % 10 == 0 ? "memo" : ""), r4success);
    EXPECT_EQ(findPerson(second, 3000), r4success);
    EXPECT_EQ(d4recCountDo(second), 3000U);
    d4close(second);
    d4close(m_table);
    code4accessMode(m_session, 0);
    m_table = d4open(m_session, m_path);
    EXPECT_EQ(d4recCountDo(m_table), 3000U);
    EXPECT_EQ(findPerson(m_table, 3000), r4success);
    EXPECT_EQ(memo(m_table, "notes"), "memo");
}

} // namespace
