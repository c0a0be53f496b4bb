// A handle's row buffer and what is in it.
#include "db/engine/Table.h"

#include "db/engine/LockPlaces.h"

#include <algorithm>
#include <new>

namespace norvane::engine
{

Table::Table(const SessionSettings &settings, std::shared_ptr<TableFiles> files)
    : m_settings(settings), m_files(std::move(files)), m_memos(m_files->layout().fields.size())
{
    leaveRow();
}

Table::~Table()
{
    (void)close();
}

Status Table::enterExclusive()
{
    Status status = m_files->enterExclusive();
    m_exclusive = status.ok();
    return status;
}

void Table::giveUp()
{
    if (!m_files)
        return;
    m_files->giveUp();
    m_batchTag = -1;
    m_blockRows = 0;
    if (!m_appending && !m_changed)
        leaveRow(); // what was read may be half of it
}

// For the ways that must be gone to their end, memory or not.
Status Table::storeForSure()
{
    try {
        return store();
    } catch (const std::bad_alloc &) {
        giveUp();
        return noMemory();
    }
}

Status Table::close()
{
    if (!m_files)
        return {};
    Status status = unlock();
    (void)dropGroup();
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

void Table::rowLoaded(std::uint32_t record)
{
    m_recNo = record;
    m_appending = false;
    m_changed = false;
    m_behindLast = false;
    m_placeTag = -1;
    m_loadedLocked = holdsLock(record);
    m_rowStamp = m_files->stamp();
    m_inPass = false;
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
