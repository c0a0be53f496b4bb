// Locks of a handle: rows and the append lock, held until unlocked or closed.
#include "db/engine/Cleanup.h"
#include "db/engine/LockPlaces.h"
#include "db/engine/Table.h"

#include <algorithm>

namespace norvane::engine
{

Status Table::lock(std::uint32_t record)
{
    if (Status allowed = m_files->mayWrite(); !allowed.ok())
        return allowed;
    if (record > maxRecords(m_files->header().length, layout().recordLength))
        return Error{ErrorKind::Misuse, m_files->path(), "no such row to lock", record};
    const bool held = std::find(m_locks.begin(), m_locks.end(), record) != m_locks.end();
    if (held || m_files->exclusive())
        return {};

    const std::uint64_t place = recordLockByte(record); // that of record 0 is the append lock
    m_locks.reserve(m_locks.size() + 1);                // a lock is never held and not noted
    Status status =
        waitForLock(m_settings.patience, record == 0 ? LockPace::Brief : LockPace::Record,
                    [&] { return m_files->table().tryLock(place, LockMode::Exclusive); });
    if (!status.ok())
        return status;
    m_locks.push_back(record);
    Cleanup letGo([&] { (void)unlockOne(record); });
    // What was read before the lock may have changed until it came.
    if (record == 0)
        status = m_files->refreshCount();
    else if (record == m_recNo && !m_changed)
        status = reloadRow();
    if (status.ok())
        letGo.cancel();
    return status;
}

Status Table::unlockOne(std::uint32_t record)
{
    const auto held = std::find(m_locks.begin(), m_locks.end(), record);
    if (held == m_locks.end())
        return {};
    m_locks.erase(held);
    return m_files->table().unlock(recordLockByte(record), LockMode::Exclusive);
}

Status Table::unlockAll()
{
    Status status;
    while (!m_locks.empty()) {
        const Status one = unlockOne(m_locks.back());
        if (status.ok())
            status = one;
    }
    m_loadedLocked = false;
    return status;
}

Status Table::unlock()
{
    const Status stored = storeForSure();
    if (!stored.ok())
        discard();
    if (m_group.empty())
        (void)unlockAll(); // what is stored stays stored
    return stored;
}

} // namespace norvane::engine
