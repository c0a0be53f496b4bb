#include "db/engine/IndexHeader.h"
#include "db/engine/IndexInterior.h"
#include "db/engine/IndexLeaf.h"
#include "engine/IndexSupport.h"

#include <array>

using namespace norvane::test;

namespace
{

using Page = std::array<Byte, indexPageSize>;

std::string padded(std::string text, std::size_t length)
{
    text.resize(length, ' ');
    return text;
}

Page encoded(const IndexLeaf &leaf)
{
    Page page{};
    leaf.encode(page);
    return page;
}

std::vector<Byte> cut(const Page &page, std::size_t from, std::size_t to)
{
    return {page.begin() + static_cast<std::ptrdiff_t>(from),
            page.begin() + static_cast<std::ptrdiff_t>(to)};
}

} // namespace

TEST(IndexLeaf, HasTheBytesOtherProgramsWrite)
{
    IndexLeaf leaf(10, ' ');
    leaf.append(padded("ANNA", 10), 3);
    leaf.append(padded("BERT", 10), 7);
    leaf.insert(1, padded("ANNABEL", 10), 1);
    leaf.insert(2, padded("BERT", 10), 2);
    const Page page = encoded(leaf);
    EXPECT_EQ(cut(page, 12, 36),
              (std::vector<Byte>{0xd1, 0x01, 0xff, 0xff, 0x00, 0x00, 0x0f, 0x0f,
                                 0x10, 0x04, 0x04, 0x03, 0x03, 0x00, 0x60, 0x01,
                                 0x00, 0x34, 0x02, 0x00, 0x60, 0x07, 0x00, 0x64}));
    EXPECT_EQ(asText(ByteView(page).last(11)), "BERTBELANNA");
    EXPECT_EQ(page[2], 4);

    IndexLeaf again(10, ' ');
    ASSERT_TRUE(again.decode(page).ok());
    EXPECT_EQ(again.key(1), padded("ANNABEL", 10));
    EXPECT_EQ(encoded(again), page);
    again.erase(1);
    again.erase(0);
    EXPECT_EQ(asText(ByteView(encoded(again)).last(11)), std::string("\0\0\0\0\0\0\0BERT", 11));
}

TEST(IndexLeaf, AnEmptyOneSaysItsLayout)
{
    const Page page = encoded(IndexLeaf(4, 0));
    EXPECT_EQ(cut(page, 12, 24),
              (std::vector<Byte>{0xe8, 0x01, 0xff, 0xff, 0x03, 0x00, 0x07, 0x07, 18, 3, 3, 3}));
}

TEST(IndexLeaf, EntriesGrowWithTheLargestRecordNumber)
{
    IndexLeaf leaf(8, 0);
    const std::string key("\xBF\xF0\0\0\0\0\0\0", 8);
    leaf.append(key, 0xFFFF);
    EXPECT_EQ(leaf.bytes(), 3u + 2u);
    leaf.append(key, 0x10000); // the same key: no text of its own
    EXPECT_EQ(leaf.bytes(), 2 * 4u + 2u);
    leaf.append(key, 0xFFFFFFFE);
    EXPECT_EQ(leaf.bytes(), 3 * 5u + 2u);
    IndexLeaf again(8, 0);
    ASSERT_TRUE(again.decode(encoded(leaf)).ok());
    EXPECT_EQ(again.record(2), 0xFFFFFFFE);
    leaf.append(key, 0xFFFFFFFF); // nothing could stand behind it: walks would not end
    EXPECT_EQ(again.decode(encoded(leaf)).error().kind, ErrorKind::Damaged);
}

