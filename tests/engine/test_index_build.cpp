#include "db/engine/KeyEncoding.h"
#include "engine/IndexSupport.h"

#include <random>

using namespace norvane::test;

namespace
{

const RowLayout layout = makeLayout({{"ROWID", 'N', 10},
                                     {"NAME", 'C', 30},
                                     {"DAY", 'D', 8},
                                     {"ACTIVE", 'L', 1},
                                     {"LONG", 'C', 240}});
const std::vector<TagDef> tags = {{"rowid", "ROWID", ".NOT. DELETED()"},
                                  {"NAME", "UPPER(NAME)", ".NOT. DELETED()"},
                                  {"DAY", "DAY", ".NOT. DELETED()"},
                                  {"ACTIVE", "UPPER(NAME)", ".NOT. DELETED() .AND. ACTIVE"},
                                  {"ALL", "ACTIVE", ""},
                                  {"LONG", "LONG", ".NOT. DELETED()"}};

std::string row(std::uint32_t number, std::mt19937 &random)
{
    std::string id = std::to_string(number + 999);
    id.insert(0, 10 - id.size(), ' ');
    const std::string name = "name " + std::to_string(random() % 500) + "\xE4";
    const std::string day = random() % 5 == 0 ? "" : "2024" + std::to_string(1001 + random() % 28);
    const std::string text(random() % 240, static_cast<char>('a' + random() % 3));
    return makeRow(layout, {id, name, day, random() % 2 ? "T" : "F", text}, random() % 10 == 0);
}

std::map<std::uint32_t, std::string> makeRows(std::uint32_t count)
{
    std::mt19937 random(1);
    std::map<std::uint32_t, std::string> rows;
    for (std::uint32_t n = 1; n <= count; ++n)
        rows[n] = row(n, random);
    return rows;
}

std::shared_ptr<MemoryFile> build(const std::map<std::uint32_t, std::string> &rows)
{
    auto file = memoryFile();
    const Status built = buildIndex(*file, layout, tags, rowsOf(rows));
    EXPECT_TRUE(built.ok()) << built.error().detail;
    return file;
}

std::unique_ptr<IndexFile> open(const std::shared_ptr<MemoryFile> &file)
{
    auto opened = IndexFile::open(file, layout);
    EXPECT_TRUE(opened.ok()) << opened.error().detail;
    EXPECT_TRUE((*opened)->refresh().ok());
    return std::move(*opened);
}

} // namespace

TEST(IndexBuild, WhatItWritesIsSoundAndNearlyFull)
{
    for (const std::uint32_t count : {0u, 1u, 10u, 3000u}) {
        const auto rows = makeRows(count);
        const auto file = build(rows);
        const auto index = open(file);
        expectSound(*index, rowsOf(rows));
        ASSERT_EQ(index->tags().size(), tags.size());
        for (std::size_t i = 0; i < tags.size(); ++i) {
            const TagInfo &info = index->tags()[i];
            EXPECT_EQ(index->findTag(tags[i].name), static_cast<int>(i)); // creation order
            EXPECT_EQ(info.expression, tags[i].expression);
            EXPECT_EQ(info.filter, tags[i].filter);
        }
        EXPECT_EQ(index->tags()[0].name, "ROWID");
        EXPECT_EQ(index->tags()[2].keyType, KeyType::Date);
        EXPECT_EQ(index->tags()[5].keyLength, 240);
        EXPECT_EQ(index->findTag("active"), 3);
        EXPECT_EQ(index->findTag("NONE"), -1);
    }
}

TEST(IndexBuild, RowsInAnyOrderGiveTheSameFile)
{
    const auto rows = makeRows(700);
    auto backwards = rows.rbegin();
    const auto file = memoryFile();
    ASSERT_TRUE(buildIndex(*file, layout, tags,
                           {[&](std::uint32_t &record, ByteView &bytes) -> Result<bool> {
                               if (backwards == rows.rend())
                                   return false;
                               record = backwards->first;
                               bytes = asBytes(backwards->second);
                               ++backwards;
                               return true;
                           }})
                    .ok());
    EXPECT_EQ(bytesOf(*file), bytesOf(*build(rows)));
}

