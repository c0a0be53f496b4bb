// On a shared folder everybody who may write a table can write what is made beside it, whoever
// made it; and who may not write one of its files reads all of them.
#ifndef _WIN32
#include "engine/TableFixture.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <map>

#include <sys/stat.h>
#include <unistd.h>

using namespace norvane::engine;
using namespace enginetest;
namespace fs = std::filesystem;

namespace
{

class Rights : public testing::Test
{
protected:
    void SetUp() override
    {
        makeTable(m_path, peopleTable());
        for (const char *file : {"people.dbf", "people.cdx", "people.fpt"}) {
            const std::string path = m_folder / file;
            ASSERT_EQ(::chmod(path.c_str(), 0660), 0);
            if (::geteuid() == 0) { // an administrator, in somebody else's folder
                ASSERT_EQ(::chown(path.c_str(), 4711, 4712), 0);
            }
        }
        m_umask = ::umask(077);
    }
    void TearDown() override { ::umask(m_umask); }

    void expectTheTables(const std::string &file)
    {
        struct stat theirs = {};
        struct stat info = {};
        ASSERT_EQ(::stat(m_path.c_str(), &theirs), 0);
        ASSERT_EQ(::stat((m_folder / file).c_str(), &info), 0) << file;
        EXPECT_EQ(info.st_mode, theirs.st_mode) << file;
        EXPECT_EQ(info.st_uid, theirs.st_uid) << file;
        EXPECT_EQ(info.st_gid, theirs.st_gid) << file;
    }

    std::map<std::string, Bytes> contents() const
    {
        std::map<std::string, Bytes> all;
        for (const fs::directory_entry &file : fs::directory_iterator(m_folder / ""))
            all[file.path().filename().string()] = readFile(file.path().string());
        return all;
    }

    TempFolder m_folder;
    std::string m_path = m_folder / "people.dbf";
    mode_t m_umask = 0;
};

TEST_F(Rights, WhatIsMadeBesideATableHasThoseOfTheTable)
{
    const TestSession session;
    d4expectTags(session, "people", peopleTable().tags);
    const auto save = [&](int id) {
        const Handle table = d4open(session, m_path);
        EXPECT_EQ(addPerson(table, id, "Somebody", "text"), r4success);
        EXPECT_EQ(d4close(table), r4success);
    };
    save(1);
    expectTheTables("people.nvj");

    fs::resize_file(m_folder / "people.cdx", 5000);
    save(2);
    expectTheTables("people.cdx.bad");

    fs::remove(m_folder / "people.cdx");
    save(3);
    expectTheTables("people.cdx");

    code4accessMode(session, 1);
    const Handle alone = d4open(session, m_path);
    EXPECT_EQ(d4reindex(alone), r4success);
    EXPECT_EQ(d4close(alone), r4success);
    expectTheTables("people.cdx");
    code4accessMode(session, 0);
    save(4); // the journal went with sole use
    expectTheTables("people.nvj");
    EXPECT_EQ(findings(m_path), "");
}

// An administrator may do everything, so the test becomes somebody else for that long.
class Somebody
{
public:
    Somebody() : m_administrator(::getuid() == 0)
    {
        if (m_administrator) {
            EXPECT_EQ(::setresuid(65534, 65534, 0), 0);
        }
    }
    ~Somebody()
    {
        if (m_administrator) {
            EXPECT_EQ(::setresuid(0, 0, 0), 0);
        }
    }
    Somebody(const Somebody &) = delete;
    Somebody &operator=(const Somebody &) = delete;

private:
    bool m_administrator;
};

TEST_F(Rights, WhoMayNotChangeOneFileReadsTheTableAndLeavesItAsItIs)
{
    const TableDef people = peopleTable();
    const auto openIn = [&](const TestSession &session) {
        d4expectTags(session, "people", people.tags);
        return d4open(session, m_path);
    };
    const auto save = [&](int id) {
        const TestSession session;
        const Handle table = openIn(session);
        return addPerson(table, id, "Somebody", "text") == r4success && d4close(table) == r4success;
    };
    ::umask(0);
    fs::permissions(m_folder / "", fs::perms::all);
    int rows = 1;
    ASSERT_TRUE(save(rows));
    struct Case {
        const char *file;
        bool withoutIndex = false;
        bool damagedIndex = false;
    };
    for (const Case &one :
         {Case{"people.dbf"}, Case{"people.cdx"}, Case{"people.fpt"}, Case{"people.nvj"},
          Case{"people.fpt", true}, Case{"people.nvj", true}, Case{"people.cdx", false, true}}) {
        SCOPED_TRACE(std::string(one.file) + (one.withoutIndex ? ", no index" : "") +
                     (one.damagedIndex ? ", damaged index" : ""));
        const std::string refusing = m_folder / one.file;
        if (one.withoutIndex)
            fs::remove(m_folder / "people.cdx");
        if (one.damagedIndex)
            fs::resize_file(m_folder / "people.cdx", 700);
        for (const fs::directory_entry &file : fs::directory_iterator(m_folder / ""))
            ASSERT_EQ(::chmod(file.path().c_str(), file.path() == refusing ? 0444 : 0666), 0);
        const auto before = contents();
        {
            const Somebody other;
            const TestSession session;
            const auto refused = [&](bool failed) {
                EXPECT_TRUE(failed);
                EXPECT_EQ(session.lastKind(), ErrorKind::ReadOnly);
                EXPECT_EQ(lastError(session).file, refusing);
            };
            const Handle table = openIn(session);
            ASSERT_GT(table, 0) << lastError(session).detail;
            for (int id = 1; id <= rows; ++id) {
                EXPECT_EQ(findPerson(table, id), r4success);
                EXPECT_EQ(memo(table, "notes"), "text");
            }
            refused(d4lock(table, d4recNo(table)) == r4failure);
            refused(d4appendStartVB(table, 0) == r4failure);
            EXPECT_EQ(d4close(table), r4success);
            std::vector<RepairLine> report;
            refused(d4repair(session, m_path, report) == r4failure);
            EXPECT_TRUE(report.empty());
        }
        EXPECT_EQ(contents() == before, true);
        ASSERT_EQ(::chmod(refusing.c_str(), 0666), 0);
        ASSERT_TRUE(save(++rows));
        EXPECT_EQ(findings(m_path), "");
    }
}

} // namespace
#endif
