// Memory runs out at any allocation, once or for ever: nothing is thrown, a save reported as done
// is there, one refused is whole or absent, and with memory again all works on.
#include "engine/SavedFolder.h"
#include "engine/ScarceMemory.h"
#include "support/MatrixLength.h"

#include <algorithm>
#include <filesystem>

using namespace norvane::engine;
using namespace enginetest;
using norvane::test::countPoint;
using norvane::test::matrixLength;

namespace
{

// Through the engine's face only: nothing here may take memory of its own.
bool fill(Handle session, Handle table, const Person &person)
{
    const auto length = [](const std::string &text) {
        return static_cast<std::uint32_t>(text.size());
    };
    code4errorCode(session, 0);
    f4assignNVB(d4field(table, "name"), person.name, length(person.name));
    f4assignNVB(d4field(table, "city"), person.city, length(person.city));
    f4memoAssignN(d4field(table, "notes"), person.notes, length(person.notes));
    f4memoAssignN(d4field(table, "detail"), person.detail, length(person.detail));
    return lastError(session).kind == ErrorKind::None;
}

bool store(Handle session, Handle table, const Save &save)
{
    bool done = false;
    if (save.kind == Save::Kind::Group) {
        done = d4groupBegin(table) == r4success;
        for (const Save &one : save.group)
            done = done && store(session, table, one);
        done = done && d4groupEnd(table) == r4success;
        (void)d4groupDrop(table);
        return done;
    }
    if (save.kind == Save::Kind::Insert) {
        if (d4appendStartVB(table, 0) == r4success && d4blank(table) == r4success) {
            code4errorCode(session, 0);
            f4assignLong(d4field(table, "rowid"), save.id);
            done = lastError(session).kind == ErrorKind::None &&
                   fill(session, table, save.person) && d4append(table) == r4success;
        }
    } else {
        d4tagSelect(table, d4tag(table, "rowid"));
        if (d4seekDouble(table, save.id) == r4success &&
            d4lock(table, d4recNo(table)) == r4success) {
            const bool filled = save.kind == Save::Kind::Delete ? d4delete(table) == r4success
                                                                : fill(session, table, save.person);
            done = filled && d4flush(table) == r4success;
        }
    }
    if (!done)
        d4discard(table);
    (void)d4unlock(table);
    return done;
}

struct Work {
    const char *name;
    std::vector<Save> saves;
    bool exclusive = false;
    bool reindex = false;
    bool withJournal = true;
};

std::vector<Work> works()
{
    Save update = insertOf(2, std::string(700, 'l'));
    update.kind = Save::Kind::Update;
    update.person.name = "Another";
    const Save remove{Save::Kind::Delete, 1, {}};
    return {{"Insert", {insertOf(4, "a text")}, false, false, false},
            {"Update", {update}},
            {"Delete", {remove}},
            {"Group", {groupOf({insertOf(4, "a text"), update, remove, insertOf(5)})}},
            {"Look", {}},
            {"Alone", {insertOf(4, "a text"), update, remove, insertOf(5)}, true},
            {"Reindex", {}, true, true}};
}

class OutOfMemory : public SavedFolder, public testing::WithParamInterface<Work>
{
protected:
    // How many saves were done; `through`: nothing of the work failed.
    std::size_t work(Handle session, bool &through) const
    {
        const Work &all = GetParam();
        code4accessMode(session, all.exclusive ? 1 : 0);
        const Handle table = d4open(session, m_path);
        through = table > 0;
        std::size_t done = 0;
        while (done < all.saves.size() && store(session, table, all.saves[done]))
            ++done;
        if (all.reindex)
            through = d4reindex(table) == r4success && through;
        std::size_t rows = 0;
        d4tagSelect(table, d4tag(table, "name"));
        for (Code code = d4top(table); code == r4success; code = d4skip(table, 1))
            rows += f4memoPtr(d4field(table, "notes")) ? 1 : 0;
        // closing stores the keys of work done alone, so a failure of it says something
        through = d4close(table) == r4success && through && done == all.saves.size() && rows > 0;
        code4accessMode(session, 0);
        return done;
    }

