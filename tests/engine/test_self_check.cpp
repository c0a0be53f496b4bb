// Indexes that do not fit their table: noticed at opening or at the first read, right results at
// once, tags built anew from the rows, the damaged file kept.
#include "db/engine/Bytes.h"
#include "engine/SimPeople.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <set>

using namespace norvane::engine;
using namespace enginetest;
namespace fs = std::filesystem;

namespace
{

class SelfCheck : public testing::Test
{
protected:
    void SetUp() override
    {
        makeTable(m_path, peopleTable());
        fill(1, 30);
        m_older = readFile(m_cdx);
        fill(31, 60);
    }
    void fill(int first, int last)
    {
        const TestSession session;
        const Handle table = d4open(session, m_path);
        for (int id = first; id <= last; ++id)
            ASSERT_EQ(addPerson(table, id, name(id), id % 5 ? "" : "a text"), r4success);
    }
    static std::string name(int id) { return "Name " + std::to_string(id * 7919 % 1000); }
    static void expectPeopleTags(Handle session)
    {
        d4expectTags(session, "PEOPLE", peopleTable().tags);
    }
    void changeRow(std::uint32_t record, std::size_t at, std::string_view bytes)
    {
        Bytes dbf = readFile(m_path);
        std::copy(bytes.begin(), bytes.end(),
                  dbf.begin() + static_cast<std::ptrdiff_t>(289 + (record - 1) * 107 + at));
        writeFile(m_path, dbf);
    }
    // Takes the last rows' count and bytes away and lays them there again, as by a program that
    // knows nothing of the index.
    void addRowsPastTheIndex(int count)
    {
        Bytes dbf = readFile(m_path);
        Bytes last(dbf.end() - 108, dbf.end() - 1);
        std::fill(last.end() - 20, last.end(), std::uint8_t{' '}); // no texts
        dbf.pop_back();
        for (int i = 1; i <= count; ++i) {
            dbf.insert(dbf.end(), last.begin(), last.end());
            const std::string id = std::to_string(60 + i);
            std::copy(id.begin(), id.end(), dbf.end() - 107 + 11 - 2);
        }
        dbf.push_back(0x1A);
        putLe32(&dbf[4], static_cast<std::uint32_t>(60 + count));
        writeFile(m_path, dbf);
    }
    // Ids in the order of a tag.
    static std::vector<int> walk(Handle table, const char *tag)
    {
        std::vector<int> ids;
        selectTag(table, tag);
        for (Code code = d4top(table); code == r4success; code = d4skip(table, 1))
            ids.push_back(f4long(d4field(table, "rowid")));
        return ids;
    }
    static std::vector<int> sortedBy(Handle table, const char *field)
    {
        std::vector<std::pair<std::string, std::pair<std::uint32_t, int>>> rows;
        d4tagSelect(table, 0);
        for (Code code = d4top(table); code == r4success; code = d4skip(table, 1)) {
            if (!d4deleted(table))
                rows.push_back(
                    {text(table, field), {d4recNo(table), f4long(d4field(table, "rowid"))}});
        }
        std::sort(rows.begin(), rows.end());
        std::vector<int> ids;
        ids.reserve(rows.size());
        for (const auto &row : rows)
            ids.push_back(row.second.second);
        return ids;
    }

    TempFolder m_folder;
    std::string m_path = m_folder / "people.dbf";
    std::string m_cdx = m_folder / "people.cdx";
    Bytes m_older;
};

class IndexMatrix : public SelfCheck
{
public:
    struct Case {
        const char *name;
        void (IndexMatrix::*make)();
        int rows; // live afterwards
        bool atOnce = true;
    };

