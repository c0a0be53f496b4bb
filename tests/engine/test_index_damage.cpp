#include "engine/IndexSupport.h"

#include <random>

using namespace norvane::test;

namespace
{

const RowLayout layout = makeLayout({{"NAME", 'C', 60}, {"ID", 'N', 6}});
const std::vector<TagDef> tags = {{"NAME", "UPPER(NAME)", ".NOT. DELETED()"}, {"ID", "ID", ""}};

std::map<std::uint32_t, std::string> makeRows()
{
    std::map<std::uint32_t, std::string> rows;
    for (std::uint32_t n = 1; n <= 120; ++n) {
        std::string id = std::to_string(n % 9);
        id.insert(0, 6 - id.size(), ' ');
        rows[n] = makeRow(layout, {"name " + std::to_string(n * 7919 % 1000), id});
    }
    return rows;
}

// Eight keys of the first tag fill a leaf.
std::map<std::uint32_t, std::string> makeWideRows()
{
    std::map<std::uint32_t, std::string> rows;
    for (std::uint32_t n = 1; n <= 40; ++n)
        rows[n] = makeRow(layout,
                          {std::string(1, static_cast<char>(' ' + n)) + std::string(55, '#'), ""});
    return rows;
}

// Uses the index in every way; whatever it answers must be an answer and not a crash. Walks end
// because the pairs rise.
void useEverything(const std::shared_ptr<MemoryFile> &file,
                   const std::map<std::uint32_t, std::string> &rows)
{
    auto opened = IndexFile::open(file, layout);
    if (!opened.ok()) {
        EXPECT_TRUE(opened.error().kind == ErrorKind::Damaged ||
                    opened.error().kind == ErrorKind::Refused)
            << opened.error().detail;
        return;
    }
    IndexFile &index = **opened;
    ASSERT_TRUE(index.refresh().ok());
    for (int tag = 0; tag < static_cast<int>(index.tags().size()); ++tag) {
        const auto all = walk(index, tag);
        if (!all.ok()) {
            EXPECT_EQ(all.error().kind, ErrorKind::Damaged);
            EXPECT_GE(all.error().place, 0);
            EXPECT_EQ(all.error().file, "index.cdx");
        }
        (void)index.entriesBefore(tag, "NAME 5", 0);
        const std::string key(index.tags()[static_cast<std::size_t>(tag)].keyLength, '5');
        for (std::uint32_t record = 500; record < 510; ++record) {
            if (!index.insert(tag, key, record).ok())
                index.discard();
        }
        const auto old = index.keyOf(tag, asBytes(rows.at(7)));
        if (old.ok() && *old && !index.remove(tag, **old, 7).ok())
            index.discard();
        index.discard();
    }
    (void)checkIndex(index, rowsOf(rows));
}

} // namespace

TEST(IndexDamage, EveryChangedByteIsSurvived)
{
    const auto rows = makeRows();
    const auto sound = memoryFile();
    ASSERT_TRUE(buildIndex(*sound, layout, tags, rowsOf(rows)).ok());
    const std::vector<Byte> bytes = bytesOf(*sound);
    std::mt19937 random(11);
    for (std::size_t place = 0; place < bytes.size(); ++place) {
        std::vector<Byte> changed = bytes;
        if (random() % 2 == 0)
            changed[place] = static_cast<Byte>(changed[place] ^ (1u << random() % 8));
        else
            changed[place] = static_cast<Byte>(random());
        useEverything(memoryFile(std::move(changed)), rows);
        if (HasFailure())
            FAIL() << "byte " << place;
    }
}

TEST(IndexDamage, RandomNoiseAndShortFilesAreSurvived)
{
    const auto rows = makeRows();
    const auto sound = memoryFile();
    ASSERT_TRUE(buildIndex(*sound, layout, tags, rowsOf(rows)).ok());
    const std::vector<Byte> bytes = bytesOf(*sound);
    std::mt19937 random(5);
    for (int round = 0; round < 600; ++round) {
        std::vector<Byte> changed = bytes;
        for (int i = 0; i < 12; ++i)
            changed[random() % changed.size()] = static_cast<Byte>(random());
        if (round % 3 == 0) { // a page of another place
            const std::size_t pages = changed.size() / 512;
            std::copy_n(bytes.begin() + static_cast<std::ptrdiff_t>(random() % pages * 512), 512,
                        changed.begin() + static_cast<std::ptrdiff_t>(random() % pages * 512));
        }
        useEverything(memoryFile(std::move(changed)), rows);
    }
    for (std::size_t size = 0; size < bytes.size(); size += 100)
        useEverything(
            memoryFile({bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(size)}), rows);
}

TEST(IndexDamage, APageThatLeadsBackToItselfIsDamage)
{
    const auto rows = makeRows();
    const auto file = memoryFile();
    ASSERT_TRUE(buildIndex(*file, layout, tags, rowsOf(rows)).ok());
    const std::uint32_t root = 1536 + 1024;
    std::array<Byte, 4> self{};
    putBe32(self.data(), root);
    ASSERT_TRUE(file->write(root + 12 + 64, self).ok());
    const auto index = std::move(*IndexFile::open(file, layout));
    ASSERT_TRUE(index->refresh().ok());
    const auto found = index->entriesFrom(0, "", 0);
    EXPECT_EQ(found.error().kind, ErrorKind::Damaged);
    EXPECT_EQ(found.error().place, root);
    EXPECT_FALSE(checkIndex(*index, rowsOf(rows))->empty());
}

