// Saving through the journal.
#include "db/engine/TableJournal.h"

#include "db/engine/Crc32c.h"
#include "db/engine/LockPlaces.h"

#include <algorithm>
#include <random>

namespace norvane::engine
{

namespace
{

constexpr std::uint64_t kFull = kJournalSize / 4 * 3;
// Bytes; with so many the journal still ends below the lock bytes.
constexpr std::uint64_t kMostInSave = kLockByte / 2;
constexpr std::uint64_t kIndexCounter = 8; // place in the index header, high byte first

std::uint64_t newSalt()
{
    static std::random_device device;
    return std::uint64_t{device()} << 32 | device();
}

// Of what stays the same while a table lives: its fields and lengths.
std::uint32_t shapeOf(const TableHeader &header)
{
    std::uint32_t crc = crc32c(asBytes(std::to_string(header.length)));
    for (const FieldDef &field : header.layout.fields) {
        const std::string text = field.name + field.type + std::to_string(field.length);
        crc = crc32c(asBytes(text), crc);
    }
    return crc;
}

} // namespace

TableJournal::TableJournal(FileSystem &files, std::string path, const TableHeader &header,
                           bool firstUse)
    : m_system(files),
      m_journal(files, std::move(path)),
      m_headerLength(header.length),
      m_recordLength(header.layout.recordLength),
      m_shape(shapeOf(header)),
      m_firstUse(firstUse)
{
}

JournalHeader TableJournal::freshHeader() const
{
    JournalHeader head;
    head.salt = newSalt();
    head.boot = m_system.bootMark();
    head.shape = m_shape;
    return head;
}

Status TableJournal::readHead()
{
    const Result<Journal::State> state = m_journal.read(m_head, false);
    if (!state.ok())
        return state.error();
    m_state = *state;
    return {};
}

Status TableJournal::ensureJournal()
{
    if (m_state == Journal::State::Sound)
        return {};
    m_head = freshHeader();
    Status status = m_journal.create(m_head, true, m_files.at(Target::Table)->path());
    if (status.ok())
        status = announce();
    if (status.ok())
        m_state = Journal::State::Sound;
    else
        (void)m_journal.remove();
    return status;
}

// Sessions that found no journal look for one again when the index's change counter has moved.
// Synced with all that may just have been copied here, since the records build on it.
Status TableJournal::announce()
{
    File *index = m_files.at(Target::Index);
    if (!index)
        return syncAll();
    const Result<std::uint32_t> counter = counterInIndex();
    if (!counter.ok())
        return counter.error();
    std::array<Byte, 4> bytes{};
    putBe32(bytes.data(), *counter + 1);
    Status status = index->write(kIndexCounter, bytes);
    return status.ok() ? syncAll() : status;
}

Status TableJournal::measure(std::array<std::uint64_t, kTargets> &sizes) const
{
    for (std::size_t i = 0; i < kTargets; ++i) {
        sizes[i] = 0;
        if (!m_files.files[i])
            continue;
        const Result<std::uint64_t> size = m_files.files[i]->size();
        if (!size.ok())
            return size.error();
        sizes[i] = *size;
    }
    return {};
}

Result<std::uint32_t> TableJournal::countInHeader() const
{
    std::array<Byte, 4> bytes{};
    const Result<std::size_t> got = m_files.at(Target::Table)->read(4, bytes);
    return got.ok() ? Result<std::uint32_t>(getLe32(bytes.data())) : got.error();
}

Result<std::uint32_t> TableJournal::counterInIndex() const
{
    std::array<Byte, 4> bytes{};
    if (!m_files.at(Target::Index))
        return 0U;
    const Result<std::size_t> got = m_files.at(Target::Index)->read(kIndexCounter, bytes);
    return got.ok() ? Result<std::uint32_t>(getBe32(bytes.data())) : got.error();
}

// Row count and change counter as the files have them now.
Status TableJournal::noteState()
{
    const Result<std::uint32_t> rows = countInHeader();
    const Result<std::uint32_t> counter = counterInIndex();
    if (!rows.ok() || !counter.ok())
        return rows.ok() ? counter.error() : rows.error();
    m_head.rows = *rows;
    m_head.counter = *counter;
    return {};
}

// Records from before another program's write, or from before a restart of the machine, must
// never be laid over what came later: they end here.
Status TableJournal::noteOthersWrites()
{
    const Result<std::uint32_t> rows = countInHeader();
    const Result<std::uint32_t> counter = counterInIndex();
    if (!rows.ok() || !counter.ok())
        return rows.ok() ? counter.error() : rows.error();
    const bool foreign = *rows != m_head.rows || *counter != m_head.counter;
    const bool restart = !m_head.has(JournalHeader::kDurable) && m_head.boot != m_system.bootMark();
    if (!m_head.empty() && (foreign || restart)) {
        if (Status status = checkpoint(); !status.ok())
            return status;
    }
    m_head.rows = *rows;
    m_head.counter = *counter;
    m_head.boot = m_system.bootMark();
    return {};
}

Status TableJournal::captureBefore(Pieces &pieces) const
{
    std::vector<Byte> disk;
    for (Piece &piece : pieces) {
        piece.before.clear();
        disk.assign(piece.bytes.size(), 0);
        const Result<std::size_t> got = m_files.at(piece.target)->read(piece.offset, disk);
        if (!got.ok())
            return got.error();
        for (std::size_t n = 0; n < sectorsIn(piece.offset, disk.size()); ++n)
            piece.before.push_back(crc32c(sectorPart(disk, piece.offset, n)));
    }
    return {};
}

Status TableJournal::makeRoom(std::size_t length)
{
    const bool suspect = m_head.has(JournalHeader::kForce);
    return suspect || (!m_head.empty() && m_head.next + length > kFull) ? checkpoint() : Status();
}

Status TableJournal::commit(Pieces &pieces, Durability durability, bool &committed)
{
    committed = false;
    if (Status status = ensureJournal(); !status.ok())
        return status;
    if (Status status = noteOthersWrites(); !status.ok())
        return status;
    std::uint64_t bytes = 0;
    for (const Piece &piece : pieces)
        bytes += piece.bytes.size();
    if (bytes > kMostInSave)
        return Error{ErrorKind::TooLarge, m_journal.path(), "too much for one save"};
    if (Status status = captureBefore(pieces); !status.ok())
        return status;
    const std::uint64_t number = m_head.applied + 1;
    std::vector<Byte> record = Journal::encode(number, m_head.salt, pieces);
    const std::uint64_t salt = m_head.salt;
    if (Status status = makeRoom(record.size()); !status.ok())
        return status;
    if (m_head.salt != salt)
        record = Journal::encode(number, m_head.salt, pieces);

    if (Status status = measure(m_head.sizes); !status.ok())
        return status;
    m_head.begun = number;
    if (durability == Durability::Full)
        m_head.flags |= JournalHeader::kPromised;
    if (Status status = m_journal.write(m_head); !status.ok())
        return abandon(status, false);
    const bool network = onNetwork();
    Status status = network ? growOnNetwork(pieces) : grow(pieces);
    if (!status.ok())
        return abandon(status, false);
    if (status = store(record, durability == Durability::Full || network); !status.ok())
        return abandon(status, true);
    committed = true;

    status = apply(pieces);
    if (!status.ok())
        status = apply(pieces);
    if (status.ok() && network)
        status = syncOrDoubt();
    if (status.ok())
        finish(pieces, record.size());
    return status;
}

// What lengthens the files comes before the commit, while it can still fail for lack of room.
Status TableJournal::grow(const Pieces &pieces)
{
    for (const Piece &piece : pieces) {
        if (!piece.fresh)
            continue;
        File &file = *m_files.at(piece.target);
        if (Status status = file.write(piece.offset, piece.bytes); !status.ok())
            return status;
        // Rows behind the count were never acknowledged; what is left of them goes.
        if (piece.target == Target::Table && m_head.sizes[1] > piece.end()) {
            if (Status status = file.resize(piece.end()); !status.ok())
                return status;
        }
    }
    return {};
}

// A server may find that it has no room only when the bytes come to it, and what has come there
// must be known as begun.
Status TableJournal::growOnNetwork(const Pieces &pieces)
{
    std::array<bool, kTargets> grows{};
    for (const Piece &piece : pieces)
        grows[static_cast<std::size_t>(piece.target)] |= piece.fresh;
    if (std::find(grows.begin(), grows.end(), true) == grows.end())
        return {};
    Status status = m_journal.sync();
    if (status.ok())
        status = grow(pieces);
    for (std::size_t i = 0; i < kTargets && status.ok(); ++i) {
        if (grows[i])
            status = m_files.files[i]->sync();
    }
    return status;
}

Status TableJournal::store(const std::vector<Byte> &record, bool withSync)
{
    if (Status status = m_journal.writeRecord(m_head.next, record); !status.ok())
        return status;
    return withSync ? m_journal.sync() : Status();
}

// Leaves no trace of a save that failed before its commit. What cannot be undone now is left to
// recover(), which finds the save begun and no record of it.
Status TableJournal::abandon(Status failure, bool recordWritten)
{
    const bool wiped = !recordWritten || m_journal.wipeRecord(m_head.next).ok();
    if (wiped && takeBackGrowth().ok()) {
        m_head.begun = m_head.applied;
        (void)writeHead();
    }
    leaveNothingWaiting();
    return failure;
}

Status TableJournal::apply(const Pieces &pieces)
{
    for (const Piece &piece : pieces) {
        if (piece.fresh)
            continue;
        if (Status status = m_files.at(piece.target)->write(piece.offset, piece.bytes);
            !status.ok())
            return status;
    }
    return {};
}

void TableJournal::finish(const Pieces &pieces, std::size_t length)
{
    for (const Piece &piece : pieces) {
        if (piece.target == Target::Table && piece.offset == kCountPlace && piece.bytes.size() >= 7)
            m_head.rows = getLe32(&piece.bytes[3]);
        if (piece.target == Target::Index && piece.offset == 0)
            m_head.counter = getBe32(&piece.bytes[kIndexCounter]);
    }
    const bool allDurable = onNetwork() && (m_head.empty() || m_head.has(JournalHeader::kDurable));
    m_head.flags &= ~JournalHeader::kDurable;
    m_head.flags |= allDurable ? JournalHeader::kDurable : 0;
    m_head.applied = m_head.begun;
    m_head.next += length;
    // When this fails the save is done all the same, and found done by the next one.
    (void)writeHead();
}

Status TableJournal::newEpoch(bool withSync)
{
    m_head.salt = newSalt();
    m_head.first = m_head.applied + 1;
    m_head.begun = m_head.applied;
    m_head.next = kJournalStart;
    m_head.boot = m_system.bootMark();
    m_head.shape = m_shape;
    m_head.flags &= JournalHeader::kRebuild;
    Status status = m_journal.write(m_head);
    // Before a record of the new salt is written over one of the old that a power cut would
    // bring back.
    if (status.ok() && withSync)
        status = m_journal.sync();
    if (status.ok())
        m_journal.shrink();
    return status;
}

Status TableJournal::checkpoint()
{
    if (m_head.has(JournalHeader::kForce)) {
        const Result<std::vector<JournalRecord>> records =
            m_journal.records(m_head, kJournalStart, m_head.first);
        if (!records.ok())
            return records.error();
        const Result<ReplayResult> result = replay(*records, m_files, Replaying::Everything);
        if (!result.ok())
            return result.error();
    }
    // Saves that were to survive a killed process only are in the files by now.
    constexpr std::uint32_t synced =
        JournalHeader::kPromised | JournalHeader::kBulk | JournalHeader::kForce;
    if (!m_head.has(synced) && !onNetwork())
        return newEpoch(false);
    Status status = syncOrDoubt();
    return status.ok() ? newEpoch(true) : status;
}

// The system may have dropped what it could not write: next time all on record is written again.
Status TableJournal::syncOrDoubt()
{
    Status status = syncAll();
    if (!status.ok()) {
        m_head.flags |= JournalHeader::kForce;
        (void)writeHead();
    }
    return status;
}

// On a network folder it is not left to wait here: after the unlock it would be laid over another
// host's.
Status TableJournal::writeHead()
{
    Status status = m_journal.write(m_head);
    return status.ok() && onNetwork() ? m_journal.sync() : status;
}

Status TableJournal::syncAll()
{
    Status status;
    for (File *file : m_files.files) {
        const Status synced = file ? syncOne(*file) : Status();
        if (status.ok())
            status = synced;
    }
    return status;
}

// Through an open file of its own, so that a failure is never asked for twice on one; not so on a
// network folder: on SMB that file's close would take the locks with it (docs/locking.md).
Status TableJournal::syncOne(File &file)
{
    if (file.onNetwork())
        return file.sync();
    const Result<std::unique_ptr<File>> own = m_system.open(file.path(), OpenMode::ReadWrite);
    return own.ok() ? (*own)->sync() : own.error();
}

// After a failure on a network folder: what this host wrote and has not sent yet would be laid over
// another's bytes after the unlock.
void TableJournal::leaveNothingWaiting()
{
    if (onNetwork())
        (void)syncAll();
}

Status TableJournal::beginBulk()
{
    if (m_inBulk)
        return {};
    if (m_state == Journal::State::Sound && !m_head.empty()) {
        if (Status status = checkpoint(); !status.ok())
            return status;
    }
    const bool known = m_state == Journal::State::Sound;
    if (!known)
        m_head = freshHeader();
    const Result<std::uint32_t> rows = countInHeader();
    if (!rows.ok())
        return rows.error();
    m_head.rows = *rows;
    m_head.flags |= JournalHeader::kBulk;
    Status status = known ? m_journal.write(m_head)
                          : m_journal.create(m_head, false, m_files.at(Target::Table)->path());
    if (status.ok() && known)
        status = m_journal.sync();
    if (!status.ok())
        return status;
    m_state = Journal::State::Sound;
    m_inBulk = true;
    return {};
}

// Nobody else has the table open, so the journal may go altogether.
Status TableJournal::endBulk(bool complete)
{
    if (!m_inBulk)
        return {};
    m_inBulk = false; // with the mark left standing, whoever comes next mends the table
    if (!complete) {
        leaveNothingWaiting();
        return {};
    }
    if (Status status = syncAll(); !status.ok())
        return status;
    if (Status status = noteState(); !status.ok())
        return status;
    if (Status status = newEpoch(true); !status.ok())
        return status;
    if (m_journal.remove().ok())
        m_state = Journal::State::Missing;
    return {};
}

} // namespace norvane::engine
