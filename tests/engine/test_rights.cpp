// On a shared folder everybody who may write a table can write what is made beside it, whoever
// made it.
#ifndef _WIN32
#include "engine/TableFixture.h"

#include <gtest/gtest.h>

#include <filesystem>

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

} // namespace
#endif
