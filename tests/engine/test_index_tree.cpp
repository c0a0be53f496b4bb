#include "db/engine/KeyEncoding.h"
#include "engine/IndexSupport.h"

#include <random>
#include <set>

using namespace norvane::test;

namespace
{

// An index with one tag over one text field, and the rows it should agree with.
class TreeTest : public ::testing::Test
{
protected:
    void make(std::uint16_t keyLength)
    {
        m_length = keyLength;
        m_layout = makeLayout({{"KEY", 'C', keyLength}});
        m_rows.clear();
        m_file = memoryFile();
        ASSERT_TRUE(buildIndex(*m_file, m_layout, {{"KEY", "KEY", ""}}, {}).ok());
        open();
    }
    void open()
    {
        auto opened = IndexFile::open(m_file, m_layout);
        ASSERT_TRUE(opened.ok()) << opened.error().detail;
        m_index = std::move(*opened);
        ASSERT_TRUE(m_index->refresh().ok());
    }
    std::string key(std::string text) const
    {
        text.resize(m_length, ' ');
        return text;
    }
    void insert(std::uint32_t record, const std::string &full)
    {
        const Status status = m_index->insert(0, full, record);
        ASSERT_TRUE(status.ok()) << status.error().detail;
        m_rows[record] = " " + full;
    }
    void remove(std::uint32_t record)
    {
        const Status status = m_index->remove(0, m_rows[record].substr(1), record);
        ASSERT_TRUE(status.ok()) << status.error().detail;
        m_rows.erase(record);
    }
    void commit() { ASSERT_TRUE(m_index->commit().ok()); }
    // Sizes of this index and of one freshly built for the same rows.
    std::pair<std::uint64_t, std::uint64_t> sizes()
    {
        const auto fresh = memoryFile();
        EXPECT_TRUE(buildIndex(*fresh, m_layout, {{"KEY", "KEY", ""}}, rowsOf(m_rows)).ok());
        return {*m_file->size(), *fresh->size()};
    }

    std::uint16_t m_length = 0;
    RowLayout m_layout;
    std::shared_ptr<MemoryFile> m_file;
    std::unique_ptr<IndexFile> m_index;
    std::map<std::uint32_t, std::string> m_rows;
};

// Keys with long common beginnings, many equal ones, and bytes below the pad among them.
std::string randomKey(std::mt19937 &random, std::size_t length)
{
    static const char letters[] = {'A', 'B', 'C', '\x01', ' ', '\xFF'};
    std::string key(random() % 3 == 0 ? length / 2 : 0, 'P');
    const std::size_t more = random() % (length + 1 - key.size());
    for (std::size_t i = 0; i < more && (i < 4 || random() % 8 != 0); ++i)
        key += letters[random() % sizeof letters];
    if (random() % 16 == 0)
        for (char &c : key)
            c = static_cast<char>(random());
    key.resize(length, ' ');
    return key;
}

class KeyLengthTest : public TreeTest, public ::testing::WithParamInterface<int>
{
};

} // namespace

INSTANTIATE_TEST_SUITE_P(KeyLengths, KeyLengthTest, ::testing::Values(1, 8, 10, 40, 80, 240));

TEST_P(KeyLengthTest, RandomChangesAgreeWithASortedSet)
{
    make(static_cast<std::uint16_t>(GetParam()));
    std::mt19937 random(static_cast<unsigned>(GetParam()));
    std::set<std::pair<std::string, std::uint32_t>> oracle;
    for (int step = 0; step < 12000; ++step) {
        // Grows first, then shrinks to almost nothing, then grows again.
        const bool growing = step < 5000 || step > 10000;
        const std::uint32_t record = 1 + static_cast<std::uint32_t>(random() % 3000);
        if (m_rows.count(record) != 0) {
            if (growing && random() % 2 == 0)
                continue;
            oracle.erase({m_rows[record].substr(1), record});
            ASSERT_NO_FATAL_FAILURE(remove(record));
        } else if (growing || random() % 4 == 0) {
            const std::string full = randomKey(random, m_length);
            oracle.insert({full, record});
            ASSERT_NO_FATAL_FAILURE(insert(record, full));
        }
        if (random() % 50 == 0)
            commit();
        if (random() % 1000 == 0) {
            commit();
            expectSound(*m_index, rowsOf(m_rows));
            ASSERT_NO_FATAL_FAILURE(open());
        }
        if (step % 100 == 0) {
            const std::string sought = randomKey(random, m_length);
            const auto expected = oracle.lower_bound({sought, 5});
            const auto found = m_index->entriesFrom(0, sought, 5, 1);
            ASSERT_TRUE(found.ok());
            ASSERT_EQ(found->empty(), expected == oracle.end());
            if (!found->empty()) {
                EXPECT_EQ(found->front(), (IndexEntry{expected->first, expected->second}));
            }
            const auto before = m_index->entriesBefore(0, sought, 5, 1);
            ASSERT_TRUE(before.ok());
            ASSERT_EQ(before->empty(), expected == oracle.begin());
            if (!before->empty()) {
                EXPECT_EQ(before->front().key, std::prev(expected)->first);
                EXPECT_EQ(before->front().record, std::prev(expected)->second);
            }
        }
        if (HasFailure())
            FAIL() << "at step " << step;
    }
    commit();
    expectSound(*m_index, rowsOf(m_rows));
    const auto all = walk(*m_index, 0);
    ASSERT_TRUE(all.ok());
    ASSERT_EQ(all->size(), oracle.size());
    EXPECT_TRUE(std::equal(all->begin(), all->end(), oracle.begin(),
                           [](const IndexEntry &a, const auto &b) {
                               return a.key == b.first && a.record == b.second;
                           }));
}

