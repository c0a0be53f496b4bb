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
using norvane::test::matrixLength;

namespace
{

// Saves one after the other with all that reached the disk, and where each began and ended.
struct Recording {
    std::unique_ptr<SimDisk> start;
    std::vector<SimDisk::Change> changes;
    std::vector<People> people{{}};   // after 0, 1, 2 ... saves
    std::vector<std::size_t> ends{0}; // changes at the time a save was reported as done

    std::size_t savedAt(std::size_t count) const
    {
        std::size_t saved = 0;
        while (saved + 1 < ends.size() && ends[saved + 1] <= count)
            ++saved;
        return saved;
    }
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
            const std::size_t saved = made.savedAt(count);
            const std::size_t next = std::min(saved + 1, made.people.size() - 1);
            const std::uint32_t choice = random();
            norvane::test::countPoint("states after a power cut");
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
        const std::size_t saved = made.savedAt(count);
        const std::size_t next = std::min(saved + 1, made.people.size() - 1);
        const auto first = SimDisk::afterPowerCut(*made.start, made.changes, count, random());
        const auto base = first->copy();
        first->recording = true;
        SimSession(*first).look();
        for (int again = 0; again < 4; ++again) {
            norvane::test::countPoint("states after a second power cut");
            const std::size_t until = random() % (first->changes.size() + 1);
            const auto second = SimDisk::afterPowerCut(*base, first->changes, until, random());
            ASSERT_EQ(compare(*second, made.people[saved], &made.people[next]), "")
                << count << " changes, then " << until;
        }
    }
}

// Who comes first after the cut may not write.
TEST(JournalPower, AReaderSeesEverySaveOrIsToldToLetAWriterOpenFirst)
{
    const Recording made = record(50, 7);
    std::mt19937 random(7);
    int seen = 0;
    int told = 0;
    for (int i = 0; i < matrixLength(600, 150, 20000); ++i) {
        const std::size_t count = random() % (made.changes.size() + 1);
        const std::size_t saved = made.savedAt(count);
        const std::size_t next = std::min(saved + 1, made.people.size() - 1);
        const std::uint32_t choice = random();
        const auto disk = SimDisk::afterPowerCut(*made.start, made.changes, count, choice);
        if (i % 2 == 0)
            disk->boot = 0; // no mark to tell the restart by
        const std::string where = std::to_string(count) + " changes, choice " +
                                  std::to_string(choice) + ", " + std::to_string(saved) + " saves";
        bool refused = false;
        disk->recording = true;
        ASSERT_EQ(compareReading(*disk, made.people[saved], &made.people[next], &refused), "")
            << where;
        ASSERT_TRUE(disk->changes.empty()) << where;
        ++(refused ? told : seen);
        ASSERT_EQ(compare(*disk, made.people[saved], &made.people[next]), "") << where;
        ASSERT_EQ(compareReading(*disk, made.people[saved], &made.people[next], &refused), "");
        ASSERT_FALSE(refused) << "after a writer was there; " << where;
    }
    EXPECT_GT(seen, 0);
    EXPECT_GT(told, 0);
}

// The index went with the machine; that the saves are in the journal is no less true.
TEST(JournalPower, AnIndexThatIsMissingAfterTheCutTakesNoSaveWithIt)
{
    const Recording made = record(20, 3);
    for (std::uint32_t choice = 0; choice < 20; ++choice) {
        const auto disk =
            SimDisk::afterPowerCut(*made.start, made.changes, made.changes.size(), choice);
        disk->files.erase("/people.cdx");
        ASSERT_EQ(compare(*disk, made.people.back()), "") << choice;
    }
}

// The table was copied to this disk a moment ago: nothing of it need be on the medium but for what
// the first save sees to.
TEST(JournalPower, TheFirstSaveBringsFilesJustCopiedWithIt)
{
    const Recording made = record(20, 11);
    const SimDisk empty;
    SimDisk disk;
    disk.recording = true;
    SimStation person(disk);
    const std::unique_ptr<SimDisk> source =
        SimDisk::afterPowerCut(*made.start, made.changes, made.changes.size(), 1);
    ASSERT_EQ(compare(*source, made.people.back()), "");
    for (const char *path : {"/people.dbf", "/people.cdx", "/people.fpt"}) {
        const auto file = person.open(path, OpenMode::CreateNew);
        ASSERT_TRUE(file.ok() && (*file)->write(0, source->bytes(path)).ok());
    }
    const Save save = insertOf(900, "a text");
    ASSERT_TRUE(SimSession(disk).perform(save));
    People people = made.people.back();
    note(people, save);
    for (std::uint32_t choice = 0; choice < 60; ++choice) {
        const auto cut = SimDisk::afterPowerCut(empty, disk.changes, disk.changes.size(), choice);
        ASSERT_EQ(compare(*cut, people), "") << choice;
    }
}

// A station dies with its record written and not yet synced, another one finishes its save, and
// then the power goes: what the other saw stays.
TEST(JournalPower, WhatIsFinishedForAnotherStationIsNotLostAgain)
{
    const Recording made = record(12, 13);
    const People &before = made.people.back();
    const Save save = insertOf(900, "a text");
    People after = before;
    note(after, save);
    const std::unique_ptr<SimDisk> start =
        SimDisk::afterPowerCut(*made.start, made.changes, made.changes.size(), 1);
    ASSERT_EQ(compare(*start, before), "");
    int finished = 0;
    bool dead = true;
    for (int call = 1; dead; ++call) {
        const std::unique_ptr<SimDisk> disk = start->copy();
        disk->recording = true;
        {
            SimSession dying(*disk);
            dying.station.dieAt(call);
            (void)dying.perform(save);
            dead = dying.station.dead();
        }
        const std::size_t died = disk->changes.size();
        SimSession(*disk).look();
        const std::size_t end = disk->changes.size();
        bool seen = false;
        ASSERT_EQ(compare(*disk->copy(), before, &after, &seen), "") << "call " << call;
        finished += seen && dead;
        for (std::size_t count = died; count <= end; ++count) {
            for (std::uint32_t choice = 0; choice < 10; ++choice) {
                const auto cut = SimDisk::afterPowerCut(*start, disk->changes, count, choice);
                const bool sure = seen && count == end;
                ASSERT_EQ(compare(*cut, sure ? after : before, sure ? nullptr : &after), "")
                    << "died at call " << call << ", " << count - died << " changes later of "
                    << end - died << ", choice " << choice;
            }
        }
    }
    EXPECT_GT(finished, 1);
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
