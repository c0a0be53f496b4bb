#include "db/engine/TableFiles.h"

#include "db/engine/Cleanup.h"
#include "db/engine/LockPlaces.h"

#include <algorithm>
#include <array>
#include <new>

namespace norvane::engine
{

namespace
{

Result<std::unique_ptr<File>> openAny(FileSystem &files, const std::string &path, bool readOnly)
{
    Result<std::unique_ptr<File>> file =
        files.open(path, readOnly ? OpenMode::ReadOnly : OpenMode::ReadWrite);
    if (file.ok())
        return file;
    if (file.error().kind == ErrorKind::ReadOnly && !readOnly)
        return files.open(path, OpenMode::ReadOnly);
    if (file.error().kind != ErrorKind::NotFound)
        return file;
    const Result<std::string> found = files.findIgnoringCase(path);
    if (!found.ok() || *found == path)
        return file;
    return openAny(files, *found, readOnly);
}

// nvncust.dbf goes with nvncust.cdx and nvncust.fpt, a template nvncust.db_ with nvncust.cd_.
std::string besidePath(const std::string &path, std::string_view extension)
{
    const std::size_t dot = path.find_last_of("./\\");
    const bool hasDot = dot != std::string::npos && path[dot] == '.';
    std::string name = hasDot ? path.substr(0, dot + 1) : path + '.';
    name.append(extension);
    if (hasDot && path.ends_with('_'))
        name.back() = '_';
    return name;
}

} // namespace

TableFiles::~TableFiles()
{
    try {
        (void)writeOut();
    } catch (const std::bad_alloc &) {
        giveUp();
    }
}

Result<std::shared_ptr<TableFiles>> TableFiles::open(FileSystem &files, const std::string &path,
                                                     const SessionSettings &settings,
                                                     TableMemory &memory)
{
    Result<std::unique_ptr<File>> table = openAny(files, path, settings.readOnly);
    if (!table.ok())
        return table.error();
    std::shared_ptr<TableFiles> opened(new TableFiles(files, std::move(*table), settings));
    // Held as long as this object lives, so that nobody alone in the table changes it meanwhile.
    if (Status status = opened->m_table.tryLock(kOpenByte, LockMode::Shared); !status.ok())
        return status.error();
    Result<TableHeader> header = readTableHeader(opened->m_table.file());
    if (!header.ok())
        return header.error();
    opened->m_header = std::move(*header);
    if (Status status = opened->takeCount(opened->m_header.count); !status.ok())
        return status.error();
    if (Status status = opened->openBeside(); !status.ok())
        return status.error();
    opened->m_journal = std::make_unique<TableJournal>(files, besidePath(opened->path(), "nvj"),
                                                       opened->m_header, !memory.used);
    opened->nameTargets();
    if (Status status = opened->settleAtOpen(); !status.ok())
        return status.error();
    if (Status status = opened->checkAtOpen(memory); !status.ok())
        return status.error();
    return opened;
}

void TableFiles::nameTargets()
{
    if (m_journal)
        m_journal->setFiles({{m_memo ? &m_memo->file() : nullptr, &m_table.file(),
                              m_indexFile ? &m_indexFile->file() : nullptr}});
}

const std::string *TableFiles::refusingFile()
{
    if (m_table.file().readOnly())
        return &path();
    if (m_memo && m_memo->file().readOnly())
        return &m_memo->path();
    if (m_indexFile && m_indexFile->file().readOnly())
        return &m_indexFile->file().path();
    return m_refusingJournal.empty() ? nullptr : &m_refusingJournal;
}

Status TableFiles::openBeside()
{
    if (m_header.hasMemo()) {
        Result<std::unique_ptr<File>> memo =
            openAny(m_system, besidePath(path(), "fpt"), readOnly());
        if (!memo.ok())
            return memo.error();
        m_memo = std::make_unique<MemoFile>(std::shared_ptr<File>(std::move(*memo)));
    }
    return wantsIndex() ? openIndexBeside() : Status();
}

std::string TableFiles::indexPath()
{
    return m_indexFile ? m_indexFile->file().path() : besidePath(path(), "cdx");
}

// An index that is missing or makes no sense is no reason not to open the table.
Status TableFiles::openIndexBeside()
{
    Status status = openIndex(besidePath(path(), "cdx"), readOnly());
    if (status.ok() || !isIndexDamage(status.error()))
        return status;
    m_indexProblem = status;
    return {};
}

Status TableFiles::openIndex(const std::string &path, bool readOnly)
{
    Result<std::unique_ptr<File>> file = openAny(m_system, path, readOnly);
    if (!file.ok())
        return file.error();
    m_indexFile.emplace(std::shared_ptr<File>(std::move(*file)));
    nameTargets();
    Result<std::unique_ptr<IndexFile>> index = IndexFile::open(m_indexFile->shared(), layout());
    if (!index.ok())
        return index.error();
    m_index = std::move(*index);
    return {};
}

// It may not have come back after it was built anew.
Status TableFiles::reopenIndex()
{
    if (!m_indexGone || m_copy || m_damage)
        return {};
    Status status = openIndex(indexPath(), readOnly());
    m_indexGone = !status.ok();
    return status;
}

Status TableFiles::enterExclusive()
{
    if (Status status = refuseReader(); !status.ok())
        return status;
    if (Status status = m_table.tryLock(kOpenByte, LockMode::Exclusive); !status.ok())
        return status;
    if (++m_exclusive > 1)
        return {};
    Cleanup leave([this] { (void)leaveExclusive(); });
    m_noJournal = false;
    // From here on nothing changes behind this session's back; before it may have.
    Status status = refreshCount();
    if (status.ok() && m_index)
        status = m_index->refresh();
    if (!status.ok() && isIndexDamage(status.error()))
        status = mendAfter(status.error());
    if (status.ok())
        leave.cancel();
    return status;
}

Status TableFiles::leaveExclusive()
{
    Status written = m_exclusive == 1 ? endSoleUse() : Status();
    --m_exclusive;
    Status unlocked = m_table.unlock(kOpenByte, LockMode::Exclusive);
    return written.ok() ? unlocked : written;
}

// When not everything could be written the journal keeps its mark, and whoever takes the lock next
// mends the table.
Status TableFiles::endSoleUse()
{
    Status status;
    try {
        status = writeOut();
        if (status.ok())
            return m_journal ? m_journal->endBulk(true) : Status();
    } catch (const std::bad_alloc &) {
        giveUp();
        status = noMemory();
    }
    if (!m_journal)
        return status;
    (void)m_journal->endBulk(false);
    m_countWaits = m_memoHeadWaits = m_indexLost = false;
    m_unkeyed = 0;
    if (m_index)
        m_index->distrust();
    return status;
}

Status TableFiles::refreshCount()
{
    if (m_countWaits)
        return {}; // nobody else can have changed it
    if (Status status = exclusive() ? Status() : m_table.file().freshen(); !status.ok())
        return status;
    std::array<Byte, 4> bytes;
    const Result<std::size_t> got = m_table.file().read(4, bytes);
    if (!got.ok())
        return got.error();
    return takeCount(*got < bytes.size() ? 0 : getLe32(bytes.data()));
}

Status TableFiles::takeCount(std::uint32_t claimed)
{
    const Result<std::uint64_t> size = m_table.file().size();
    if (!size.ok())
        return size.error();
    m_size = *size;
    m_claimed = claimed;
    m_count = m_header.possibleCount(claimed, m_size);
    if (m_claimed == m_count)
        return {};
    // A server's folder may give a size from before the last append; the row itself decides.
    const std::uint64_t end = m_header.rowPlace(claimed) + layout().recordLength;
    Byte last;
    const Result<std::size_t> got = m_table.file().read(end - 1, ByteSpan(&last, 1));
    if (got.ok() && *got == 1) {
        m_size = std::max(m_size, end);
        m_count = m_header.possibleCount(claimed, m_size);
    }
    return {};
}

// Whole rows that lie behind the last one counted, as far as they look like rows.
Result<std::uint32_t> TableFiles::rowsBehind(std::uint32_t most)
{
    std::uint32_t rows = 0;
    for (; rows < most; ++rows) {
        const std::uint64_t place = m_header.rowPlace(m_count + 1 + rows);
        if (place + layout().recordLength > m_size)
            break;
        Byte flag = 0;
        const Result<std::size_t> got = m_table.file().read(place, ByteSpan(&flag, 1));
        if (!got.ok())
            return got.error();
        if (flag != ' ' && flag != '*')
            break;
    }
    return rows;
}

Status TableFiles::refuseReader()
{
    const std::string *file = refusingFile();
    return file ? Error{ErrorKind::ReadOnly, *file, "the table is open for reading only"}
                : Status();
}

Status TableFiles::mayWrite()
{
    if (Status status = refuseReader(); !status.ok())
        return status;
    if (m_settings.readOnly) // since the table was opened
        return Error{ErrorKind::ReadOnly, path(), "the session is for reading only"};
    return m_damage ? Status(m_damage) : Status();
}

Status TableFiles::checkCount(std::uint32_t tolerated)
{
    if (m_countWaits)
        return {};
    if (m_claimed > m_count)
        return Error{ErrorKind::Damaged, path(),
                     "the header counts " + std::to_string(m_claimed) +
                         " rows, the file has room for " + std::to_string(m_count),
                     4};
    const Result<std::uint32_t> behind = rowsBehind(tolerated + 1);
    if (!behind.ok())
        return behind.error();
    if (*behind <= tolerated)
        return {};
    return Error{ErrorKind::Damaged, path(),
                 "rows lie behind the " + std::to_string(m_count) + " that the header counts", 4};
}

Status TableFiles::mendCount()
{
    const Status count = checkCount(0);
    if (count.ok() || !m_header.hasUsualLength()) // by a wrong length rows would be taken for none
        return count;
    if (Status status = keep(m_table.file()); !status.ok())
        return status;
    const Result<std::uint32_t> behind =
        rowsBehind(maxRecords(m_header.length, layout().recordLength) - m_count);
    if (!behind.ok())
        return behind.error();
    m_count += *behind;
    ++m_stamp;
    m_countWaits = true;
    return {};
}

Status TableFiles::readRows(std::uint32_t first, ByteSpan into)
{
    const std::uint64_t place = m_header.rowPlace(first);
    const Result<std::size_t> got = m_table.file().read(place, into);
    if (!got.ok())
        return got.error();
    if (*got < into.size())
        return Error{ErrorKind::Damaged, path(), "the file ends inside a record",
                     static_cast<std::int64_t>(place)};
    return {};
}

Status TableFiles::checkRoom(std::uint32_t rows)
{
    const std::uint32_t most = maxRecords(m_header.length, layout().recordLength);
    if (m_count < most && rows <= most - m_count)
        return checkCount(1); // one may be left of an append that is not yet taken back
    return Error{ErrorKind::TooLarge, path(), "the table is full"};
}

Status TableFiles::dropIndexChanges()
{
    m_index->discard();
    m_indexLost = m_indexLost || m_indexWaits > 0;
    return m_indexLost ? rebuildIndex() : Status();
}

// The next lock finishes or takes back what was begun on disk; here nothing is relied on.
void TableFiles::giveUp()
{
    ++m_stamp;
    m_noJournal = false;
    const bool changesRow = exclusive() && !m_pieces.empty() && m_newCount == 0;
    m_indexLost = m_indexLost || m_indexWaits > 0 || changesRow;
    m_indexWaits = 0;
    m_pieces.clear();
    m_doubt = {};
    m_copyOf.reset();
    if (!m_index)
        return;
    m_index->discard();
    m_index->distrust();
    m_indexDoubted = exclusive();
}

// Sole use: the index as it has to be for the next operation.
Status TableFiles::settleAlone(LockMode mode)
{
    if (m_indexLost)
        return rebuildIndex();
    m_indexDoubted = m_indexDoubted || m_indexGone;
    Status status = reopenIndex();
    if (status.ok() && m_index && m_indexDoubted)
        status = m_index->refresh();
    m_indexDoubted = !status.ok();
    return status.ok() && mode == LockMode::Shared ? keyRows() : status;
}

Status TableFiles::writeOutCount()
{
    if (!m_countWaits)
        return {};
    m_header.changed = today();
    Status status = m_table.file().write(kCountPlace, makeDateAndCount(m_header.changed, m_count));
    m_countWaits = !status.ok();
    m_claimed = m_count;
    return status;
}

Status TableFiles::writeOut()
{
    const Status keyed = keyRows();
    const Status written = flush();
    return keyed.ok() ? written : keyed;
}

Status TableFiles::flush()
{
    Status status = writeOutCount();
    const Status head = writeOutMemoHead();
    const Status committed = writeOutIndex();
    if (status.ok())
        status = head;
    return status.ok() ? committed : status;
}

Status TableFiles::writeOutMemoHead()
{
    if (!m_memoHeadWaits)
        return {};
    const Result<MemoFile::Placed> end = m_memo->place({});
    if (!end.ok())
        return end.error();
    std::array<Byte, 4> head;
    putBe32(head.data(), end->next);
    Status status = m_memo->file().write(0, head);
    m_memoHeadWaits = !status.ok();
    return status;
}

Status TableFiles::writeOutIndex()
{
    if (m_indexWaits == 0)
        return {};
    if (!m_index->commit().ok())
        return rebuildIndex(); // many rows' keys were to come with it
    m_indexWaits = 0;
    return {};
}

RowSource TableFiles::allRows()
{
    struct Pass {
        std::vector<Byte> block;
        std::uint32_t first = 1; // record at the front of the block
        std::uint32_t held = 0;
        std::uint32_t at = 0;
    };
    auto pass = std::make_shared<Pass>();
    const std::uint32_t rows = std::max(1U, (1U << 18) / layout().recordLength);
    return {[this, pass, rows](std::uint32_t &record, ByteView &row) -> Result<bool> {
        const std::size_t length = layout().recordLength;
        if (pass->at == pass->held) {
            pass->first += pass->held;
            pass->at = 0;
            pass->held = 0;
            if (pass->first > m_count)
                return false;
            const std::uint32_t now = std::min(rows, m_count - pass->first + 1);
            pass->block.resize(now * length);
            Status status = readRows(pass->first, pass->block);
            if (!status.ok())
                return status.error();
            pass->held = now;
        }
        record = pass->first + pass->at;
        row = ByteView(pass->block).subspan(pass->at * length, length);
        ++pass->at;
        return true;
    }};
}

} // namespace norvane::engine