TEST_P(KeyLengthTest, MixedChangesKeepTheFileSmall)
{
    make(static_cast<std::uint16_t>(GetParam()));
    std::mt19937 random(7);
    const std::uint32_t records = 20000;
    for (std::uint32_t step = 0; step < 120000; ++step) {
        const std::uint32_t record = 1 + static_cast<std::uint32_t>(random() % records);
        if (m_rows.count(record) != 0)
            remove(record);
        else
            insert(record, key(std::to_string(random() % 1000000) + "-name and place"));
        if (step % 500 == 0)
            commit();
    }
    commit();
    expectSound(*m_index, rowsOf(m_rows));
    const auto [size, fresh] = sizes();
    RecordProperty("percent", static_cast<int>(100 * size / fresh));
    EXPECT_LE(size, fresh * 3 / 2) << 100 * size / fresh << " %";
}

TEST_F(TreeTest, RisingNumbersFillPagesAndFreedOnesAreUsedAgain)
{
    make(8);
    const auto number = [](std::uint32_t n) {
        std::string bytes(8, '\0');
        putNumberKey(n, reinterpret_cast<Byte *>(bytes.data()));
        return bytes;
    };
    for (std::uint32_t n = 1; n <= 20000; ++n)
        insert(n, number(n));
    commit();
    const auto [size, fresh] = sizes();
    EXPECT_LE(size, fresh);
    for (std::uint32_t n = 1; n <= 20000; ++n)
        remove(n);
    commit();
    EXPECT_TRUE(walk(*m_index, 0)->empty());
    expectSound(*m_index, rowsOf(m_rows));
    open();
    for (std::uint32_t n = 1; n <= 20000; ++n)
        insert(n, number(n));
    commit();
    expectSound(*m_index, rowsOf(m_rows));
    EXPECT_EQ(*m_file->size(), size);
}

TEST_F(TreeTest, AChainOfFreePagesThatLooksWrongIsDropped)
{
    make(20);
    for (std::uint32_t n = 1; n <= 2000; ++n)
        insert(n, key(std::to_string(n)));
    commit();
    for (std::uint32_t n = 1; n <= 1990; ++n)
        remove(n);
    commit();
    std::vector<Byte> bytes = bytesOf(*m_file);
    const auto chainHead = getLe32(&bytes[72]);
    ASSERT_NE(chainHead, 0u);
    // Another program has given the first free page a new life.
    bytes[chainHead] = 2;
    m_file = memoryFile(bytes);
    open();
    for (std::uint32_t n = 1; n <= 100; ++n)
        insert(n, key(std::to_string(n)));
    commit();
    EXPECT_EQ(bytesOf(*m_file)[chainHead], 2);
    expectSound(*m_index, rowsOf(m_rows));
}

TEST_F(TreeTest, LargerRecordNumbersWidenTheirLeafOnly)
{
    make(30);
    std::uint32_t record = 1;
    for (const std::uint32_t step : {1u, 100u, 5000u, 300000u, 20000000u}) {
        for (int i = 0; i < 150; ++i, record += step)
            insert(record, key("same beginning " + std::to_string(record % 97)));
    }
    commit();
    expectSound(*m_index, rowsOf(m_rows));
    open();
    expectSound(*m_index, rowsOf(m_rows));
}

TEST_F(TreeTest, AnotherStationSeesACommitAfterItsRefresh)
{
    make(10);
    auto other = std::move(*IndexFile::open(m_file, m_layout));
    ASSERT_TRUE(other->refresh().ok());
    EXPECT_TRUE(walk(*other, 0)->empty());
    for (std::uint32_t n = 1; n <= 500; ++n)
        insert(n, key(std::to_string(n)));
    commit();
    EXPECT_TRUE(walk(*other, 0)->empty()); // its pages are as old as its last refresh
    ASSERT_TRUE(other->refresh().ok());
    EXPECT_EQ(walk(*other, 0)->size(), 500u);
    // One change counter step a commit, nothing for nothing.
    const auto counter = [this] { return getBe32(&bytesOf(*m_file)[8]); };
    const std::uint32_t before = counter();
    commit();
    EXPECT_EQ(counter(), before);
    remove(1);
    commit();
    EXPECT_EQ(counter(), before + 1);
}

