// A disk with too little room, at 64 sizes between what is there and what the work needs: what was
// there stays whole and readable, what was reported as done is there, and with room all goes on.
#include "engine/SimPeople.h"
#include "support/MatrixLength.h"

#include <gtest/gtest.h>

#include <algorithm>

using namespace norvane::engine;
using namespace enginetest;
using norvane::test::countPoint;
using norvane::test::matrixLength;

namespace
{

struct Filling {
    const char *name;
    std::vector<Save> saves;
    bool alone = false;  // past the journal
    bool journal = true; // there is one already
    bool reindex = false;
    bool remote = false;
};

std::vector<Save> series(Save::Kind kind, int first, int last)
{
    std::vector<Save> saves;
    for (int id = first; id <= last; ++id) {
        Save save = insertOf(id, std::string(static_cast<std::size_t>(id * 37 % 900), 'n'));
        save.kind = kind;
        if (kind == Save::Kind::Update)
            save.person.name = "Other " + std::to_string(id);
        saves.push_back(save);
    }
    return saves;
}

Filling remote(Filling filling)
{
    filling.remote = true;
    return filling;
}

class DiskFull : public testing::TestWithParam<Filling>
{
protected:
    void SetUp() override
    {
        SimSession session(*m_start);
        const std::vector<Save> before = series(Save::Kind::Insert, 1, 40);
        ASSERT_EQ(performSaves(session, kPeoplePath, before), before.size());
        for (const Save &save : before)
            note(m_states[0], save);
        if (!GetParam().journal)
            m_start->files.erase("/people.nvj");
        for (const Save &save : GetParam().saves) {
            m_states.push_back(m_states.back());
            note(m_states.back(), save);
        }
    }

    // Saves done; `whole`: so was the rest of the work.
    std::size_t work(SimDisk &disk, bool &whole) const
    {
        SimSession session(disk);
        session.station.remote = GetParam().remote;
        code4accessMode(session, GetParam().alone ? 1 : 0);
        const std::size_t done = performSaves(session, kPeoplePath, GetParam().saves);
        whole = done == GetParam().saves.size();
        if (GetParam().reindex) {
            const Handle table = d4open(session, kPeoplePath);
            whole = d4reindex(table) == r4success;
            whole = d4close(table) == r4success && whole;
        }
        return done;
    }

    std::unique_ptr<SimDisk> m_start = diskWithPeople();
    std::vector<People> m_states{{}};
};

TEST_P(DiskFull, NothingThatWasThereIsDamaged)
{
    const std::uint64_t used = m_start->used();
    const auto roomy = m_start->copy();
    bool whole = false;
    work(*roomy, whole);
    ASSERT_TRUE(whole);
    const std::uint64_t needed = roomy->most;
    ASSERT_GE(needed, used);
    const std::uint64_t sizes = std::min<std::uint64_t>(matrixLength(16, 64, 64), needed - used);
    int refused = 0;
    for (std::uint64_t size = 0; size < sizes; ++size) {
        countPoint("sizes of a full disk");
        const auto disk = m_start->copy();
        disk->room = used + (needed - used) * size / sizes;
        const std::size_t done = work(*disk, whole);
        refused += whole ? 0 : 1;
        EXPECT_EQ(disk->locksHeld(), 0U);
        const People &next = m_states[std::min(done + 1, m_states.size() - 1)];
        bool found = false;
        // as full as it is, and then with room
        ASSERT_EQ(compare(*disk, m_states[done], &next, &found), "")
            << "still full, " << disk->room << " bytes, " << done << " saves";
        People now = found ? next : m_states[done];
        disk->room = UINT64_MAX;
        SimSession other(*disk);
        ASSERT_TRUE(other.perform(insertOf(901))) << lastError(other).detail;
        note(now, insertOf(901));
        ASSERT_EQ(compare(*disk, now), "") << size;
    }
    EXPECT_TRUE(refused > 0 || sizes == 0);
}

INSTANTIATE_TEST_SUITE_P(
    Work, DiskFull,
    testing::Values(Filling{"Import", series(Save::Kind::Insert, 41, 100)},
                    Filling{"Purge", series(Save::Kind::Delete, 11, 30)},
                    Filling{"Changes", series(Save::Kind::Update, 5, 25)},
                    Filling{"Group",
                            {groupOf(series(Save::Kind::Insert, 41, 100)),
                             groupOf(series(Save::Kind::Delete, 30, 60))}},
                    Filling{"JournalCreation", series(Save::Kind::Insert, 41, 42), false, false},
                    Filling{"Load", series(Save::Kind::Insert, 41, 100), true},
                    Filling{"LoadOverJournal", series(Save::Kind::Insert, 41, 60), true, false},
                    Filling{"Reindex", {}, true, true, true},
                    remote({"RemoteImport", series(Save::Kind::Insert, 41, 100)}),
                    remote({"RemoteChanges", series(Save::Kind::Update, 5, 25)}),
                    remote({"RemoteGroup", {groupOf(series(Save::Kind::Insert, 41, 100))}}),
                    remote({"RemoteJournal", series(Save::Kind::Insert, 41, 42), false, false})),
    [](const auto &one) { return std::string(one.param.name); });

} // namespace
