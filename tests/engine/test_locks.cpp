// Two sessions in one process and two processes must see each other's locks alike.
#include "engine/Station.h"
#include "engine/TableFixture.h"
#include "support/MatrixLength.h"

#include "db/engine/LockedFile.h"
#include "support/MemoryFile.h"

#include <gtest/gtest.h>

#include <chrono>
#include <csignal>
#include <future>
#include <thread>
#include <vector>

using namespace norvane::engine;
using namespace enginetest;
using namespace std::chrono_literals;
using norvane::test::matrixLength;

namespace
{

class Locks : public testing::Test
{
protected:
    void SetUp() override
    {
        makeTable(m_path, peopleTable());
        m_table = d4open(m_session, m_path);
        ASSERT_GT(m_table, 0);
        for (int id = 1; id <= 3; ++id)
            ASSERT_EQ(addPerson(m_table, id, "Person " + std::to_string(id)), r4success);
    }

    TempFolder m_folder;
    std::string m_path = m_folder / "people.dbf";
    TestSession m_session;
    Handle m_table = 0;
};

TEST_F(Locks, ARowIsHeldAgainstAnotherSessionOnly)
{
    TestSession other;
    const Handle theirs = d4open(other, m_path);
    const Handle second = d4open(m_session, m_path);
    ASSERT_EQ(d4lock(m_table, 1), r4success);
    EXPECT_EQ(d4lock(m_table, 1), r4success); // again
    EXPECT_EQ(d4lock(second, 1), r4success);  // same session
    EXPECT_EQ(d4lock(theirs, 1), d4locked);
    EXPECT_EQ(d4lock(theirs, 2), r4success); // another row
    d4close(second);                         // takes nothing away from the first handle
    EXPECT_EQ(d4lock(theirs, 1), d4locked);
    EXPECT_EQ(findPerson(theirs, 1), r4success); // reading goes on
    d4unlock(m_table);
    EXPECT_EQ(d4lock(theirs, 1), r4success);
    EXPECT_TRUE(other.takeErrors().empty()); // a refusal is an answer, not a failure
}

TEST_F(Locks, AnotherProcessIsKeptOutUntilUnlockOrDeath)
{
    Station station;
    ASSERT_NE(station.ask("open " + m_path), "0");
    station.ask("attempts 1 1");
    ASSERT_EQ(d4lock(m_table, 2), r4success);
    EXPECT_EQ(station.ask("lock 2"), "50");
    const Handle reader = d4open(m_session, m_path); // opening and closing must not let go
    d4close(reader);
    EXPECT_EQ(station.ask("lock 2"), "50");
    d4unlock(m_table);
    EXPECT_EQ(station.ask("lock 2"), "0");
    EXPECT_EQ(d4lock(m_table, 2), d4locked);
    station.kill();
    code4lockAttempts(m_session, 10); // a tenth of a second at most
    EXPECT_EQ(d4lock(m_table, 2), r4success);
}

// Stopped, not dead: its row stays locked, and whoever wants it hears so after his attempts.
TEST_F(Locks, ASleepingHolderKeepsItsRowAndStopsNobodyElse)
{
    Station station;
    ASSERT_NE(station.ask("open " + m_path), "0");
    station.ask("tag rowid");
    ASSERT_EQ(station.ask("id 2"), "0");
    ASSERT_EQ(station.ask("lock 2"), "0");
    ASSERT_EQ(kill(station.process(), SIGSTOP), 0);
    code4lockAttempts(m_session, 10);
    code4lockDelay(m_session, 3);
    int told = 0;
    code4waitHandler(m_session, [&told](std::chrono::milliseconds) { ++told; });
    const auto start = std::chrono::steady_clock::now();
    EXPECT_EQ(d4lock(m_table, 2), d4locked);
    EXPECT_GE(std::chrono::steady_clock::now() - start, 300ms);
    EXPECT_GT(told, 2); // a window would have stayed alive
    EXPECT_EQ(findPerson(m_table, 2), r4success);
    EXPECT_EQ(d4lock(m_table, 3), r4success);
    EXPECT_EQ(addPerson(m_table, 70, "Meanwhile"), r4success);
    ASSERT_EQ(kill(station.process(), SIGCONT), 0);
    EXPECT_EQ(station.ask("set name Late"), "ok");
    EXPECT_EQ(station.ask("unlock"), "0");
    EXPECT_EQ(d4lock(m_table, 2), r4success);
    ASSERT_EQ(findPerson(m_table, 2), r4success);
    EXPECT_EQ(text(m_table, "name"), "Late");
}

// Stopped anywhere, in the middle of a save too: the others are answered, and nothing is damaged.
TEST_F(Locks, AStationStoppedAnywhereLeavesTheOthersAnswered)
{
    code4lockAttempts(m_session, 10);
    const int stops = matrixLength(20, 100, 400);
    Station station;
    station.tell("churn " + m_path + " 1 100000");
    int refused = 0;
    for (int i = 0; i < stops; ++i) {
        std::this_thread::sleep_for(std::chrono::milliseconds(5 + i % 7));
        ASSERT_EQ(kill(station.process(), SIGSTOP), 0);
        const Code added = addPerson(m_table, 500 + i, "Meanwhile");
        EXPECT_TRUE(added == r4success || added == d4locked) << lastError(m_session).detail;
        const Code found = findPerson(m_table, 1);
        EXPECT_TRUE(found == r4success || found == d4locked) << found;
        refused += added == d4locked ? 1 : 0;
        ASSERT_EQ(kill(station.process(), SIGCONT), 0);
    }
    EXPECT_LT(refused, stops);
    station.kill();
    d4close(m_table);
    EXPECT_EQ(findings(m_path), "");
}

TEST_F(Locks, WaitingLastsAttemptsTimesDelayAndTellsTheProgram)
{
    TestSession other;
    const Handle theirs = d4open(other, m_path);
    ASSERT_EQ(d4lock(m_table, 1), r4success);
    code4lockAttempts(other, 5);
    code4lockDelay(other, 4);
    int told = 0;
    code4waitHandler(other, [&told](std::chrono::milliseconds) { ++told; });
    const auto start = std::chrono::steady_clock::now();
    EXPECT_EQ(d4lock(theirs, 1), d4locked);
    const auto waited = std::chrono::steady_clock::now() - start;
    EXPECT_GE(waited, 200ms);
    EXPECT_LT(waited, 1000ms);
    EXPECT_GT(told, 2);

    // without end, until it comes; a short hold costs a short wait
    code4lockAttempts(other, -1);
    code4waitHandler(other, [this](std::chrono::milliseconds so_far) {
        if (so_far > 30ms)
            d4unlock(m_table);
    });
    EXPECT_EQ(d4lock(theirs, 1), r4success);
}

TEST_F(Locks, ALockBringsTheRowAsTheOtherLeftIt)
{
    Station station;
    ASSERT_NE(station.ask("open " + m_path), "0");
    ASSERT_EQ(findPerson(m_table, 2), r4success);
    ASSERT_EQ(station.ask("lock 2"), "0");
    EXPECT_EQ(station.ask("set name Changed"), "there is no current row to change");
    station.ask("tag rowid");
    ASSERT_EQ(station.ask("id 2"), "0");
    EXPECT_EQ(station.ask("set name Changed"), "ok");
    EXPECT_EQ(station.ask("setmemo notes a long story"), "ok");
    EXPECT_EQ(station.ask("unlock"), "0");
    EXPECT_EQ(text(m_table, "name"), "Person 2"); // as it was read
    ASSERT_EQ(d4lock(m_table, 2), r4success);
    EXPECT_EQ(text(m_table, "name"), "Changed");
    EXPECT_EQ(memo(m_table, "notes"), "a long story");
    d4unlock(m_table);
    selectTag(m_table, "name");
    EXPECT_EQ(d4seek(m_table, "changed"), r4success);
    EXPECT_NE(d4seek(m_table, "person 2"), r4success);
}

TEST_F(Locks, WhatAnotherStationAddsOrDeletesIsSeenAtTheNextSeek)
{
    Station station;
    station.ask("open " + m_path);
    ASSERT_EQ(findPerson(m_table, 3), r4success);
    station.ask("begin");
    station.ask("set rowid 4");
    ASSERT_EQ(station.ask("append"), "0");
    EXPECT_EQ(d4recCountDo(m_table), 4U);
    EXPECT_EQ(d4skip(m_table, 1), r4success);
    EXPECT_EQ(f4long(d4field(m_table, "rowid")), 4);
    station.ask("unlock");
    station.ask("tag rowid");
    station.ask("id 1");
    station.ask("lock 1");
    station.ask("delete");
    ASSERT_EQ(station.ask("unlock"), "0");
    EXPECT_EQ(d4seekDouble(m_table, 1), r4after);
    EXPECT_EQ(f4long(d4field(m_table, "rowid")), 2);
    EXPECT_EQ(findings(m_path), "");
}

TEST_F(Locks, TheAppendLockStopsOtherAppends)
{
    TestSession other;
    const Handle theirs = d4open(other, m_path);
    ASSERT_EQ(d4lock(m_table, 0), r4success);
    EXPECT_EQ(addPerson(theirs, 50, "Later"), d4locked);
    EXPECT_EQ(d4recCountDo(theirs), 3U);
    d4appendStartVB(m_table, 0);
    d4blank(m_table);
    f4assignLong(d4field(m_table, "rowid"), 40);
    EXPECT_EQ(d4append(m_table), r4success); // uses the lock it has
    EXPECT_EQ(d4lock(theirs, 0), d4locked);  // and keeps it
    EXPECT_EQ(d4lock(theirs, 4), d4locked);  // the new row is locked too
    d4unlock(m_table);
    EXPECT_EQ(addPerson(theirs, 50, "Later"), r4success);
    EXPECT_EQ(findings(m_path), "");
}

TEST_F(Locks, SoleUseAndSharedUseExcludeEachOther)
{
    TestSession other;
    code4accessMode(other, 1);
    EXPECT_EQ(d4open(other, m_path), 0);
    EXPECT_EQ(other.lastKind(), ErrorKind::Locked);
    d4close(m_table);
    const Handle alone = d4open(other, m_path);
    ASSERT_GT(alone, 0);
    EXPECT_EQ(d4open(m_session, m_path), 0);
    Station station;
    EXPECT_EQ(station.ask("open " + m_path), "0");
    d4close(alone);
    m_table = d4open(m_session, m_path);
    EXPECT_GT(m_table, 0);

    code4accessMode(m_session, 1); // alone while this session's own handle stays open
    const Handle sole = d4open(m_session, m_path);
    EXPECT_GT(sole, 0);
    EXPECT_EQ(station.ask("open " + m_path), "0");
    d4close(sole);
    EXPECT_NE(station.ask("open " + m_path), "0"); // shared again with the first handle
}

TEST(LockStress, NoNumberIsGivenTwice)
{
    const TempFolder folder;
    const std::string path = folder / "counter.dbf";
    makeTable(path, counterTable());
    const TestSession session;
    Handle table = d4open(session, path);
    d4appendStartVB(table, 0);
    d4blank(table);
    assign(table, "tblname", "people.dbf");
    f4assignLong(d4field(table, "lastid"), 1000);
    ASSERT_EQ(d4append(table), r4success);
    d4close(table);

    const int each = matrixLength(500, 1000, 2000);
    std::int32_t next = 1000;
    for (const std::size_t count : {2U, 4U, 8U}) {
        std::vector<Station> stations(count);
        for (Station &station : stations)
            station.tell("ids " + path + ' ' + std::to_string(each));
        for (Station &station : stations) {
            const std::string answer = station.answer();
            EXPECT_NE(answer.find(' '), std::string::npos) << answer;
            EXPECT_TRUE(answer.find_first_not_of("0123456789 ") == std::string::npos) << answer;
        }
        // two that got the same number would have stored the same next one
        next += static_cast<std::int32_t>(count) * each;
        table = d4open(session, path);
        ASSERT_EQ(d4seek(table, "people.dbf"), r4success);
        EXPECT_EQ(f4long(d4field(table, "lastid")), next) << count << " stations";
        d4close(table);
    }
}

TEST(LockStress, FourStationsChangingATableLeaveItSound)
{
    const TempFolder folder;
    const std::string path = folder / "people.dbf";
    makeTable(path, peopleTable());
    Station stations[4];
    int seed = 0;
    for (Station &station : stations)
        station.tell("churn " + path + ' ' + std::to_string(++seed) + " 400");
    for (Station &station : stations)
        EXPECT_EQ(station.answer(), "ok");
    EXPECT_EQ(findings(path), "");
}

TEST(LockStress, RowsThatStayAreFoundAtAnyMomentWhileOthersSplitPages)
{
    const TempFolder folder;
    const std::string path = folder / "people.dbf";
    makeTable(path, peopleTable());
    const TestSession session(100, 10);
    const Handle table = d4open(session, path);
    constexpr int kept = 200;
    const auto keptName = [](int id) { return "Name " + std::to_string(id * 331) + " kept"; };
    for (int id = 1; id <= kept; ++id)
        ASSERT_EQ(addPerson(table, id, keptName(id)), r4success); // among the names of the others
    Station stations[3];
    int seed = 0;
    for (Station &station : stations)
        station.tell("churn " + path + ' ' + std::to_string(++seed) + " 1000");
    std::future<std::string> others = std::async(std::launch::async, [&stations] {
        std::string answers;
        for (Station &station : stations)
            answers += station.answer() + ' ';
        return answers;
    });
    for (int turn = 0;
         others.wait_for(0s) != std::future_status::ready && !testing::Test::HasFailure(); ++turn) {
        const int id = 1 + turn % (kept - 1);
        EXPECT_EQ(findPerson(table, id), r4success) << id;
        EXPECT_EQ(d4skip(table, 1), r4success);
        EXPECT_EQ(f4long(d4field(table, "rowid")), id + 1);
        selectTag(table, "name");
        EXPECT_EQ(d4seek(table, keptName(id)), r4success) << id;
        EXPECT_EQ(f4long(d4field(table, "rowid")), id);
    }
    EXPECT_EQ(others.get(), "ok ok ok ");
}

// On a network folder others see what was written once it was synced under the lock.
TEST(LockedFileOnANetwork, WhatWasWrittenIsSyncedBeforeTheByteIsSharedOrFree)
{
    class NetworkFile : public norvane::test::MemoryFile
    {
    public:
        using MemoryFile::MemoryFile;
        bool onNetwork() override { return true; }
    };
    const auto content = std::make_shared<norvane::test::MemoryContent>();
    LockedFile file(std::make_shared<NetworkFile>("f", content));
    ASSERT_TRUE(file.tryLock(7, LockMode::Shared).ok());
    ASSERT_TRUE(file.tryLock(7, LockMode::Exclusive).ok());
    ASSERT_TRUE(file.unlock(7, LockMode::Exclusive).ok()); // to shared
    EXPECT_EQ(content->syncs, 1);
    ASSERT_EQ(content->locks.size(), 1U);
    EXPECT_EQ(content->locks.front().mode, LockMode::Shared);
    EXPECT_FALSE(file.holdsExclusively(7));
}

TEST(LockStress, ADyingStationLeavesNoLockAndASoundTable)
{
    const TempFolder folder;
    const std::string path = folder / "people.dbf";
    makeTable(path, peopleTable());
    TestSession session(50, 10);
    for (int round = 1; round <= 10; ++round) {
        Handle table = d4open(session, path);
        const std::uint32_t before = d4recCountDo(table);
        Station station;
        station.tell("churn " + path + ' ' + std::to_string(round) + " 100000");
        const auto limit = std::chrono::steady_clock::now() + 20s;
        while (d4recCountDo(table) < before + static_cast<std::uint32_t>(7 * round))
            ASSERT_LT(std::chrono::steady_clock::now(), limit) << "the station does nothing";
        station.kill();
        d4close(table);
        ASSERT_EQ(findings(path), "") << "round " << round;
        table = d4open(session, path);
        EXPECT_EQ(addPerson(table, 999, "Survivor", "note"), r4success);
        d4close(table);
        code4accessMode(session, 1); // no lock of the dead one is left
        table = d4open(session, path);
        EXPECT_EQ(d4reindex(table), r4success);
        d4close(table);
        code4accessMode(session, 0);
        ASSERT_EQ(findings(path), "") << "round " << round;
    }
}

} // namespace
