#include "engine/TableFixture.h"

#include "db/engine/File.h"
#include "db/engine/LockedFile.h"
#include "db/engine/LockPlaces.h"

#include <gtest/gtest.h>

#include <filesystem>

using namespace norvane::engine;
using namespace enginetest;

namespace
{

class Files : public testing::Test
{
protected:
    std::unique_ptr<File> open(OpenMode mode = OpenMode::ReadWrite)
    {
        Result<std::unique_ptr<File>> file = systemFiles().open(m_path, mode);
        EXPECT_TRUE(file.ok()) << file.error().detail;
        return file.ok() ? std::move(*file) : nullptr;
    }
    std::string content()
    {
        const Bytes bytes = readFile(m_path);
        return {bytes.begin(), bytes.end()};
    }

    TempFolder m_folder;
    std::string m_path = m_folder / "some.dat";
};

TEST_F(Files, ReadingAndWritingReachAnyPlace)
{
    const auto file = open(OpenMode::CreateNew);
    ASSERT_TRUE(file->write(3, asBytes("abc")).ok());
    EXPECT_EQ(content(), std::string("\0\0\0abc", 6));
    Bytes bytes(10);
    EXPECT_EQ(file->read(4, bytes).value(), 2U);
    EXPECT_EQ(file->read(100, bytes).value(), 0U);
    ASSERT_TRUE(file->resize(4).ok());
    EXPECT_EQ(file->size().value(), 4U);
    EXPECT_TRUE(file->sync().ok());
}

TEST_F(Files, FailuresSayTheirKind)
{
    FileSystem &files = systemFiles();
    EXPECT_EQ(files.open(m_path, OpenMode::ReadWrite).error().kind, ErrorKind::NotFound);
    EXPECT_EQ(files.open(m_path + "/x", OpenMode::ReadOnly).error().kind, ErrorKind::NotFound);
    writeFile(m_path, {'a'});
    EXPECT_FALSE(files.open(m_path, OpenMode::CreateNew).ok());
    const auto file = open(OpenMode::ReadOnly);
    EXPECT_TRUE(file->readOnly());
    EXPECT_EQ(file->write(0, asBytes("b")).error().kind, ErrorKind::ReadOnly);
    EXPECT_EQ(file->resize(0).error().kind, ErrorKind::ReadOnly);
    EXPECT_TRUE(file->tryLock(kLockByte, 1, LockMode::Shared).ok());
#ifndef _WIN32 // a lock there needs no right to write
    EXPECT_EQ(file->tryLock(kLockByte, 1, LockMode::Exclusive).error().kind, ErrorKind::ReadOnly);
#endif
    EXPECT_EQ(content(), "a");
    EXPECT_EQ(files.remove(m_folder / "none").error().kind, ErrorKind::NotFound);
    EXPECT_EQ(files.rename(m_folder / "none", m_path).error().kind, ErrorKind::NotFound);
    EXPECT_EQ(files.findIgnoringCase(m_folder / "SOME.DAT").value(), m_path);
    EXPECT_EQ(files.findIgnoringCase(m_folder / "other").error().kind, ErrorKind::NotFound);
}

TEST_F(Files, LocksBelongToTheirFileAndLieBehindTheData)
{
    writeFile(m_path, {'a'});
    const auto one = open();
    const auto two = open();
    ASSERT_TRUE(one->tryLock(kLockByte, 1, LockMode::Exclusive).ok());
    EXPECT_TRUE(one->tryLock(kLockByte, 1, LockMode::Exclusive).ok());
    EXPECT_EQ(two->tryLock(kLockByte, 1, LockMode::Shared).error().kind, ErrorKind::Locked);
    EXPECT_TRUE(two->tryLock(recordLockByte(1), 1, LockMode::Exclusive).ok());
    open().reset(); // closing another one takes nothing away
    EXPECT_EQ(two->tryLock(kLockByte, 1, LockMode::Exclusive).error().kind, ErrorKind::Locked);
    ASSERT_TRUE(one->unlock(kLockByte, 1).ok());
    EXPECT_TRUE(two->tryLock(kLockByte, 1, LockMode::Shared).ok());
    EXPECT_TRUE(one->tryLock(kLockByte, 1, LockMode::Shared).ok());
    EXPECT_EQ(one->tryLock(kLockByte, 1, LockMode::Exclusive).error().kind, ErrorKind::Locked);
    EXPECT_EQ(content(), "a");
}

TEST_F(Files, CountedLocksGoWithTheLastOfThem)
{
    writeFile(m_path, {'a'});
    LockedFile ours(open());
    const auto theirs = open();
    const auto free = [&](LockMode mode) {
        const bool got = theirs->tryLock(7, 1, mode).ok();
        (void)theirs->unlock(7, 1);
        return got;
    };
    ASSERT_TRUE(ours.tryLock(7, LockMode::Shared).ok());
    ASSERT_TRUE(ours.tryLock(7, LockMode::Exclusive).ok());
    ASSERT_TRUE(ours.tryLock(7, LockMode::Exclusive).ok());
    EXPECT_TRUE(ours.holdsExclusively(7));
    EXPECT_TRUE(ours.unlock(7, LockMode::Exclusive).ok());
    EXPECT_FALSE(free(LockMode::Shared));
    EXPECT_TRUE(ours.unlock(7, LockMode::Exclusive).ok());
    EXPECT_TRUE(free(LockMode::Shared)); // what is left is shared
    EXPECT_FALSE(free(LockMode::Exclusive));
    EXPECT_TRUE(ours.unlock(7, LockMode::Shared).ok());
    EXPECT_TRUE(free(LockMode::Exclusive));
    EXPECT_TRUE(ours.unlock(7, LockMode::Shared).ok()); // one too many is nothing
}

TEST(LockPlaces, NoRowReachesItsOwnLocks)
{
    for (const unsigned length : {2U, 107U, 65500U}) {
        const std::uint32_t most = maxRecords(289, static_cast<std::uint16_t>(length));
        EXPECT_LE(289 + std::uint64_t{most} * length + 1, recordLockByte(most)) << length;
    }
}

} // namespace
