#include "db/engine/MemoFile.h"

#include "db/engine/LockPlaces.h"

#include <algorithm>
#include <array>

namespace norvane::engine
{

namespace
{

constexpr std::size_t kHeader = 512;
constexpr std::uint16_t kNewBlockSize = 64;
constexpr std::size_t kBlockHead = 8; // kind and length before each text
constexpr std::uint32_t kTextKind = 1;

} // namespace

std::vector<Byte> makeMemoHeader()
{
    std::vector<Byte> bytes(kHeader);
    putBe32(bytes.data(), kHeader / kNewBlockSize);
    putBe16(bytes.data() + 6, kNewBlockSize);
    return bytes;
}

std::uint64_t MemoFile::blocksFor(std::uint64_t bytes) const
{
    return (bytes + m_blockSize - 1) / m_blockSize;
}

Status MemoFile::readBlockSize()
{
    if (m_blockSize != 0)
        return {};
    std::array<Byte, 8> start;
    const Result<std::size_t> got = m_file->read(0, start);
    if (!got.ok())
        return got.error();
    if (*got < start.size() || getBe16(&start[6]) == 0)
        return Error{ErrorKind::Damaged, path(), "the memo file has no valid header", 0};
    m_blockSize = getBe16(&start[6]);
    return {};
}

Result<std::uint32_t> MemoFile::blockLength(std::uint32_t block, ByteView start, std::uint64_t size)
{
    const std::uint64_t at = std::uint64_t{block} * m_blockSize;
    const auto damaged = [&](const char *what) {
        return Error{ErrorKind::Damaged, path(), what, static_cast<std::int64_t>(at)};
    };
    if (at < kHeader || start.size() < kBlockHead)
        return damaged("a memo pointer leads outside the memo file");
    if (getBe32(start.data()) != kTextKind)
        return damaged("a memo pointer does not lead to a text");
    const std::uint32_t length = getBe32(start.data() + 4);
    if (size < at + kBlockHead + length)
        return damaged("a memo is longer than the memo file");
    return length;
}

Result<std::string> MemoFile::read(std::uint32_t block)
{
    if (Status status = readBlockSize(); !status.ok())
        return status.error();
    // Most texts are short: one read brings head and text.
    const std::uint64_t at = std::uint64_t{block} * m_blockSize;
    std::array<Byte, 2048> start;
    const Result<std::size_t> got = m_file->read(at, start);
    if (!got.ok())
        return got.error();
    std::uint64_t known = at + *got;
    if (*got == start.size()) {
        const Result<std::uint64_t> size = m_file->size();
        if (!size.ok())
            return size.error();
        known = *size;
    }
    const Result<std::uint32_t> length = blockLength(block, ByteView(start).first(*got), known);
    if (!length.ok())
        return length.error();

    std::string text(*length, '\0');
    const std::size_t here = std::min(text.size(), *got - kBlockHead);
    std::copy_n(start.begin() + kBlockHead, here, text.begin());
    if (here < text.size()) {
        const ByteSpan rest(reinterpret_cast<Byte *>(text.data()) + here, text.size() - here);
        const Result<std::size_t> more = m_file->read(at + kBlockHead + here, rest);
        if (!more.ok())
            return more.error();
        if (*more < rest.size())
            return Error{ErrorKind::Damaged, path(), "a memo is longer than the memo file",
                         static_cast<std::int64_t>(at)};
    }
    return text;
}

Result<MemoFile::Placed> MemoFile::place(const std::vector<std::string_view> &texts)
{
    if (Status status = readBlockSize(); !status.ok())
        return status.error();
    const Result<std::uint64_t> size = m_file->size();
    if (!size.ok())
        return size.error();
    if (*size < kHeader)
        return Error{ErrorKind::Damaged, path(), "the memo file has no valid header", 0};
    // The end of the file is the truth; a header number that lags or runs away is put right.
    const std::uint64_t start = blocksFor(*size);
    std::uint64_t next = start;
    Placed placed;
    for (const std::string_view text : texts) {
        placed.blocks.push_back(static_cast<std::uint32_t>(next));
        next += blocksFor(kBlockHead + text.size());
    }
    if (next * m_blockSize >= kLockByte)
        return Error{ErrorKind::TooLarge, path(), "the memo file is full"};

    placed.next = static_cast<std::uint32_t>(next);
    placed.offset = start * m_blockSize;
    placed.bytes.resize((next - start) * m_blockSize);
    for (std::size_t i = 0; i < texts.size(); ++i) {
        Byte *at = placed.bytes.data() + (placed.blocks[i] - start) * m_blockSize;
        putBe32(at, kTextKind);
        putBe32(at + 4, static_cast<std::uint32_t>(texts[i].size()));
        std::copy(texts[i].begin(), texts[i].end(), at + kBlockHead);
    }
    return placed;
}

Result<MemoFile::Extent> MemoFile::extentOf(std::uint32_t block)
{
    if (Status status = readBlockSize(); !status.ok())
        return status.error();
    std::array<Byte, kBlockHead> head;
    const Result<std::size_t> got = m_file->read(std::uint64_t{block} * m_blockSize, head);
    if (!got.ok())
        return got.error();
    const Result<std::uint64_t> size = m_file->size();
    if (!size.ok())
        return size.error();
    const Result<std::uint32_t> length = blockLength(block, ByteView(head).first(*got), *size);
    if (!length.ok())
        return length.error();
    return Extent{block, block + blocksFor(kBlockHead + *length)};
}

Result<std::string> MemoFile::headerProblem()
{
    if (Status status = readBlockSize(); !status.ok())
        return status.error();
    std::array<Byte, 4> head;
    const Result<std::size_t> got = m_file->read(0, head);
    const Result<std::uint64_t> size = m_file->size();
    if (!got.ok() || !size.ok())
        return got.ok() ? size.error() : got.error();
    const std::uint64_t next = *got < head.size() ? 0 : getBe32(head.data());
    if (*size >= kHeader && next == blocksFor(*size))
        return std::string();
    return "the header's next free block " + std::to_string(next) + " does not fit the file's " +
           std::to_string(*size) + " bytes";
}

} // namespace norvane::engine
