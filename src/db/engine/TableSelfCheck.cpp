// Does the index fit the table? A look at few pages at each opening, at more of them when something
// else may have written (docs/crash-safety.md, "Self-check").
#include "db/engine/LockPlaces.h"
#include "db/engine/TableFiles.h"
#include "db/engine/TagList.h"

#include <algorithm>

namespace norvane::engine
{

namespace
{

using namespace std::chrono_literals;

constexpr std::uint32_t kProbedRows = 3;
constexpr std::size_t kProbedBytes = 16 * 1024; // live rows are looked for in so many at the end
// For those who use a table that has to be mended when it is opened.
const LockPatience kMendPatience{100, 100ms, {}};
const LockPatience kOnce{0, 0ms, {}};

} // namespace

bool TableFiles::isIndexDamage(const Error &error)
{
    const bool kind = error.kind == ErrorKind::Damaged || error.kind == ErrorKind::NotFound ||
                      error.kind == ErrorKind::Refused;
    return kind && inLowerCase(error.file).ends_with(path().ends_with('_') ? ".cd_" : ".cdx");
}

Error TableFiles::indexDamage(std::string detail, std::int64_t place)
{
    return {ErrorKind::Damaged, indexPath(), std::move(detail), place};
}

Status TableFiles::checkAtOpen(TableMemory &memory)
{
    if (!memory.used && !readOnly())
        removeLeftover();
    // In the middle of a save nothing can be judged; whoever saves, or takes the lock next, leaves
    // the table whole.
    if (m_journal->saveUnderWay() && m_indexProblem.ok())
        return {};
    const Status count = checkCount(readOnly() ? 1 : 0);
    const Status index = lookAtIndex(memory);
    if (count.ok() && index.ok()) {
        memory = {true, m_claimed, m_index ? m_index->counter() : 0};
        return {};
    }
    if (!count.ok() && count.error().kind != ErrorKind::Damaged)
        return count;
    if (!index.ok() && !isIndexDamage(index.error()))
        return index;
    memory.used = true;
    if (readOnly())
        return standIn(index.ok() ? count.error() : index.error(), !index.ok());
    const Status mended = mend(atMost(kMendPatience));
    return mended.ok() ? Status() : standIn(mended.error(), !index.ok());
}

Status TableFiles::lookAtIndex(const TableMemory &memory)
{
    if (!m_indexProblem.ok())
        return m_indexProblem;
    if (!m_index)
        return {};
    if (Status status = checkTags(); !status.ok())
        return status;
    const TableJournal::Verdict verdict = m_journal->verdict(m_claimed, m_index->counter());
    const bool known =
        memory.used && memory.rows == m_claimed && memory.counter == m_index->counter();
    if (known || (verdict == TableJournal::Verdict::Sound && memory.used))
        return {};
    if (verdict == TableJournal::Verdict::Older)
        return indexDamage("the index is older than the table");
    Status status = probe();
    m_index->distrust(); // read without a lock
    return status;
}

Status TableFiles::checkTags()
{
    const std::string missing = missingTag(expectedTags(), m_index->tags());
    return missing.empty() ? Status()
                           : indexDamage("the tag " + missing + " is missing or has another key");
}

// Through a tag that has one key for each row: the last rows are those an index misses that was
// put back from a backup, is empty, or was not kept up.
Status TableFiles::probe()
{
    if (Status status = m_index->refresh(); !status.ok())
        return status;
    if (Status status = m_index->checkRoots(); !status.ok())
        return status;
    const std::vector<TagInfo> &tags = m_index->tags();
    auto chosen = std::find_if(tags.begin(), tags.end(), [](const TagInfo &tag) {
        return tag.keyType == KeyType::Number && !tag.unique;
    });
    if (chosen == tags.end())
        chosen = std::find_if(tags.begin(), tags.end(), [](const TagInfo &t) { return !t.unique; });
    if (chosen == tags.end())
        return {};
    const int tag = static_cast<int>(chosen - tags.begin());
    if (Status status = probeLastRows(tag); !status.ok())
        return status;
    const Result<std::vector<IndexEntry>> first = m_index->entriesFrom(tag, {}, 0, 1);
    if (!first.ok())
        return first.error();
    const std::string behind(chosen->keyLength, '\xFF');
    const Result<std::vector<IndexEntry>> last = m_index->entriesBefore(tag, behind, UINT32_MAX, 1);
    if (!last.ok())
        return last.error();
    Status status = probeEnd(tag, *first);
    return status.ok() ? probeEnd(tag, *last) : status;
}

Status TableFiles::probeLastRows(int tag)
{
    const std::size_t length = layout().recordLength;
    const auto most = static_cast<std::uint32_t>(std::max<std::size_t>(1, kProbedBytes / length));
    const std::uint32_t rows = std::min(m_count, most);
    std::vector<Byte> block(rows * length);
    if (rows == 0)
        return {};
    if (Status status = readRows(m_count - rows + 1, block); !status.ok())
        return status;
    std::uint32_t found = 0;
    for (std::uint32_t i = 0; i < rows && found < kProbedRows; ++i) {
        const std::uint32_t record = m_count - i;
        const ByteView row = ByteView(block).subspan((rows - 1 - i) * length, length);
        const Result<std::optional<std::string>> key = m_index->keyOf(tag, row);
        if (!key.ok())
            return key.error();
        if (!key->has_value() || row[0] != kLiveRow)
            continue;
        ++found;
        const auto entries = m_index->entriesFrom(tag, **key, record, 1);
        if (!entries.ok())
            return entries.error();
        if (entries->empty() || entries->front() != IndexEntry{**key, record})
            return indexDamage("row " + std::to_string(record) + " has no key");
    }
    return {};
}

// The row of the tag's first or last entry has that key.
Status TableFiles::probeEnd(int tag, const std::vector<IndexEntry> &entries)
{
    if (entries.empty())
        return {};
    const IndexEntry &entry = entries.front();
    const Error wrong =
        indexDamage("a key stands for row " + std::to_string(entry.record) + " and is not its");
    if (entry.record == 0 || entry.record > m_count)
        return wrong;
    std::vector<Byte> row(layout().recordLength);
    if (Status status = readRows(entry.record, row); !status.ok())
        return status;
    const Result<std::optional<std::string>> key = m_index->keyOf(tag, row);
    if (!key.ok())
        return key.error();
    return *key == entry.key ? Status() : Status(wrong);
}

// With the locks held: what is wrong with the index as it lies in its file now.
Status TableFiles::examineIndex(bool everyKey)
{
    if (!wantsIndex())
        return {};
    if (!m_indexFile)
        return m_indexProblem.ok() ? Status(indexDamage("the index is missing")) : m_indexProblem;
    if (!exclusive() || !m_index) { // alone in the table it has changes that only wait
        Result<std::unique_ptr<IndexFile>> index = IndexFile::open(m_indexFile->shared(), layout());
        if (!index.ok())
            return index.error();
        m_index = std::move(*index);
        if (Status status = m_index->refresh(); !status.ok())
            return status;
    }
    if (Status status = checkTags(); !status.ok())
        return status;
    const std::uint32_t counter = m_index->counter();
    if (m_doubt && (exclusive() || m_doubtCounter == counter))
        return m_doubt;
    if (m_journal->verdict(m_claimed, counter) == TableJournal::Verdict::Older)
        return indexDamage("the index is older than the table");
    if (!everyKey)
        return probe();
    const Result<std::vector<std::string>> findings = checkIndex(*m_index, allRows());
    if (!findings.ok())
        return findings.error();
    return findings->empty() ? Status() : Status(indexDamage(findings->front()));
}

// A copy that a station left when it died while building tags anew.
void TableFiles::removeLeftover()
{
    const std::string beside = indexPath() + ".new";
    const bool there = m_system.open(beside, OpenMode::ReadOnly).ok();
    if (!there || !takeCommitLock(LockMode::Exclusive, kOnce).ok())
        return; // somebody is building it
    (void)m_system.remove(beside);
    (void)lockFile().unlock(kLockByte, LockMode::Exclusive);
}

} // namespace norvane::engine
