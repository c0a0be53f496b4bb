#include "engine/TableFixture.h"

#include "db/engine/File.h"
#include "engine/FaultyFiles.h"

#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>

using namespace norvane::engine;
using namespace enginetest;

namespace
{

TEST(Session, StaleAndForeignHandlesAreRefused)
{
    const TempFolder folder;
    makeTable(folder / "people.dbf", peopleTable());
    makeTable(folder / "counter.dbf", counterTable());
    const Handle session = d4init_v();
    const Handle table = d4open(session, folder / "people.dbf");
    const Handle counter = d4open(session, folder / "counter.dbf");
    const Handle field = d4field(table, "name");
    const Handle tag = d4tag(table, "NAME");
    ASSERT_GT(field, 0);
    EXPECT_EQ(d4field(table, "NAME"), field); // one handle for a field
    EXPECT_EQ(d4tag(table, "name"), tag);
    d4tagSelect(counter, tag); // not of that table: nothing happens
    EXPECT_EQ(d4top(counter), r4eof);
    for (const Handle wrong : {0, -1, session, field, tag, INT32_MAX}) {
        EXPECT_EQ(d4top(wrong), r4failure);
        EXPECT_EQ(d4append(wrong), r4failure);
        EXPECT_EQ(d4close(wrong), r4failure);
    }
    EXPECT_EQ(f4ptr(table), nullptr);
    d4close(table);
    const Handle again = d4open(session, folder / "people.dbf");
    EXPECT_EQ(f4long(field), 0);
    EXPECT_EQ(f4ptr(field), nullptr);
    EXPECT_EQ(d4recCountDo(table), 0U);
    EXPECT_NE(again, table);
    EXPECT_EQ(d4initUndo(session), r4success); // closes what is open
    EXPECT_EQ(d4close(again), r4failure);
    EXPECT_EQ(d4initUndo(session), r4failure);
    EXPECT_EQ(d4open(session, folder / "people.dbf"), 0);
    EXPECT_EQ(lastError(session).kind, ErrorKind::Misuse);
}

TEST(Session, UnknownNamesAreReportedUnlessSwitchedOff)
{
    const TempFolder folder;
    makeTable(folder / "people.dbf", peopleTable());
    TestSession session;
    const Handle table = d4open(session, folder / "people.dbf");
    EXPECT_EQ(d4field(table, "nothere"), 0);
    EXPECT_EQ(d4tag(table, "nothere"), 0);
    EXPECT_EQ(session.takeErrors().size(), 2U);
    code4errTagName(session, 0);
    EXPECT_EQ(d4tag(table, "nothere"), 0);
    EXPECT_TRUE(session.takeErrors().empty());
    EXPECT_EQ(d4tagNames(table),
              (std::vector<std::string>{"ROWID", "NAME", "CITY", "OPENED", "ACTNAME"}));
    EXPECT_EQ(d4numFields(table), 8);
    EXPECT_STREQ(f4name(d4fieldAt(table, 4)), "AMOUNT");
    EXPECT_EQ(f4decimals(d4fieldAt(table, 4)), 2);
    EXPECT_EQ(f4type(d4fieldAt(table, 7)), 'M');
    EXPECT_EQ(d4fieldAt(table, 9), 0);
}

TEST(Session, AReadOnlySessionReadsAndWritesNothing)
{
    const TempFolder folder;
    const std::string path = folder / "people.dbf";
    makeTable(path, peopleTable());
    {
        const TestSession writer;
        const Handle table = d4open(writer, path);
        addPerson(table, 1, "One", "note");
    }
    const Bytes before = readFile(path);
    TestSession session;
    code4readOnly(session, 1);
    const Handle table = d4open(session, path);
    ASSERT_GT(table, 0);
    EXPECT_EQ(findPerson(table, 1), r4success);
    EXPECT_EQ(memo(table, "notes"), "note");
    EXPECT_EQ(d4lock(table, 1), r4failure);
    EXPECT_EQ(session.lastKind(), ErrorKind::ReadOnly);
    EXPECT_NE(d4appendStartVB(table, 0), r4success);
    EXPECT_NE(addPerson(table, 2, "Two"), r4success);
    EXPECT_EQ(session.lastKind(), ErrorKind::Misuse); // append without a row begun
    EXPECT_EQ(findings(path), "");
    EXPECT_EQ(readFile(path), before);
}

// Each system call of an operation fails in turn; afterwards the table works and a save that was
// refused is not there while one that was acknowledged is.
template <class Operation>
void failEachCall(const Operation &operation)
{
    for (int failAt = 1; failAt < 200; ++failAt) {
        const TempFolder folder;
        const std::string path = folder / "people.dbf";
        makeTable(path, peopleTable());
        FaultyFiles files;
        const Handle session = d4init_v(&files);
        code4lockAttempts(session, 1);
        code4lockDelay(session, 1);
        Handle table = d4open(session, path);
        ASSERT_EQ(addPerson(table, 1, "One", "first"), r4success);
        files.failWriteAt(failAt);
        const bool stored = operation(table);
        const bool failed = files.hasFailed();
        files.failWriteAt(0);
        d4close(table);
        table = d4open(session, path);
        ASSERT_GT(table, 0);
        EXPECT_EQ(findPerson(table, 2) == r4success, stored) << failAt;
        EXPECT_EQ(addPerson(table, 3, "Three", "third"), r4success) << failAt;
        d4initUndo(session);
        EXPECT_EQ(findings(path), "") << "write " << failAt << " failed";
        if (!failed) {
            EXPECT_TRUE(stored);
            return;
        }
    }
    FAIL() << "the operation never ended without a fault";
}

TEST(Session, AnAppendThatCannotBeWrittenIsNotThere)
{
    failEachCall([](Handle table) { return addPerson(table, 2, "Two", "second") == r4success; });
}

TEST(Session, AnUpdateThatCannotBeWrittenLeavesTheOldRow)
{
    failEachCall([](Handle table) {
        findPerson(table, 1);
        d4lock(table, 1);
        f4assignLong(d4field(table, "rowid"), 2);
        assignMemo(table, "notes", "other");
        return d4unlock(table) == r4success;
    });
}

TEST(Session, OpeningSeekingAndClosingIsQuick)
{
    const TempFolder folder;
    const std::string path = folder / "people.dbf";
    makeTable(path, peopleTable());
    const TestSession session;
    Handle table = d4open(session, path);
    for (int id = 1; id <= 1000; ++id)
        addPerson(table, id, "Person");
    d4close(table);
    FaultyFiles files;
    const Handle counted = d4init_v(&files);
    table = d4open(counted, path);
    EXPECT_EQ(findPerson(table, 500), r4success);
    d4close(table);
    EXPECT_LE(files.calls(), 34) << "calls of the system for one lookup";
    const int before = files.calls();
    table = d4open(counted, path);
    findPerson(table, 500);
    const int opened = files.calls();
    EXPECT_LE(opened - before, 24); // a table known to be sound is not looked into again
    findPerson(table, 501);
    EXPECT_LE(files.calls() - opened, 5); // lock, version, unlock, row, perhaps a page
    EXPECT_GT(opened, before);
    d4initUndo(counted);
}

} // namespace
