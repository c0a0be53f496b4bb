// Moves and seeks. Entries come from the index one leaf at a time, under a short shared lock;
// each is served only while its row still has that key.
#include "db/engine/Table.h"

#include "db/engine/LockPlaces.h"

#include <algorithm>
#include <utility>

namespace norvane::engine
{

namespace
{

using namespace std::chrono_literals;

// Entries of a leaf are served this long before the index is asked again.
constexpr auto kBatchAge = 250ms;
// A seek mostly wants the rows of one key; a walk on from it asks for the whole leaf.
constexpr std::size_t kSeekEntries = 16;
constexpr int kMostMends = 2; // during one move

} // namespace

Status Table::settleBeforeMove()
{
    if (m_appending)
        leaveRow(); // a row begun and not appended is forgotten
    return store();
}

bool Table::batchIsFresh(int tag) const
{
    return m_batchTag == tag && m_batchStamp == m_files->stamp() &&
           std::chrono::steady_clock::now() - m_batchTime < kBatchAge;
}

Status Table::loadBatch(int tag, const std::string &key, std::uint32_t record, Direction direction,
                        bool soughtOnly)
{
    m_batch.clear();
    m_at = 0;
    m_batchTag = -1;
    m_blockRows = 0; // rows are never older than the entries that lead to them
    TableFiles::IndexLock lock;
    if (Status status = lock.take(*m_files, LockMode::Shared, m_settings.patience); !status.ok())
        return status;
    IndexFile &index = *m_files->index();
    Result<std::vector<IndexEntry>> entries = direction == Direction::Backward
                                                  ? index.entriesBefore(tag, key, record)
                                              : soughtOnly ? index.entriesOf(tag, key, kSeekEntries)
                                                           : index.entriesFrom(tag, key, record);
    if (!entries.ok())
        return entries.error();
    m_batch = std::move(*entries);
    m_at = direction == Direction::Forward || m_batch.empty() ? 0 : m_batch.size() - 1;
    m_batchTag = tag;
    m_batchStamp = m_files->stamp();
    m_batchTime = std::chrono::steady_clock::now();
    return {};
}

Result<bool> Table::isInFile(std::uint32_t record)
{
    if (record > m_files->count()) {
        if (Status status = m_files->refreshCount(); !status.ok())
            return status.error();
    }
    return record > 0 && record <= m_files->count();
}

Result<bool> Table::hasKey(int tag, const IndexEntry &entry) const
{
    const Result<std::optional<std::string>> key = m_files->index()->keyOf(tag, m_row);
    if (!key.ok())
        return key.error();
    return *key == entry.key;
}

// Makes the entry's row the current one, as it is in the file now.
Result<bool> Table::rowBelongs(int tag, const IndexEntry &entry)
{
    const Result<bool> there = isInFile(entry.record);
    if (!there.ok() || !*there)
        return there;
    if (Status status = loadRow(entry.record); !status.ok())
        return status.error();
    return hasKey(tag, entry);
}

// The same for the batch's current entry; in a walk the row may have been read with others since
// the batch was.
Result<bool> Table::nextBelongs(int tag, Direction direction, Reading reading)
{
    const IndexEntry &entry = m_batch[m_at];
    if (reading == Reading::OneRow)
        return rowBelongs(tag, entry);
    const Result<bool> there = isInFile(entry.record);
    if (!there.ok() || !*there)
        return there;
    if (Status status = loadRowAhead(direction); !status.ok())
        return status.error();
    return hasKey(tag, entry);
}

// True when another session has the row locked: it may be between the row and its keys.
bool Table::othersChange(std::uint32_t record)
{
    LockedFile &table = m_files->table();
    if (m_files->exclusive())
        return false;
    const LockMode mode = m_files->readOnly() ? LockMode::Shared : LockMode::Exclusive;
    const std::uint64_t place = recordLockByte(record);
    if (!table.tryLock(place, mode).ok())
        return true;
    (void)table.unlock(place, mode);
    return false;
}

// An entry that does not fit its row is asked for again with the index held, when no save can be
// under way.
Result<Table::Fit> Table::lookAgain(int tag, const IndexEntry &entry)
{
    TableFiles::IndexLock lock;
    if (Status status = lock.take(*m_files, LockMode::Shared, m_settings.patience); !status.ok())
        return status.error();
    const Result<std::vector<IndexEntry>> now =
        m_files->index()->entriesFrom(tag, entry.key, entry.record, 1);
    if (!now.ok())
        return now.error();
    if (now->empty() || now->front() != entry)
        return Fit::Gone;
    if (Status status = m_files->refreshCount(); !status.ok())
        return status.error();
    const Result<bool> belongs = rowBelongs(tag, entry);
    if (!belongs.ok())
        return belongs.error();
    if (*belongs)
        return Fit::Fits;
    return m_judges && !othersChange(entry.record) ? Fit::Wrong : Fit::Gone;
}

// Asks the index. When it turns out damaged, it is built anew (or stood in for) and asked again.
template <class F>
Result<Code> Table::inIndex(F ask)
{
    Result<Code> code = ask();
    for (int mends = 0; !code.ok() && m_files->isIndexDamage(code.error()); ++mends) {
        if (mends > kMostMends)
            return code;
        m_batchTag = -1;
        if (Status status = m_files->mendAfter(code.error()); !status.ok())
            return status.error();
        if (!m_files->index())
            return code;
        m_judges = mends < kMostMends; // rather pass an entry over than never come to an end
        code = ask();
        m_judges = true;
    }
    return code;
}

// From the batch's current entry on, in the direction: the first whose row belongs becomes the
// current row. r4eof and no row when there is none.
Result<Code> Table::settle(int tag, Direction direction, Reading reading, bool &passedOver)
{
    const bool forward = direction == Direction::Forward;
    while (!m_batch.empty()) {
        while (m_at < m_batch.size()) { // running below zero wraps beyond the size
            const Result<bool> belongs = nextBelongs(tag, direction, reading);
            if (!belongs.ok())
                return belongs.error();
            Fit fit = Fit::Fits;
            if (!*belongs) {
                const Result<Fit> again = lookAgain(tag, m_batch[m_at]);
                if (!again.ok())
                    return again.error();
                fit = *again;
            }
            if (fit == Fit::Fits) {
                m_placeTag = tag;
                m_placeKey = m_batch[m_at].key;
                return r4success;
            }
            if (fit == Fit::Wrong)
                return m_files->indexDamage("a key does not fit its row", m_batch[m_at].record);
            passedOver = true;
            forward ? ++m_at : --m_at;
        }
        const IndexEntry edge = forward ? m_batch.back() : m_batch.front();
        const std::uint32_t record = forward ? edge.record + 1 : edge.record;
        if (Status status = loadBatch(tag, edge.key, record, direction); !status.ok())
            return status.error();
    }
    leaveRow();
    m_behindLast = forward;
    return r4eof;
}

// A table that lost its index in a failed rebuild still has record order.
int Table::orderTag() const
{
    return m_files->index() ? m_tag : -1;
}

int Table::seekTag() const
{
    if (orderTag() >= 0)
        return m_tag;
    return m_files->index() && !m_files->index()->tags().empty() ? 0 : -1;
}

Result<Code> Table::topOf(int tag, Direction direction)
{
    const bool forward = direction == Direction::Forward;
    const std::size_t length = m_files->index()->tags()[static_cast<std::size_t>(tag)].keyLength;
    const std::string last(forward ? 0 : length, '\xFF');
    return inIndex(
        [&] { return stepFrom(tag, last, forward ? 0 : UINT32_MAX, direction, Reading::OneRow); });
}

// To the first row of the tag that is behind (before) this place.
Result<Code> Table::stepFrom(int tag, const std::string &key, std::uint32_t record,
                             Direction direction, Reading reading)
{
    bool passedOver = false;
    if (Status status = loadBatch(tag, key, record, direction); !status.ok())
        return status.error();
    return settle(tag, direction, reading, passedOver);
}

Result<Code> Table::top()
{
    if (Status status = settleBeforeMove(); !status.ok())
        return status.error();
    return orderTag() >= 0 ? topOf(m_tag, Direction::Forward) : go(1);
}

Result<Code> Table::bottom()
{
    if (Status status = settleBeforeMove(); !status.ok())
        return status.error();
    if (orderTag() >= 0)
        return topOf(m_tag, Direction::Backward);
    if (Status status = m_files->refreshCount(); !status.ok())
        return status.error();
    return go(m_files->count());
}

Result<Code> Table::go(std::uint32_t record)
{
    if (Status status = settleBeforeMove(); !status.ok())
        return status.error();
    if (record > m_files->count()) {
        if (Status status = m_files->refreshCount(); !status.ok())
            return status.error();
    }
    if (record == 0 || record > m_files->count()) {
        leaveRow();
        m_behindLast = record != 0;
        return r4eof;
    }
    if (Status status = m_files->table().file().freshen(); !status.ok())
        return status.error();
    if (Status status = loadRow(record); !status.ok())
        return status.error();
    return r4success;
}

Result<Code> Table::seek(std::string_view text)
{
    const int tag = seekTag();
    if (tag < 0)
        return Error{ErrorKind::Misuse, m_files->path(), "the table has no tag to seek in"};
    if (const auto key = m_files->index()->soughtKey(tag, text))
        return seekKey(tag, *key);
    leaveRow();
    return r4eof;
}

Result<Code> Table::seek(double number)
{
    const int tag = seekTag();
    if (tag < 0)
        return Error{ErrorKind::Misuse, m_files->path(), "the table has no tag to seek in"};
    if (const auto key = m_files->index()->soughtKey(tag, number))
        return seekKey(tag, *key);
    leaveRow();
    return r4eof;
}

Result<Code> Table::seekNext(std::string_view text)
{
    const int tag = seekTag();
    const auto key = tag < 0 ? std::nullopt : m_files->index()->soughtKey(tag, text);
    return key ? seekKeyNext(tag, *key) : seek(text);
}

Result<Code> Table::seekNext(double number)
{
    const int tag = seekTag();
    const auto key = tag < 0 ? std::nullopt : m_files->index()->soughtKey(tag, number);
    return key ? seekKeyNext(tag, *key) : seek(number);
}

Result<Code> Table::seekKey(int tag, const std::string &key)
{
    if (Status status = settleBeforeMove(); !status.ok())
        return status.error();
    const auto attempt = [&](bool &passedOver) -> Result<Code> {
        if (Status status = loadBatch(tag, key, 0, Direction::Forward, true); !status.ok())
            return status.error();
        Result<Code> code = settle(tag, Direction::Forward, Reading::OneRow, passedOver);
        if (code.ok() && *code == r4success && !m_placeKey.starts_with(key))
            return r4after;
        return code;
    };
    return inIndex([&]() -> Result<Code> {
        bool passedOver = false;
        Result<Code> code = attempt(passedOver);
        if (!code.ok() || *code == r4success || !passedOver)
            return code;
        // A row changed between the look at the index and the look at the row. Nobody can do that
        // while the index is held for reading, so the second look decides.
        TableFiles::IndexLock lock;
        Status status = lock.take(*m_files, LockMode::Shared, m_settings.patience);
        return status.ok() ? attempt(passedOver) : status.error();
    });
}

Result<Code> Table::seekKeyNext(int tag, const std::string &key)
{
    if (Status status = settleBeforeMove(); !status.ok())
        return status.error();
    const Result<bool> placed = placeInTag(tag);
    if (!placed.ok())
        return placed.error();
    if (!*placed || !m_placeKey.starts_with(key))
        return seekKey(tag, key);
    Result<Code> code = stepInTag(tag, Direction::Forward);
    if (code.ok() && *code == r4success && !m_placeKey.starts_with(key))
        return r4after;
    return code;
}

// Knows the current row's place in the tag afterwards, unless the row is not in it.
Result<bool> Table::placeInTag(int tag)
{
    if (m_recNo == 0)
        return false;
    if (m_placeTag == tag)
        return true;
    const Result<std::optional<std::string>> key =
        m_files->index()->keyOf(tag, m_changed ? m_stored : m_row);
    if (!key.ok())
        return key.error();
    if (!key->has_value())
        return false;
    m_placeTag = tag;
    m_placeKey = **key;
    return true;
}

Result<Code> Table::stepInTag(int tag, Direction direction)
{
    const bool forward = direction == Direction::Forward;
    const bool here = batchIsFresh(tag) && m_at < m_batch.size() &&
                      m_batch[m_at].record == m_recNo && m_batch[m_at].key == m_placeKey;
    bool inBatch = here && (forward ? m_at + 1 < m_batch.size() : m_at > 0);
    const std::string key = m_placeKey;
    const std::uint32_t record = forward ? m_recNo + 1 : m_recNo;
    return inIndex([&]() -> Result<Code> {
        if (!std::exchange(inBatch, false))
            return stepFrom(tag, key, record, direction, Reading::Ahead);
        bool passedOver = false;
        forward ? ++m_at : --m_at;
        return settle(tag, direction, Reading::Ahead, passedOver);
    });
}

Result<Code> Table::stepInRecordOrder(Direction direction)
{
    if (direction == Direction::Backward) {
        if (m_recNo > 1) {
            Status status = loadRow(m_recNo - 1);
            return status.ok() ? Result<Code>(r4success) : status.error();
        }
        leaveRow();
        return r4eof;
    }
    const std::uint32_t next = m_recNo + 1;
    if (next > m_files->count()) {
        if (Status status = m_files->refreshCount(); !status.ok())
            return status.error();
    }
    if (next > m_files->count()) {
        leaveRow();
        m_behindLast = true;
        return r4eof;
    }
    Status status = loadRowInPass(next);
    return status.ok() ? Result<Code>(r4success) : status.error();
}

Result<Code> Table::skip(std::int32_t count)
{
    if (Status status = settleBeforeMove(); !status.ok())
        return status.error();
    if (count == 1 && m_recNo != 0 && orderTag() < 0) // the step of a pass over the whole table
        return stepInRecordOrder(Direction::Forward);
    const Direction direction = count < 0 ? Direction::Backward : Direction::Forward;
    Result<Code> code = r4success;
    std::int64_t steps = count < 0 ? -std::int64_t{count} : count;
    if (m_recNo == 0 && steps > 0) {
        if (direction == Direction::Forward || !m_behindLast)
            return m_behindLast ? r4eof : r4noRow;
        code = bottom();
        --steps;
    }
    for (; steps > 0 && code.ok() && *code == r4success; --steps) {
        if (orderTag() < 0) {
            code = stepInRecordOrder(direction);
            continue;
        }
        const Result<bool> placed = placeInTag(m_tag);
        if (!placed.ok())
            return placed.error();
        code = *placed ? stepInTag(m_tag, direction) : Result<Code>(r4noRow);
    }
    return code;
}

} // namespace norvane::engine
