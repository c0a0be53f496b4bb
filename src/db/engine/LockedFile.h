// A file of one session whose lock bytes are counted, so that several open handles of the session
// share its locks: none locks another out, and a byte is free when the last of them lets it go.
#pragma once

#include "db/engine/File.h"

#include <cstdint>
#include <memory>
#include <vector>

namespace norvane::engine
{

class LockedFile
{
public:
    explicit LockedFile(std::shared_ptr<File> file) : m_file(std::move(file)) {}

    File &file() { return *m_file; }
    const std::shared_ptr<File> &shared() const { return m_file; }

    // One try. Taking a byte exclusively that the session holds shared makes it exclusive.
    Status tryLock(std::uint64_t place, LockMode mode);
    // Gives back one taking in this mode; one not taken is nothing. A failure means that what was
    // written under the lock may not have reached a network folder.
    Status unlock(std::uint64_t place, LockMode mode);
    bool holdsExclusively(std::uint64_t place) const;

private:
    struct Count {
        std::uint64_t place;
        int shared = 0;
        int exclusive = 0;
    };

    Count *find(std::uint64_t place);
    const Count *find(std::uint64_t place) const;

    std::shared_ptr<File> m_file;
    std::vector<Count> m_counts; // a handful at a time
};

} // namespace norvane::engine
