#include "db/engine/Journal.h"

#include "db/engine/Crc32c.h"
#include "db/engine/KeepAside.h"
#include "db/engine/LockPlaces.h"

#include <algorithm>

namespace norvane::engine
{

namespace
{

constexpr std::size_t kHeaderLength = 128;
constexpr std::string_view kHeaderMagic = "NVJRNL01";
constexpr std::uint32_t kRecordMagic = 0x3152564E; // "NVR1"
constexpr std::size_t kRecordHead = 32;
constexpr std::size_t kPieceHead = 16;
constexpr std::uint64_t kMostSaves = std::uint64_t{1} << 62;
constexpr std::uint64_t kLongJournal = 64 * kJournalSize; // some groups of a thousand rows

using HeaderBytes = std::array<Byte, kHeaderLength>;

HeaderBytes encodeHeader(const JournalHeader &header)
{
    HeaderBytes bytes{};
    std::copy(kHeaderMagic.begin(), kHeaderMagic.end(), bytes.begin());
    putLe32(&bytes[12], header.flags);
    putLe64(&bytes[16], header.salt);
    putLe64(&bytes[24], header.first);
    putLe64(&bytes[32], header.applied);
    putLe64(&bytes[40], header.begun);
    putLe64(&bytes[48], header.next);
    putLe64(&bytes[56], header.boot);
    for (std::size_t i = 0; i < header.sizes.size(); ++i)
        putLe64(&bytes[64 + 8 * i], header.sizes[i]);
    putLe32(&bytes[88], header.rows);
    putLe32(&bytes[92], header.counter);
    putLe32(&bytes[96], header.shape);
    putLe32(&bytes[8], crc32c(ByteView(bytes).subspan(12)));
    return bytes;
}

bool decodeHeader(const HeaderBytes &bytes, JournalHeader &header)
{
    if (asText(bytes).substr(0, kHeaderMagic.size()) != kHeaderMagic ||
        getLe32(&bytes[8]) != crc32c(ByteView(bytes).subspan(12)))
        return false;
    header.flags = getLe32(&bytes[12]);
    header.salt = getLe64(&bytes[16]);
    header.first = getLe64(&bytes[24]);
    header.applied = getLe64(&bytes[32]);
    header.begun = getLe64(&bytes[40]);
    header.next = getLe64(&bytes[48]);
    header.boot = getLe64(&bytes[56]);
    for (std::size_t i = 0; i < header.sizes.size(); ++i)
        header.sizes[i] = getLe64(&bytes[64 + 8 * i]);
    header.rows = getLe32(&bytes[88]);
    header.counter = getLe32(&bytes[92]);
    header.shape = getLe32(&bytes[96]);
    return header.next >= kJournalStart && header.next < kLockByte && header.first > 0 &&
           header.applied < kMostSaves && header.first <= header.applied + 1 &&
           header.begun - header.applied <= 1;
}

// Takes one piece from the front of `bytes`; false when it makes no sense.
bool takePiece(ByteView &bytes, Piece &piece)
{
    if (bytes.size() < kPieceHead || bytes[0] >= kTargets || bytes[1] > 1)
        return false;
    piece.target = static_cast<Target>(bytes[0]);
    piece.fresh = bytes[1] == 1;
    const std::size_t length = getLe32(&bytes[4]);
    piece.offset = getLe64(&bytes[8]);
    bytes = bytes.subspan(kPieceHead);
    if (length == 0 || piece.offset >= kLockByte || piece.offset + length > kLockByte)
        return false;
    const std::size_t sums = sectorsIn(piece.offset, length);
    if (bytes.size() < sums * 4 || bytes.size() - sums * 4 < length)
        return false;
    for (std::size_t i = 0; i < sums; ++i)
        piece.before.push_back(getLe32(&bytes[4 * i]));
    bytes = bytes.subspan(4 * sums);
    piece.bytes.assign(bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(length));
    bytes = bytes.subspan(length);
    return true;
}

// The record that begins at `bytes`; false when there is none of this salt and number.
bool decodeRecord(ByteView bytes, std::uint64_t salt, std::uint64_t number, JournalRecord &record)
{
    if (bytes.size() < kRecordHead || getLe32(bytes.data()) != kRecordMagic)
        return false;
    const std::size_t length = getLe32(&bytes[4]);
    if (length < kRecordHead || length > bytes.size() || getLe64(&bytes[16]) != number ||
        getLe64(&bytes[24]) != salt || getLe32(&bytes[8]) != crc32c(bytes.subspan(12, length - 12)))
        return false;
    record.number = number;
    const std::size_t count = getLe32(&bytes[12]);
    ByteView rest = bytes.subspan(kRecordHead, length - kRecordHead);
    for (std::size_t i = 0; i < count; ++i) {
        if (!takePiece(rest, record.pieces.emplace_back()))
            return false;
    }
    record.end = length;
    return true;
}

} // namespace

Status Journal::reopen()
{
    if (m_file)
        return {};
    Result<std::unique_ptr<File>> file = m_system.open(m_path, OpenMode::ReadWrite);
    if (!file.ok())
        return file.error();
    m_file = std::move(*file);
    return {};
}

Result<Journal::State> Journal::read(JournalHeader &header, bool readOnly)
{
    if (!m_file) {
        Result<std::unique_ptr<File>> file =
            m_system.open(m_path, readOnly ? OpenMode::ReadOnly : OpenMode::ReadWrite);
        if (!file.ok() && file.error().kind == ErrorKind::NotFound)
            return State::Missing;
        if (!file.ok())
            return file.error();
        m_file = std::move(*file);
    } else if (Status status = m_file->freshen(); !status.ok()) {
        return status.error();
    }
    HeaderBytes bytes{};
    const Result<std::size_t> got = m_file->read(0, bytes);
    if (!got.ok())
        return got.error();
    if (*got == bytes.size() && decodeHeader(bytes, header))
        return State::Sound;
    const bool blank = std::all_of(bytes.begin(), bytes.end(), [](Byte b) { return b == 0; });
    return blank ? State::Missing : State::Damaged;
}

Status Journal::create(const JournalHeader &header, bool fullLength, const std::string &table)
{
    if (!m_file) {
        Result<std::unique_ptr<File>> file = m_system.open(m_path, OpenMode::CreateNew);
        if (file.ok())
            m_file = std::move(*file);
        else if (Status status = reopen(); !status.ok()) // one that was never finished
            return file.error();
        m_file->takeRightsOf(table);
    }
    // Its name first: a header that stands here is that of a file which cannot get lost.
    Status status = m_system.syncFolderOf(m_path);
    // Room for the records is taken now: a sync that need not lengthen the file is much quicker.
    if (status.ok() && fullLength) {
        const std::vector<Byte> zeros(kJournalSize - kJournalStart);
        status = m_file->write(kJournalStart, zeros);
    }
    if (status.ok())
        status = write(header);
    if (status.ok())
        status = sync();
    if (!status.ok())
        (void)remove();
    return status;
}

Status Journal::write(const JournalHeader &header)
{
    if (Status status = reopen(); !status.ok())
        return status;
    return m_file->write(0, encodeHeader(header));
}

Status Journal::sync()
{
    if (Status status = reopen(); !status.ok())
        return status;
    Status status = m_file->sync();
    if (!status.ok())
        close();
    return status;
}

Status Journal::remove()
{
    close();
    return m_system.remove(m_path);
}

Status Journal::keepCopy()
{
    Status status = reopen();
    return status.ok() ? keepAside(m_system, *m_file, true) : status;
}

std::vector<Byte> Journal::encode(std::uint64_t number, std::uint64_t salt, const Pieces &pieces)
{
    std::size_t length = kRecordHead;
    for (const Piece &piece : pieces)
        length += kPieceHead + 4 * piece.before.size() + piece.bytes.size();
    std::vector<Byte> bytes;
    bytes.resize(length); // given to the constructor, gcc at -O3 warns of an empty one
    putLe32(bytes.data(), kRecordMagic);
    putLe32(&bytes[4], static_cast<std::uint32_t>(length));
    putLe32(&bytes[12], static_cast<std::uint32_t>(pieces.size()));
    putLe64(&bytes[16], number);
    putLe64(&bytes[24], salt);
    Byte *at = bytes.data() + kRecordHead;
    for (const Piece &piece : pieces) {
        at[0] = static_cast<Byte>(piece.target);
        at[1] = piece.fresh ? 1 : 0;
        putLe32(at + 4, static_cast<std::uint32_t>(piece.bytes.size()));
        putLe64(at + 8, piece.offset);
        at += kPieceHead;
        for (const std::uint32_t sum : piece.before) {
            putLe32(at, sum);
            at += 4;
        }
        at = std::copy(piece.bytes.begin(), piece.bytes.end(), at);
    }
    putLe32(&bytes[8], crc32c(ByteView(bytes).subspan(12)));
    return bytes;
}

Status Journal::writeRecord(std::uint64_t offset, ByteView record)
{
    if (Status status = reopen(); !status.ok())
        return status;
    return m_file->write(offset, record);
}

Status Journal::wipeRecord(std::uint64_t offset)
{
    constexpr std::array<Byte, kRecordHead> nothing{};
    Status status = writeRecord(offset, nothing);
    if (!status.ok() && m_file) // what cannot be overwritten may still be cut off
        status = m_file->resize(offset);
    return status;
}

Result<std::vector<JournalRecord>> Journal::records(const JournalHeader &header,
                                                    std::uint64_t offset, std::uint64_t number)
{
    std::vector<JournalRecord> list;
    if (Status status = reopen(); !status.ok())
        return status.error();
    const Result<std::uint64_t> size = m_file->size();
    if (!size.ok())
        return size.error();
    if (*size <= offset || *size > kLockByte)
        return list;
    std::vector<Byte> bytes(static_cast<std::size_t>(*size - offset));
    const Result<std::size_t> got = m_file->read(offset, bytes);
    if (!got.ok())
        return got.error();
    ByteView rest = ByteView(bytes).first(*got);
    for (JournalRecord record; decodeRecord(rest, header.salt, number, record); ++number) {
        const std::size_t length = static_cast<std::size_t>(record.end);
        rest = rest.subspan(length);
        offset += length;
        record.end = offset;
        list.push_back(std::move(record));
        record = {};
    }
    return list;
}

void Journal::shrink()
{
    if (!m_file)
        return;
    const Result<std::uint64_t> size = m_file->size();
    if (size.ok() && *size > kLongJournal)
        (void)m_file->resize(kJournalSize);
}

} // namespace norvane::engine
