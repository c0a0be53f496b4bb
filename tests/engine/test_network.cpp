// Two hosts on a network folder that shows what the other wrote only at locks and openings.
#include "engine/SimPeople.h"

#include <gtest/gtest.h>

using namespace norvane::engine;
using namespace enginetest;

namespace
{

// A session that keeps the table open, so that nothing is fresh by being opened.
struct Host {
    explicit Host(SimDisk &disk) : session(disk)
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

// Of each eight saves one meets its station's death and one a call that fails.
TEST(NetworkFolder, HostsThatKeepTheTableOpenSeeAndKeepEachOthersSaves)
{
    const std::unique_ptr<SimDisk> disk = diskWithPeople();
    People people;
    std::mt19937 random(5);
    std::unique_ptr<Host> hosts[] = {std::make_unique<Host>(*disk), std::make_unique<Host>(*disk)};
    for (int round = 0; round < 400; ++round) {
        std::unique_ptr<Host> &one = hosts[random() % 2];
        const Host &other = one == hosts[0] ? *hosts[1] : *hosts[0];
        const Save save = randomSave(people, random);
        People after = people;
        note(after, save);
        const bool dies = round % 8 == 7;
        const bool fails = round % 8 == 3;
        const int call = static_cast<int>(random() % 60) + 1;
        if (dies)
            one->session.station.dieAt(call);
        else if (fails)
            one->session.station.failAt(call, ErrorKind::Io, false);
        const bool done = one->session.perform(save);
        one->session.station.mend();
        const std::vector<Save> saves = save.group.empty() ? std::vector{save} : save.group;
        const auto in = [&](const People &all) {
            std::vector<Person> found;
            for (const Save &each : saves)
                found.push_back(all.count(each.id) == 0 ? Person() : all.at(each.id));
            return found;
        };
        std::vector<Person> seen;
        for (const Save &each : saves)
            seen.push_back(other.shown(each.id));
        if (seen == in(after)) {
            people = after;
        } else {
            ASSERT_TRUE((dies || fails) && !done) << "round " << round;
            ASSERT_EQ(seen, in(people)) << "round " << round;
        }
        ASSERT_EQ(one->session.station.locksLost, 0) << "round " << round;
        if (dies)
            one = std::make_unique<Host>(*disk);
        for (std::size_t i = 0; i < saves.size(); ++i)
            ASSERT_EQ(one->shown(saves[i].id), seen[i]) << "round " << round;
        ASSERT_EQ(d4recCountDo(hosts[0]->open), d4recCountDo(hosts[1]->open)) << "round " << round;
    }
    ASSERT_EQ(compare(*disk, people), "");
}

} // namespace
