// Power cuts: what was not synced is there, gone, or torn at a sector's border. Every save that was
// reported as done is there afterwards, the one under way is whole or absent.
//
// NORVANE_POWER_STATES sets how many states are looked at, whatever the length of the run.
#include "engine/SimPeople.h"
#include "support/MatrixLength.h"

#include <gtest/gtest.h>

#include <cstdlib>

using namespace norvane::engine;
using namespace enginetest;

namespace
{

// Saves one after the other with all that reached the disk, and where each began and ended.
struct Recording {
    std::unique_ptr<SimDisk> start;
    std::vector<SimDisk::Change> changes;
    std::vector<People> people{{}};     // after 0, 1, 2 ... saves
    std::vector<std::size_t> ends{{0}}; // changes at the time a save was reported as done
};

Recording record(int saves, std::uint32_t seed)
{
    Recording made;
    std::mt19937 random(seed);
    const std::unique_ptr<SimDisk> disk = diskWithPeople();
    made.start = disk->copy();
    disk->recording = true;
    for (int i = 0; i < saves; ++i) {
        SimSession session(*disk);
        People people = made.people.back();
        const Save save = randomSave(people, random);
        EXPECT_TRUE(session.perform(save)) << lastError(session).detail;
        note(people, save);
        made.people.push_back(people);
        made.ends.push_back(disk->changes.size());
    }
    made.changes = disk->changes;
    return made;
}

std::size_t statesWanted()
{
    const char *wanted = std::getenv("NORVANE_POWER_STATES");
    return wanted ? std::strtoul(wanted, nullptr, 10)
                  : norvane::test::matrixLength<std::size_t>(3000, 30000, 100000);
}

TEST(JournalPower, AtAnyMomentTheAcknowledgedSavesAreThere)
{
    std::size_t states = 0;
    for (std::uint32_t seed = 1; states < statesWanted(); ++seed) {
        const Recording made = record(50, seed);
        std::mt19937 random(seed);
        for (int i = 0; i < 1500 && states < statesWanted(); ++i, ++states) {
            const std::size_t count = random() % (made.changes.size() + 1);
            std::size_t saved = 0;
            while (saved + 1 < made.ends.size() && made.ends[saved + 1] <= count)
                ++saved;
            const std::size_t next = std::min(saved + 1, made.people.size() - 1);
            const std::uint32_t choice = random();
            const auto disk = SimDisk::afterPowerCut(*made.start, made.changes, count, choice);
            ASSERT_EQ(compare(*disk, made.people[saved], &made.people[next]), "")
                << "recording " << seed << ", " << count << " changes of " << made.changes.size()
                << ", choice " << choice << ", " << saved << " saves";
        }
    }
}

// The station that recovers loses its power too.
TEST(JournalPower, ACutDuringTheRecoveryChangesNothing)
{
    const Recording made = record(30, 99);
    std::mt19937 random(5);
    for (int i = 0; i < 200; ++i) {
        const std::size_t count = random() % (made.changes.size() + 1);
        std::size_t saved = 0;
        while (saved + 1 < made.ends.size() && made.ends[saved + 1] <= count)
            ++saved;
        const std::size_t next = std::min(saved + 1, made.people.size() - 1);
        const auto first = SimDisk::afterPowerCut(*made.start, made.changes, count, random());
        const auto base = first->copy();
        first->recording = true;
        SimSession(*first).look();
        for (int again = 0; again < 4; ++again) {
            const std::size_t until = random() % (first->changes.size() + 1);
            const auto second = SimDisk::afterPowerCut(*base, first->changes, until, random());
            ASSERT_EQ(compare(*second, made.people[saved], &made.people[next]), "")
                << count << " changes, then " << until;
        }
    }
}

TEST(JournalPower, ProcessDurabilitySyncsNothingInASave)
{
    const std::unique_ptr<SimDisk> disk = diskWithPeople();
    SimSession session(*disk, "process");
    SimSession durable(*disk);
    ASSERT_TRUE(session.perform(insertOf(1, "a text")));
    const auto syncs = [&disk] {
        int count = 0;
        for (const SimDisk::Change &change : disk->changes)
            count += change.kind == SimDisk::Change::Kind::Sync ? 1 : 0;
        disk->changes.clear();
        return count;
    };
    disk->recording = true;
    for (int id = 2; id < 100; ++id) // past checkpoints
        ASSERT_TRUE(session.perform(insertOf(id, "a text")));
    EXPECT_EQ(syncs(), 0);
    ASSERT_TRUE(durable.perform(insertOf(100, "a text")));
    EXPECT_EQ(syncs(), 1); // the commit point, and nothing else with open and close around it
}

} // namespace
