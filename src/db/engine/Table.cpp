// A handle's row buffer and what is in it.
#include "db/engine/Table.h"

#include "db/engine/LockPlaces.h"

#include <algorithm>

namespace norvane::engine
{

namespace
{

using namespace std::chrono_literals;

constexpr std::size_t kReadAhead = 64 * 1024; // bytes
// Rows read ahead are served this long before other stations' changes are looked for again.
constexpr auto kBlockAge = 250ms;

} // namespace

Table::Table(const SessionSettings &settings, std::shared_ptr<TableFiles> files, bool exclusive)
    : m_settings(settings),
      m_files(std::move(files)),
      m_exclusive(exclusive),
      m_memos(m_files->layout().fields.size())
{
    leaveRow();
}

Table::~Table()
{
    (void)close();
}

Status Table::close()
{
    if (!m_files)
        return {};
    Status status = unlock();
    if (m_exclusive) {
        const Status left = m_files->leaveExclusive();
        if (status.ok())
            status = left;
    }
    m_files.reset();
    return status;
}

void Table::leaveRow()
{
    m_recNo = 0;
    m_appending = false;
    m_changed = false;
    m_placeTag = -1;
    blankRow();
    m_stored = m_row;
}

Status Table::loadRow(std::uint32_t record)
{
    m_row.resize(layout().recordLength);
    if (Status status = m_files->readRows(record, m_row); !status.ok())
        return status;
    rowLoaded(record);
    return {};
}

Status Table::reloadRow()
{
    const int placeTag = m_placeTag;
    Status status = loadRow(m_recNo);
    m_placeTag = placeTag;
    return status;
}

Status Table::loadRowInPass(std::uint32_t record)
{
    const auto now = std::chrono::steady_clock::now();
    const std::size_t length = layout().recordLength;
    const bool held = record >= m_blockFirst && record - m_blockFirst < m_blockRows &&
                      m_blockStamp == m_files->stamp() && now - m_blockTime < kBlockAge;
    if (!held) {
        const auto rows = static_cast<std::uint32_t>(std::max<std::size_t>(1, kReadAhead / length));
        const std::uint32_t taken = std::min(rows, m_files->count() - record + 1);
        m_block.resize(taken * length);
        m_blockRows = 0;
        if (Status status = m_files->readRows(record, m_block); !status.ok())
            return status;
        m_blockFirst = record;
        m_blockRows = taken;
        m_blockStamp = m_files->stamp();
        m_blockTime = now;
    }
    const auto from =
        m_block.begin() + static_cast<std::ptrdiff_t>((record - m_blockFirst) * length);
    m_row.assign(from, from + static_cast<std::ptrdiff_t>(length));
    rowLoaded(record);
    m_loadedLocked = false; // the block may be older than a lock
    return {};
}

void Table::rowLoaded(std::uint32_t record)
{
    m_stored = m_row;
    m_recNo = record;
    m_appending = false;
    m_changed = false;
    m_behindLast = false;
    m_placeTag = -1;
    m_loadedLocked = holdsLock(record);
    m_rowStamp = m_files->stamp();
    forgetMemos();
}

bool Table::holdsLock(std::uint32_t record) const
{
    return m_files->exclusive() || m_files->table().holdsExclusively(recordLockByte(record));
}

Result<std::uint32_t> Table::countRows()
{
    if (Status status = m_files->refreshCount(); !status.ok())
        return status.error();
    return m_files->count();
}

} // namespace norvane::engine