TEST(IndexDamage, APageThatIsItsOwnNeighbourIsDamage)
{
    const RowLayout plain = makeLayout({{"KEY", 'C', 240}});
    std::map<std::uint32_t, std::string> rows;
    for (std::uint32_t n = 1; n <= 3; ++n)
        rows[n] =
            makeRow(plain, {std::string(1, static_cast<char>('A' + n)) + std::string(199, 'x')});
    const auto file = memoryFile();
    ASSERT_TRUE(buildIndex(*file, plain, {{"KEY", "KEY", ""}}, rowsOf(rows)).ok());
    // Both entries of the root lead to its first leaf, which names itself as its neighbour.
    const std::uint32_t root = 1536 + 1024;
    std::array<Byte, 4> place{};
    ASSERT_TRUE(file->read(root + 12 + 244, place).ok());
    const std::uint32_t leaf = getBe32(place.data());
    ASSERT_TRUE(file->write(root + 12 + 248 + 244, place).ok());
    putLe32(place.data(), leaf);
    ASSERT_TRUE(file->write(leaf + 8, place).ok());
    const auto index = std::move(*IndexFile::open(file, plain));
    ASSERT_TRUE(index->refresh().ok());
    EXPECT_EQ(index->remove(0, rows[1].substr(1), 1).error().kind, ErrorKind::Damaged);
    index->discard();
    EXPECT_FALSE(checkIndex(*index, rowsOf(rows))->empty());
}

TEST(IndexDamage, AFailedRemovalLeavesNoPageHalfChanged)
{
    const auto rows = makeWideRows();
    const auto file = memoryFile();
    ASSERT_TRUE(buildIndex(*file, layout, {tags[0]}, rowsOf(rows)).ok());
    // The third leaf names a wrong neighbour, so the second cannot leave the tree.
    const std::uint32_t root = 1536 + 1024;
    std::array<Byte, 4> child{};
    ASSERT_TRUE(file->read(root + 12 + 2 * 68 + 64, child).ok());
    const std::uint32_t third = getBe32(child.data());
    ASSERT_TRUE(file->write(third + 4, std::array<Byte, 4>{}).ok());
    const auto index = std::move(*IndexFile::open(file, layout));
    ASSERT_TRUE(index->refresh().ok());
    auto left = *walk(*index, 0);
    ASSERT_EQ(left.size(), rows.size());
    // Most of the second leaf goes, then half of the first: now the two want to be one.
    Status removed;
    for (const std::size_t place : {8u, 8u, 8u, 8u, 8u, 0u, 0u, 0u, 0u}) {
        removed = index->remove(0, left[place].key, left[place].record);
        if (!removed.ok())
            break;
        ASSERT_TRUE(index->commit().ok());
        left.erase(left.begin() + static_cast<std::ptrdiff_t>(place));
    }
    EXPECT_EQ(removed.error().kind, ErrorKind::Damaged);
    index->discard();
    EXPECT_EQ(*walk(*index, 0), left);
}

TEST(IndexDamage, NeighboursThatOverlapAreNotJoinedIntoAPageNobodyCanRead)
{
    const auto rows = makeWideRows();
    const auto file = memoryFile();
    ASSERT_TRUE(buildIndex(*file, layout, {tags[0]}, rowsOf(rows)).ok());
    auto index = std::move(*IndexFile::open(file, layout));
    ASSERT_TRUE(index->refresh().ok());
    const auto all = *walk(*index, 0);
    for (std::size_t i = 0; i < 5; ++i)
        ASSERT_TRUE(index->remove(0, all[i].key, all[i].record).ok());
    ASSERT_TRUE(index->commit().ok());
    // As after a save that died between two pages: the second leaf has what the first one has.
    const std::uint32_t root = 1536 + 1024;
    std::array<Byte, 4> child{};
    ASSERT_TRUE(file->read(root + 12 + 64, child).ok());
    const std::uint32_t first = getBe32(child.data());
    ASSERT_TRUE(file->read(root + 12 + 68 + 64, child).ok());
    std::array<Byte, 500> body{};
    ASSERT_TRUE(file->read(first + 12, body).ok());
    ASSERT_TRUE(file->write(getBe32(child.data()) + 12, body).ok());
    putLe16(body.data(), 3); // entries
    ASSERT_TRUE(file->write(getBe32(child.data()) + 2, ByteView(body).first(2)).ok());
    index = std::move(*IndexFile::open(file, layout));
    ASSERT_TRUE(index->refresh().ok());
    EXPECT_EQ(index->remove(0, all[5].key, all[5].record).error().kind, ErrorKind::Damaged);
    index->discard();
    EXPECT_TRUE(walk(*index, 0).ok());
}