TEST(IndexLeaf, SplitAndJoinKeepTheSizeRight)
{
    IndexLeaf leaf(12, ' ');
    for (std::uint32_t i = 0; i < 40; ++i)
        leaf.append(padded("PREFIX" + std::to_string(100 + i / 2), 12), i + 1);
    const std::size_t whole = leaf.bytes();
    IndexLeaf tail = leaf.splitOff(leaf.splitPoint());
    EXPECT_NEAR(static_cast<double>(leaf.bytes()), static_cast<double>(tail.bytes()), 20);
    EXPECT_EQ(leaf.bytesJoined(tail), whole);
    IndexLeaf decoded(12, ' ');
    ASSERT_TRUE(decoded.decode(encoded(tail)).ok());
    EXPECT_EQ(decoded.bytes(), tail.bytes());
    leaf.append(tail);
    EXPECT_EQ(leaf.bytes(), whole);
    EXPECT_EQ(leaf.lowerBound("PREFIX11", 0), 20u);
    EXPECT_EQ(leaf.lowerBound(leaf.key(7), leaf.record(7)), 7u);
    EXPECT_EQ(leaf.lowerBound("ZZ", 0), 40u);
}

TEST(IndexLeaf, ReadsNarrowEntriesAndKeepsThem)
{
    // Two bytes an entry: 8 bits of record number, 4 and 4 bits of counts.
    Page page{};
    page[0] = 3;
    page[2] = 2;
    putLe16(&page[12], 488 - 2 * 2 - 2);
    putLe32(&page[14], 0xFF);
    page[18] = page[19] = 0x0F;
    page[20] = 8;
    page[21] = page[22] = 4;
    page[23] = 2;
    putLe16(&page[24], 0x9005);
    putLe16(&page[26], 0x9106);
    page[511] = 'A';
    page[510] = 'B';
    IndexLeaf leaf(10, ' ');
    ASSERT_FALSE(leaf.decode(page).ok()); // "A" then "A": equal texts need a shorter second text
    putLe16(&page[26], 0x8106);
    ASSERT_TRUE(leaf.decode(page).ok());
    EXPECT_EQ(leaf.key(1), padded("AB", 10));
    EXPECT_EQ(leaf.bytes(), 6u);
    EXPECT_EQ(cut(encoded(leaf), 24, 28), cut(page, 24, 28));
}

TEST(IndexLeaf, RefusesEntriesThatOurLayoutHasNoRoomFor)
{
    // One byte an entry, no counts: more entries in a page than can be written back.
    const auto narrow = [](std::size_t count) {
        Page page{};
        page[0] = 3;
        page[2] = static_cast<Byte>(count);
        putLe16(&page[12], static_cast<std::uint16_t>(488 - 2 * count));
        putLe32(&page[14], 0xFF);
        page[20] = 8;
        page[23] = 1;
        for (std::size_t i = 0; i < count; ++i) {
            page[24 + i] = static_cast<Byte>(i + 1);
            page[511 - i] = 'A';
        }
        return page;
    };
    IndexLeaf leaf(1, ' ');
    ASSERT_TRUE(leaf.decode(narrow(100)).ok());
    EXPECT_EQ(leaf.bytes(), 400u);
    EXPECT_EQ(leaf.decode(narrow(240)).error().kind, ErrorKind::Damaged);
}

TEST(IndexLeaf, RefusesBytesThatMakeNoSense)
{
    IndexLeaf leaf(10, ' ');
    leaf.append(padded("ANNA", 10), 3);
    leaf.append(padded("ANNABEL", 10), 1);
    leaf.append(padded("BERT", 10), 2);
    const Page good = encoded(leaf);
    struct Change {
        std::size_t place;
        Byte value;
        const char *why;
    };
    for (const Change &change : std::initializer_list<Change>{
             {2, 200, "more entries than fit"},
             {12, 0, "free space"},
             {14, 0, "mask of the record number"},
             {18, 1, "mask of the shared count"},
             {20, 33, "too many record bits"},
             {23, 9, "too wide entries"},
             {23, 0, "no width"},
             {24, 0, "record number zero"},
             {26, 0x61, "first entry shares something"},
             {29, 0x3F, "shares more than there is"},
             {29, 0xF4, "counts above the key length"},
             {508, 'Z', "out of order"},
         }) {
        Page page = good;
        page[change.place] = change.value;
        const Status status = leaf.decode(page);
        EXPECT_EQ(status.error().kind, ErrorKind::Damaged) << change.why;
    }
    EXPECT_TRUE(leaf.decode(good).ok());
}

