// Rows read ahead: a piece of the file in record order, or the rows that the next entries of a
// leaf lead to. They are served for a quarter of a second (docs/locking.md).
#include "db/engine/LockPlaces.h"
#include "db/engine/Table.h"

#include <algorithm>

namespace norvane::engine
{

namespace
{

using namespace std::chrono_literals;

constexpr std::size_t kMostBytes = 64 * 1024;
constexpr std::uint32_t kMostPieces = 4; // of so many bytes, in a pass
// In record order; in a walk by a tag they go with its entries.
constexpr auto kBlockAge = 250ms;
// In a walk rows are read in one go when they are so many and so close: a call of the system costs
// as much as so many bytes.
constexpr std::uint32_t kFewest = 4;
constexpr std::uint64_t kBytesOfACall = 6 * 1024;

} // namespace

std::uint32_t Table::rowsAhead() const
{
    return static_cast<std::uint32_t>(std::max<std::size_t>(1, kMostBytes / layout().recordLength));
}

Status Table::readAhead(std::uint32_t first, std::uint32_t rows)
{
    m_block.resize(rows * std::size_t{layout().recordLength});
    m_blockRows = 0;
    // Blocks of a save that never was may hold another text by now: these rows' texts are read
    // anew.
    m_memosAhead.clear();
    m_blockTime = std::chrono::steady_clock::now();
    if (Status status = m_files->readRows(first, m_block); !status.ok())
        return status;
    m_blockFirst = first;
    m_blockRows = rows;
    m_blockStamp = m_files->stamp();
    return {};
}

// Not for a row that this session has locked: what was read may be older than the lock.
bool Table::isReadAhead(std::uint32_t record) const
{
    return record >= m_blockFirst && record - m_blockFirst < m_blockRows &&
           m_blockStamp == m_files->stamp() && !lockedHere(record);
}

bool Table::lockedHere(std::uint32_t record) const
{
    return m_files->table().holdsExclusively(recordLockByte(record));
}

// REQUIRES: the row is in the block.
void Table::takeFromBlock(std::uint32_t record)
{
    const std::size_t length = layout().recordLength;
    const auto from =
        m_block.begin() + static_cast<std::ptrdiff_t>((record - m_blockFirst) * length);
    m_row.assign(from, from + static_cast<std::ptrdiff_t>(length));
    rowLoaded(record);
    m_loadedLocked = false; // the block may be older than a lock
    m_inPass = true;
}

Status Table::loadRowInPass(std::uint32_t record)
{
    const auto now = std::chrono::steady_clock::now();
    if (!isReadAhead(record) || now - m_blockTime >= kBlockAge) {
        if (Status status = m_files->table().file().freshen(); !status.ok())
            return status;
        // Who goes on gets more: what was read of texts is dropped with each piece.
        const bool goesOn = m_blockRows > 0 && record == m_blockFirst + m_blockRows;
        const std::uint32_t most =
            goesOn ? std::min(2 * m_blockRows, kMostPieces * rowsAhead()) : rowsAhead();
        const std::uint32_t left = m_files->count() - record + 1;
        if (Status status = readAhead(record, std::min(most, left)); !status.ok())
            return status;
    }
    takeFromBlock(record);
    return {};
}

// In a walk, for the batch's current entry.
Status Table::loadRowAhead(Direction direction)
{
    const std::uint32_t record = m_batch[m_at].record;
    if (!isReadAhead(record)) {
        const RowSpan span = spanAhead(direction);
        const std::uint64_t bytes = std::uint64_t{span.rows} * layout().recordLength;
        if (lockedHere(record) || span.wanted < kFewest || bytes > span.wanted * kBytesOfACall)
            return loadRow(record);
        if (Status status = readAhead(span.first, span.rows); !status.ok())
            return status;
    }
    takeFromBlock(record);
    return {};
}

// The rows that the batch's entries lead to from the current one on, as far as they lie together.
Table::RowSpan Table::spanAhead(Direction direction) const
{
    const std::uint32_t most = std::min(rowsAhead(), m_files->count());
    std::uint32_t first = m_batch[m_at].record;
    std::uint32_t last = first;
    std::uint32_t wanted = 1;
    const std::size_t step = direction == Direction::Forward ? 1 : SIZE_MAX;
    for (std::size_t i = m_at + step; i < m_batch.size(); i += step, ++wanted) {
        const auto [low, high] = std::minmax({first, last, m_batch[i].record});
        if (low == 0 || high > m_files->count() || high - low >= most)
            break;
        first = low;
        last = high;
    }
    return {first, last - first + 1, wanted};
}

} // namespace norvane::engine
