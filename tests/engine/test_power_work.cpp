// Power cuts in work that is more than a save: what makes, renames and removes files, or writes
// past the journal. Names reach the medium when the folder is synced, else perhaps.
#include "engine/SimPeople.h"
#include "support/MatrixLength.h"

#include "db/engine/TableCreate.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <optional>

using namespace norvane::engine;
using namespace enginetest;
using norvane::test::matrixLength;

namespace
{

const std::string kIndexPath = "/people.cdx";
const std::string kJournalPath = "/people.nvj";
constexpr int kBefore = 40; // people who are there when the work begins

// What the disk holds from a number of changes on; nothing when there need not be a table yet.
struct Moment {
    std::size_t changes = 0;
    std::optional<People> people;
};

struct Trial {
    std::unique_ptr<SimDisk> disk = diskWithPeople();
    std::vector<Moment> moments{{}};
    std::string damaged; // a file that is kept before anything is done to it

    void reported(const People &people) { moments.push_back({disk->changes.size(), people}); }
};

struct Work {
    const char *name;
    void (*prepare)(Trial &trial);
    // True when all was reported as done; `people` as they are then.
    bool (*perform)(SimSession &session, Trial &trial, People &people);
};

bool load(SimSession &session, People &people, int last)
{
    code4accessMode(session, 1);
    const Handle table = d4open(session, kPeoplePath);
    bool done = table > 0;
    for (int id = kBefore + 1; id <= last && done; ++id) {
        done = addPerson(table, id, "Loaded", "text") == r4success;
        people[id] = {"Loaded", "", "text", ""};
    }
    return d4close(table) == r4success && done;
}

// Opening the table is all that the mending needs.
bool openAndClose(SimSession &session, Trial &, People &)
{
    const Handle table = d4open(session, kPeoplePath);
    return table > 0 && !d4damage(table) && d4close(table) == r4success;
}

bool saveOne(SimSession &session, Trial &, People &people)
{
    const Save save = insertOf(900, "a text");
    note(people, save);
    return session.perform(save);
}

void leaveAsItIs(Trial &) {}

void damage(Trial &trial, const std::string &path)
{
    std::vector<Byte> &bytes = trial.disk->bytes(path);
    std::fill_n(bytes.begin() + 64, std::min<std::size_t>(bytes.size() - 64, 2000), Byte{7});
    trial.damaged = path;
}

std::vector<Work> works()
{
    return {
        {"Load", leaveAsItIs,
         [](SimSession &session, Trial &, People &people) {
             return load(session, people, kBefore + 30);
         }},
        {"LoadThatBuildsTheTagsAnew", leaveAsItIs,
         [](SimSession &session, Trial &, People &people) {
             return load(session, people, kBefore + 1000);
         }},
        {"Reindex", leaveAsItIs,
         [](SimSession &session, Trial &, People &) {
             code4accessMode(session, 1);
             const Handle table = d4open(session, kPeoplePath);
             const bool built = table > 0 && d4reindex(table) == r4success;
             return d4close(table) == r4success && built;
         }},
        {"Repair", [](Trial &trial) { damage(trial, kIndexPath); },
         [](SimSession &session, Trial &, People &) {
             std::vector<RepairLine> report;
             return d4repair(session, kPeoplePath, report) == r4success;
         }},
        {"IndexOfBefore",
         [](Trial &trial) {
             const std::vector<Byte> index = trial.disk->bytes(kIndexPath);
             SimSession session(*trial.disk);
             (void)session.perform(insertOf(900));
             (void)session.perform({Save::Kind::Delete, 900, {}});
             trial.disk->bytes(kIndexPath) = index;
             trial.damaged = kIndexPath;
         },
         openAndClose},
        {"MissingIndex", [](Trial &trial) { trial.disk->files.erase(kIndexPath); }, openAndClose},
        {"WrongCount",
         [](Trial &trial) {
             trial.disk->bytes(kPeoplePath)[4] -= 3;
             trial.damaged = kPeoplePath;
         },
         openAndClose},
        {"RubbishForAJournal", [](Trial &trial) { damage(trial, kJournalPath); }, openAndClose},
        {"FirstSaveOfAll", [](Trial &trial) { trial.disk->files.erase(kJournalPath); }, saveOne},
        {"NewTable", [](Trial &trial) { trial.disk = std::make_unique<SimDisk>(); },
         [](SimSession &session, Trial &trial, People &people) {
             people.clear();
             trial.moments.resize(1);
             const TablePaths paths{kPeoplePath, kIndexPath, "/people.fpt"};
             if (!createTable(session.station, peopleTable(), paths).ok())
                 return false;
             trial.reported(people);
             return saveOne(session, trial, people);
         }},
    };
}

class PowerWork : public testing::TestWithParam<Work>
{
protected:
    void SetUp() override
    {
        Trial first;
        SimSession session(*first.disk);
        std::vector<Save> saves;
        for (int id = 1; id <= kBefore; ++id) {
            saves.push_back(insertOf(id, "a text"));
            note(m_people, saves.back());
        }
        ASSERT_EQ(performSaves(session, kPeoplePath, saves), saves.size());
        GetParam().prepare(first);
        m_start = first.disk->copy();
        m_damaged = first.damaged;
    }