TEST(IndexBuild, EqualKeysMayCrossARecordNumberThatNeedsMoreBits)
{
    std::map<std::uint32_t, std::string> rows;
    const std::string same = makeRow(layout, {"         7", "same name", "20240101", "T", "x"});
    for (const std::uint32_t border : {0x10000u, 0x1000000u}) {
        for (std::uint32_t n = border - 1000; n < border + 1000; ++n)
            rows[n] = same;
    }
    expectSound(*open(build(rows)), rowsOf(rows));
}

TEST(IndexBuild, RefusesTagsThatCannotBe)
{
    const auto kindOf = [](const TagDef &tag) {
        const auto file = memoryFile();
        return buildIndex(*file, layout, {tag}, {}).error().kind;
    };
    EXPECT_EQ(kindOf({"", "NAME", ""}), ErrorKind::Misuse);
    EXPECT_EQ(kindOf({"ELEVENCHARS", "NAME", ""}), ErrorKind::Misuse);
    EXPECT_EQ(kindOf({"T", "NOFIELD", ""}), ErrorKind::NotFound);
    EXPECT_EQ(kindOf({"T", "LONG+NAME", ""}), ErrorKind::Refused);
    EXPECT_EQ(kindOf({"T", "''", ""}), ErrorKind::Refused);
    EXPECT_EQ(kindOf({"T", "NAME", "NAME"}), ErrorKind::Refused);
    EXPECT_EQ(kindOf({"T", "NAME", "ACTIVE"}), ErrorKind::None);
    const auto file = memoryFile();
    EXPECT_EQ(buildIndex(*file, layout, {{"a", "NAME", ""}, {"A", "DAY", ""}}, {}).error().kind,
              ErrorKind::Misuse);
}

TEST(IndexBuild, AFailingSourceOrDiskLeavesNoValidIndex)
{
    const auto rows = makeRows(2000);
    const Error gone{ErrorKind::Gone, "t.dbf", "away"};
    const auto file = memoryFile();
    EXPECT_EQ(buildIndex(*file, layout, tags,
                         {[&](std::uint32_t &, ByteView &) -> Result<bool> { return gone; }})
                  .error()
                  .kind,
              ErrorKind::Gone);
    auto content = std::make_shared<MemoryContent>();
    const auto full = std::make_shared<MemoryFile>("index.cdx", content);
    content->beforeWrite = [](std::uint64_t offset, ByteView bytes) {
        return offset + bytes.size() > 40000 ? Status(Error{ErrorKind::NoSpace, "", "full"})
                                             : Status();
    };
    EXPECT_EQ(buildIndex(*full, layout, tags, rowsOf(rows)).error().kind, ErrorKind::NoSpace);
    EXPECT_FALSE(IndexFile::open(full, layout).ok());
}

TEST(IndexBuild, ManyTagsNeedALargerDirectory)
{
    std::vector<TagDef> many;
    for (int i = 0; i < 100; ++i)
        many.push_back({"T" + std::to_string(99 - i), "NAME", ""});
    const auto rows = makeRows(20);
    const auto file = memoryFile();
    ASSERT_TRUE(buildIndex(*file, layout, many, rowsOf(rows)).ok());
    const auto index = open(file);
    ASSERT_EQ(index->tags().size(), 100u);
    EXPECT_EQ(index->tags()[0].name, "T99");
    expectSound(*index, rowsOf(rows));
}

