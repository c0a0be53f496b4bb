// One save as a whole, the lock it is made under, and the mending of what others left.
#include "db/engine/Cleanup.h"
#include "db/engine/LockPlaces.h"
#include "db/engine/TableFiles.h"

#include <algorithm>
#include <new>

namespace norvane::engine
{

namespace
{

using namespace std::chrono_literals;

// Opening a table that has to be mended waits this long for those who use it.
const LockPatience kMendPatience{100, 100ms, {}};

constexpr int kMostRecoveries = 8; // for one lock: others may leave something again meanwhile

} // namespace

// ---- putting a save together

Status TableFiles::beginSave()
{
    m_pieces.clear();
    m_newRows.clear();
    m_newCount = 0;
    return reopenIndex();
}

Result<std::vector<std::uint32_t>> TableFiles::putMemos(const std::vector<std::string_view> &texts)
{
    Result<MemoFile::Placed> placed = m_memo->place(texts);
    if (!placed.ok())
        return placed.error();
    m_pieces.push_back({Target::Memo, true, placed->offset, std::move(placed->bytes), {}});
    m_memoHeadWaits = exclusive();
    if (!exclusive()) {
        std::vector<Byte> head(4);
        putBe32(head.data(), placed->next);
        m_pieces.push_back({Target::Memo, false, 0, std::move(head), {}});
    }
    return std::move(placed->blocks);
}

void TableFiles::putRow(std::uint32_t record, ByteView row)
{
    m_pieces.push_back(
        {Target::Table, false, m_header.rowPlace(record), {row.begin(), row.end()}, {}});
}

void TableFiles::putNewRow(ByteView row)
{
    m_newRows.insert(m_newRows.end(), row.begin(), row.end());
    ++m_newCount;
}

// One row that is left behind the count is known to be of a save that was not to be. Several would
// be taken for those of another program: so they lie behind an end mark until they count.
void TableFiles::putNewRows()
{
    const std::uint64_t place = m_header.rowPlace(m_count + 1);
    const Byte flag = m_newRows.front();
    const bool several = m_newCount > 1;
    if (several)
        m_newRows.front() = kEndOfFile;
    m_newRows.push_back(kEndOfFile);
    m_pieces.push_back({Target::Table, true, place, std::move(m_newRows), {}});
    m_newRows = {};
    if (!exclusive()) {
        m_header.changed = today();
        m_pieces.push_back({Target::Table,
                            false,
                            kCountPlace,
                            makeDateAndCount(m_header.changed, m_count + m_newCount),
                            {}});
    }
    if (several)
        m_pieces.push_back({Target::Table, false, place, {flag}, {}});
}

void TableFiles::putHead()
{
    if (m_newCount > 0)
        putNewRows();
    else if (dateIsOld())
        putDate();
}

// The header's date of change is this day's after any write.
void TableFiles::putDate()
{
    m_header.changed = today();
    std::vector<Byte> bytes = makeDateAndCount(m_header.changed, 0);
    bytes.resize(3);
    m_pieces.push_back({Target::Table, false, kCountPlace, std::move(bytes), {}});
}

bool TableFiles::dateIsOld() const
{
    Date date = today();
    date.year %= 100;
    Date stored = m_header.changed;
    stored.year %= 100;
    return !(date == stored);
}

Status TableFiles::commitSave()
{
    ++m_stamp;
    m_tagsAreNew = false;
    putHead();
    const bool appends = m_newCount > 0;
    const std::uint32_t rows = m_count + m_newCount;
    Status status = exclusive() ? writePast() : commitThroughJournal();
    m_pieces.clear();
    if (!status.ok())
        return status;
    if (appends) {
        m_count = rows; // a save finished by recover() is counted already
        m_claimed = m_count;
        m_size = m_header.rowPlace(m_count + 1) + 1;
        m_countWaits = exclusive();
    }
    if (!exclusive() || !m_index)
        return {};
    if (appends)
        m_unkeyed += m_newCount;
    else if (++m_indexWaits >= kMostWaiting)
        return flush();
    return {};
}

Status TableFiles::commitThroughJournal()
{
    std::vector<PageChange> pages;
    m_noJournal = false;
    if (m_index) {
        pages = m_index->changes();
        const Result<std::uint64_t> size = m_indexFile->file().size();
        if (!size.ok()) {
            m_index->discard();
            return size.error();
        }
        for (const PageChange &page : pages)
            m_pieces.push_back({Target::Index, page.offset >= *size, page.offset, page.bytes, {}});
    }
    bool committed = false;
    Status status = m_journal->commit(m_pieces, m_settings.durability, committed);
    if (m_index && status.ok()) {
        m_index->noteWritten(pages);
    } else if (m_index) {
        m_index->discard();
        m_index->distrust();
    }
    // On record it will be found and finished by the next lock; better now, or it would be
    // reported as failed and appear all the same.
    return !status.ok() && committed && recover().ok() ? Status() : status;
}

// ---- alone in the table

Status TableFiles::writePast()
{
    if (Status status = m_journal->beginBulk(); !status.ok())
        return status;
    for (const Piece &piece : m_pieces) {
        File &file = piece.target == Target::Memo ? m_memo->file() : m_table.file();
        Status status = file.write(piece.offset, piece.bytes);
        if (status.ok() && m_newCount > 0 && piece.target == Target::Table && m_size > piece.end())
            status = file.resize(piece.end());
        if (!status.ok()) {
            takeBackPast();
            return status;
        }
    }
    return {};
}

// Room again on a full disk.
void TableFiles::takeBackPast()
{
    for (const Piece &piece : m_pieces) {
        if (!piece.fresh)
            continue;
        if (piece.target == Target::Memo) {
            (void)m_memo->file().resize(piece.offset);
            continue;
        }
        const Byte mark = kEndOfFile;
        (void)m_table.file().write(piece.offset, ByteView(&mark, 1));
        (void)m_table.file().resize(piece.offset + 1);
        m_size = piece.offset + 1;
    }
}

void TableFiles::restoreRow(std::uint32_t record, ByteView row)
{
    (void)m_table.file().write(m_header.rowPlace(record), row);
}

// ---- the lock

Status TableFiles::takeCommitLock(LockMode mode, const LockPatience &patience)
{
    if (Status status = reopenIndex(); !status.ok())
        return status;
    return waitForLock(patience, LockPace::Brief,
                       [this, mode] { return lockFile().tryLock(kLockByte, mode); });
}

// A journal that comes into being moves the change counter before it is used, so while that stands
// there is still none, and the pages are still good. Spares a search for a file that is not there.
bool TableFiles::nothingNew()
{
    return m_noJournal && m_index && m_index->unchanged();
}

// Under the lock nobody is in the middle of a save, so what is unfinished belongs to the dead.
Status TableFiles::settle(LockMode mode, const LockPatience &patience)
{
    for (int recoveries = 0;; ++recoveries) {
        const Result<TableJournal::Need> need = m_journal->look(readOnly());
        if (!need.ok())
            return need.error();
        if (*need == TableJournal::Need::Nothing)
            return {};
        if (readOnly())
            return m_copy ? Status() : Status(staleIndex());
        if (mode == LockMode::Exclusive)
            return recover();
        if (recoveries == kMostRecoveries)
            return Error{ErrorKind::Damaged, path(),
                         "what stations left unfinished could not be finished"};
        // The shared lock goes first: two who wait for each other's would wait for ever.
        Status status = lockFile().unlock(kLockByte, LockMode::Shared);
        if (status.ok())
            status = recoverAlone(patience);
        if (status.ok())
            status = takeCommitLock(LockMode::Shared, patience);
        if (!status.ok())
            return status;
    }
}

Status TableFiles::recoverAlone(const LockPatience &patience)
{
    Status status = takeCommitLock(LockMode::Exclusive, patience);
    if (!status.ok())
        return status;
    Cleanup letGo([this] { (void)lockFile().unlock(kLockByte, LockMode::Exclusive); });
    status = recover();
    letGo.cancel();
    const Status released = lockFile().unlock(kLockByte, LockMode::Exclusive);
    return status.ok() ? released : status;
}

// On a network folder the lock itself makes at most the bytes of its own file fresh.
Status TableFiles::freshen(LockMode mode)
{
    Status status = m_table.file().freshen();
    if (status.ok() && m_indexFile)
        status = m_indexFile->file().freshen();
    if (status.ok() && m_memo && mode == LockMode::Exclusive)
        status = m_memo->file().freshen();
    return status;
}

Status TableFiles::settleAtOpen()
{
    if (readOnly())
        return settleForReading();
    const Result<TableJournal::Need> need = m_journal->look(false);
    if (!need.ok() && need.error().kind == ErrorKind::ReadOnly) {
        m_refusingJournal = need.error().file;
        return settleForReading();
    }
    if (!need.ok())
        return need.error();
    if (*need == TableJournal::Need::Nothing)
        return {};
    // A save under way is finished by its own station, or by whoever takes the lock next.
    const LockPatience once{0, 0ms, {}};
    const bool urgent = *need == TableJournal::Need::Repair;
    Status status = recoverAlone(urgent ? atMost(kMendPatience) : once);
    const bool inUse = !status.ok() && status.error().kind == ErrorKind::Locked;
    return inUse && !urgent ? Status() : status;
}

// What looks unfinished may be a save under way; with the lock held it is not.
Status TableFiles::settleForReading()
{
    using Need = TableJournal::Need;
    if (const Result<Need> need = m_journal->look(true); need.ok() && *need == Need::Nothing)
        return {};
    if (Status status = takeCommitLock(LockMode::Shared, kMendPatience); !status.ok())
        return status;
    const Result<Need> need = m_journal->look(true);
    const Status released = lockFile().unlock(kLockByte, LockMode::Shared);
    if (!need.ok())
        return need.error();
    if (*need != Need::Nothing && wantsIndex() && m_indexProblem.ok())
        m_indexProblem = staleIndex();
    return released;
}

Error TableFiles::staleIndex()
{
    return indexDamage("the journal does not tell whether the index has all changes");
}

Status TableFiles::recover()
{
    if (Status status = freshen(LockMode::Exclusive); !status.ok())
        return status;
    const Result<bool> rebuild = m_journal->recover();
    if (!rebuild.ok())
        return rebuild.error();
    ++m_stamp;
    m_noJournal = false;
    if (m_index)
        m_index->distrust();
    Status status = refreshCount();
    if (status.ok() && *rebuild)
        status = mendIndex();
    return status;
}

TableFiles::IndexLock::~IndexLock()
{
    try {
        (void)release();
    } catch (const std::bad_alloc &) {
        m_files = nullptr; // the byte is free, only the words of a failure were not to be had
    }
}

Status TableFiles::IndexLock::take(TableFiles &files, LockMode mode, const LockPatience &patience)
{
    if (files.exclusive())
        return files.m_copy ? files.refreshCopy() : files.settleAlone(mode);
    if (Status status = files.takeCommitLock(mode, patience); !status.ok())
        return status;
    m_files = &files;
    m_mode = mode;
    const bool outermost = ++files.m_lockDepth == 1;
    Status status = outermost ? files.freshen(mode) : Status();
    if (status.ok() && !files.m_copy && files.nothingNew())
        return {};
    if (status.ok() && outermost)
        status = files.settle(mode, patience);
    if (!status.ok()) {
        (void)release();
        return status;
    }
    files.m_noJournal = false;
    status = files.refreshIndex();
    files.m_noJournal = status.ok() && files.m_index && !files.m_copy && files.m_journal->missing();
    return status;
}

Status TableFiles::IndexLock::release()
{
    if (!m_files)
        return {};
    TableFiles *files = m_files;
    m_files = nullptr;
    --files->m_lockDepth;
    return files->lockFile().unlock(kLockByte, m_mode);
}

} // namespace norvane::engine
