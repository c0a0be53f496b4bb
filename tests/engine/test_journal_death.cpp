// A station that dies at any call: its save is there whole or not at all, all others are there,
// and the next station finishes or takes back the rest without a question.
#include "engine/Churn.h"
#include "engine/SimPeople.h"
#include "support/MatrixLength.h"

#include "db/engine/TableCreate.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <new>
#include <tuple>

using namespace norvane::engine;
using namespace enginetest;
using norvane::test::countPoint;
using norvane::test::matrixLength;

namespace
{

enum class Split { None, Leaf, Root };

struct Case {
    const char *name;
    std::vector<Save> before;
    std::vector<Save> saves;   // one after the other over one open table
    Split split = Split::None; // `saves` is then the first insert that makes one
};

std::vector<Save> inserts(int first, int last, const std::string &notes = {})
{
    std::vector<Save> saves;
    for (int id = first; id <= last; ++id)
        saves.push_back(insertOf(id, notes));
    return saves;
}

Save update(int id, const std::string &name, const std::string &notes)
{
    Save save = insertOf(id, notes);
    save.kind = Save::Kind::Update;
    save.person.name = name;
    return save;
}

std::vector<Save> deletes(int first, int last)
{
    std::vector<Save> saves;
    for (int id = first; id <= last; ++id)
        saves.push_back({Save::Kind::Delete, id, {}});
    return saves;
}

std::vector<Case> cases()
{
    const std::string name = insertOf(3).person.name;
    const std::string more(900, 'l');
    return {{"FirstRow", {}, inserts(1, 1)},
            {"Insert", inserts(1, 8), inserts(9, 9, "a text")},
            {"LongMemo", inserts(1, 8), inserts(9, 9, std::string(40000, 'x'))},
            {"KeyMoves", inserts(1, 8, "a text"), {update(3, "Zz", "a text")}},
            {"NoKeyMoves", inserts(1, 8, "a text"), {update(3, name, "other text")}},
            {"MemoShorter", inserts(1, 8, more), {update(3, name, "s")}},
            {"MemoLonger", inserts(1, 8, "s"), {update(3, name, more)}},
            {"MemoToEmpty", inserts(1, 8, "a text"), {update(3, name, "")}},
            {"Delete", inserts(1, 8, "a text"), deletes(4, 4)},
            {"DeleteOfAll", inserts(1, 8, "a text"), deletes(1, 8)},
            {"Purge", inserts(1, 60, "a text"), deletes(21, 40)},
            {"Import", inserts(1, 8), inserts(9, 28, "a text")},
            {"Group", inserts(1, 8, "a text"), {mixedGroup()}},
            {"Checkpoint", inserts(1, 61, std::string(2900, 'n')), inserts(62, 62, "n")},
            {"LeafSplit", inserts(1, 30), {}, Split::Leaf},
            {"RootSplit", inserts(1, 30), {}, Split::Root}};
}

// What the save adds to the index: any page, or pages above the leaves. A root keeps its place, so
// a split of it makes two of these, that of a page below it one.
bool splits(const SimDisk &before, const Save &save, Split wanted)
{
    const std::unique_ptr<SimDisk> disk = before.copy();
    const std::size_t size = disk->bytes("/people.cdx").size();
    SimSession(*disk).perform(save);
    const std::vector<Byte> &index = disk->bytes("/people.cdx");
    int interior = 0;
    for (std::size_t page = size; page < index.size(); page += 512)
        interior += index[page] == 0 ? 1 : 0;
    return wanted == Split::Leaf ? index.size() > size : interior >= 2;
}

// Names that share nothing, so that few of them fill a page.
Save wideInsert(int id)
{
    Save save = insertOf(id);
    save.person.name = std::to_string(id * 7919 % 1000) + std::string(25, '#');
    return save;
}

struct Prepared {
    std::unique_ptr<SimDisk> disk;
    std::vector<Save> saves;
    std::vector<People> states; // before, and after each of the saves
};

Prepared prepare(const Case &one, const char *durability = "full")
{
    Prepared ready{diskWithPeople(), one.saves, {{}}};
    People &people = ready.states[0];
    SimSession session(*ready.disk, durability);
    for (const Save &save : one.before) {
        EXPECT_TRUE(session.perform(save)) << lastError(session).detail;
        note(people, save);
    }
    for (int id = static_cast<int>(people.size()) + 1; one.split != Split::None; ++id) {
        ready.saves = {wideInsert(id)};
        if (id == 900 || splits(*ready.disk, ready.saves[0], one.split))
            break;
        session.perform(ready.saves[0]);
        note(people, ready.saves[0]);
    }
    EXPECT_LT(people.size(), 899U) << "no insert makes that split";
    for (const Save &save : ready.saves) {
        People after = ready.states.back();
        note(after, save);
        ready.states.push_back(std::move(after));
    }
    return ready;
}

// A station that dies at its call-th call, or earlier in its work comes through.
struct Death {
    std::unique_ptr<SimDisk> disk;
    std::size_t done = 0; // saves reported
    bool dead = false;
};

Death dieAt(const SimDisk &start, const std::vector<Save> &saves, int call, const char *durability)
{
    Death death{start.copy(), 0, false};
    SimSession session(*death.disk, durability);
    session.station.dieAt(call);
    death.done = performSaves(session, kPeoplePath, saves);
    death.dead = session.station.dead();
    return death;
}

// With either setting of what a save has to survive: a killed station loses nothing of both.
class JournalDeath : public testing::TestWithParam<std::tuple<Case, const char *>>
{
protected:
    void SetUp() override { m_ready = prepare(std::get<0>(GetParam()), m_durability); }
    const People &next(std::size_t done) const
    {
        return m_ready.states[std::min(done + 1, m_ready.states.size() - 1)];
    }

