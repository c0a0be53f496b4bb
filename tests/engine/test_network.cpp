// Two hosts on a network folder that shows what the other wrote only at locks and openings.
#include "engine/SimPeople.h"
#include "support/MatrixLength.h"

#include <gtest/gtest.h>

#include <array>

using namespace norvane::engine;
using namespace enginetest;
using norvane::test::countPoint;
using norvane::test::matrixLength;

namespace
{

// A session that keeps the table open, so that nothing is fresh by being opened.
struct Host {
    Host(SimDisk &disk, const char *durability) : session(disk, durability)
    {
        session.station.remote = true;
        open = d4open(session, kPeoplePath);
    }
    Person current() const
    {
        return {text(open, "name"), text(open, "city"), memo(open, "notes"), memo(open, "detail")};
    }
    // As a look-up and a move by number show it; blank when nothing is there.
    Person shown(int id) const
    {
        if (findPerson(open, id) != r4success)
            return {};
        const Person found = current();
        d4tagSelect(open, 0);
        EXPECT_EQ(d4go(open, d4recNo(open)), r4success);
        EXPECT_EQ(current(), found);
        return found;
    }

    SimSession session;
    Handle open = 0;
};

// What goes wrong for the save of a round: of each eight one meets its station's death, one a call
// that fails and one a disk that is nearly full.
struct Mishap {
    Mishap(SimDisk &disk, SimStation &station, int round, std::mt19937 &random)
    {
        const int call = static_cast<int>(random() % 90) + 1;
        constexpr std::array kinds{ErrorKind::Io, ErrorKind::Gone, ErrorKind::NoSpace};
        dies = round % 8 == 7;
        may = dies || round % 8 == 3 || round % 8 == 5;
        if (dies)
            station.dieAt(call);
        else if (round % 8 == 3)
            station.failAt(call, kinds[random() % kinds.size()], random() % 2 == 0);
        else if (round % 8 == 5)
            disk.room = disk.used() + random() % 6000;
    }

    bool dies = false;
    bool may = false; // the save need not be done
};

std::vector<Person> peopleIn(const People &all, const std::vector<Save> &saves)
{
    std::vector<Person> found;
    for (const Save &save : saves)
        found.push_back(all.count(save.id) == 0 ? Person() : all.at(save.id));
    return found;
}

std::vector<Person> peopleSeen(const Host &host, const std::vector<Save> &saves)
{
    std::vector<Person> seen;
    for (const Save &save : saves)
        seen.push_back(host.shown(save.id));
    return seen;
}

void liveTogether(unsigned seed)
{
    const std::unique_ptr<SimDisk> disk = diskWithPeople();
    const char *durability = seed % 3 == 0 ? "process" : "full";
    People people;
    std::mt19937 random(seed);
    std::unique_ptr<Host> hosts[] = {std::make_unique<Host>(*disk, durability),
                                     std::make_unique<Host>(*disk, durability)};
    for (int round = 0; round < 400; ++round) {
        std::unique_ptr<Host> &one = hosts[random() % 2];
        const Host &other = one == hosts[0] ? *hosts[1] : *hosts[0];
        const Save save = randomSave(people, random);
        People after = people;
        note(after, save);
        const Mishap mishap(*disk, one->session.station, round, random);
        const bool done = one->session.perform(save);
        one->session.station.mend();
        if (random() % 2 == 0)
            disk->room = UINT64_MAX;
        const std::vector<Save> saves = save.group.empty() ? std::vector{save} : save.group;
        const std::vector<Person> seen = peopleSeen(other, saves);
        disk->room = UINT64_MAX;
        if (seen == peopleIn(after, saves)) {
            people = after;
        } else {
            ASSERT_TRUE(mishap.may && !done) << "round " << round;
            ASSERT_EQ(seen, peopleIn(people, saves)) << "round " << round;
        }
        ASSERT_EQ(one->session.station.locksLost, 0) << "round " << round;
        if (mishap.dies)
            one = std::make_unique<Host>(*disk, durability);
        ASSERT_EQ(peopleSeen(*one, saves), seen) << "round " << round;
        ASSERT_EQ(d4recCountDo(hosts[0]->open), d4recCountDo(hosts[1]->open)) << "round " << round;
    }
    ASSERT_EQ(compare(*disk, people), "");
}

TEST(NetworkFolder, HostsThatKeepTheTableOpenSeeAndKeepEachOthersSaves)
{
    for (unsigned seed = 1; seed <= matrixLength(3U, 30U, 400U) && !HasFatalFailure(); ++seed) {
        SCOPED_TRACE(seed);
        countPoint("lives of two hosts");
        liveTogether(seed);
    }
}

} // namespace