    // The work on a disk of its own with the `failing`-th call failing; 0: none. True when all was
    // reported as done.
    bool work(Trial &trial, int failing, bool forEver, bool *failed = nullptr) const
    {
        trial.disk = m_start->copy();
        trial.disk->recording = true;
        People people = m_people;
        trial.reported(people);
        SimSession session(*trial.disk);
        d4expectTags(session, "people", peopleTable().tags);
        if (failing > 0)
            session.station.failAt(failing, ErrorKind::Io, forEver);
        const bool done = GetParam().perform(session, trial, people);
        if (failed)
            *failed = session.station.failed();
        if (done)
            trial.reported(people);
        return done;
    }

    // The disk as it may be when the power goes after `count` changes. `most`: what the work was to
    // bring, when it did not come to its end.
    void look(const Trial &trial, std::size_t count, std::uint32_t choice,
              const std::optional<People> &most = {}) const
    {
        const auto cut = SimDisk::afterPowerCut(*m_start, trial.disk->changes, count, choice);
        if (!m_damaged.empty()) {
            EXPECT_TRUE(isKept(*cut)) << "what was damaged is gone";
        }
        const auto next = std::find_if(trial.moments.begin(), trial.moments.end(),
                                       [count](const Moment &one) { return one.changes > count; });
        const std::optional<People> &least = (next - 1)->people;
        if (!least) { // no crash, and nothing that was never there
            const SimSession session(*cut);
            const Handle table = d4open(session, kPeoplePath);
            EXPECT_TRUE(table == 0 || d4recCountDo(table) == 0);
            return;
        }
        const People &all = most ? *most : next == trial.moments.end() ? *least : *next->people;
        ASSERT_EQ(compareBetween(*cut, *least, all), "");
        SimSession session(*cut);
        d4expectTags(session, "people", peopleTable().tags);
        ASSERT_TRUE(session.perform(insertOf(901))) << lastError(session).detail;
    }

    bool isKept(const SimDisk &disk) const
    {
        const std::vector<Byte> &bytes = m_start->files.at(m_damaged)->bytes;
        return std::any_of(disk.files.begin(), disk.files.end(), [&](const auto &file) {
            return file.first.starts_with(m_damaged) && file.second->bytes == bytes;
        });
    }

    People m_people;
    std::unique_ptr<SimDisk> m_start;
    std::string m_damaged;
};

TEST_P(PowerWork, WhatWasThereStaysAndWhatIsReportedIsThere)
{
    Trial trial;
    ASSERT_TRUE(work(trial, 0, false));
    const std::size_t changes = trial.disk->changes.size();
    const std::size_t points = std::min<std::size_t>(changes, matrixLength(40, 80, 4000));
    const std::uint32_t choices = matrixLength(10, 20, 60);
    for (std::size_t point = 0; point <= points; ++point) {
        const std::size_t count = changes * point / points;
        for (std::uint32_t choice = 0; choice < choices; ++choice) {
            look(trial, count, choice + static_cast<std::uint32_t>(point) * choices);
            ASSERT_FALSE(HasFailure())
                << count << " changes of " << changes << ", choice " << choice;
        }
    }
}

// A failure that nobody is told of counts as a success here, and the cut shows it.
TEST_P(PowerWork, ACallFailsAndThenThePowerGoes)
{
    Trial whole;
    ASSERT_TRUE(work(whole, 0, false));
    const People after = *whole.moments.back().people;
    std::uint32_t choice = 0;
    const int step = after.size() > 500 ? matrixLength(61, 23, 7) : matrixLength(3, 2, 1);
    for (int call = 1; call > 0;) {
        for (const bool forEver : {false, true}) {
            Trial trial;
            bool failed = false;
            (void)work(trial, call, forEver, &failed);
            for (int cut = 0; cut < matrixLength(3, 3, 20); ++cut) {
                look(trial, trial.disk->changes.size(), choice++, after);
                ASSERT_FALSE(HasFailure()) << "call " << call << (forEver ? " and all later" : "");
            }
            if (!failed)
                call = -step;
        }
        call += step;
    }
}

INSTANTIATE_TEST_SUITE_P(Works, PowerWork, testing::ValuesIn(works()),
                         [](const auto &one) { return std::string(one.param.name); });

} // namespace