TEST(IndexInterior, HasTheBytesOtherProgramsWrite)
{
    IndexInterior page(4);
    page.insert(0, "CCCC", 258, 0x00000A00);
    page.insert(0, "AAAA", 1, 0x00000600);
    Page bytes{};
    page.encode(bytes);
    EXPECT_EQ(bytes[2], 2);
    EXPECT_EQ(asText(ByteView(bytes).subspan(12, 24)),
              std::string("AAAA\0\0\0\1\0\0\6\0CCCC\0\0\1\2\0\0\12\0", 24));
    IndexInterior again(4);
    ASSERT_TRUE(again.decode(bytes).ok());
    EXPECT_EQ(again.child(1), 0xA00u);
    EXPECT_EQ(again.lowerBound("AAAA", 2), 1u);
    EXPECT_EQ(again.lowerBound("AA", 0), 0u);
    EXPECT_EQ(again.lowerBound("CCCC", 259), 2u);
    EXPECT_EQ(IndexInterior::capacityFor(8), 31u);
    EXPECT_EQ(IndexInterior::capacityFor(240), 2u);
    std::swap(bytes[12], bytes[24]);
    EXPECT_EQ(again.decode(bytes).error().kind, ErrorKind::Damaged);
}

TEST(IndexHeader, WritesWhatItReadsAndRefusesOtherKinds)
{
    IndexHeader header;
    header.root = 2560;
    header.keyLength = 40;
    header.expression = "UPPER(NAME)";
    header.filter = ".NOT.DELETED()";
    std::array<Byte, headerSize> bytes{};
    encodeTagHeader(bytes, header);
    EXPECT_EQ(bytes[14], 0x68);
    EXPECT_EQ(getLe16(&bytes[504]), 12);
    EXPECT_EQ(getLe16(&bytes[506]), 15);
    EXPECT_EQ(getLe16(&bytes[510]), 12);
    const auto again = decodeTagHeader(bytes);
    ASSERT_TRUE(again.ok());
    EXPECT_EQ(again->expression, header.expression);
    EXPECT_EQ(again->filter, header.filter);

    const auto kindAfter = [&](std::size_t place, Byte value) {
        auto changed = bytes;
        changed[place] = value;
        return decodeTagHeader(changed).error().kind;
    };
    EXPECT_EQ(kindAfter(14, 0x6A), ErrorKind::Refused); // null marks
    EXPECT_EQ(kindAfter(15, 2), ErrorKind::Refused);    // sorted by a language
    EXPECT_EQ(kindAfter(15, 5), ErrorKind::Refused);    // bitmap
    EXPECT_EQ(kindAfter(14, 0x60), ErrorKind::Damaged); // filter there, option not
    EXPECT_EQ(kindAfter(14, 0x48), ErrorKind::Damaged); // not compact
    EXPECT_EQ(kindAfter(12, 250), ErrorKind::Damaged);
    EXPECT_EQ(kindAfter(511, 2), ErrorKind::Damaged); // text beyond the page
    EXPECT_EQ(kindAfter(14, 0x69), ErrorKind::None);  // unique

    encodeDirectoryHeader(bytes, 1024);
    EXPECT_EQ(bytes[14], 0xE0);
    EXPECT_EQ(getBe32(&bytes[8]), 1u);
    bytes[14] = 0xE4;
    EXPECT_TRUE(decodeDirectoryHeader(bytes).ok());
    bytes[12] = 11;
    EXPECT_EQ(decodeDirectoryHeader(bytes).error().kind, ErrorKind::Damaged);
}
