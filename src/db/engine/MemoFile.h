// The memo file of a table: texts in blocks (docs/memo-format.md). Old blocks are never written
// over, so a reader meets either text whole.
#pragma once

#include "db/engine/File.h"

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

    // A piece of the file read in one go, for texts asked for in the order of the file. Nothing
    // in it is looked at again: clear() it before rows read later are served.
    struct Ahead {
        std::uint64_t first = 0; // bytes
        std::uint64_t last = 0;  // where the text read last begins
        std::size_t held = 0;    // of the bytes
        std::vector<Byte> bytes; // kept for its memory

        void clear() { held = 0; }
    };
    // Puts the text that begins at a block into `text`. Damaged when there is none inside the file.
    Status read(std::uint32_t block, std::string &text, Ahead *ahead = nullptr);

    // Texts (none empty) as they will stand behind all others; writes nothing. REQUIRES: nobody
    // else takes blocks before the caller has written them.
    struct Placed {
        std::vector<std::uint32_t> blocks;
        std::uint64_t offset = 0; // bytes
        std::vector<Byte> bytes;
        std::uint32_t next = 0; // for the header: first free block then
    };
    Result<Placed> place(const std::vector<std::string_view> &texts);
    // The first block behind the bytes of the file, whatever the header counts.
    Result<std::uint32_t> endBlock();
    // The file ends behind that block afterwards, its header too; what is added are zeros.
    Status passOver(std::uint32_t block);
    // Whether a text that is gone may have been there: not further off than is made up for.
    // REQUIRES: something was asked of the file before.
    bool mayLead(std::uint32_t block) const;

    // Where a text lies, for the full check.
    struct Extent {
        std::uint64_t first = 0; // block
        std::uint64_t end = 0;   // behind its last block
    };
    // `size`: the file's, in bytes.
    Result<Extent> extentOf(std::uint32_t block, std::uint64_t size);
    // What is wrong with the header, empty when it is sound.
    Result<std::string> headerProblem();

    File &file() { return *m_file; }
    const std::string &path() { return m_file->path(); }

private:
    Status readBlockSize();
    Result<std::uint32_t> countedBlocks(); // the header's next free block
    Result<ByteView> lookAhead(Ahead &ahead, std::uint64_t at);
    Result<std::uint32_t> blockLength(std::uint32_t block, ByteView start, std::uint64_t size);
    std::uint64_t blocksFor(std::uint64_t bytes) const;

    std::shared_ptr<File> m_file;
    std::uint32_t m_blockSize = 0; // bytes, 0 until read
};

// A whole empty memo file.
std::vector<Byte> makeMemoHeader();

} // namespace norvane::engine
