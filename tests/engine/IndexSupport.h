// What the index tests share: files in memory, layouts, rows, and a check that must find nothing.
#pragma once

#include "db/engine/IndexFile.h"
#include "support/MemoryFile.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

namespace norvane::test
{

struct FieldSpec {
    const char *name;
    char type;
    std::uint16_t length;
};

inline RowLayout makeLayout(std::initializer_list<FieldSpec> fields)
{
    RowLayout layout;
    for (const FieldSpec &field : fields) {
        layout.fields.push_back({field.name, field.type, layout.recordLength, field.length, 0});
        layout.recordLength = static_cast<std::uint16_t>(layout.recordLength + field.length);
    }
    return layout;
}

// A record from the texts of its fields, numbers to be given right-justified.
inline std::string makeRow(const RowLayout &layout, std::vector<std::string> values,
                           bool deleted = false)
{
    std::string row(1, deleted ? '*' : ' ');
    for (std::size_t i = 0; i < values.size(); ++i) {
        values[i].resize(layout.fields[i].length, ' ');
        row += values[i];
    }
    return row;
}

// Rows by record number, given as a source. The map must outlive it.
inline RowSource rowsOf(const std::map<std::uint32_t, std::string> &rows)
{
    auto place =
        std::make_shared<std::map<std::uint32_t, std::string>::const_iterator>(rows.begin());
    return {[place, &rows](std::uint32_t &record, ByteView &row) -> Result<bool> {
        if (*place == rows.end())
            return false;
        record = (*place)->first;
        row = asBytes((*place)->second);
        ++*place;
        return true;
    }};
}

inline std::vector<Byte> readWholeFile(const std::string &path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

inline std::shared_ptr<MemoryFile> memoryFile(std::vector<Byte> bytes = {})
{
    auto content = std::make_shared<MemoryContent>();
    content->bytes = std::move(bytes);
    return std::make_shared<MemoryFile>("index.cdx", content);
}

inline std::vector<Byte> bytesOf(MemoryFile &file)
{
    std::vector<Byte> bytes(static_cast<std::size_t>(*file.size()));
    EXPECT_EQ(bytes.size(), *file.read(0, bytes));
    return bytes;
}

// All entries of a tag, walked upwards.
inline Result<std::vector<IndexEntry>> walk(IndexFile &index, int tag)
{
    std::vector<IndexEntry> all;
    std::string key;
    std::uint32_t record = 0;
    for (;;) {
        auto block = index.entriesFrom(tag, key, record);
        if (!block.ok())
            return block.error();
        if (block->empty())
            return all;
        all.insert(all.end(), block->begin(), block->end());
        key = all.back().key;
        record = all.back().record + 1;
    }
}

inline void expectSound(IndexFile &index, const RowSource &rows)
{
    const auto findings = checkIndex(index, rows);
    ASSERT_TRUE(findings.ok()) << findings.error().detail;
    for (const std::string &line : *findings)
        ADD_FAILURE() << line;
}

} // namespace norvane::test
