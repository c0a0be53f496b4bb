// A folder of another program (FUSE) whose program is killed in mid-walk and in mid-save: errors
// and no half row, and when it is back all works again without a restart.
#include "engine/Station.h"
#include "engine/TableFixture.h"

#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <fstream>
#include <memory>
#include <thread>

#include <fcntl.h>
#include <sys/mount.h>
#include <unistd.h>

using namespace norvane::engine;
using namespace enginetest;
using namespace std::chrono_literals;

namespace
{

// One folder shown at another place by bindfs.
class FuseFolder : public testing::Test
{
protected:
    void SetUp() override
    {
        const int device = ::open("/dev/fuse", O_RDWR | O_CLOEXEC);
        if (device < 0)
            GTEST_SKIP() << "/dev/fuse cannot be used here";
        ::close(device);
        mount();
        if (m_server == nullptr)
            GTEST_SKIP() << "bindfs is not installed or may not mount here";
        makeTable(m_below / "people.dbf", peopleTable());
    }
    void TearDown() override { unmount(); }

    void mount()
    {
        try {
            m_server = std::make_unique<Station>(
                std::vector<std::string>{"bindfs", "-f", m_below / "", m_place / ""});
        } catch (const std::runtime_error &) {
            return;
        }
        const auto until = std::chrono::steady_clock::now() + 10s;
        while (!mounted() && std::chrono::steady_clock::now() < until)
            std::this_thread::sleep_for(5ms);
        if (!mounted())
            m_server.reset();
    }
    // The program ends as a crash would end it; the place stays and leads nowhere.
    void killServer() { m_server->kill(); }
    void unmount()
    {
        if (m_server == nullptr)
            return;
        if (::umount2((m_place / "").c_str(), MNT_DETACH) != 0) {
            const std::string place = m_place / "";
            Station({"fusermount3", "-u", "-z", place}).answer();
        }
        m_server.reset();
    }
    bool mounted() const
    {
        std::ifstream mounts("/proc/self/mounts");
        const std::string place = " " + std::filesystem::path(m_path).parent_path().string() + " ";
        for (std::string line; std::getline(mounts, line);) {
            if (line.find(place) != std::string::npos)
                return true;
        }
        return false;
    }

    TempFolder m_below, m_place;
    std::string m_path = m_place / "people.dbf";
    std::unique_ptr<Station> m_server;
};

TEST_F(FuseFolder, GoneInTheMiddleOfAWalkIsAnErrorAndNeedsNoRestart)
{
    TestSession session(1, 1);
    Handle table = d4open(session, m_path);
    ASSERT_GT(table, 0) << lastError(session).detail;
    constexpr int rows = 300;
    for (int id = 1; id <= rows; ++id)
        ASSERT_EQ(addPerson(table, id, "Person " + std::to_string(id), "a text"), r4success);
    selectTag(table, "rowid");
    ASSERT_EQ(d4top(table), r4success);
    ASSERT_EQ(d4skip(table, 10), r4success);
    killServer();
    // what was read before may still be shown, and shown rightly
    int at = f4long(d4field(table, "rowid"));
    Code code = r4success;
    while (at < rows && (code = d4skip(table, 1)) == r4success)
        ASSERT_EQ(f4long(d4field(table, "rowid")), ++at);
    EXPECT_LT(at, rows);
    EXPECT_LT(code, 0);
    EXPECT_EQ(session.lastKind(), ErrorKind::Gone) << lastError(session).detail;
    EXPECT_LT(addPerson(table, 900, "Nowhere", "text"), 0);
    d4close(table);
    EXPECT_EQ(d4open(session, m_path), 0);
    EXPECT_EQ(session.lastKind(), ErrorKind::Gone);
    EXPECT_EQ(lastError(session).file, m_path);
    code4errorCode(session, 0);

    unmount();
    EXPECT_EQ(findings(m_below / "people.dbf"), "");
    mount();
    table = d4open(session, m_path);
    ASSERT_GT(table, 0) << lastError(session).detail;
    EXPECT_EQ(d4recCountDo(table), static_cast<std::uint32_t>(rows));
    EXPECT_EQ(addPerson(table, 901, "Afterwards", "text"), r4success);
    d4close(table);
    EXPECT_EQ(findings(m_path), "");
}

TEST_F(FuseFolder, GoneInTheMiddleOfSavesLosesNoneThatWasReported)
{
    for (int round = 1; round <= 3; ++round) {
        Station station;
        station.tell("ack " + m_path + ' ' + std::to_string(round * 100000));
        std::string last;
        for (int i = 0; i < 20 * round; ++i)
            last = station.answer();
        killServer();
        // what it had still reported, and then what it says of the rest
        std::string line = last;
        while (line.find("not ") == std::string::npos && line.find("(gone)") == std::string::npos) {
            last = line;
            line = station.answer();
        }
        EXPECT_EQ(line.find("(gone)"), std::string::npos) << line;
        unmount();

        const std::string path = m_below / "people.dbf";
        const TestSession session(10, 1);
        const Handle table = d4open(session, path);
        ASSERT_GT(table, 0) << lastError(session).detail;
        const int reported = std::atoi(last.c_str());
        EXPECT_GE(reported, round * 100000) << last;
        for (int id = round * 100000; id <= reported; ++id) {
            ASSERT_EQ(findPerson(table, id), r4success) << id << " of round " << round;
            EXPECT_EQ(memo(table, "notes"), "note " + text(table, "name"));
        }
        d4close(table);
        EXPECT_EQ(findings(path), "");
        mount();
        ASSERT_NE(m_server, nullptr);
    }
}

} // namespace
