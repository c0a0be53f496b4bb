// The journal file itself: rubbish, wrong ones, other programs' writes, loads that broke off.
#include "engine/SimPeople.h"

#include "db/engine/Crc32c.h"
#include "db/engine/Journal.h"

#include <gtest/gtest.h>

#include <algorithm>

using namespace norvane::engine;
using namespace enginetest;

namespace
{

const std::string journalPath = "/people.nvj";

class JournalFiles : public testing::Test
{
protected:
    void save(const Save &one)
    {
        SimSession session(*m_disk);
        ASSERT_TRUE(session.perform(one)) << lastError(session).detail;
        note(m_people, one);
    }
    void save(int first, int last)
    {
        for (int id = first; id <= last; ++id)
            save(insertOf(id, "a text"));
    }
    // A station that dies when its save was committed and not yet written to the files.
    void leaveUnfinished(const Save &one)
    {
        for (int call = 1;; ++call) {
            const auto disk = m_disk->copy();
            {
                SimSession session(*disk);
                session.station.dieAt(call);
                (void)session.perform(one);
                ASSERT_TRUE(session.station.dead());
            }
            bool found = false;
            const auto looked = disk->copy();
            People after = m_people;
            note(after, one);
            ASSERT_EQ(compare(*looked, m_people, &after, &found), "");
            if (!found)
                continue;
            m_disk->files = disk->files;
            m_people = after;
            return;
        }
    }