TEST(IndexKeys, RowsGiveKeysAndFiltersLeaveThemOut)
{
    const auto index = open(build({}));
    std::mt19937 random(3);
    std::string bytes = row(5, random);
    bytes[0] = ' ';
    const auto key = index->keyOf(1, asBytes(bytes));
    ASSERT_TRUE(key.ok());
    ASSERT_TRUE(key->has_value());
    EXPECT_EQ((*key)->size(), 30u);
    EXPECT_EQ((*key)->substr(0, 5), "NAME ");
    bytes[0] = '*';
    EXPECT_FALSE(index->keyOf(1, asBytes(bytes))->has_value());
    EXPECT_EQ(index->keyOf(1, asBytes("short")).error().kind, ErrorKind::Misuse);
    EXPECT_EQ(index->keyOf(9, asBytes(bytes)).error().kind, ErrorKind::Misuse);
}

TEST(IndexKeys, SoughtValuesBecomeKeysOfTheirTag)
{
    const auto index = open(build({}));
    std::string number(8, '\0');
    putNumberKey(1005, reinterpret_cast<Byte *>(number.data()));
    EXPECT_EQ(index->soughtKey(0, 1005.0), number);
    EXPECT_EQ(index->soughtKey(0, " 1005 "), number);
    EXPECT_FALSE(index->soughtKey(0, "none"));
    EXPECT_EQ(index->soughtKey(1, "m\xFCller"), "M\xDCLLER");
    EXPECT_EQ(index->soughtKey(1, std::string(50, 'x')), std::string(30, 'X'));
    EXPECT_FALSE(index->soughtKey(1, 5.0));
    putNumberKey(julianDay("20240229"), reinterpret_cast<Byte *>(number.data()));
    EXPECT_EQ(index->soughtKey(2, "20240229"), number);
    EXPECT_FALSE(index->soughtKey(2, "20230229"));
    putNumberKey(0, reinterpret_cast<Byte *>(number.data()));
    EXPECT_EQ(index->soughtKey(2, "        "), number);
    EXPECT_EQ(index->soughtKey(4, "t"), "T");
    EXPECT_FALSE(index->soughtKey(4, "x"));
    EXPECT_FALSE(index->soughtKey(-1, "x"));
}

TEST(IndexCheck, NamesWhatIsWrong)
{
    auto rows = makeRows(400);
    const auto file = build(rows);
    const auto findings = [&] {
        const auto index = open(file);
        auto found = checkIndex(*index, rowsOf(rows));
        EXPECT_TRUE(found.ok());
        std::string all;
        for (const std::string &line : *found)
            all += line + "\n";
        return all;
    };
    ASSERT_EQ(findings(), "");
    const auto good = rows;
    for (std::uint32_t record = 1; record < 40; ++record)
        rows[record][0] = ' ';
    rows[17][15] = 'z';
    rows.erase(18);
    const std::string text = findings();
    EXPECT_NE(text.find("tag NAME: record 17 stands under a wrong key"), std::string::npos) << text;
    EXPECT_NE(text.find("is missing"), std::string::npos) << text; // deleted rows brought back
    EXPECT_NE(text.find("tag ROWID: record 18 has a key but no row"), std::string::npos) << text;

    // A sibling link, a parent's entry, and a page used twice.
    rows = good;
    const std::vector<Byte> sound = bytesOf(*file);
    const std::uint32_t root = 1536 * 2 + 1024; // of the second tag
    const auto child = [&](std::size_t i) { return getBe32(&sound[root + 12 + i * 38 + 34]); };
    ASSERT_TRUE(file->write(child(1) + 4, asBytes(std::string(4, '\xFF'))).ok());
    EXPECT_NE(findings().find("its neighbours are wrong"), std::string::npos);
    ASSERT_TRUE(file->write(0, sound).ok());
    ASSERT_TRUE(file->write(root + 12 + 33, asBytes("\xFF")).ok());
    EXPECT_NE(findings().find("its parent names another last key"), std::string::npos);
    ASSERT_TRUE(file->write(0, sound).ok());
    ASSERT_TRUE(file->write(root + 12 + 38 + 34, ByteView(sound).subspan(root + 12 + 34, 4)).ok());
    EXPECT_NE(findings().find("is used twice"), std::string::npos);
}
