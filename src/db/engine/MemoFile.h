// The memo file of a table: texts in blocks (docs/memo-format.md). Old blocks are never written
// over, so a reader meets either text whole.
#pragma once

#include "db/engine/LockedFile.h"
#include "db/engine/LockWait.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace norvane::engine
{

class MemoFile
{
public:
    explicit MemoFile(std::shared_ptr<File> file) : m_file(std::move(file)) {}

    // The text that begins at a block. Damaged when there is none inside the file.
    Result<std::string> read(std::uint32_t block);

    // Writes texts (none empty) behind all others and gives their blocks. Takes the memo lock,
    // unless the caller has the table exclusively.
    Result<std::vector<std::uint32_t>> append(const std::vector<std::string_view> &texts,
                                              const LockPatience &patience, bool exclusive);

    // Where a text lies, for the full check.
    struct Extent {
        std::uint64_t first = 0; // block
        std::uint64_t end = 0;   // behind its last block
    };
    Result<Extent> extentOf(std::uint32_t block);
    // What is wrong with the header, empty when it is sound.
    Result<std::string> headerProblem();

    const std::string &path() { return m_file.file().path(); }

private:
    Status readBlockSize();
    Result<std::uint32_t> blockLength(std::uint32_t block, ByteView start, std::uint64_t size);
    Result<std::vector<std::uint32_t>> place(const std::vector<std::string_view> &texts);
    std::uint64_t blocksFor(std::uint64_t bytes) const;

    LockedFile m_file;
    std::uint32_t m_blockSize = 0; // bytes, 0 until read
};

// A whole empty memo file.
std::vector<Byte> makeMemoHeader();

} // namespace norvane::engine
