// Calls of the system that fail, once or for ever: a save reported as done is there, one that was
// refused is whole or absent, locks are given back, and when the fault is gone all works again.
#include "engine/SimPeople.h"

#include <gtest/gtest.h>

using namespace norvane::engine;
using namespace enginetest;

namespace
{

struct Fault {
    const char *name;
    ErrorKind kind;
    bool forEver;
    bool remote = false;
};

class JournalFaults : public testing::TestWithParam<Fault>
{
protected:
    void failEach(const std::vector<Save> &before, const Save &save)
    {
        const std::unique_ptr<SimDisk> start = diskWithPeople();
        People people;
        for (const Save &one : before) {
            SimSession session(*start);
            ASSERT_TRUE(session.perform(one));
            note(people, one);
        }
        People after = people;
        note(after, save);
        for (int call = 1; call < 1000; ++call) {
            const std::unique_ptr<SimDisk> disk = start->copy();
            SimSession session(*disk);
            session.station.remote = GetParam().remote;
            session.station.failAt(call, GetParam().kind, GetParam().forEver);
            const bool done = session.perform(save);
            const bool failed = session.station.failed();
            session.station.mend();
            EXPECT_EQ(disk->locksHeld(), 0U) << "call " << call;

            bool found = false;
            ASSERT_EQ(compare(*disk, people, &after, &found), "") << "call " << call;
            ASSERT_TRUE(!done || found) << "reported as done and not there, call " << call;
            People then = found ? after : people;
            const Save more = insertOf(901, "more");
            ASSERT_TRUE(session.perform(more))
                << lastError(session).detail << " after call " << call;
            note(then, more);
            ASSERT_EQ(compare(*disk, then), "") << "call " << call;
            // and it is on the medium
            disk->boot += 1;
            ASSERT_EQ(compare(*disk, then), "") << "call " << call;
            if (!failed) {
                EXPECT_TRUE(done);
                return;
            }
        }
        FAIL() << "the save never came through";
    }
};

TEST_P(JournalFaults, FirstRow)
{
    failEach({}, insertOf(1, "a text"));
}

TEST_P(JournalFaults, Insert)
{
    failEach({insertOf(1, "x"), insertOf(2)}, insertOf(3, "a text"));
}

TEST_P(JournalFaults, Update)
{
    Save save = insertOf(2, std::string(700, 'l'));
    save.kind = Save::Kind::Update;
    save.person.name = "Another";
    failEach({insertOf(1, "x"), insertOf(2, "short")}, save);
}

TEST_P(JournalFaults, Delete)
{
    failEach({insertOf(1, "x"), insertOf(2)}, {Save::Kind::Delete, 1, {}});
}

TEST_P(JournalFaults, Group)
{
    std::vector<Save> before;
    for (int id = 1; id <= 8; ++id)
        before.push_back(insertOf(id, "x"));
    failEach(before, mixedGroup());
}

TEST_P(JournalFaults, Checkpoint)
{
    std::vector<Save> before;
    for (int id = 1; id <= 61; ++id)
        before.push_back(insertOf(id, std::string(2900, 'n')));
    failEach(before, insertOf(62, std::string(2900, 'm')));
}

INSTANTIATE_TEST_SUITE_P(Kinds, JournalFaults,
                         testing::Values(Fault{"IoOnce", ErrorKind::Io, false},
                                         Fault{"IoForEver", ErrorKind::Io, true},
                                         Fault{"NoSpaceOnce", ErrorKind::NoSpace, false},
                                         Fault{"NoSpaceForEver", ErrorKind::NoSpace, true},
                                         Fault{"RefusedOnce", ErrorKind::ReadOnly, false},
                                         Fault{"RefusedForEver", ErrorKind::ReadOnly, true},
                                         Fault{"GoneOnce", ErrorKind::Gone, false},
                                         Fault{"GoneForEver", ErrorKind::Gone, true},
                                         Fault{"RemoteIoOnce", ErrorKind::Io, false, true},
                                         Fault{"RemoteGoneForEver", ErrorKind::Gone, true, true}),
                         [](const auto &one) { return std::string(one.param.name); });

} // namespace
