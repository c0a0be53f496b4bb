// Calls of the system that fail, with the numbers they fail with, once or for ever: a save reported
// as done is there, one refused is whole or absent, locks and descriptors are given back, and with
// the fault gone all works again. What the engine makes of each kind of failure on a simulated disk
// is in test_journal_faults.cpp; here the way from the call to the kind is part of it.
#include "engine/FailingCalls.h"
#include "engine/SavedFolder.h"
#include "support/MatrixLength.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <functional>

using namespace norvane::engine;
using namespace enginetest;
using norvane::test::countPoint;
using norvane::test::matrixLength;

namespace
{

struct Named {
    const char *name;
    failing::Fault fault;
    bool harmless; // the engine gets over it by itself
};

class SystemFaults : public SavedFolder, public testing::WithParamInterface<Named>
{
protected:
    // `work` in a session of its own, with one call after the other failing. `held`: it has the
    // table open before and goes on with what it read, else every work opens it anew.
    void failEach(bool withJournal, const People &after,
                  const std::function<bool(const TestSession &)> &work, bool held = false)
    {
        const std::size_t descriptors = openFiles();
        for (int call = 1;; call += matrixLength(2, 1, 1)) {
            ASSERT_LT(call, 2000);
            countPoint("failing system calls");
            restore(withJournal);
            bool failed = false;
            bool done = false;
            {
                const TestSession session;
                code4durability(session, "full");
                if (held) {
                    ASSERT_GT(d4open(session, m_path), 0);
                }
                failing::at(call, GetParam().fault);
                done = work(session);
                failed = failing::stop();
                EXPECT_TRUE(done || !GetParam().harmless) << "call " << call;
                code4accessMode(session, 0);
                bool found = false;
                ASSERT_EQ(compareFiles(m_people, &after, &found), "") << "call " << call;
                ASSERT_TRUE(!done || found || after == m_people) << "not there, call " << call;
                saveMore(session, found ? after : m_people);
                ASSERT_FALSE(HasFatalFailure()) << "call " << call;
            }
            ASSERT_EQ(openFiles(), descriptors) << "call " << call;
            if (!failed) {
                EXPECT_TRUE(done);
                break;
            }
        }
    }
};

TEST_P(SystemFaults, ASave)
{
    Save update = insertOf(2, std::string(700, 'l'));
    update.kind = Save::Kind::Update;
    update.person.name = "Another";
    for (const Save &save : {insertOf(4, "a text"), update}) {
        People after = m_people;
        note(after, save);
        failEach(save.kind == Save::Kind::Update, after, [&](const TestSession &session) {
            return performSaves(session, m_path, {save}) == 1;
        });
    }
}

TEST_P(SystemFaults, AGroup)
{
    Save one = insertOf(1, "another text");
    one.kind = Save::Kind::Update;
    Save two = insertOf(2, std::string(700, 'l'));
    two.kind = Save::Kind::Update;
    two.person.name = "Another";
    const Save group = groupOf({insertOf(4, "a text"), one, two});
    People after = m_people;
    note(after, group);
    const auto work = [&](const TestSession &session) {
        return performSaves(session, m_path, {group}) == 1;
    };
    failEach(true, after, work, true);
}

TEST_P(SystemFaults, AnIndexBuiltAnew)
{
    failEach(true, m_people, [&](const TestSession &session) {
        code4accessMode(session, 1);
        const Handle table = d4open(session, m_path);
        const bool built = table > 0 && d4reindex(table) == r4success;
        return d4close(table) == r4success && built;
    });
}

// The folder says on which medium the name of a new file is.
using FolderSync = SavedFolder;

TEST_F(FolderSync, NothingIsReportedWhoseFileMayGetLost)
{
    for (const int number : {EIO, ENOSPC, EINVAL}) {
        // a file system that cannot sync folders says EINVAL, and is used all the same
        const bool harmless = number == EINVAL;
        for (const bool reindex : {false, true}) {
            restore(reindex);
            const TestSession session;
            code4accessMode(session, reindex ? 1 : 0);
            failing::at(1, {number, false, true, true});
            bool done = false;
            if (reindex) {
                const Handle table = d4open(session, m_path);
                done = d4reindex(table) == r4success;
                done = d4close(table) == r4success && done;
            } else { // the first save makes the journal
                done = performSaves(session, m_path, {insertOf(4)}) == 1;
            }
            EXPECT_TRUE(failing::stop());
            EXPECT_EQ(done, harmless) << number << (reindex ? ", an index" : ", a journal");
            code4accessMode(session, 0);
            People after = m_people;
            if (!reindex && done)
                note(after, insertOf(4));
            saveMore(session, after);
        }
    }
}

std::vector<Named> faults()
{
    return {{"Short", {0, false, false}, true},
            {"ShortForEver", {0, false, true}, true},
            {"EINTR", {EINTR, false, false}, true},
            {"EIO", {EIO, false, false}, false},
            {"EIOForEver", {EIO, false, true}, false},
            {"ENOSPC", {ENOSPC, true, false}, false},
            {"ENOSPCForEver", {ENOSPC, true, true}, false},
            {"EDQUOT", {EDQUOT, true, false}, false},
            {"EDQUOTForEver", {EDQUOT, true, true}, false},
            {"EACCES", {EACCES, false, false}, false},
            {"EACCESForEver", {EACCES, false, true}, false},
            {"ESTALE", {ESTALE, false, false}, false},
            {"ESTALEForEver", {ESTALE, false, true}, false}};
}

INSTANTIATE_TEST_SUITE_P(Calls, SystemFaults, testing::ValuesIn(faults()),
                         [](const auto &one) { return std::string(one.param.name); });

} // namespace