    const char *m_durability = std::get<1>(GetParam());
    Prepared m_ready;
};

TEST_P(JournalDeath, AtEachCallTheSaveIsWholeOrAbsent)
{
    // of longer work a sample, taken evenly
    const std::size_t saves = m_ready.saves.size();
    const int step = saves == 1 ? 1 : matrixLength(7, 1, 1);
    int whole = 0;
    int absent = 0;
    for (int call = 1;; call += step) {
        ASSERT_LT(call, 9000);
        countPoint("deaths in a save");
        const Death death = dieAt(*m_ready.disk, m_ready.saves, call, m_durability);
        SimDisk &disk = *death.disk;
        EXPECT_EQ(disk.locksHeld(), 0U) << "call " << call;
        const People &before = m_ready.states[death.done];
        bool found = false;
        const std::string problem = compare(disk, before, &next(death.done), &found);
        ASSERT_EQ(problem, "") << "died at call " << call << ", " << death.done << " saves";
        ++(found || death.done > 0 ? whole : absent);
        // and the next save goes on from there
        People then = found ? next(death.done) : before;
        SimSession other(disk);
        const Save more = insertOf(901, "more");
        ASSERT_TRUE(other.perform(more)) << lastError(other).detail << ", call " << call;
        note(then, more);
        ASSERT_EQ(compare(disk, then), "") << "died at call " << call;
        if (!death.dead) {
            EXPECT_EQ(death.done, saves);
            break;
        }
    }
    EXPECT_GT(whole, 0);
    EXPECT_GT(absent, 0);
}

int callsToRecover(const SimDisk &left)
{
    const std::unique_ptr<SimDisk> disk = left.copy();
    SimSession session(*disk);
    session.look();
    return session.station.calls();
}

// At each call of the recovery from a death at each call of the save, or at some of both.
TEST_P(JournalDeath, DyingAgainInTheRecoveryChangesNothing)
{
    std::mt19937 random(1);
    const int step = m_ready.saves.size() == 1 ? 1 : matrixLength(13, 61, 1);
    for (int call = 1;; call += step) {
        const Death first = dieAt(*m_ready.disk, m_ready.saves, call, m_durability);
        if (!first.dead)
            break;
        first.disk->boot += random() % 2; // the machine too
        const int calls = callsToRecover(*first.disk);
        const int most = std::min(calls, matrixLength(3, 20, calls));
        for (int sample = 1; sample <= most; ++sample) {
            countPoint("deaths in a recovery");
            const std::unique_ptr<SimDisk> disk = first.disk->copy();
            {
                SimSession session(*disk);
                session.station.dieAt(
                    most == calls ? sample
                                  : static_cast<int>(random() % static_cast<unsigned>(calls)) + 1);
                session.look();
                ASSERT_TRUE(session.station.dead());
            }
            ASSERT_EQ(compare(*disk, m_ready.states[first.done], &next(first.done)), "")
                << "died at call " << call;
        }
    }
}

// The index file built anew, with the station dying, or its disk filling up, at any call.
class RebuildDeath : public testing::TestWithParam<std::tuple<bool, const char *>>
{
};

TEST_P(RebuildDeath, NeverAnEmptyOrHalfIndexIsTaken)
{
    const auto [dies, durability] = GetParam();
    const Prepared ready = prepare({"", inserts(1, 60, "a text"), {}}, durability);
    for (int call = 1;; ++call) {
        ASSERT_LT(call, 3000);
        countPoint("deaths and full disks in a rebuild");
        const std::unique_ptr<SimDisk> disk = ready.disk->copy();
        Code code = r4failure;
        bool hit = false;
        {
            SimSession session(*disk, durability);
            if (dies)
                session.station.dieAt(call);
            else
                session.station.failAt(call, ErrorKind::NoSpace, true);
            code4accessMode(session, 1);
            const Handle table = d4open(session, kPeoplePath);
            code = table ? d4reindex(table) : r4failure;
            if (d4close(table) != r4success)
                code = r4failure;
            hit = session.station.dead() || session.station.failed();
        }
        ASSERT_EQ(compare(*disk, ready.states[0]), "") << "call " << call;
        SimSession next(*disk);
        ASSERT_TRUE(next.perform(insertOf(900))) << lastError(next).detail << ", call " << call;
        if (!hit) {
            EXPECT_EQ(code, r4success);
            break;
        }
    }
}

// A number is never given out twice: who took it heard so, or it is free or lost.
TEST(CounterDeath, ANumberTakenIsNotGivenOutAgain)
{
    const std::string path = "/counter.dbf";
    SimDisk start;
    SimStation maker(start);
    ASSERT_TRUE(createTable(maker, counterTable(), {path, "/counter.cdx", {}}).ok());
    {
        const SimSession session(start);
        const Handle table = d4open(session, path);
        d4appendStartVB(table, 0);
        d4blank(table);
        assign(table, "tblname", "people.dbf");
        f4assignLong(d4field(table, "lastid"), 1000);
        ASSERT_EQ(d4append(table), r4success);
    }
    for (const char *durability : {"full", "process"}) {
        for (int call = 1;; ++call) {
            const std::unique_ptr<SimDisk> disk = start.copy();
            SimSession session(*disk, durability);
            session.station.dieAt(call);
            const bool taken = takeIds(session, path, 1) == "1000 1000";
            const SimSession next(*disk);
            const std::string later = takeIds(next, path, 1);
            ASSERT_TRUE(later == "1001 1001" || (!taken && later == "1000 1000"))
                << later << ", call " << call << ", " << durability;
            if (!session.station.dead()) {
                EXPECT_TRUE(taken);
                break;
            }
        }
    }
}

// While one station saves, another dies in a save and a third finishes that: ours is stored all the
// same, over what the table then holds.
TEST(JournalDeathOfAnother, InTheMiddleOfOurSaveAThirdStationFinishesTheirs)
{
    const Prepared ready = prepare({"", inserts(1, 8, "a text"), {}});
    std::mt19937 random(4);
    const auto number = [&random](unsigned below) {
        return static_cast<int>(random() % below) + 1;
    };
    int whole = 0;
    for (int sample = 0; sample < 4000; ++sample) {
        const bool adds = sample % 2 == 0;
        Save theirs = adds ? insertOf(20) : update(3, "Theirs", "a text");
        theirs.person.city = "Elsewhere";
        const Save ours = adds ? insertOf(30) : update(3, "Ours", "b");
        const std::unique_ptr<SimDisk> disk = ready.disk->copy();
        SimSession session(*disk);
        ASSERT_TRUE(session.perform(insertOf(9))); // from here on its journal is open
        const int begin = number(40);
        session.station.beforeCall(begin, [&] {
            SimSession dying(*disk);
            code4lockAttempts(dying, 0);
            dying.station.dieAt(number(60));
            (void)dying.perform(theirs);
        });
        session.station.beforeCall(begin + number(20), [&] {
            SimSession third(*disk);
            code4lockAttempts(third, 0);
            third.look();
        });
        ASSERT_TRUE(session.perform(ours)) << lastError(session).detail << ", sample " << sample;
        People after = ready.states[0];
        note(after, insertOf(9));
        note(after, ours);
        People both = after;
        if (adds)
            note(both, theirs);
        bool found = false;
        ASSERT_EQ(compare(*disk, after, &both, &found), "") << "sample " << sample;
        whole += found;
    }
    EXPECT_GT(whole, 100);
}

// Who looks a row up finishes the save of the dead first; no lock stays behind when that breaks
// off.
TEST(JournalDeathOfAnother, MemoryThatRunsOutInTheRecoveryLeavesNobodyLockedOut)
{
    const Prepared ready = prepare({"", inserts(1, 8, "a text"), {}});
    int brokenOff = 0;
    for (int death = 1; death <= 60; ++death) {
        for (int call = 1; call <= 40; ++call) {
            const std::unique_ptr<SimDisk> disk = ready.disk->copy();
            SimSession session(*disk);
            const Handle table = d4open(session, kPeoplePath);
            ASSERT_EQ(findPerson(table, 1), r4success);
            SimSession dying(*disk);
            dying.station.dieAt(death);
            (void)dying.perform(insertOf(20));
            bool thrown = false;
            session.station.beforeCall(call, [&thrown] {
                thrown = true;
                throw std::bad_alloc();
            });
            brokenOff += findPerson(table, 2) != r4success && thrown;
            SimSession next(*disk);
            code4lockAttempts(next, 0);
            ASSERT_TRUE(next.perform(insertOf(30)))
                << lastError(next).detail << ", death at " << death << ", call " << call;
        }
    }
    EXPECT_GT(brokenOff, 100);
}

const auto kSettings = testing::Values("full", "process");

INSTANTIATE_TEST_SUITE_P(Saves, JournalDeath,
                         testing::Combine(testing::ValuesIn(cases()), kSettings),
                         [](const auto &one) {
                             return std::string(std::get<0>(one.param).name) + '_' +
                                    std::get<1>(one.param);
                         });
INSTANTIATE_TEST_SUITE_P(Ends, RebuildDeath, testing::Combine(testing::Bool(), kSettings),
                         [](const auto &one) {
                             return std::string(std::get<0>(one.param) ? "Death_" : "FullDisk_") +
                                    std::get<1>(one.param);
                         });

} // namespace
