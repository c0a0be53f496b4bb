// Indexes that do not fit their table are built anew: death, failures and other stations in the
// middle of it.
#include "engine/SimPeople.h"

#include "db/engine/Bytes.h"

#include <gtest/gtest.h>

using namespace norvane::engine;
using namespace enginetest;

namespace
{

class SelfCheckDeath : public testing::Test
{
protected:
    void SetUp() override
    {
        SimSession session(*m_disk);
        for (int id = 1; id <= 40; ++id) {
            const Save save = insertOf(id, id % 7 ? "" : "a text");
            ASSERT_TRUE(session.perform(save));
            note(m_people, save);
            if (id == 20)
                m_older = m_disk->bytes("/people.cdx");
        }
    }
    std::unique_ptr<SimDisk> damaged(int kind) const
    {
        auto disk = m_disk->copy();
        if (kind == 0)
            disk->files.erase("/people.cdx");
        if (kind == 1)
            disk->bytes("/people.cdx") = m_older;
        if (kind == 2)
            disk->bytes("/people.cdx").assign(5000, 0x5A);
        if (kind == 3)
            putLe32(&disk->bytes(kPeoplePath)[4], 33);
        return disk;
    }
    // What anybody finds afterwards: everything, and a sound table.
    void expectSound(SimDisk &disk, const std::string &where)
    {
        for (int round = 0; round < 2; ++round) {
            SimSession session(disk);
            d4expectTags(session, "people", peopleTable().tags);
            const Handle table = d4open(session, kPeoplePath);
            ASSERT_GT(table, 0) << where << lastError(session).detail;
            ASSERT_EQ(d4damage(table).kind, ErrorKind::None) << where << d4damage(table).detail;
            for (const int id : {1, 20, 21, 40})
                ASSERT_EQ(findPerson(table, id), r4success) << where << id;
            d4close(table);
        }
        ASSERT_EQ(compare(disk, m_people), "") << where;
        ASSERT_FALSE(disk.has("/people.cdx.new")) << where;
        ASSERT_EQ(disk.locksHeld(), 0U) << where;
    }

    std::unique_ptr<SimDisk> m_disk = diskWithPeople();
    People m_people;
    std::vector<Byte> m_older;
};

TEST_F(SelfCheckDeath, AtEachCallTheNextOpeningMendsIt)
{
    for (int kind = 0; kind < 5; ++kind) {
        const auto base = kind < 4 ? damaged(kind) : m_disk->copy(); // 4: a re-index of a sound one
        bool dead = true;
        for (int call = 1; dead; ++call) {
            const auto disk = base->copy();
            disk->recording = true;
            {
                SimSession session(*disk);
                d4expectTags(session, "people", peopleTable().tags);
                code4accessMode(session, kind == 4);
                session.station.dieAt(call);
                const Handle table = d4open(session, kPeoplePath);
                if (kind == 4)
                    (void)d4reindex(table);
                (void)d4close(table);
                dead = session.station.dead();
            }
            const std::string where =
                "kind " + std::to_string(kind) + ", call " + std::to_string(call) + ": ";
            const auto cut = SimDisk::afterPowerCut(*base, disk->changes, disk->changes.size(),
                                                    static_cast<std::uint32_t>(call));
            expectSound(*disk, where);
            expectSound(*cut, "power cut, " + where);
            if (HasFatalFailure())
                return;
        }
    }
}

TEST_F(SelfCheckDeath, ACallThatFailsLeavesRightAnswersAndAnotherTry)
{
    for (const ErrorKind error : {ErrorKind::NoSpace, ErrorKind::Io}) {
        for (int kind = 0; kind < 4; ++kind) {
            const auto base = damaged(kind);
            bool failed = true;
            for (int call = 1; failed; ++call) {
                const auto disk = base->copy();
                const std::string where = "kind " + std::to_string(kind) + ", call " +
                                          std::to_string(call) + ", error " +
                                          std::to_string(static_cast<int>(error)) + ": ";
                {
                    SimSession session(*disk);
                    d4expectTags(session, "people", peopleTable().tags);
                    session.station.failAt(call, error, false);
                    const Handle table = d4open(session, kPeoplePath);
                    failed = session.station.failed();
                    session.station.mend();
                    const std::vector<Byte> before = disk->bytes(kPeoplePath);
                    if (table > 0 && kind < 3) {
                        for (const int id : {1, 20, 21, 40})
                            ASSERT_EQ(findPerson(table, id), r4success) << where << id;
                    }
                    if (table > 0 && d4damage(table)) {
                        ASSERT_NE(addPerson(table, 99, "Refused"), r4success) << where;
                        ASSERT_TRUE(disk->bytes(kPeoplePath) == before) << where;
                    }
                    (void)d4close(table);
                }
                expectSound(*disk, where);
                if (HasFatalFailure())
                    return;
            }
        }
    }
}

TEST_F(SelfCheckDeath, WhoOpensInTheMiddleFindsEverythingOrIsTold)
{
    for (int kind = 0; kind < 3; ++kind) {
        const auto base = damaged(kind);
        int asked = 0;
        int found = 0;
        for (bool came = true; came;) {
            const auto disk = base->copy();
            SimSession session(*disk);
            d4expectTags(session, "people", peopleTable().tags);
            came = false;
            session.station.beforeCall(++asked, [&] {
                came = true;
                SimSession other(*disk);
                code4lockAttempts(other, 0);
                d4expectTags(other, "people", peopleTable().tags);
                const Handle table = d4open(other, kPeoplePath);
                ASSERT_TRUE(table > 0 || lastError(other).kind == ErrorKind::Locked);
                for (int id = 1; table > 0 && id <= 40; ++id) {
                    const Code code = findPerson(table, id);
                    ASSERT_TRUE(code == r4success || code == d4locked) << kind << ", " << asked;
                    found += code == r4success;
                }
            });
            const Handle table = d4open(session, kPeoplePath);
            ASSERT_EQ(findPerson(table, 40), r4success) << kind << ", " << asked;
            d4close(table);
            expectSound(*disk, "kind " + std::to_string(kind) + ": ");
            if (HasFatalFailure())
                return;
        }
        EXPECT_GT(asked, 30);
        EXPECT_GT(found, 400);
    }
}

// Row, keys and text are there once the record is, whatever fails behind it.
TEST_F(SelfCheckDeath, ASaveOnRecordIsReportedAsDone)
{
    int mended = 0;
    for (int call = 1;; ++call) {
        const auto disk = m_disk->copy();
        SimSession session(*disk);
        session.station.failAt(call, ErrorKind::Io, false);
        const Save save = insertOf(41, "a text");
        const bool done = session.perform(save);
        if (!session.station.failed())
            break;
        People after = m_people;
        note(after, save);
        bool found = false;
        ASSERT_EQ(compare(*disk, m_people, &after, &found), "") << call;
        ASSERT_EQ(done, found) << call; // neither lost nor there unasked
        mended += done ? 1 : 0;
    }
    EXPECT_GT(mended, 5);
}

} // namespace
