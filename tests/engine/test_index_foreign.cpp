// Index files made by another program: read, checked against their rows, changed, checked again.
#include "db/engine/KeyEncoding.h"
#include "engine/IndexSupport.h"
#include "TestPlaces.h"

using namespace norvane::test;

namespace
{

struct ForeignTable {
    RowLayout layout;
    std::map<std::uint32_t, std::string> rows;
    std::shared_ptr<MemoryFile> file;
    std::unique_ptr<IndexFile> index;
};

ForeignTable load(const std::string &name)
{
    const std::string base = std::string(NORVANE_SOURCE_DIR) + "/tests/data/foreign/" + name;
    const std::vector<Byte> bytes = readWholeFile(base + ".dbf");
    ForeignTable table;
    for (const Byte *field = bytes.data() + 32; *field != 0x0D; field += 32) {
        const std::string fieldName(reinterpret_cast<const char *>(field));
        table.layout.fields.push_back({fieldName, static_cast<char>(field[11]),
                                       table.layout.recordLength, field[16], field[17]});
        table.layout.recordLength =
            static_cast<std::uint16_t>(table.layout.recordLength + field[16]);
    }
    const std::uint32_t count = getLe32(&bytes[4]);
    for (std::uint32_t n = 1; n <= count; ++n) {
        const std::size_t at = getLe16(&bytes[8]) + std::size_t{n - 1} * table.layout.recordLength;
        table.rows[n] = std::string(asText(ByteView(bytes).subspan(at, table.layout.recordLength)));
    }
    table.file = memoryFile(readWholeFile(base + ".cdx"));
    auto opened = IndexFile::open(table.file, table.layout);
    EXPECT_TRUE(opened.ok()) << opened.error().detail;
    table.index = std::move(*opened);
    EXPECT_TRUE(table.index->refresh().ok());
    return table;
}

} // namespace

TEST(ForeignIndex, IsSoundAsItComes)
{
    for (const char *name : {"empty", "lookup", "people33", "longkey"}) {
        SCOPED_TRACE(name);
        ForeignTable table = load(name);
        expectSound(*table.index, rowsOf(table.rows));
    }
}

TEST(ForeignIndex, GivesItsKeysInOrder)
{
    ForeignTable lookup = load("lookup");
    const int desc = lookup.index->findTag("desc");
    ASSERT_GE(desc, 0);
    const auto all = walk(*lookup.index, desc);
    ASSERT_TRUE(all.ok());
    EXPECT_EQ(all->size(), 36u);
    EXPECT_TRUE(std::is_sorted(all->begin(), all->end()));
    for (const IndexEntry &entry : *all)
        EXPECT_EQ(**lookup.index->keyOf(desc, asBytes(lookup.rows[entry.record])), entry.key);

    ForeignTable people = load("people33");
    const int rowid = people.index->findTag("ROWID");
    const auto rows = walk(*people.index, rowid);
    ASSERT_EQ(rows->size(), 288u);
    for (std::size_t i = 0; i < rows->size(); i += 10) {
        const double id = numberOfKey(asBytes((*rows)[i].key).data());
        const auto key = people.index->soughtKey(rowid, id);
        ASSERT_TRUE(key);
        EXPECT_EQ(people.index->entriesFrom(rowid, *key, 0)->front().record, (*rows)[i].record);
    }
}

TEST(ForeignIndex, StaysSoundWhenChanged)
{
    for (const char *name : {"lookup", "people33", "longkey"}) {
        SCOPED_TRACE(name);
        ForeignTable table = load(name);
        const int tagCount = static_cast<int>(table.index->tags().size());
        auto change = [&](std::uint32_t record, bool deleted) {
            std::string next = table.rows[record];
            next[0] = deleted ? '*' : ' ';
            for (int tag = 0; tag < tagCount; ++tag) {
                const auto before = *table.index->keyOf(tag, asBytes(table.rows[record]));
                const auto after = *table.index->keyOf(tag, asBytes(next));
                if (before == after)
                    continue;
                if (before) {
                    ASSERT_TRUE(table.index->remove(tag, *before, record).ok());
                }
                if (after) {
                    ASSERT_TRUE(table.index->insert(tag, *after, record).ok());
                }
            }
            table.rows[record] = next;
        };
        for (const bool deleted : {true, false}) {
            for (const auto &[record, row] : table.rows)
                ASSERT_NO_FATAL_FAILURE(change(record, deleted));
            ASSERT_TRUE(table.index->commit().ok());
            expectSound(*table.index, rowsOf(table.rows));
        }
    }
}

TEST(ForeignIndex, WithUnsupportedTagsIsRefused)
{
    ForeignTable table = load("lookup");
    std::vector<Byte> bytes = bytesOf(*table.file);
    const std::uint32_t header = 1536; // of the first tag
    ASSERT_EQ(bytes[header + 14] & 0x60, 0x60);
    bytes[header + 15] = 2;
    const auto opened = IndexFile::open(memoryFile(bytes), table.layout);
    EXPECT_EQ(opened.error().kind, ErrorKind::Refused);
    EXPECT_EQ(opened.error().place, header);
    table.layout.fields.pop_back(); // a key over a field that is not there
    EXPECT_EQ(IndexFile::open(table.file, table.layout).error().kind, ErrorKind::Damaged);
}
