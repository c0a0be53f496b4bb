// One save as a whole, the lock it is made under, and the mending of what others left.
#include "db/engine/LockPlaces.h"
#include "db/engine/TableFiles.h"

#include <algorithm>

namespace norvane::engine
{

namespace
{

using namespace std::chrono_literals;

// Uncommitted index changes an exclusive session may collect; bounds memory.
constexpr int kMostWaiting = 20000;
constexpr std::size_t kCopied = 1 << 20; // bytes at a time
// Opening a table that has to be mended waits this long for those who read it.
const LockPatience kMendPatience{100, 100ms, {}};

} // namespace

// ---- putting a save together

Result<std::vector<std::uint32_t>> TableFiles::putMemos(const std::vector<std::string_view> &texts)
{
    Result<MemoFile::Placed> placed = m_memo->place(texts);
    if (!placed.ok())
        return placed.error();
    std::vector<Byte> head(4);
    putBe32(head.data(), placed->next);
    m_pieces.push_back({Target::Memo, true, placed->offset, std::move(placed->bytes), {}});
    m_pieces.push_back({Target::Memo, false, 0, std::move(head), {}});
    return std::move(placed->blocks);
}

void TableFiles::putRow(std::uint32_t record, ByteView row)
{
    m_appends = false;
    m_pieces.push_back(
        {Target::Table, false, m_header.rowPlace(record), {row.begin(), row.end()}, {}});
    if (dateIsOld())
        putDate();
}

void TableFiles::putNewRow(ByteView row)
{
    m_appends = true;
    std::vector<Byte> bytes(row.begin(), row.end());
    bytes.push_back(kEndOfFile);
    m_pieces.push_back({Target::Table, true, m_header.rowPlace(m_count + 1), std::move(bytes), {}});
    if (exclusive())
        return;
    m_header.changed = today();
    m_pieces.push_back(
        {Target::Table, false, kCountPlace, makeDateAndCount(m_header.changed, m_count + 1), {}});
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
    Status status = exclusive() ? writePast() : commitThroughJournal();
    m_pieces.clear();
    if (!status.ok())
        return status;
    if (m_appends) {
        ++m_count;
        m_claimed = m_count;
        m_size = m_header.rowPlace(m_count + 1) + 1;
        m_countWaits = exclusive();
    }
    if (exclusive() && m_index && ++m_indexWaits >= kMostWaiting)
        status = writeOut();
    return status;
}

Status TableFiles::commitThroughJournal()
{
    std::vector<PageChange> pages;
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
        if (committed)
            m_index->distrust();
    }
    return status;
}

// ---- alone in the table

Status TableFiles::writePast()
{
    if (Status status = m_journal->beginBulk(); !status.ok())
        return status;
    for (const Piece &piece : m_pieces) {
        File &file = piece.target == Target::Memo ? m_memo->file() : m_table.file();
        Status status = file.write(piece.offset, piece.bytes);
        if (status.ok() && m_appends && piece.target == Target::Table && m_size > piece.end())
            status = file.resize(piece.end());
        if (!status.ok()) {
            takeBackPast();
            return status;
        }
    }
    return {};
}