    void runOutEverywhere(bool forEver)
    {
        std::vector<People> states = {m_people};
        for (const Save &save : GetParam().saves) {
            People next = states.back();
            note(next, save);
            states.push_back(std::move(next));
        }
        const std::size_t descriptors = openFiles();
        for (int allocation = 1;; allocation += matrixLength(7, 1, 1)) {
            ASSERT_LT(allocation, 20000);
            countPoint("failing allocations");
            restore(GetParam().withJournal);
            bool failed = false;
            bool through = false;
            {
                const TestSession session;
                memory::failAt(allocation, forEver);
                const std::size_t done = work(session, through);
                failed = memory::stop();
                bool found = false;
                const People &next = states[std::min(done + 1, states.size() - 1)];
                ASSERT_EQ(compareFiles(states[done], &next, &found), "") << allocation;
                saveMore(session, found ? next : states[done]);
                ASSERT_FALSE(HasFatalFailure()) << allocation;
            }
            ASSERT_EQ(openFiles(), descriptors) << allocation;
            if (!failed) {
                EXPECT_TRUE(through);
                break;
            }
        }
    }
};

TEST_P(OutOfMemory, Once)
{
    runOutEverywhere(false);
}

TEST_P(OutOfMemory, ForEver)
{
    runOutEverywhere(true);
}

INSTANTIATE_TEST_SUITE_P(Works, OutOfMemory, testing::ValuesIn(works()),
                         [](const auto &one) { return std::string(one.param.name); });

TEST(OutOfMemorySession, NoneIsGivenOrACompleteOne)
{
    for (int allocation = 1;; ++allocation) {
        memory::failAt(allocation, false);
        const Handle session = d4init_v();
        const bool failed = memory::stop();
        EXPECT_EQ(session == 0, failed);
        (void)d4initUndo(session);
        if (!failed)
            break;
    }
}

// Counts, lengths and places in the files that promise more than there is: no allocation goes by
// what they say.
class LyingLengths : public SavedFolder
{
};

TEST_F(LyingLengths, AreNotBelieved)
{
    struct Place {
        std::size_t file; // in m_sound: table, index, memo, journal
        std::size_t at;
        std::size_t width;
    };
    std::vector<Place> places = {{0, 4, 4},   {0, 8, 2},  {0, 10, 2},  {0, 28, 1},
                                 {0, 43, 4},  {0, 48, 1}, {2, 0, 4},   {2, 6, 2},
                                 {2, 516, 4}, {3, 48, 8}, {3, 516, 4}, {3, 524, 4}};
    for (std::size_t at = 0; at + 4 <= 1024 + 64; at += 4)
        places.push_back({1, at, 4}); // index header and directory
    for (std::size_t page = 1024; page + 24 <= m_sound[1].second.size(); page += 512)
        for (std::size_t at = page; at < page + 24; at += 2)
            places.push_back({1, at, 2});
    (void)memory::largest();
    const std::size_t step = matrixLength<std::size_t>(5, 1, 1);
    for (std::size_t i = 0; i < places.size(); i += i < 12 ? 1 : step) {
        const Place &place = places[i];
        for (const int value : {0xFF, 0x7F, 0x01}) {
            countPoint("lying lengths");
            restore(false);
            std::filesystem::remove(m_path.substr(0, m_path.size() - 3) + "nvj.bad");
            if (place.file == 3)
                writeFile(m_sound[3].first, m_sound[3].second);
            Bytes bytes = m_sound[place.file].second;
            std::fill_n(bytes.begin() + static_cast<std::ptrdiff_t>(place.at), place.width,
                        static_cast<std::uint8_t>(value));
            writeFile(m_sound[place.file].first, bytes);
            const TestSession session;
            (void)memory::largest();
            const Handle table = d4open(session, m_path);
            for (const char *tag : {"rowid", "name", "opened"}) {
                d4tagSelect(table, d4tag(table, tag));
                int rows = 0;
                for (Code code = d4top(table); code == r4success && rows < 100; ++rows) {
                    (void)f4memoPtr(d4field(table, "notes"));
                    code = d4skip(table, 1);
                }
                EXPECT_LT(rows, 100);
            }
            (void)d4check(table);
            d4close(table);
            EXPECT_LT(memory::largest(), std::size_t{2} << 20)
                << m_sound[place.file].first << " at " << place.at << ", " << value;
        }
    }
}

} // namespace
