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
constexpr std::size_t kAhead = 64 * 1024;  // bytes read in one go
constexpr std::uint64_t kNear = 16 * 1024; // to the next text, when they are read in order
// A header that counts further behind the end of the file than this is not believed.
constexpr std::uint64_t kMostCut = 64 * 1024 * 1024; // bytes

bool holdsText(ByteView bytes)
{
    return bytes.size() >= kBlockHead && bytes.size() - kBlockHead >= getBe32(&bytes[4]);
}

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

// The bytes from `at` on as far as they are known; none when the texts are not read in order, or
// when this one is longer than what is read ahead.
Result<ByteView> MemoFile::lookAhead(Ahead &ahead, std::uint64_t at)
{
    const bool inOrder = at > ahead.last && at - ahead.last <= kNear;
    ahead.last = at;
    if (at >= ahead.first && at - ahead.first < ahead.held) {
        const ByteView held = ByteView(ahead.bytes).first(ahead.held).subspan(at - ahead.first);
        if (holdsText(held))
            return held;
    }
    if (!inOrder)
        return ByteView();
    if (Status status = m_file->freshen(); !status.ok())
        return status.error();
    ahead.bytes.resize(kAhead);
    const Result<std::size_t> got = m_file->read(at, ahead.bytes);
    ahead.held = got.ok() ? *got : 0;
    ahead.first = at;
    if (!got.ok())
        return got.error();
    const ByteView held = ByteView(ahead.bytes).first(ahead.held);
    return holdsText(held) ? held : ByteView();
}

Status MemoFile::read(std::uint32_t block, std::string &text, Ahead *ahead)
{
    if (Status status = readBlockSize(); !status.ok())
        return status;
    const std::uint64_t at = std::uint64_t{block} * m_blockSize;
    if (ahead) {
        const Result<ByteView> held = lookAhead(*ahead, at);
        if (!held.ok())
            return held.error();
        if (!held->empty()) {
            const Result<std::uint32_t> length = blockLength(block, *held, at + held->size());
            if (!length.ok())
                return length.error();
            text.assign(asText(held->subspan(kBlockHead, *length)));
            return {};
        }
    }
    if (Status status = m_file->freshen(); !status.ok())
        return status;
    // Most texts are short: one read brings head and text.
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

    const ByteView inside = ByteView(start).first(*got).subspan(kBlockHead);
    text.assign(asText(inside.first(std::min<std::size_t>(*length, inside.size()))));
    if (text.size() == *length)
        return {};
    const std::size_t here = text.size();
    text.resize(*length);
    const ByteSpan rest(reinterpret_cast<Byte *>(text.data()) + here, text.size() - here);
    const Result<std::size_t> more = m_file->read(at + kBlockHead + here, rest);
    if (!more.ok())
        return more.error();
    if (*more < rest.size())
        return Error{ErrorKind::Damaged, path(), "a memo is longer than the memo file",
                     static_cast<std::int64_t>(at)};
    return {};
}

Result<std::uint32_t> MemoFile::countedBlocks()
{
    std::array<Byte, 4> head;
    const Result<std::size_t> got = m_file->read(0, head);
    if (!got.ok())
        return got.error();
    return *got < head.size() ? 0U : getBe32(head.data());
}

Result<std::uint32_t> MemoFile::endBlock()
{
    if (Status status = readBlockSize(); !status.ok())
        return status.error();
    const Result<std::uint64_t> size = m_file->size();
    if (!size.ok())
        return size.error();
    if (*size < kHeader)
        return Error{ErrorKind::Damaged, path(), "the memo file has no valid header", 0};
    if (*size >= kLockByte)
        return Error{ErrorKind::TooLarge, path(), "the memo file is full"};
    return static_cast<std::uint32_t>(blocksFor(*size));
}

Status MemoFile::passOver(std::uint32_t block)
{
    const Result<std::uint32_t> end = endBlock();
    if (!end.ok())
        return end.error();
    if (block < *end)
        return {};
    std::array<Byte, 4> next{};
    putBe32(next.data(), block + 1);
    if (Status status = m_file->resize((std::uint64_t{block} + 1) * m_blockSize); !status.ok())
        return status;
    return m_file->write(0, next);
}

bool MemoFile::mayLead(std::uint32_t block) const
{
    return std::uint64_t{block} * m_blockSize < kMostCut;
}

Result<MemoFile::Placed> MemoFile::place(const std::vector<std::string_view> &texts)
{
    const Result<std::uint32_t> end = endBlock();
    const Result<std::uint32_t> counted = countedBlocks();
    if (!end.ok() || !counted.ok())
        return end.ok() ? counted.error() : end.error();
    // A file that was cut ends before its header does: rows may still lead to what was there, and
    // must not come to lead to another row's text. Else the end of the file is the truth.
    const std::uint64_t behind = *counted > *end ? std::uint64_t{*counted} - *end : 0;
    const std::uint64_t start = behind * m_blockSize <= kMostCut ? *end + behind : *end;
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

Result<MemoFile::Extent> MemoFile::extentOf(std::uint32_t block, std::uint64_t size)
{
    if (Status status = readBlockSize(); !status.ok())
        return status.error();
    std::array<Byte, kBlockHead> head;
    const Result<std::size_t> got = m_file->read(std::uint64_t{block} * m_blockSize, head);
    if (!got.ok())
        return got.error();
    const Result<std::uint32_t> length = blockLength(block, ByteView(head).first(*got), size);
    if (!length.ok())
        return length.error();
    return Extent{block, block + blocksFor(kBlockHead + *length)};
}

Result<std::string> MemoFile::headerProblem()
{
    if (Status status = readBlockSize(); !status.ok())
        return status.error();
    const Result<std::uint32_t> next = countedBlocks();
    const Result<std::uint64_t> size = m_file->size();
    if (!next.ok() || !size.ok())
        return next.ok() ? size.error() : next.error();
    if (*size >= kHeader && *next == blocksFor(*size))
        return std::string();
    return "the header's next free block " + std::to_string(*next) + " does not fit the file's " +
           std::to_string(*size) + " bytes";
}

} // namespace norvane::engine