// Room again on a full disk. A memo header that runs ahead is put right by the next text.
void TableFiles::takeBackPast()
{
    for (const Piece &piece : m_pieces) {
        if (!piece.fresh)
            continue;
        if (piece.target == Target::Memo) {
            (void)m_memo->file().resize(piece.offset);
            std::vector<Byte> head(4);
            if (const Result<MemoFile::Placed> none = m_memo->place({}); none.ok()) {
                putBe32(head.data(), none->next);
                (void)m_memo->file().write(0, head);
            }
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
    return waitForLock(patience, LockPace::Brief,
                       [this, mode] { return lockFile().tryLock(kLockByte, mode); });
}

// Under the lock nobody is in the middle of a save, so what is unfinished belongs to the dead.
Status TableFiles::settle(LockMode mode, const LockPatience &patience)
{
    const Result<TableJournal::Need> need = m_journal->look(readOnly());
    if (!need.ok())
        return need.error();
    if (*need == TableJournal::Need::Nothing)
        return {};
    if (mode == LockMode::Exclusive)
        return recover();
    // The shared lock goes first: two who wait for each other's would wait for ever.
    Status status = lockFile().unlock(kLockByte, LockMode::Shared);
    if (status.ok())
        status = takeCommitLock(LockMode::Exclusive, patience);
    if (!status.ok())
        return status;
    status = recover();
    const Status shared = lockFile().tryLock(kLockByte, LockMode::Shared);
    const Status released = lockFile().unlock(kLockByte, LockMode::Exclusive);
    if (status.ok())
        status = shared.ok() ? released : shared;
    return status;
}

Status TableFiles::settleAtOpen()
{
    if (readOnly())
        return settleForReading();
    const Result<TableJournal::Need> need = m_journal->look(false);
    if (!need.ok())
        return need.error();
    if (*need == TableJournal::Need::Nothing)
        return {};
    // A save under way is finished by its own station, or by whoever takes the lock next.
    const LockPatience once{0, 0ms, {}};
    const bool urgent = *need == TableJournal::Need::Repair;
    Status status = takeCommitLock(LockMode::Exclusive, urgent ? kMendPatience : once);
    if (!status.ok())
        return !urgent && status.error().kind == ErrorKind::Locked ? Status() : status;
    status = recover();
    const Status released = lockFile().unlock(kLockByte, LockMode::Exclusive);
    return status.ok() ? released : status;
}

// What looks unfinished may be a save under way; with the lock held it is not.
Status TableFiles::settleForReading()
{
    if (m_journal->look(true).ok())
        return {};
    if (Status status = takeCommitLock(LockMode::Shared, kMendPatience); !status.ok())
        return status;
    const Status status = m_journal->look(true).status();
    const Status released = lockFile().unlock(kLockByte, LockMode::Shared);
    return status.ok() ? released : status;
}

Status TableFiles::recover()
{
    const Result<bool> rebuild = m_journal->recover();
    if (!rebuild.ok())
        return rebuild.error();
    ++m_stamp;
    if (m_index)
        m_index->distrust();
    Status status = refreshCount();
    if (status.ok() && *rebuild)
        status = mendIndex();
    return status;
}

// Tags anew from the rows, laid over the old index under its lock, so that other sessions may
// have the table open. Broken off, it is begun again: the journal keeps the mark.
Status TableFiles::mendIndex()
{
    if (!m_index)
        return m_journal->rebuilt();
    std::vector<TagDef> tags;
    for (const TagInfo &tag : m_index->tags())
        tags.push_back({tag.name, tag.expression, tag.filter});
    const std::string beside = m_indexFile->file().path() + ".new";
    (void)m_system.remove(beside);
    Result<std::unique_ptr<File>> made = m_system.open(beside, OpenMode::CreateNew);
    if (!made.ok())
        return made.error();
    const std::shared_ptr<File> fresh = std::move(*made);
    Status status = buildIndex(*fresh, layout(), tags, allRows());
    if (status.ok())
        status = layOver(*fresh);
    (void)m_system.remove(beside);
    if (!status.ok())
        return status;
    Result<std::unique_ptr<IndexFile>> index = IndexFile::open(m_indexFile->shared(), layout());
    if (!index.ok())
        return index.error();
    m_index = std::move(*index);
    return m_journal->rebuilt();
}

Status TableFiles::layOver(File &fresh)
{
    // Sessions that have the table open know where its tags begin.
    const std::shared_ptr<File> borrowed(&fresh, [](File *) {});
    const Result<std::unique_ptr<IndexFile>> index = IndexFile::open(borrowed, layout());
    if (!index.ok())
        return index.error();
    const bool alone = m_table.tryLock(kOpenByte, LockMode::Exclusive).ok();
    if (alone)
        (void)m_table.unlock(kOpenByte, LockMode::Exclusive);
    else if (!(*index)->laidOutLike(*m_index))
        return Error{ErrorKind::Locked, m_indexFile->file().path(),
                     "the index has to be built anew; close the table at the other stations"};
    File &live = m_indexFile->file();
    std::vector<Byte> head(indexPageSize);
    Result<std::size_t> got = live.read(0, head);
    if (!got.ok())
        return got.error();
    const std::uint32_t counter = getBe32(&head[8]) + 1;
    const Result<std::uint64_t> size = fresh.size();
    if (!size.ok())
        return size.error();
    std::vector<Byte> bytes;
    for (std::uint64_t at = indexPageSize; at < *size; at += bytes.size()) {
        bytes.resize(static_cast<std::size_t>(std::min<std::uint64_t>(kCopied, *size - at)));
        got = fresh.read(at, bytes);
        if (!got.ok())
            return got.error();
        if (Status status = live.write(at, bytes); !status.ok())
            return status;
    }
    got = fresh.read(0, head);
    if (!got.ok())
        return got.error();
    putBe32(&head[8], counter); // makes everybody read the pages anew
    Status status = live.write(0, head);
    return status.ok() ? live.resize(*size) : status;
}

TableFiles::IndexLock::~IndexLock()
{
    (void)release();
}

Status TableFiles::IndexLock::take(TableFiles &files, LockMode mode, const LockPatience &patience)
{
    if (files.exclusive())
        return {};
    if (Status status = files.takeCommitLock(mode, patience); !status.ok())
        return status;
    m_files = &files;
    m_mode = mode;
    if (++files.m_lockDepth == 1) {
        if (Status status = files.settle(mode, patience); !status.ok()) {
            (void)release();
            return status;
        }
    }
    return files.m_index ? files.m_index->refresh() : Status();
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