    std::unique_ptr<SimDisk> m_disk = diskWithPeople();
    People m_people;
};

TEST(Crc32c, HasTheKnownValues)
{
    EXPECT_EQ(crc32c(asBytes("123456789")), 0xE3069283U);
    const std::vector<Byte> zeros(32);
    EXPECT_EQ(crc32c(zeros), 0x8A9136AAU);
    EXPECT_EQ(crc32c(asBytes("456789"), crc32c(asBytes("123"))), 0xE3069283U);
}

TEST_F(JournalFiles, RubbishIsKeptAsideAndNeverApplied)
{
    save(1, 6);
    const std::vector<Byte> sound = m_disk->bytes(journalPath);
    std::mt19937 random(3);
    for (int i = 0; i < 300; ++i) {
        std::vector<Byte> bytes = sound;
        const int kind = i % 4;
        if (kind == 0)
            bytes.resize(random() % 4000);
        else if (kind == 1)
            bytes[random() % 104] ^= static_cast<Byte>(1 + random() % 255);
        else if (kind == 2)
            std::generate(bytes.begin(), bytes.end(), [&] { return static_cast<Byte>(random()); });
        else
            bytes[512 + random() % 8000] ^= static_cast<Byte>(1 + random() % 255);
        const auto disk = m_disk->copy();
        disk->bytes(journalPath) = bytes;
        disk->boot += random() % 2;
        bool refused = false;
        ASSERT_EQ(compareReading(*disk, m_people, nullptr, &refused), "") << "round " << i;
        ASSERT_EQ(compare(*disk, m_people), "") << "round " << i;
        EXPECT_EQ(disk->has(journalPath + ".bad"), kind == 1 || kind == 2 || bytes.size() < 128)
            << "round " << i;
        SimSession next(*disk);
        ASSERT_TRUE(next.perform(insertOf(50))) << "round " << i;
    }
}

TEST_F(JournalFiles, HeadersAndRecordsThatLieAreNoMoreThanRubbish)
{
    save(1, 3);
    SimStation station(*m_disk);
    Journal journal(station, journalPath);
    JournalHeader sound;
    ASSERT_EQ(journal.read(sound, false).value(), Journal::State::Sound);
    for (int i = 0; i < 8; ++i) {
        JournalHeader head = sound;
        if (i == 0)
            head.next = 0x7FFFFFF0;
        if (i == 1)
            head.begun = head.applied + 1;
        if (i == 2)
            head.applied = head.begun = UINT64_MAX;
        if (i == 3)
            head.first = UINT64_MAX;
        if (i == 4)
            head.sizes = {1U << 30, 1U << 30, 1U << 30}, head.begun = head.applied + 1;
        if (i == 5)
            head.flags = 0xFFFFFFFF;
        if (i == 6)
            head.sizes = {}, head.begun = head.applied + 1;
        if (i == 7)
            head.shape += 1;
        ASSERT_TRUE(journal.write(head).ok());
        const auto disk = m_disk->copy();
        disk->boot += 1;
        EXPECT_EQ(compare(*disk, m_people), "") << i;
    }
    // a record with a right sum and pieces that make no sense
    Pieces pieces{{Target::Memo, true, 0x7FFFFFFD, {1, 2, 3}, {}}};
    ASSERT_TRUE(journal.write(sound).ok());
    ASSERT_TRUE(
        journal.writeRecord(sound.next, Journal::encode(sound.applied + 1, sound.salt, pieces))
            .ok());
    m_disk->boot += 1;
    EXPECT_EQ(compare(*m_disk, m_people), "");
}

TEST_F(JournalFiles, AReaderIsToldOfAnUnfinishedSaveAndAWriterFinishesIt)
{
    save(1, 4);
    leaveUnfinished(insertOf(5, "a text"));
    {
        SimSession reader(*m_disk);
        code4readOnly(reader, 1);
        EXPECT_EQ(d4open(reader, kPeoplePath), 0);
        EXPECT_EQ(lastError(reader).kind, ErrorKind::ReadOnly);
        EXPECT_EQ(lastError(reader).file, kPeoplePath);
        EXPECT_NE(lastError(reader).detail.find("middle of a save"), std::string::npos);
    }
    EXPECT_EQ(compare(*m_disk, m_people), "");
    SimSession reader(*m_disk);
    code4readOnly(reader, 1);
    EXPECT_GT(d4open(reader, kPeoplePath), 0);
}

TEST_F(JournalFiles, AnOpenTableFinishesWhatAnotherStationLeft)
{
    save(1, 4);
    SimSession reader(*m_disk);
    const Handle table = d4open(reader, kPeoplePath);
    ASSERT_EQ(findPerson(table, 2), r4success);
    {
        // on the same disk, so that the open table sees it
        SimSession other(*m_disk);
        const Handle theirs = d4open(other, kPeoplePath);
        ASSERT_GT(theirs, 0);
        for (int call = 1; m_people.size() == 4; ++call) {
            const auto trial = m_disk->copy();
            SimSession dying(*trial);
            dying.station.dieAt(call);
            (void)dying.perform(insertOf(5));
            JournalHeader head;
            SimStation looking(*trial);
            ASSERT_TRUE(Journal(looking, journalPath).read(head, true).ok());
            People after = m_people;
            note(after, insertOf(5));
            bool found = false;
            const auto looked = trial->copy();
            ASSERT_EQ(compare(*looked, m_people, &after, &found), "");
            if (!found || head.begun == head.applied)
                continue;
            for (auto &[path, content] : m_disk->files)
                content->bytes = trial->bytes(path);
            m_people = after;
        }
    }
    EXPECT_EQ(findPerson(table, 5), r4success);
    EXPECT_EQ(d4recCountDo(table), 5U);
}

TEST_F(JournalFiles, WhatAnotherProgramWroteStays)
{
    save(1, 6);
    const std::size_t row = 32 + 8 * 32 + 1 + 2 * 107; // of the third
    std::copy_n("Written elsewhere", 17,
                m_disk->bytes(kPeoplePath).begin() + static_cast<std::ptrdiff_t>(row) + 11);
    m_disk->boot += 1;
    m_people[3].name = "Written elsewhere";
    EXPECT_EQ(compare(*m_disk, m_people), ""); // its tags too
}

TEST_F(JournalFiles, FilesPutBackFromABackupAreNotMixedWithLaterSaves)
{
    save(1, 4);
    const auto backup = m_disk->copy();
    const People then = m_people;
    save(5, 75); // past a checkpoint
    for (const char *path : {"/people.dbf", "/people.cdx", "/people.fpt"})
        m_disk->bytes(path) = backup->bytes(path);
    const auto rebooted = m_disk->copy();
    rebooted->boot += 1;
    EXPECT_EQ(compare(*rebooted, then), "");
    EXPECT_EQ(compare(*m_disk, then), "");
    SimSession session(*m_disk);
    ASSERT_TRUE(session.perform(insertOf(900)));
    m_disk->boot += 1;
    People more = then;
    note(more, insertOf(900));
    EXPECT_EQ(compare(*m_disk, more), "");
}

TEST_F(JournalFiles, ALoadThatBreaksOffLeavesASoundTable)
{
    save(1, 5);
    const People before = m_people;
    for (int call = 1;; ++call) {
        ASSERT_LT(call, 2000);
        const auto disk = m_disk->copy();
        const auto base = disk->copy();
        disk->recording = true;
        People loaded = before;
        bool dead = false;
        {
            SimSession session(*disk);
            code4accessMode(session, 1);
            session.station.dieAt(call);
            const Handle table = d4open(session, kPeoplePath);
            for (int id = 10; id < 16; ++id) {
                if (addPerson(table, id, "Loaded", "text") == r4success)
                    loaded[id] = {"Loaded", "", "text", ""};
            }
            (void)d4close(table);
            dead = session.station.dead();
        }
        // rows need not all be there when the load broke off, but what is there is sound
        for (int cut = 0; cut < 3; ++cut) {
            const auto after =
                cut == 0 ? disk->copy()
                         : SimDisk::afterPowerCut(*base, disk->changes, disk->changes.size(),
                                                  static_cast<std::uint32_t>(call * 3 + cut));
            const std::string problem = compare(*after, loaded, &before);
            const bool missing = problem.find("is lost") != std::string::npos ||
                                 problem.find("not as it was") != std::string::npos ||
                                 problem.find("nobody saved") != std::string::npos;
            ASSERT_TRUE(problem.empty() || (dead && missing)) << problem << ", call " << call;
        }
        if (!dead) {
            EXPECT_FALSE(disk->has(journalPath)); // nothing stays beside a loaded table
            break;
        }
    }
}

} // namespace
