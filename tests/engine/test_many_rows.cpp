// Many rows at once: loads in sole use, whose keys come late, and passes that read texts ahead.
#include "engine/SimPeople.h"

#include "db/engine/Bytes.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

using namespace norvane::engine;
using namespace enginetest;

namespace
{

std::string nameOf(int id)
{
    return "Name " + std::to_string(id * 7919 % 1000);
}

TEST(Load, AllRowsAreFoundAtAnyMoment)
{
    const TempFolder folder;
    const std::string path = folder / "people.dbf";
    makeTable(path, peopleTable());
    TestSession session;
    code4accessMode(session, 1);
    const Handle table = d4open(session, path);
    int id = 0;
    // few keys are put in one by one, many by building the tags anew
    for (const int until : {3, 1500, 1510, 2800}) {
        while (id < until) {
            ++id;
            ASSERT_EQ(addPerson(table, id, nameOf(id)), r4success);
        }
        const std::string changed = "Changed " + std::to_string(until);
        for (const std::uint32_t record : {1U, static_cast<std::uint32_t>(until)}) {
            ASSERT_EQ(d4go(table, record), r4success);
            assign(table, "name", changed);
        }
        ASSERT_EQ(d4go(table, static_cast<std::uint32_t>(until) - 1), r4success);
        EXPECT_EQ(d4delete(table), r4success);
        for (const int there : {1, until}) {
            EXPECT_EQ(findPerson(table, there), r4success) << there;
            EXPECT_EQ(text(table, "name"), changed);
        }
        EXPECT_NE(findPerson(table, until - 1), r4success) << until;
        selectTag(table, "name");
        EXPECT_EQ(d4seek(table, "CHANGED " + std::to_string(until)), r4success);
        EXPECT_EQ(d4check(table), std::vector<std::string>());
    }
    ASSERT_EQ(addPerson(table, ++id, "Last", "text"), r4success);
    EXPECT_EQ(d4check(table), std::vector<std::string>());
    ASSERT_EQ(addPerson(table, ++id, "Last", "text"), r4success);
    EXPECT_EQ(d4close(table), r4success);
    EXPECT_EQ(findings(path), "");
    const Handle again = d4open(session, path);
    EXPECT_EQ(findPerson(again, id), r4success);
    EXPECT_EQ(memo(again, "notes"), "text");
}

// Enough rows that the tags are built anew at the end.
bool load(SimSession &session, People &people)
{
    code4accessMode(session, 1);
    const Handle table = d4open(session, kPeoplePath);
    for (int id = 1; id <= 1100; ++id) {
        if (addPerson(table, id, nameOf(id), id % 100 == 0 ? "text" : "") == r4success)
            people[id] = {nameOf(id), "", id % 100 == 0 ? "text" : "", ""};
    }
    return d4close(table) == r4success;
}

TEST(Load, DyingOrFailingWhileTheTagsAreBuiltLosesNothing)
{
    const std::unique_ptr<SimDisk> start = diskWithPeople();
    People all;
    int calls = 0;
    {
        const std::unique_ptr<SimDisk> disk = start->copy();
        SimSession session(*disk);
        ASSERT_TRUE(load(session, all));
        calls = session.station.calls();
        ASSERT_EQ(compare(*disk, all), "");
        EXPECT_FALSE(disk->has("/people.nvj"));
    }
    for (int call = calls - 45; call <= calls; ++call) {
        for (const bool dies : {true, false}) {
            const std::unique_ptr<SimDisk> disk = start->copy();
            People people;
            bool done = false;
            {
                SimSession session(*disk);
                if (dies)
                    session.station.dieAt(call);
                else
                    session.station.failAt(call, ErrorKind::NoSpace, true);
                done = load(session, people);
                session.station.mend();
            }
            ASSERT_EQ(compare(*disk, people), "") << "call " << call << (dies ? " dies" : " fails");
            EXPECT_TRUE(people.size() == all.size() || !done) << call;
        }
    }
}

// A station that found no journal notices one that came later, though its owner died at once.
TEST(Load, TheFirstSaveAfterItMayDieBesideAReader)
{
    const std::unique_ptr<SimDisk> start = diskWithPeople();
    People before;
    {
        SimSession session(*start);
        code4accessMode(session, 1);
        const Handle table = d4open(session, kPeoplePath);
        for (int id = 1; id < 9; ++id) {
            ASSERT_EQ(addPerson(table, id, nameOf(id)), r4success);
            before[id] = {nameOf(id), "", "", ""};
        }
        ASSERT_EQ(d4close(table), r4success);
    }
    const Save save = insertOf(20, "a text");
    People after = before;
    note(after, save);
    bool dead = true;
    for (int call = 1; dead; ++call) {
        ASSERT_LT(call, 500);
        const std::unique_ptr<SimDisk> disk = start->copy();
        const SimSession reader(*disk);
        const Handle table = d4open(reader, kPeoplePath);
        ASSERT_EQ(findPerson(table, 3), r4success);
        {
            SimSession writer(*disk);
            writer.station.dieAt(call);
            (void)writer.perform(save);
            dead = writer.station.dead();
        }
        const bool found = findPerson(table, 20) == r4success;
        EXPECT_EQ(found ? memo(table, "notes") : "a text", "a text");
        EXPECT_EQ(d4check(table), std::vector<std::string>()) << call;
        ASSERT_EQ(compare(*disk, found ? after : before), "") << call;
    }
}

TEST(Pass, TextsReadAheadBelongToTheirRows)
{
    const TempFolder folder;
    const std::string path = folder / "people.dbf";
    const std::string memoPath = folder / "people.fpt";
    makeTable(path, peopleTable());
    TestSession session;
    const auto textOf = [](int id) {
        // one is longer than what is read ahead
        return std::string(id == 20 ? 100000 : 100 + id, static_cast<char>('a' + id % 26));
    };
    const Handle writer = d4open(session, path);
    for (int id = 1; id <= 40; ++id)
        ASSERT_EQ(addPerson(writer, id, nameOf(id), textOf(id)), r4success);
    const std::uintmax_t end = std::filesystem::file_size(memoPath);

    // a text of a save that never was lies behind the others while they are read ahead
    Bytes memos = readFile(memoPath);
    Bytes unsaved(512, 'u');
    putBe32(unsaved.data(), 1);
    putBe32(&unsaved[4], 300);
    memos.insert(memos.end(), unsaved.begin(), unsaved.end());
    writeFile(memoPath, memos);
    TestSession other;
    Handle reader = d4open(other, path);
    const auto walk = [&](int damaged) {
        int id = 0;
        for (Code code = d4top(reader); code == r4success; code = d4skip(reader, 1)) {
            if (++id == damaged) {
                EXPECT_EQ(f4memoPtr(d4field(reader, "notes")), nullptr);
            } else {
                EXPECT_EQ(memo(reader, "notes"), textOf(id)) << id;
            }
            if (id == 40)
                break;
        }
        return id;
    };
    EXPECT_EQ(walk(0), 40);
    std::filesystem::resize_file(memoPath, end); // as taken back, and its blocks taken again
    ASSERT_EQ(addPerson(writer, 41, "Next", "another"), r4success);
    ASSERT_EQ(d4skip(reader, 1), r4success);
    EXPECT_EQ(memo(reader, "notes"), "another");

    // a text changed elsewhere while its row was read ahead: the old one, then the new one
    ASSERT_EQ(d4top(reader), r4success);
    ASSERT_EQ(d4skip(reader, 1), r4success);
    EXPECT_EQ(memo(reader, "notes"), textOf(2));
    ASSERT_EQ(findPerson(writer, 3), r4success);
    ASSERT_EQ(d4lock(writer, 3), r4success);
    assignMemo(writer, "notes", "changed");
    ASSERT_EQ(d4unlock(writer), r4success);
    d4tagSelect(reader, 0);
    ASSERT_EQ(d4skip(reader, 1), r4success);
    EXPECT_TRUE(memo(reader, "notes") == textOf(3) || memo(reader, "notes") == "changed");
    ASSERT_EQ(d4go(reader, 3), r4success);
    EXPECT_EQ(memo(reader, "notes"), "changed");

    // a length that leads out of the file, then one that leads out of what is read ahead
    ASSERT_EQ(d4go(writer, 3), r4success);
    ASSERT_EQ(d4lock(writer, 3), r4success);
    assignMemo(writer, "notes", textOf(3));
    ASSERT_EQ(d4unlock(writer), r4success);
    const std::string wanted = textOf(5);
    for (const std::uint32_t rubbish : {0xFFFFFFF0U, 1000000U}) {
        memos = readFile(memoPath);
        const auto at = std::search(memos.begin(), memos.end(), wanted.begin(), wanted.end());
        ASSERT_NE(at, memos.end());
        putBe32(&*(at - 4), rubbish);
        writeFile(memoPath, memos);
        TestSession fresh;
        reader = d4open(fresh, path);
        EXPECT_EQ(walk(5), 40);
    }
}

} // namespace