TEST_F(TreeTest, DiscardForgetsAndAFailedCommitReadsAgain)
{
    make(10);
    for (std::uint32_t n = 1; n <= 300; ++n)
        insert(n, key(std::to_string(n)));
    commit();
    const auto rows = m_rows;
    for (std::uint32_t n = 301; n <= 600; ++n)
        insert(n, key(std::to_string(n)));
    EXPECT_EQ(m_index->refresh().error().kind, ErrorKind::Misuse);
    m_index->discard();
    m_rows = rows;
    expectSound(*m_index, rowsOf(m_rows));
    EXPECT_TRUE(m_index->changes().empty());

    // A pair that is there already, or not there, is damage, and blocks the commit.
    EXPECT_EQ(m_index->insert(0, key("7"), 7).error().kind, ErrorKind::Damaged);
    EXPECT_EQ(m_index->commit().error().kind, ErrorKind::Misuse);
    m_index->discard();
    EXPECT_EQ(m_index->remove(0, key("7"), 8).error().kind, ErrorKind::Damaged);
    m_index->discard();
    EXPECT_EQ(m_index->insert(0, "short", 8).error().kind, ErrorKind::Misuse);
    EXPECT_EQ(m_index->insert(3, key("x"), 8).error().kind, ErrorKind::Misuse);

    auto content = std::make_shared<MemoryContent>();
    content->bytes = bytesOf(*m_file);
    m_file = std::make_shared<MemoryFile>("index.cdx", content);
    open();
    content->beforeWrite = [](std::uint64_t, ByteView) {
        return Status(Error{ErrorKind::NoSpace, "index.cdx", "full"});
    };
    EXPECT_TRUE(m_index->insert(0, key("new"), 1000).ok());
    EXPECT_EQ(m_index->commit().error().kind, ErrorKind::NoSpace);
    EXPECT_EQ(m_index->entriesFrom(0, "", 0).error().kind, ErrorKind::Misuse); // unknown
    content->beforeWrite = nullptr;
    ASSERT_TRUE(m_index->refresh().ok());
    expectSound(*m_index, rowsOf(m_rows));
}

TEST_F(TreeTest, ChangesAreWrittenChildrenFirstAndTheCounterLast)
{
    make(10);
    for (std::uint32_t n = 1; n <= 200; ++n)
        insert(n, key(std::to_string(n)));
    commit();
    for (std::uint32_t n = 1000; n <= 1200; ++n)
        insert(n, key(std::to_string(n)));
    const std::uint64_t oldSize = *m_file->size();
    const auto changes = m_index->changes();
    ASSERT_GT(changes.size(), 3u);
    EXPECT_EQ(changes.back().offset, 0u);
    bool oldPages = false;
    int lastKind = 2;
    for (std::size_t i = 0; i + 1 < changes.size(); ++i) {
        const bool isNew = changes[i].offset >= oldSize;
        EXPECT_FALSE(isNew && oldPages) << "a new page after one that may point at it";
        oldPages = oldPages || !isNew;
        if (!isNew) {
            const int kind = changes[i].bytes[0] & 2;
            EXPECT_LE(kind, lastKind) << "a leaf after its parent";
            lastKind = kind;
        }
    }
    commit();
    const std::vector<Byte> bytes = bytesOf(*m_file);
    for (const PageChange &change : changes)
        EXPECT_TRUE(std::equal(change.bytes.begin(), change.bytes.end(),
                               bytes.begin() + static_cast<std::ptrdiff_t>(change.offset)));
}

TEST_F(TreeTest, AShorterKeyMeansABeginning)
{
    make(10);
    const char *names[] = {"ADAM", "BEA", "BEATE", "BEN", "CARL"};
    std::uint32_t record = 10;
    for (const char *name : names)
        insert(--record, key(name));
    const auto from = m_index->entriesFrom(0, "BE", 0, 2);
    ASSERT_EQ(from->size(), 2u);
    EXPECT_EQ((*from)[0].record, 8u);
    const auto before = m_index->entriesBefore(0, "BE", 0);
    ASSERT_EQ(before->size(), 1u);
    EXPECT_EQ((*before)[0].record, 9u);
    EXPECT_TRUE(m_index->entriesFrom(0, "D", 0)->empty());
    EXPECT_TRUE(m_index->entriesBefore(0, "", 0)->empty());
    EXPECT_EQ(m_index->entriesBefore(0, std::string(10, '\xFF'), 0xFFFFFFFF)->size(), 5u);
}
