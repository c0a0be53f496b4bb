// Finishing what another station began, without a question.
#include "db/engine/TableJournal.h"

#include "db/engine/LockPlaces.h"

#include <algorithm>

namespace norvane::engine
{

namespace
{

constexpr std::size_t kMemoHead = 8;
constexpr std::uint64_t kLeastMemo = 512; // bytes of an empty file
constexpr std::uint64_t kLeastIndex = 3 * 512;

Error unfinished(const std::string &path)
{
    return {ErrorKind::ReadOnly, path,
            "a station ended in the middle of a save; open the folder once where it can be "
            "written, and the save is finished"};
}

Error unwritten(const std::string &path)
{
    return {ErrorKind::ReadOnly, path,
            "the machine went down before all saves had reached the files; open the folder once "
            "where it can be written, and they are put there"};
}

} // namespace

// True when files written before may have lost their last bytes with the machine.
bool TableJournal::restarted() const
{
    if (m_head.has(JournalHeader::kDurable) && m_head.begun == m_head.applied)
        return false;
    const std::uint64_t boot = m_system.bootMark();
    return boot == 0 ? m_firstUse : m_head.boot != boot;
}

Result<TableJournal::Need> TableJournal::look(bool readOnly)
{
    if (m_inBulk)
        return Need::Nothing;
    const Result<Journal::State> state = m_journal.read(m_head, readOnly);
    if (!state.ok())
        return state.error();
    m_state = *state;
    if (m_state == Journal::State::Missing)
        return Need::Nothing;
    const bool doubtful = m_state == Journal::State::Damaged || m_head.shape != m_shape;
    constexpr std::uint32_t repairs = JournalHeader::kBulk | JournalHeader::kRebuild;
    const bool repair = doubtful || m_head.has(repairs) || restarted();
    const bool finish = !doubtful && m_head.begun != m_head.applied;
    if (readOnly) {
        if (doubtful)
            return Need::Repair;
        if (finish || m_head.has(repairs))
            return unfinished(m_files.at(Target::Table)->path());
        return lookForReading();
    }
    if (repair)
        return Need::Repair;
    return finish ? Need::Finish : Need::Nothing;
}

// Who cannot put the records of before a restart where they belong may read when they are there.
Result<TableJournal::Need> TableJournal::lookForReading()
{
    if (!restarted() || m_lookedThrough == m_head.salt)
        return Need::Nothing;
    const Result<std::vector<JournalRecord>> records =
        m_journal.records(m_head, kJournalStart, m_head.first);
    if (!records.ok())
        return records.error();
    const Result<bool> older = filesAreOlder(*records);
    if (!older.ok())
        return older.error();
    if (*older)
        return Need::Repair;
    const Result<ReplayResult> result = replay(*records, m_files, Replaying::Nothing);
    if (!result.ok())
        return result.error();
    if (result->wrote)
        return unwritten(m_files.at(Target::Table)->path());
    if (result->foreign || m_head.first + records->size() <= m_head.applied)
        return Need::Repair;
    m_lookedThrough = m_head.salt;
    m_firstUse = false;
    return Need::Nothing;
}

Result<bool> TableJournal::recover()
{
    Result<bool> rebuild = finishOthers();
    if (!rebuild.ok())
        leaveNothingWaiting();
    return rebuild;
}

Result<bool> TableJournal::finishOthers()
{
    if (Status status = readHead(); !status.ok())
        return status.error();
    if (m_state == Journal::State::Missing)
        return false;
    if (m_state == Journal::State::Damaged || m_head.shape != m_shape)
        return adoptDamaged();
    const bool restart = restarted();
    const bool bulk = m_head.has(JournalHeader::kBulk);
    bool rebuild = bulk || m_head.has(JournalHeader::kRebuild);
    Status status = replayRecords(restart || m_head.has(JournalHeader::kForce), rebuild);
    if (status.ok() && m_head.begun != m_head.applied)
        status = takeBackGrowth();
    if (status.ok() && bulk)
        status = recountRows(restart);
    if (status.ok() && (restart || bulk))
        status = tidyEnds(bulk);
    if (!status.ok())
        return status.error();
    if (status = noteState(); !status.ok())
        return status.error();
    m_head.begun = m_head.applied;
    if (rebuild)
        m_head.flags |= JournalHeader::kRebuild;
    if (restart || bulk || rebuild)
        status = checkpoint();
    else if (status = onNetwork() ? syncAll() : Status(); status.ok())
        status = writeHead();
    m_firstUse = false;
    if (!status.ok())
        return status.error();
    return rebuild;
}

// Either all records since the last checkpoint or the one that was not applied.
Status TableJournal::replayRecords(bool all, bool &rebuild)
{
    const Result<std::vector<JournalRecord>> records =
        all ? m_journal.records(m_head, kJournalStart, m_head.first)
            : m_journal.records(m_head, m_head.next, m_head.applied + 1);
    if (!records.ok())
        return records.error();
    const Result<bool> older = all ? filesAreOlder(*records) : Result<bool>(false);
    if (!older.ok())
        return older.error();
    if (*older) {
        // Files from a backup were put back beside this journal: its saves are not theirs.
        rebuild = true;
        m_head.applied = m_head.begun;
        return {};
    }
    const std::uint64_t last =
        records->empty() ? (all ? m_head.first - 1 : m_head.applied) : records->back().number;
    if (last < m_head.applied)
        rebuild = true; // saves are missing here, so what the files hold is doubtful
    if (last > m_head.applied) {
        // Its station may have died before the sync: nothing is applied that can still get lost.
        if (Status status = m_journal.sync(); !status.ok())
            return status;
    }
    const Result<ReplayResult> result =
        replay(*records, m_files,
               m_head.has(JournalHeader::kForce) ? Replaying::Everything : Replaying::WhatDiffers);
    if (!result.ok())
        return result.error();
    rebuild = rebuild || result->foreign;
    if (last > m_head.applied) {
        m_head.applied = m_head.begun = last;
        m_head.next = records->back().end;
    }
    return {};
}

// At the last checkpoint all three files were synced, so none can be from before it.
Result<bool> TableJournal::filesAreOlder(const std::vector<JournalRecord> &records) const
{
    if (!m_files.at(Target::Index)) // what is not there tells nothing of the others
        return false;
    const Result<std::uint32_t> counter = counterInIndex();
    if (!counter.ok())
        return counter.error();
    for (const JournalRecord &record : records) {
        for (const Piece &piece : record.pieces) {
            if (piece.target == Target::Index && piece.offset == 0 && piece.bytes.size() >= 12)
                return *counter + 1 < getBe32(&piece.bytes[8]);
        }
    }
    return false;
}

Status TableJournal::setTableEnd(std::uint32_t rows)
{
    File &table = *m_files.at(Target::Table);
    const std::uint64_t end = endOfRows(rows);
    const Result<std::uint64_t> size = table.size();
    if (!size.ok())
        return size.error();
    if (*size < end)
        return {};
    Byte last = 0;
    if (*size == end + 1) {
        const Result<std::size_t> got = table.read(end, ByteSpan(&last, 1));
        if (!got.ok())
            return got.error();
        if (last == kEndOfFile)
            return {};
    }
    last = kEndOfFile;
    Status status = table.write(end, ByteView(&last, 1));
    if (status.ok() && *size > end + 1)
        status = table.resize(end + 1);
    return status;
}

// The begun save never came to its commit: the files get their old ends back.
Status TableJournal::takeBackGrowth()
{
    std::array<std::uint64_t, kTargets> sizes{};
    if (Status status = measure(sizes); !status.ok())
        return status;
    const std::array<std::uint64_t, kTargets> &before = m_head.sizes;
    const Result<std::uint32_t> rows = countInHeader();
    if (!rows.ok())
        return rows.error();
    if (Status status = setTableEnd(*rows); !status.ok())
        return status;
    if (sizes[0] > before[0] && before[0] >= kLeastMemo) {
        // unless another program went on behind it
        File &memo = *m_files.at(Target::Memo);
        std::array<Byte, kMemoHead> head{};
        const Result<std::size_t> got = memo.read(0, head);
        if (!got.ok())
            return got.error();
        const std::uint64_t next = std::uint64_t{getBe32(head.data())} * getBe16(&head[6]);
        if (next <= before[0]) {
            if (Status status = memo.resize(before[0]); !status.ok())
                return status;
        }
    }
    if (sizes[2] > before[2] && before[2] >= kLeastIndex) {
        const Result<std::uint32_t> counter = counterInIndex();
        if (!counter.ok())
            return counter.error();
        if (*counter == m_head.counter)
            return m_files.at(Target::Index)->resize(before[2]);
    }
    return {};
}

// True when two rows or more lie behind the count: a save of ours leaves one at most, several
// only behind an end mark.
Result<bool> TableJournal::foreignRowsBehind(std::uint32_t rows) const
{
    const Result<std::uint64_t> size = m_files.at(Target::Table)->size();
    if (!size.ok())
        return size.error();
    for (std::uint32_t row = rows; row < rows + 2; ++row) {
        if (*size < endOfRows(row) + m_recordLength)
            return false;
        Byte flag = 0;
        const Result<std::size_t> got =
            m_files.at(Target::Table)->read(endOfRows(row), ByteSpan(&flag, 1));
        if (!got.ok())
            return got.error();
        if (flag != kLiveRow && flag != kDeletedRow)
            return false;
    }
    return true;
}

// After a restart nothing is known of growth that was not committed. Rows that are not ours are
// left to the check of the count.
Status TableJournal::tidyEnds(bool afterLoad)
{
    const Result<std::uint32_t> rows = countInHeader();
    if (!rows.ok())
        return rows.error();
    const Result<bool> foreign = afterLoad ? Result<bool>(false) : foreignRowsBehind(*rows);
    if (!foreign.ok())
        return foreign.error();
    if (Status status = *foreign ? Status() : setTableEnd(*rows); !status.ok())
        return status;
    File *memo = m_files.at(Target::Memo);
    if (!memo)
        return {};
    std::array<Byte, kMemoHead> head{};
    const Result<std::size_t> got = memo->read(0, head);
    const Result<std::uint64_t> size = memo->size();
    if (!got.ok() || !size.ok())
        return got.ok() ? size.error() : got.error();
    const std::uint64_t block = getBe16(&head[6]);
    if (block == 0 || *got < head.size() || *size >= kLockByte)
        return {};
    const std::uint64_t end = (*size + block - 1) / block;
    const std::uint64_t next = getBe32(head.data());
    if (next >= end) { // further when the file was cut: see MemoFile::place
        const bool lostInLoad = afterLoad && next > end && next * block < kLockByte;
        return lostInLoad ? memo->resize(next * block) : Status();
    }
    putBe32(head.data(), static_cast<std::uint32_t>(end));
    return memo->write(0, ByteView(head).first(4));
}

// A load broke off: rows that stand in the file count, up to the first that is none. When the
// machine went down with it only those from before the load are known to be whole.
Status TableJournal::recountRows(bool restart)
{
    File &table = *m_files.at(Target::Table);
    const Result<std::uint64_t> size = table.size();
    if (!size.ok())
        return size.error();
    const std::uint64_t body = *size > m_headerLength ? *size - m_headerLength : 0;
    const auto most = static_cast<std::uint32_t>(body / m_recordLength);
    std::uint32_t rows = std::min(m_head.rows, most);
    for (; rows < most && !restart; ++rows) {
        Byte flag = 0;
        const Result<std::size_t> got = table.read(endOfRows(rows), ByteSpan(&flag, 1));
        if (!got.ok())
            return got.error();
        if (flag != kLiveRow && flag != kDeletedRow)
            break;
    }
    const std::vector<Byte> bytes = makeDateAndCount(today(), rows);
    return table.write(kCountPlace, bytes);
}

// It may have held an unfinished save, so what can be worked out from the rows is. The new header
// is laid over the old one: at no moment there is a table without a mark.
Result<bool> TableJournal::adoptDamaged()
{
    const Status kept = m_journal.keepCopy();
    if (!kept.ok() && kept.error().kind != ErrorKind::NoSpace) // no table is lost for want of it
        return kept.error();
    m_head = freshHeader();
    if (Status status = noteState(); !status.ok())
        return status.error();
    m_head.flags = JournalHeader::kRebuild;
    Status status = m_journal.write(m_head);
    if (status.ok())
        status = m_journal.sync();
    if (!status.ok())
        return status.error();
    m_state = Journal::State::Sound;
    status = tidyEnds(false);
    return status.ok() ? Result<bool>(true) : status.error();
}

Status TableJournal::beginRebuild()
{
    if (m_inBulk)
        return {};
    if (Status status = readHead(); !status.ok())
        return status;
    if (Status status = ensureJournal(); !status.ok())
        return status;
    m_head.flags |= JournalHeader::kRebuild;
    if (Status status = checkpoint(); !status.ok()) // records of pages that are about to go
        return status;
    return m_journal.sync();
}

Status TableJournal::endRecords()
{
    return m_state == Journal::State::Sound && !m_head.empty() ? checkpoint() : Status();
}

Status TableJournal::setCount(std::uint32_t rows)
{
    if (!m_inBulk) {
        if (Status status = readHead(); !status.ok())
            return status;
    }
    const bool known = m_state == Journal::State::Sound;
    if (known && !m_head.empty()) {
        if (Status status = checkpoint(); !status.ok())
            return status;
    }
    if (Status status = setTableEnd(rows); !status.ok())
        return status;
    const std::vector<Byte> bytes = makeDateAndCount(today(), rows);
    if (Status status = m_files.at(Target::Table)->write(kCountPlace, bytes); !status.ok())
        return status;
    if (Status status = syncAll(); !status.ok())
        return status;
    m_head.rows = rows;
    return known ? writeHead() : Status();
}

TableJournal::Verdict TableJournal::verdict(std::uint32_t rows, std::uint32_t counter) const
{
    if (m_state != Journal::State::Sound || m_inBulk)
        return Verdict::Changed;
    if (rows == m_head.rows && counter == m_head.counter)
        return Verdict::Sound;
    // Rows never get fewer and the counter never falls, unless files were put back.
    const bool older = rows < m_head.rows || counter < m_head.counter;
    return older ? Verdict::Older : Verdict::Changed;
}

Status TableJournal::rebuilt()
{
    if (Status status = noteState(); !status.ok())
        return status;
    if (Status status = syncAll(); !status.ok())
        return status;
    m_head.flags &= ~JournalHeader::kRebuild;
    return newEpoch(true);
}

} // namespace norvane::engine