    void missing() { fs::remove(m_cdx); }
    void empty() { writeFile(m_cdx, {}); }
    void truncated() { fs::resize_file(m_cdx, 5000); }
    void cutInAPage() { fs::resize_file(m_cdx, fs::file_size(m_cdx) - 700); }
    void garbage() { writeFile(m_cdx, Bytes(9000, 0x5A)); }
    void emptyTemplate()
    {
        makeTable(m_folder / "other.dbf", peopleTable());
        fs::rename(m_folder / "other.cdx", m_cdx);
    }
    void ofAnotherTable()
    {
        makeTable(m_folder / "other.dbf", counterTable());
        fs::rename(m_folder / "other.cdx", m_cdx);
    }
    void older() { writeFile(m_cdx, m_older); }
    void olderWithoutJournal()
    {
        older();
        fs::remove(m_folder / "people.nvj");
    }
    void withOtherTags(std::vector<TagDef> tags)
    {
        TableDef table = peopleTable();
        table.tags = std::move(tags);
        makeTable(m_folder / "other.dbf", table);
        fs::remove(m_cdx);
        fs::rename(m_folder / "other.cdx", m_cdx);
        TestSession session; // with keys, so that only the tags are wrong
        code4accessMode(session, 1);
        ASSERT_EQ(d4reindex(d4open(session, m_path)), r4success);
        fs::remove(m_cdx + ".bad");
    }
    void oneTagMissing()
    {
        std::vector<TagDef> tags = peopleTable().tags;
        tags.erase(tags.begin() + 1);
        withOtherTags(tags);
    }
    void otherExpression()
    {
        std::vector<TagDef> tags = peopleTable().tags;
        tags[1].expression = "UPPER(CITY)+UPPER(NAME)";
        withOtherTags(tags);
    }
    void unsupportedExpression()
    {
        const Bytes bytes = readFile(m_cdx);
        const std::string_view all(reinterpret_cast<const char *>(bytes.data()), bytes.size());
        const std::size_t at = all.find("UPPER(NAME)");
        Bytes changed = bytes;
        std::copy_n("SOUND(NAME)", 11, changed.begin() + static_cast<std::ptrdiff_t>(at));
        writeFile(m_cdx, changed);
    }
    void keysOfDeletedRows()
    {
        for (const std::uint32_t record : {1U, 20U, 60U})
            changeRow(record, 0, "*");
    }
    void rowsWithoutKeys() { addRowsPastTheIndex(4); }
    void changedPastTheIndex()
    {
        changeRow(60, 11, "Aaa");
        changeRow(7, 11, "Zzz");
    }
    void damagedPage()
    {
        Bytes bytes = readFile(m_cdx);
        std::fill(bytes.begin() + 4096 + 60, bytes.begin() + 4608, std::uint8_t{0xEE}); // of NAME
        writeFile(m_cdx, bytes);
    }
};

// A walk in which rows come to have other keys shows these once or not at all, and all others.
void expectAllBut(std::vector<int> walked, std::vector<int> wanted, const std::set<int> &moving)
{
    for (const int id : moving)
        EXPECT_LE(std::count(walked.begin(), walked.end(), id), 1) << id;
    for (std::vector<int> *ids : {&walked, &wanted})
        std::erase_if(*ids, [&](int id) { return moving.count(id) > 0; });
    EXPECT_EQ(walked, wanted);
}

// What the page on crash safety says of a row that another program changed in the middle.
TEST_F(IndexMatrix, AChangedRowIsFoundByItsNewKeyOnceItsOldOneWasMet)
{
    const std::string old = name(7);
    changedPastTheIndex();
    for (const char *meets : {"seek", "walk", "save"}) {
        const TempFolder copy;
        for (const char *file : {"people.dbf", "people.cdx", "people.fpt", "people.nvj"})
            fs::copy_file(m_folder / file, copy / file);
        TestSession session;
        expectPeopleTags(session);
        const Handle table = d4open(session, copy / "people.dbf");
        ASSERT_EQ(d4go(table, 7), r4success);
        EXPECT_EQ(text(table, "name").substr(0, 3), "Zzz"); // by its place, and by a key it kept
        EXPECT_EQ(findPerson(table, 7), r4success);
        EXPECT_NE(d4check(table).size(), 0U);
        selectTag(table, "name");
        if (meets == std::string("seek")) {
            EXPECT_NE(d4seek(table, old), r4success);
        } else if (meets == std::string("walk")) {
            walk(table, "name");
        } else {
            ASSERT_EQ(d4lock(table, 7), r4success);
            assign(table, "city", "Elsewhere");
            assign(table, "name", "Zzz again");
            EXPECT_EQ(d4unlock(table), r4success);
        }
        selectTag(table, "name");
        EXPECT_EQ(d4seek(table, "ZZZ"), r4success) << meets;
        EXPECT_EQ(f4long(d4field(table, "rowid")), 7);
        EXPECT_EQ(walk(table, "name"), sortedBy(table, "name")) << meets;
        EXPECT_TRUE(session.takeErrors().empty());
        d4close(table);
    }
}

TEST_F(IndexMatrix, IsRightAtOnceAndSoundAfterwards)
{
    const Case cases[] = {{"missing", &IndexMatrix::missing, 60},
                          {"empty", &IndexMatrix::empty, 60},
                          {"truncated", &IndexMatrix::truncated, 60},
                          {"cut in a page", &IndexMatrix::cutInAPage, 60},
                          {"garbage", &IndexMatrix::garbage, 60},
                          {"empty template", &IndexMatrix::emptyTemplate, 60},
                          {"of another table", &IndexMatrix::ofAnotherTable, 60},
                          {"older", &IndexMatrix::older, 60},
                          {"older, no journal", &IndexMatrix::olderWithoutJournal, 60},
                          {"one tag missing", &IndexMatrix::oneTagMissing, 60},
                          {"other expression", &IndexMatrix::otherExpression, 60},
                          {"not supported", &IndexMatrix::unsupportedExpression, 60},
                          {"deleted rows", &IndexMatrix::keysOfDeletedRows, 57},
                          {"rows without keys", &IndexMatrix::rowsWithoutKeys, 64},
                          {"changed rows", &IndexMatrix::changedPastTheIndex, 60, false},
                          {"damaged page", &IndexMatrix::damagedPage, 60}};
    const Bytes dbf = readFile(m_path);
    const Bytes cdx = readFile(m_cdx);
    const Bytes nvj = readFile(m_folder / "people.nvj");
    const auto restore = [&] {
        for (const auto &entry : fs::directory_iterator(fs::path(m_path).parent_path())) {
            const std::string file = entry.path().filename().string();
            if (file.find(".bad") != std::string::npos || file.starts_with("other"))
                fs::remove(entry.path());
        }
        writeFile(m_path, dbf);
        writeFile(m_cdx, cdx);
        writeFile(m_folder / "people.nvj", nvj);
    };
    for (const Case &one : cases) {
        for (const bool readOnly : {true, false}) {
            SCOPED_TRACE(std::string(one.name) + (readOnly ? ", reading only" : ""));
            restore();
            (this->*one.make)();
            const bool there = fs::exists(m_cdx);
            const Bytes wrong = readFile(m_cdx);
            TestSession session;
            expectPeopleTags(session);
            code4readOnly(session, readOnly);
            const Handle table = d4open(session, m_path);
            ASSERT_GT(table, 0);
            if (!one.atOnce) { // nothing tells of a changed row before its old key is met
                expectAllBut(walk(table, "name"), sortedBy(table, "name"), {60, 7});
                selectTag(table, "name");
                EXPECT_EQ(d4seek(table, "AAA"), r4success) << "the walk met an old key";
            }
            EXPECT_EQ(walk(table, "name"), sortedBy(table, "name"));
            std::vector<int> ids = walk(table, "rowid");
            EXPECT_EQ(ids.size(), static_cast<std::size_t>(one.rows));
            EXPECT_TRUE(std::is_sorted(ids.begin(), ids.end()));
            for (const int id : ids)
                ASSERT_EQ(findPerson(table, id), r4success) << id;
            EXPECT_NE(findPerson(table, 99), r4success);
            selectTag(table, "name");
            EXPECT_EQ(d4bottom(table), r4success);
            EXPECT_TRUE(session.takeErrors().empty()) << lastError(session).detail;
            if (readOnly) {
                EXPECT_NE(addPerson(table, 99, "Refused"), r4success);
                d4close(table);
                EXPECT_TRUE(readFile(m_cdx) == wrong);
                continue;
            }
            EXPECT_EQ(d4damage(table).kind, ErrorKind::None) << d4damage(table).detail;
            EXPECT_EQ(addPerson(table, 99, "Added"), r4success);
            d4close(table);
            EXPECT_EQ(findings(m_path), "");
            EXPECT_EQ(fs::exists(m_cdx + ".bad"), there);
            EXPECT_TRUE(!there || readFile(m_cdx + ".bad") == wrong);
            EXPECT_FALSE(fs::exists(m_cdx + ".new"));
        }
    }
}

TEST_F(SelfCheck, OthersTagsAndMarksAreKept)
{
    TableDef table = peopleTable();
    table.tags.insert(table.tags.begin() + 1, {"THEIRS", "CITY+LEFT(NAME,6)", "", true, true});
    table.tags[3].expression = "city"; // not as expected
    makeTable(m_folder / "theirs.dbf", table);
    fs::rename(m_folder / "theirs.cdx", m_cdx);
    fs::remove(m_folder / "people.nvj");
    const auto marks = [this] { // of the tag header that has the expression
        const Bytes bytes = readFile(m_cdx);
        const std::string all(bytes.begin(), bytes.end());
        const std::size_t at = all.find("CITY+LEFT(NAME,6)");
        return at == std::string::npos
                   ? std::pair(0, 0)
                   : std::pair<int, int>(bytes[at - 512 + 14] & 1, bytes[at - 512 + 502]);
    };
    TestSession session;
    expectPeopleTags(session);
    {
        const Handle people = d4open(session, m_path);
        EXPECT_EQ(d4tagNames(people), (std::vector<std::string>{"ROWID", "NAME", "CITY", "OPENED",
                                                                "ACTNAME", "THEIRS"}));
        EXPECT_EQ(walk(people, "city").size(), 60U);
        EXPECT_EQ(marks(), std::pair(1, 1));
        std::set<std::string> keys; // each once
        for (int id = 1; id <= 60; ++id)
            keys.insert(name(id).substr(0, 6));
        EXPECT_EQ(walk(people, "theirs").size(), keys.size());
        d4close(people);
    }
    code4accessMode(session, 1);
    const Handle alone = d4open(session, m_path);
    EXPECT_EQ(d4reindex(alone), r4success);
    EXPECT_EQ(marks(), std::pair(1, 1));
    d4close(alone);
    EXPECT_EQ(findings(m_path), "");
}

TEST_F(SelfCheck, SessionsThatHaveTheTableOpenGoOn)
{
    TestSession ours;
    TestSession theirs;
    const Handle here = d4open(ours, m_path);
    const Handle there = d4open(theirs, m_path);
    ASSERT_EQ(findPerson(there, 50), r4success);
    for (const std::uint32_t record : {10U, 11U}) // under the key it had
        changeRow(record, 11, "Zz elsewhere        ");
    EXPECT_EQ(walk(here, "name").size(), 60U);
    EXPECT_EQ(walk(there, "name"), sortedBy(there, "name"));
    ASSERT_EQ(findPerson(here, 10), r4success); // a save takes the right old key away
    ASSERT_EQ(d4lock(here, 10), r4success);
    assign(here, "name", "Changed here");
    EXPECT_EQ(d4unlock(here), r4success);
    EXPECT_EQ(walk(there, "name"), sortedBy(here, "name"));
    Bytes bytes = readFile(m_cdx); // a page of NAME, read anew because the other one saves
    std::fill(bytes.begin() + 4096 + 60, bytes.begin() + 4608, std::uint8_t{0xEE});
    writeFile(m_cdx, bytes);
    EXPECT_EQ(addPerson(here, 61, "Sixty-one"), r4success);
    EXPECT_EQ(walk(there, "name"), sortedBy(here, "name"));
    EXPECT_TRUE(ours.takeErrors().empty());
    EXPECT_TRUE(theirs.takeErrors().empty());
    d4close(here);
    d4close(there);
    EXPECT_EQ(findings(m_path), "");
}

TEST_F(SelfCheck, ARowBetweenItsKeysAndItsLockIsNotJudged)
{
    TestSession ours;
    TestSession theirs;
    const Handle here = d4open(ours, m_path);
    const Handle there = d4open(theirs, m_path);
    const Bytes before = readFile(m_cdx);
    ASSERT_EQ(d4go(there, 10), r4success);
    ASSERT_EQ(d4lock(there, 10), r4success);
    changeRow(10, 11, "Zz just now         "); // its keys are to follow
    EXPECT_EQ(walk(here, "name").size(), 59U);
    EXPECT_TRUE(readFile(m_cdx) == before);
    d4unlock(there);
    EXPECT_EQ(walk(here, "name").size(), 60U);
}

TEST_F(SelfCheck, TheSameDamageIsKeptOnceAndFiveCopiesAtMost)
{
    for (int round = 0; round < 12; ++round) {
        Bytes bytes(4096, static_cast<std::uint8_t>(round / 2)); // each twice, one after the other
        writeFile(m_cdx, bytes);
        TestSession session;
        expectPeopleTags(session);
        d4close(d4open(session, m_path));
        EXPECT_EQ(findings(m_path), "") << round;
    }
    for (int n = 1; n <= 6; ++n)
        EXPECT_EQ(fs::exists(m_cdx + ".bad" + (n == 1 ? "" : std::to_string(n))), n <= 5) << n;
}

TEST_F(SelfCheck, RepairGoesUpTheLadderAndTellsWhatIsLeft)
{
    Bytes dbf = readFile(m_path);
    putLe32(&dbf[4], 55);
    dbf[2] = 99;                                                     // no month
    std::copy_n("    999999", 10, dbf.begin() + 289 + 4 * 107 + 87); // a text that is not there
    dbf.insert(dbf.end(), 5000, 'x');                                // and no row behind the last
    writeFile(m_path, dbf);
    Bytes fpt = readFile(m_folder / "people.fpt");
    fpt[3] ^= 0x7F;
    writeFile(m_folder / "people.fpt", fpt);
    fs::resize_file(m_cdx, 4000);

    std::vector<RepairLine> report;
    TestSession session;
    TestSession other;
    expectPeopleTags(session);
    const Handle inUse = d4open(other, m_folder / "people.dbf");
    EXPECT_EQ(d4repair(session, m_path, report), d4locked);
    d4close(inUse);
    report.clear();
    EXPECT_EQ(d4repair(session, m_path, report), r4failure); // the pointer
    std::vector<std::string> left;
    for (const RepairLine &line : report) {
        if (!line.mended)
            left.push_back(line.text);
    }
    ASSERT_EQ(left.size(), 2U); // with texts gone nobody knows where the memo file ended
    EXPECT_EQ(left[0], "row 5, NOTES: a memo pointer leads outside the memo file");
    EXPECT_EQ(findings(m_path), left[0] + "\n" + left[1] + "\n");
    EXPECT_TRUE(readFile(m_folder / "people.fpt") == fpt);
    EXPECT_TRUE(fs::exists(m_path + ".bad") && fs::exists(m_cdx + ".bad"));
    {
        const Handle table = d4open(session, m_path);
        EXPECT_EQ(d4recCountDo(table), 60U);
        ASSERT_EQ(findPerson(table, 5), r4success);
        ASSERT_EQ(d4lock(table, 5), r4success);
        assign(table, "city", "Elsewhere"); // the rest of the row can be changed
        EXPECT_EQ(d4unlock(table), r4success);
        EXPECT_EQ(readFile(m_path)[289 + 4 * 107 + 91], '9');
        d4lock(table, 5);
        assignMemo(table, "notes", "a new text");
        EXPECT_EQ(d4unlock(table), r4success);
        d4close(table);
    }
    report.clear();
    EXPECT_EQ(d4repair(session, m_path, report), r4success);
    EXPECT_TRUE(report.empty());
    fpt = readFile(m_folder / "people.fpt");
    fpt[3] ^= 0x7F;
    writeFile(m_folder / "people.fpt", fpt);
    EXPECT_EQ(d4repair(session, m_path, report), r4success);
    EXPECT_EQ(report.size(), 1U);
    EXPECT_TRUE(readFile(m_folder / "people.fpt.bad") == fpt);
    EXPECT_EQ(findings(m_path), "");
    // a header that makes no sense is left alone
    dbf = readFile(m_path);
    dbf[10] ^= 1;
    writeFile(m_path, dbf);
    EXPECT_EQ(d4repair(session, m_path, report), r4failure);
    EXPECT_EQ(lastError(session).kind, ErrorKind::Damaged);
    EXPECT_EQ(lastError(session).file, m_path);
    EXPECT_TRUE(readFile(m_path) == dbf);
}

} // namespace
