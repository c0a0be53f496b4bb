// A station that dies at any call: its save is there whole or not at all, all others are there,
// and the next station finishes or takes back the rest without a question.
#include "engine/SimPeople.h"

#include <gtest/gtest.h>

#include <cstdlib>

using namespace norvane::engine;
using namespace enginetest;

namespace
{

struct Case {
    const char *name;
    std::vector<Save> before;
    Save save;
};

std::vector<Save> inserts(int count, const std::string &notes = {})
{
    std::vector<Save> saves;
    for (int id = 1; id <= count; ++id)
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

std::vector<Case> cases()
{
    const Save old = insertOf(3, "a text");
    // 20 rows fill a leaf of the tags but for a little; the numbers below lie around a split
    return {{"FirstRow", {}, insertOf(1)},
            {"Insert", inserts(8), insertOf(9, "a text")},
            {"LongMemo", inserts(8), insertOf(9, std::string(40000, 'x'))},
            {"KeyMoves", inserts(8, "a text"), update(3, "Zz", "a text")},
            {"NoKeyMoves", inserts(8, "a text"), update(3, old.person.name, "other text")},
            {"MemoShorter", inserts(8, std::string(500, 'l')), update(3, old.person.name, "s")},
            {"MemoLonger", inserts(8, "s"), update(3, old.person.name, std::string(900, 'l'))},
            {"MemoToEmpty", inserts(8, "a text"), update(3, old.person.name, "")},
            {"Delete", inserts(8, "a text"), {Save::Kind::Delete, 4, {}}},
            {"Checkpoint", inserts(61, std::string(2900, 'n')), insertOf(62, "n")},
            {"Full", inserts(120), insertOf(121)}};
}

struct Prepared {
    std::unique_ptr<SimDisk> disk;
    People people;
};

Prepared prepare(const std::vector<Save> &saves)
{
    Prepared ready{diskWithPeople(), {}};
    SimSession session(*ready.disk);
    for (const Save &save : saves) {
        EXPECT_TRUE(session.perform(save)) << lastError(session).detail;
        note(ready.people, save);
    }
    return ready;
}

class JournalDeath : public testing::TestWithParam<Case>
{
};

TEST_P(JournalDeath, AtEachCallTheSaveIsWholeOrAbsent)
{
    const Prepared ready = prepare(GetParam().before);
    People after = ready.people;
    note(after, GetParam().save);
    int whole = 0;
    int absent = 0;
    for (int call = 1;; ++call) {
        ASSERT_LT(call, 3000);
        const std::unique_ptr<SimDisk> disk = ready.disk->copy();
        bool done = false;
        bool dead = false;
        {
            SimSession session(*disk);
            session.station.dieAt(call);
            done = session.perform(GetParam().save);
            dead = session.station.dead();
        }
        EXPECT_EQ(disk->locksHeld(), 0U) << "call " << call;
        bool found = false;
        const std::string problem = compare(*disk, ready.people, &after, &found);
        ASSERT_EQ(problem, "") << "died at call " << call;
        ASSERT_TRUE(!done || found) << "an acknowledged save is lost, call " << call;
        ++(found ? whole : absent);
        // and the next save goes on from there
        People then = found ? after : ready.people;
        SimSession next(*disk);
        const Save more = insertOf(900, "more");
        ASSERT_TRUE(next.perform(more)) << lastError(next).detail << ", call " << call;
        note(then, more);
        ASSERT_EQ(compare(*disk, then), "") << "died at call " << call;
        if (!dead) {
            EXPECT_TRUE(done);
            break;
        }
    }
    EXPECT_GT(whole, 0);
    EXPECT_GT(absent, 0);
}

// All calls of the recovery for one death at each call of the save.
TEST_P(JournalDeath, DyingAgainInTheRecoveryChangesNothing)
{
    const Prepared ready = prepare(GetParam().before);
    People after = ready.people;
    note(after, GetParam().save);
    std::mt19937 random(1);
    for (int call = 1;; ++call) {
        const std::unique_ptr<SimDisk> first = ready.disk->copy();
        bool dead = false;
        {
            SimSession session(*first);
            session.station.dieAt(call);
            (void)session.perform(GetParam().save);
            dead = session.station.dead();
        }
        if (!dead)
            break;
        first->boot += random() % 2; // the machine too
        for (int sample = 0; sample < 3; ++sample) {
            const std::unique_ptr<SimDisk> disk = first->copy();
            {
                SimSession session(*disk);
                session.station.dieAt(static_cast<int>(random() % 60) + 1);
                session.look();
            }
            ASSERT_EQ(compare(*disk, ready.people, &after), "") << "died at call " << call;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Saves, JournalDeath, testing::ValuesIn(cases()),
                         [](const auto &one) { return std::string(one.param.name); });

} // namespace
