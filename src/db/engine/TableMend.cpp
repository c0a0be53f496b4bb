// Putting right what does not fit the rows: the row count, the ends of files, and the index.
#include "db/engine/Cleanup.h"
#include "db/engine/FieldForms.h"
#include "db/engine/KeepAside.h"
#include "db/engine/LockPlaces.h"
#include "db/engine/TableFiles.h"
#include "db/engine/TagList.h"

#include <algorithm>

namespace norvane::engine
{

namespace
{

using namespace std::chrono_literals;

// In the midst of a read: as long as a person would wait.
const LockPatience kReadPatience{20, 100ms, {}};

// The append lock and the commit lock, in this order; nothing when the table is held exclusively.
class BothLocks
{
public:
    BothLocks() = default;
    ~BothLocks() { (void)release(); }
    BothLocks(const BothLocks &) = delete;
    BothLocks &operator=(const BothLocks &) = delete;

    Status take(LockedFile &table, LockedFile &commit, const LockPatience &patience)
    {
        m_held.reserve(2); // a lock is never held and not noted
        for (LockedFile *file : {&table, &commit}) {
            Status status = waitForLock(patience, LockPace::Brief, [file] {
                return file->tryLock(kLockByte, LockMode::Exclusive);
            });
            if (!status.ok())
                return status;
            m_held.push_back(file);
        }
        return {};
    }
    Status release()
    {
        Status status;
        for (; !m_held.empty(); m_held.pop_back()) {
            Status one = m_held.back()->unlock(kLockByte, LockMode::Exclusive);
            if (status.ok())
                status = std::move(one);
        }
        return status;
    }

private:
    std::vector<LockedFile *> m_held;
};

} // namespace

// As long as the session waits for locks, when that is shorter.
LockPatience TableFiles::atMost(const LockPatience &longest) const
{
    const LockPatience &own = m_settings.patience;
    const bool shorter =
        own.attempts >= 0 && own.attempts * own.delay < longest.attempts * longest.delay;
    return shorter ? own : longest;
}

const std::vector<TagDef> &TableFiles::expectedTags()
{
    static const std::vector<TagDef> none;
    const std::string &file = path();
    const std::size_t from = file.find_last_of("/\\") + 1; // 0 when there is none
    const std::string base = inLowerCase(file.substr(from, file.rfind('.') - from));
    const auto expected = m_settings.expectedTags.find(base);
    return expected == m_settings.expectedTags.end() ? none : expected->second;
}

// Those the file has when they are the right ones, so that handles on tags stay good.
Result<std::vector<TagDef>> TableFiles::tagsToBuild()
{
    if (m_index && checkTags().ok())
        return asDefs(m_index->tags());
    SalvagedTags found;
    if (m_index)
        found.tags = asDefs(m_index->tags());
    else if (m_indexFile)
        found = IndexFile::salvage(m_indexFile->shared(), layout());
    const std::vector<TagDef> &expected = expectedTags();
    if (!m_index && expected.empty())
        return std::vector<TagDef>(); // what can be read of them need not be all
    const std::string foreign = foreignTag(expected, found);
    if (!foreign.empty())
        return Error{ErrorKind::Refused, indexPath(), "the tag " + foreign + " is not supported"};
    return wantedTags(expected, found.tags);
}

Status TableFiles::keep(File &damaged)
{
    return keepAside(m_system, damaged, m_settings.durability == Durability::Full);
}

// ---- with the locks

Status TableFiles::mend(const LockPatience &patience)
{
    for (;;) {
        BothLocks locks;
        bool again = false;
        const int depth = m_lockDepth;
        const Cleanup restore([&] { m_lockDepth = depth; });
        Status status;
        if (!exclusive()) {
            status = locks.take(m_table, lockFile(), patience);
            ++m_lockDepth;
            if (status.ok())
                status = freshen(LockMode::Exclusive);
            if (status.ok())
                status = settle(LockMode::Exclusive, patience);
        }
        if (status.ok())
            status = mendLocked(again);
        const Status released = locks.release();
        if (status.ok() && !again)
            return released;
        if (!status.ok())
            return status;
    }
}

// Decides afresh, as another station may have done it. `again`: an index came to be meanwhile,
// whose lock is not held.
Status TableFiles::mendLocked(bool &again)
{
    if (!m_indexFile && wantsIndex()) {
        m_indexProblem = openIndex(indexPath(), false);
        again = m_indexFile.has_value();
        if (again || (!m_indexProblem.ok() && m_indexProblem.error().kind != ErrorKind::NotFound))
            return again ? Status() : m_indexProblem;
    }
    if (Status status = refreshCount(); !status.ok())
        return status;
    const Status count = checkCount(0);
    if (!count.ok()) {
        if (Status status = mendCountLocked(count.error()); !status.ok())
            return status;
    }
    const Status index = examineIndex(!count.ok());
    if (!index.ok()) {
        if (!isIndexDamage(index.error()))
            return index;
        const Result<std::vector<TagDef>> tags = tagsToBuild();
        if (!tags.ok())
            return tags.error();
        if (tags->empty())
            return index;
        if (m_indexFile) {
            if (Status kept = keep(m_indexFile->file()); !kept.ok())
                return kept;
        }
        if (!m_indexFile && !exclusive()) {
            again = true;
            return makeIndex(*tags);
        }
        if (Status status = buildTagsAnew(*tags, index.error().detail); !status.ok())
            return status;
    }
    m_indexProblem = {};
    m_doubt = {};
    ++m_stamp;
    return {};
}

Status TableFiles::mendCountLocked(const Error &why)
{
    if (why.kind != ErrorKind::Damaged || !m_header.hasUsualLength())
        return why;
    if (exclusive())
        return mendCount();
    const Result<std::uint32_t> behind =
        rowsBehind(maxRecords(m_header.length, layout().recordLength) - m_count);
    if (!behind.ok())
        return behind.error();
    const std::uint32_t rows = m_count + *behind;
    if (Status status = keep(m_table.file()); !status.ok())
        return status;
    if (Status status = m_journal->setCount(rows); !status.ok())
        return status;
    m_mended.push_back({path(), why.detail + "; now it counts " + std::to_string(rows)});
    return refreshCount();
}

Status TableFiles::mendEnds()
{
    if (Status status = keep(m_table.file()); !status.ok())
        return status;
    if (Status status = writeOut(); !status.ok())
        return status;
    Status status = m_journal->setCount(m_count);
    return status.ok() ? refreshCount() : status;
}

Status TableFiles::mendTags()
{
    if (m_indexFile) {
        if (Status status = keep(m_indexFile->file()); !status.ok())
            return status;
    }
    return rebuildIndex();
}

Status TableFiles::mendMemoHeader()
{
    const Result<std::uint32_t> end = m_memo->endBlock();
    if (!end.ok())
        return end.error();
    if (Status status = keep(m_memo->file()); !status.ok())
        return status;
    std::array<Byte, 4> next{};
    putBe32(next.data(), *end);
    return m_memo->file().write(0, next);
}

Status TableFiles::passLostMemos()
{
    if (!m_memo)
        return {};
    if (const Result<std::uint32_t> end = m_memo->endBlock(); !end.ok())
        return end.error();
    std::uint32_t last = 0;
    const RowSource rows = allRows();
    std::uint32_t record = 0;
    ByteView row;
    Result<bool> more = rows.next(record, row);
    for (; more.ok() && *more; more = rows.next(record, row)) {
        for (const FieldDef &field : layout().fields) {
            if (field.type != 'M')
                continue;
            const auto block = memoPointer(row.subspan(field.offset, field.length)).value_or(0);
            if (m_memo->mayLead(block))
                last = std::max(last, block);
        }
    }
    if (!more.ok())
        return more.error();
    Status status = m_memo->passOver(last);
    return status.ok() ? m_memo->file().sync() : status;
}

Status TableFiles::mendAfter(const Error &error)
{
    if (m_copy) {
        m_copyOf.reset();
        return {};
    }
    m_doubt = error;
    m_doubtCounter = m_index ? m_index->counter() : 0;
    Status status = error;
    if (!readOnly())
        status = mend(atMost(kReadPatience));
    m_doubt = {};
    return status.ok() ? Status() : standIn(status.error(), true);
}

} // namespace norvane::engine
