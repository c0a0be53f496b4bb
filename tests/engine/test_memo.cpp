#include "engine/TableFixture.h"

#include "db/engine/MemoFile.h"

#include <gtest/gtest.h>

#include <filesystem>

using namespace norvane::engine;
using namespace enginetest;

namespace
{

class Memos : public testing::Test
{
protected:
    void SetUp() override
    {
        writeFile(m_path, makeMemoHeader());
        reopen();
    }
    void reopen()
    {
        m_memo.reset();
        m_memo = std::make_unique<MemoFile>(
            std::shared_ptr<File>(std::move(*systemFiles().open(m_path, OpenMode::ReadWrite))));
    }
    std::vector<std::uint32_t> add(const std::vector<std::string_view> &texts)
    {
        const auto placed = m_memo->place(texts);
        EXPECT_TRUE(placed.ok()) << placed.error().detail;
        if (!placed.ok())
            return {};
        Bytes head(4);
        putBe32(head.data(), placed->next);
        EXPECT_TRUE(m_memo->file().write(placed->offset, placed->bytes).ok());
        EXPECT_TRUE(m_memo->file().write(0, head).ok());
        return placed->blocks;
    }
    std::string textAt(std::uint32_t block)
    {
        std::string text;
        const Status read = m_memo->read(block, text);
        return read.ok() ? text : "(" + read.error().detail + ")";
    }
    ErrorKind kindAt(std::uint32_t block)
    {
        std::string text;
        return m_memo->read(block, text).error().kind;
    }

    TempFolder m_folder;
    std::string m_path = m_folder / "some.fpt";
    std::unique_ptr<MemoFile> m_memo;
};

TEST_F(Memos, TextsOfEachLengthComeBack)
{
    // around block borders, around what one read brings, at the limit of the program's boxes
    for (const std::size_t size : {1U, 55U, 56U, 57U, 64U, 2039U, 2040U, 2041U, 32767U, 300000U}) {
        std::string text(size, '\0');
        for (std::size_t i = 0; i < size; ++i)
            text[i] = static_cast<char>(i * 7);
        const auto blocks = add({text, "and another"});
        ASSERT_EQ(blocks.size(), 2U);
        EXPECT_EQ(textAt(blocks[0]), text) << size;
        EXPECT_EQ(textAt(blocks[1]), "and another") << size;
        EXPECT_EQ(m_memo->headerProblem().value(), "");
    }
    EXPECT_EQ(std::filesystem::file_size(m_path) % 64, 0U);
}

TEST_F(Memos, AHeaderThatLagsOrRunsAwayCostsNoText)
{
    const std::uint32_t first = add({"first text"})[0];
    for (const std::uint32_t next : {0U, 8U, 9U, 5000U, 0xFFFFFFFFU}) {
        Bytes bytes = readFile(m_path);
        putBe32(bytes.data(), next);
        writeFile(m_path, bytes);
        reopen();
        const std::uint32_t more = add({"more"})[0];
        EXPECT_EQ(textAt(first), "first text") << next;
        EXPECT_EQ(textAt(more), "more") << next;
        EXPECT_EQ(m_memo->headerProblem().value(), "") << next;
    }
}

TEST_F(Memos, NoTextIsPlacedWhereTheCutOffOnesStood)
{
    const std::uint32_t kept = add({"first text"})[0];
    const std::vector<std::uint32_t> lost = add({"second text", std::string(500, 't')});
    std::filesystem::resize_file(m_path, lost[1] * 64);
    const std::uint32_t fresh = add({std::string(1000, 'n')})[0];
    EXPECT_GT(fresh, lost[1] + 7);
    EXPECT_EQ(textAt(kept), "first text");
    EXPECT_EQ(textAt(lost[0]), "second text");
    EXPECT_EQ(kindAt(lost[1]), ErrorKind::Damaged);
    EXPECT_EQ(textAt(fresh), std::string(1000, 'n'));
    EXPECT_EQ(m_memo->headerProblem().value(), "");
}

TEST_F(Memos, AFileThatEndsBehindItsLastTextIsContinued)
{
    const std::uint32_t first = add({"first text"})[0];
    std::filesystem::resize_file(m_path, 512 + 8 + 10); // as other programs leave it
    EXPECT_EQ(m_memo->headerProblem().value(), "");
    EXPECT_EQ(textAt(first), "first text");
    EXPECT_EQ(add({"second"})[0], 9U);
    EXPECT_EQ(textAt(first), "first text");
}

TEST_F(Memos, PointersToNoTextAreDamage)
{
    add({"a text"});
    for (const std::uint32_t block : {0U, 7U, 9U, 1000U, 0x7FFFFFFFU, 0xFFFFFFFFU})
        EXPECT_EQ(kindAt(block), ErrorKind::Damaged) << block;
    Bytes bytes = readFile(m_path);
    putBe32(&bytes[516], 0xFFFFFFFF); // a length beyond the file
    writeFile(m_path, bytes);
    EXPECT_EQ(kindAt(8), ErrorKind::Damaged);
    EXPECT_EQ(m_memo->extentOf(8, bytes.size()).error().kind, ErrorKind::Damaged);
    putBe32(&bytes[512], 0); // a picture
    writeFile(m_path, bytes);
    EXPECT_EQ(kindAt(8), ErrorKind::Damaged);
}

} // namespace
