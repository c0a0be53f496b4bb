#include "db/engine/LockedFile.h"

#include <algorithm>

namespace norvane::engine
{

const LockedFile::Count *LockedFile::find(std::uint64_t place) const
{
    const auto it = std::find_if(m_counts.begin(), m_counts.end(),
                                 [place](const Count &count) { return count.place == place; });
    return it == m_counts.end() ? nullptr : &*it;
}

LockedFile::Count *LockedFile::find(std::uint64_t place)
{
    const auto it = std::find_if(m_counts.begin(), m_counts.end(),
                                 [place](const Count &count) { return count.place == place; });
    return it == m_counts.end() ? nullptr : &*it;
}

Status LockedFile::tryLock(std::uint64_t place, LockMode mode)
{
    Count *count = find(place);
    const bool enough = count && (count->exclusive > 0 || mode == LockMode::Shared);
    if (!count)
        m_counts.reserve(m_counts.size() + 1); // a byte is never held and not counted
    if (!enough) {
        if (Status status = m_file->tryLock(place, 1, mode); !status.ok())
            return status;
    }
    if (!count)
        count = &m_counts.emplace_back(Count{place});
    ++(mode == LockMode::Shared ? count->shared : count->exclusive);
    return {};
}

Status LockedFile::unlock(std::uint64_t place, LockMode mode)
{
    Count *count = find(place);
    if (!count)
        return {};
    int &taken = mode == LockMode::Shared ? count->shared : count->exclusive;
    if (taken == 0 || --taken > 0 || count->exclusive > 0)
        return {};
    if (count->shared > 0) {
        // Others see what was written once the byte is no longer exclusive, as with an unlock.
        const Status synced =
            m_file->onNetwork() && !m_file->readOnly() ? m_file->sync() : Status();
        Status lowered = m_file->tryLock(place, 1, LockMode::Shared);
        return synced.ok() ? lowered : synced;
    }
    m_counts.erase(m_counts.begin() + (count - m_counts.data()));
    return m_file->unlock(place, 1);
}

bool LockedFile::holdsExclusively(std::uint64_t place) const
{
    const Count *count = find(place);
    return count && count->exclusive > 0;
}

} // namespace norvane::engine
