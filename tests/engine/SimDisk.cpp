#include "engine/SimDisk.h"

#include <algorithm>
#include <utility>

namespace enginetest
{

namespace
{

constexpr std::size_t kSectorLength = 512;

using Change = SimDisk::Change;

// One file while a power cut is worked out.
struct Medium {
    std::vector<Byte> safe;       // as synced
    std::vector<Change> unsynced; // since
};

void perform(const Change &change, std::vector<Byte> &bytes)
{
    if (change.kind == Change::Kind::Resize) {
        bytes.resize(change.offset);
        return;
    }
    if (bytes.size() < change.offset + change.bytes.size())
        bytes.resize(change.offset + change.bytes.size());
    std::copy(change.bytes.begin(), change.bytes.end(),
              bytes.begin() + static_cast<std::ptrdiff_t>(change.offset));
}

void sync(Medium &medium)
{
    for (const Change &change : medium.unsynced)
        perform(change, medium.safe);
    medium.unsynced.clear();
}

// Each sector and the length of the file stop at an unsynced change of their own.
std::vector<Byte> cut(const Medium &medium, std::uint32_t mode, std::mt19937 &random)
{
    const std::size_t count = medium.unsynced.size();
    if (count == 0 || mode == 0)
        return medium.safe;
    const auto chosen = [&]() -> std::size_t {
        if (mode == 1)
            return count; // all
        if (mode == 2)
            return random() % 2 * count; // each sector old or new
        if (mode == 3)
            return random() % 8 == 0 ? random() % (count + 1) : count; // most are new
        return random() % (count + 1);
    };
    std::size_t size = medium.safe.size();
    for (std::size_t i = 0, stop = chosen(); i < stop; ++i) {
        const Change &change = medium.unsynced[i];
        size = change.kind == Change::Kind::Resize
                   ? change.offset
                   : std::max<std::size_t>(size, change.offset + change.bytes.size());
    }
    std::vector<Byte> bytes = medium.safe;
    bytes.resize(size);
    std::map<std::size_t, std::size_t> stops;
    for (std::size_t i = 0; i < count; ++i) {
        const Change &change = medium.unsynced[i];
        for (std::size_t at = 0; at < change.bytes.size();) {
            const std::size_t place = change.offset + at;
            const std::size_t sector = place / kSectorLength;
            const std::size_t end =
                std::min((sector + 1) * kSectorLength - change.offset, change.bytes.size());
            const auto stop = stops.find(sector);
            const std::size_t last = stop == stops.end() ? stops[sector] = chosen() : stop->second;
            for (; at < end; ++at) {
                if (i < last && change.offset + at < size)
                    bytes[change.offset + at] = change.bytes[at];
            }
        }
    }
    return bytes;
}

using Names = std::map<std::string, std::uint64_t>;

void perform(const Change &change, Names &names)
{
    const auto drop = [&] {
        const auto found = names.find(change.path);
        if (found != names.end() && found->second == change.file)
            names.erase(found);
    };
    if (change.kind == Change::Kind::Make) {
        names[change.path] = change.file;
    } else if (change.kind == Change::Kind::Remove) {
        drop();
    } else {
        names[change.to] = change.file;
        drop();
    }
}

// What happened to names stops somewhere, or any of it is lost.
void cut(const std::vector<Change> &unsynced, std::uint32_t mode, std::mt19937 &random,
         Names &names)
{
    const std::size_t stop = mode == 0   ? 0
                             : mode == 1 ? random() % (unsynced.size() + 1)
                                         : unsynced.size();
    for (std::size_t i = 0; i < stop; ++i) {
        if (mode != 3 || random() % 2 == 0)
            perform(unsynced[i], names);
    }
}

} // namespace

std::uint64_t SimDisk::newFile()
{
    static std::uint64_t last = 0;
    return ++last;
}

std::size_t SimDisk::locksHeld() const
{
    std::size_t count = 0;
    for (const auto &[path, content] : files)
        count += content->locks.size();
    return count;
}

std::uint64_t SimDisk::used() const
{
    std::uint64_t bytes = 0;
    for (const auto &[path, content] : files)
        bytes += content->bytes.size();
    return bytes;
}

std::unique_ptr<SimDisk> SimDisk::copy() const
{
    auto other = std::make_unique<SimDisk>();
    other->boot = boot;
    for (const auto &[path, content] : files)
        other->files[path] = std::make_shared<Content>(Content{content->bytes, {}, content->file});
    return other;
}

std::unique_ptr<SimDisk> SimDisk::afterPowerCut(const SimDisk &base,
                                                const std::vector<Change> &changes,
                                                std::size_t count, std::uint32_t seed)
{
    std::map<std::uint64_t, Medium> media;
    Names names;
    std::vector<Change> unsyncedNames;
    for (const auto &[path, content] : base.files) {
        media[content->file].safe = content->bytes;
        names[path] = content->file;
    }
    for (std::size_t i = 0; i < count; ++i) {
        const Change &change = changes[i];
        switch (change.kind) {
        case Change::Kind::Sync:
            sync(media[change.file]);
            break;
        case Change::Kind::Make:
        case Change::Kind::Remove:
        case Change::Kind::Rename:
            unsyncedNames.push_back(change);
            break;
        case Change::Kind::SyncFolder:
            for (const Change &name : unsyncedNames)
                perform(name, names);
            unsyncedNames.clear();
            break;
        default:
            media[change.file].unsynced.push_back(change);
        }
    }
    std::mt19937 random(seed);
    auto disk = std::make_unique<SimDisk>();
    disk->boot = base.boot + 1;
    cut(unsyncedNames, seed / 5 % 4, random, names);
    for (const auto &[path, file] : names)
        disk->files[path] =
            std::make_shared<Content>(Content{cut(media[file], seed % 5, random), {}, file});
    return disk;
}

class SimFile final : public File
{
public:
    SimFile(SimStation &station, std::string path, std::shared_ptr<SimDisk::Content> content,
            bool readOnly)
        : m_station(station),
          m_path(std::move(path)),
          m_content(std::move(content)),
          m_readOnly(readOnly)
    {
        m_station.m_open.push_back(this);
        (void)SimFile::freshen(); // opening shows it as it is
    }
    ~SimFile() override
    {
        push();
        std::erase(m_station.m_open, this);
        dropLocks();
        if (m_station.remote && !m_readOnly)
            m_station.locksLost +=
                static_cast<int>(std::erase_if(m_content->locks, [this](const SimDisk::Lock &lock) {
                    return lock.station == &m_station;
                }));
    }

    Result<std::size_t> read(std::uint64_t offset, ByteSpan into) override
    {
        if (Status status = m_station.call(false); !status.ok())
            return status.error();
        const std::vector<Byte> &bytes = shown();
        if (offset >= bytes.size())
            return std::size_t{0};
        const std::size_t count = std::min<std::size_t>(into.size(), bytes.size() - offset);
        std::copy_n(bytes.begin() + static_cast<std::ptrdiff_t>(offset), count, into.begin());
        return count;
    }

    Status write(std::uint64_t offset, ByteView bytes) override
    {
        if (m_readOnly)
            return Error{ErrorKind::ReadOnly, m_path, "opened for reading only"};
        bool partial = false;
        Status status = m_station.call(true, &partial);
        if (!status.ok() && !partial)
            return status;
        // what a full disk still took: whole sectors
        const std::uint64_t half = (offset + bytes.size() / 2) / kSectorLength * kSectorLength;
        std::size_t length = status.ok() ? bytes.size() : half > offset ? half - offset : 0;
        const std::uint64_t fits = largestSize();
        const bool crowded = offset + length > std::max<std::uint64_t>(fits, sizeNow());
        if (status.ok() && crowded && !m_station.remote) {
            length = fits > offset ? std::min<std::size_t>(length, fits - offset) : 0;
            status = Error{ErrorKind::NoSpace, m_path, "the disk is full"};
        }
        change({SimDisk::Change::Kind::Write,
                m_content->file,
                offset,
                {bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(length)}});
        return status;
    }

    Result<std::uint64_t> size() override
    {
        if (Status status = m_station.call(false); !status.ok())
            return status.error();
        return std::uint64_t{shown().size()};
    }
    bool onNetwork() override { return m_station.remote; }
    Status freshen() override
    {
        push();
        if (m_station.remote)
            m_seen = m_content->bytes;
        return {};
    }

    Status resize(std::uint64_t size) override
    {
        if (m_readOnly)
            return Error{ErrorKind::ReadOnly, m_path, "opened for reading only"};
        if (Status status = m_station.call(true); !status.ok())
            return status;
        if (size > sizeNow() && size > largestSize())
            return Error{ErrorKind::NoSpace, m_path, "the disk is full"};
        push();
        change({SimDisk::Change::Kind::Resize, m_content->file, size});
        push();
        return {};
    }

    Status sync() override
    {
        if (Status status = m_station.call(true); !status.ok()) {
            m_waiting.clear();
            return status;
        }
        push();
        m_unsynced = !m_lost.ok();
        m_station.record({SimDisk::Change::Kind::Sync, m_content->file});
        return std::exchange(m_lost, {});
    }

    Status tryLock(std::uint64_t offset, std::uint64_t length, LockMode mode) override
    {
        if (Status status = m_station.call(false); !status.ok())
            return status;
        for (const SimDisk::Lock &lock : m_content->locks) {
            const bool apart =
                lock.offset + lock.length <= offset || offset + length <= lock.offset;
            const bool shared = lock.mode == LockMode::Shared && mode == LockMode::Shared;
            if (lock.owner != this && !apart && !shared)
                return Error{ErrorKind::Locked, m_path, "locked by another", -1};
        }
        dropLock(offset);
        m_content->locks.push_back({this, &m_station, offset, length, mode});
        return freshen();
    }

    Status unlock(std::uint64_t offset, std::uint64_t) override
    {
        Status synced = m_unsynced ? sync() : Status();
        dropLock(offset); // the system gives them back in any case
        Status status = m_station.call(false);
        return synced.ok() ? status : synced;
    }

    const std::string &path() const override { return m_path; }
    bool readOnly() const override { return m_readOnly; }

    // What waits in this host's memory goes to the server; the next sync tells of what found no
    // room there.
    void push()
    {
        for (SimDisk::Change &waiting : std::exchange(m_waiting, {})) {
            const std::uint64_t end = waiting.offset + waiting.bytes.size();
            if (end > std::max<std::uint64_t>(largestSize(), sizeNow()))
                m_lost = Error{ErrorKind::NoSpace, m_path, "the disk is full"};
            else
                store(std::move(waiting));
        }
    }
    void dropLocks()
    {
        std::erase_if(m_content->locks, [this](const auto &lock) { return lock.owner == this; });
    }

private:
    const std::vector<Byte> &shown() const { return m_station.remote ? m_seen : m_content->bytes; }
    std::uint64_t sizeNow() const { return m_content->bytes.size(); }
    // To which this file could grow.
    std::uint64_t largestSize() const
    {
        const SimDisk &disk = m_station.m_disk;
        const std::uint64_t others = disk.used() - sizeNow();
        return disk.room > others ? disk.room - others : 0;
    }
    void change(SimDisk::Change change)
    {
        if (!m_station.remote) {
            store(std::move(change));
            return;
        }
        m_unsynced = true;
        perform(change, m_seen);
        m_waiting.push_back(std::move(change));
    }
    void store(SimDisk::Change change)
    {
        perform(change, m_content->bytes);
        m_station.m_disk.most = std::max(m_station.m_disk.most, m_station.m_disk.used());
        m_station.record(std::move(change));
    }
    void dropLock(std::uint64_t offset)
    {
        std::erase_if(m_content->locks, [this, offset](const auto &lock) {
            return lock.owner == this && lock.offset == offset;
        });
    }

    SimStation &m_station;
    std::string m_path;
    std::shared_ptr<SimDisk::Content> m_content;
    std::vector<Byte> m_seen;               // remote: what this open file shows
    std::vector<SimDisk::Change> m_waiting; // remote: not yet on the server
    bool m_unsynced = false;                // remote: written since the last sync
    Status m_lost;                          // since then
    bool m_readOnly;
};

void SimStation::dieAt(int call)
{
    m_dieAt = call == 0 ? 0 : m_calls + call;
}

void SimStation::beforeCall(int call, std::function<void()> others)
{
    m_others[m_calls + call] = std::move(others);
}

void SimStation::failAt(int call, ErrorKind kind, bool forEver)
{
    m_failAt = m_calls + call;
    m_kind = kind;
    m_forEver = forEver;
    m_failed = false;
}

void SimStation::mend()
{
    m_failAt = 0;
}

// As the system ends a process: it closes all files, and then the locks go.
void SimStation::die()
{
    m_dead = true;
    for (SimFile *file : m_open)
        file->push();
    for (SimFile *file : m_open)
        file->dropLocks();
}

Status SimStation::call(bool changes, bool *partial)
{
    ++m_calls;
    if (const auto found = m_others.find(m_calls); found != m_others.end())
        found->second();
    if (m_dieAt != 0 && m_calls >= m_dieAt && !m_dead)
        die();
    if (m_dead)
        return Error{ErrorKind::Gone, {}, "the station died"};
    if (m_failAt == 0 || m_calls < m_failAt || (m_calls > m_failAt && !m_forEver))
        return {};
    if (m_kind == ErrorKind::NoSpace && !changes)
        return {};
    m_failed = true;
    if (partial)
        *partial = m_kind == ErrorKind::NoSpace;
    return Error{m_kind, {}, "it failed"};
}

Result<std::unique_ptr<File>> SimStation::open(const std::string &path, OpenMode mode)
{
    if (Status status = call(mode == OpenMode::CreateNew); !status.ok())
        return status.error();
    const auto found = m_disk.files.find(path);
    if (mode == OpenMode::CreateNew) {
        if (found != m_disk.files.end())
            return Error{ErrorKind::Io, path, "the file exists"};
        const auto made = m_disk.files[path] = std::make_shared<SimDisk::Content>();
        record({SimDisk::Change::Kind::Make, made->file, 0, {}, path});
    } else if (found == m_disk.files.end()) {
        return Error{ErrorKind::NotFound, path, "no such file"};
    }
    return std::unique_ptr<File>(
        std::make_unique<SimFile>(*this, path, m_disk.files[path], mode == OpenMode::ReadOnly));
}

Result<std::string> SimStation::findIgnoringCase(const std::string &path)
{
    if (m_disk.has(path))
        return path;
    return Error{ErrorKind::NotFound, path, "no such file"};
}

Status SimStation::rename(const std::string &from, const std::string &to)
{
    if (Status status = call(true); !status.ok())
        return status;
    if (!m_disk.has(from))
        return Error{ErrorKind::NotFound, from, "no such file"};
    const auto moved = m_disk.files[to] = m_disk.files[from];
    m_disk.files.erase(from);
    record({SimDisk::Change::Kind::Rename, moved->file, 0, {}, from, to});
    return {};
}

Status SimStation::remove(const std::string &path)
{
    if (Status status = call(true); !status.ok())
        return status;
    const auto found = m_disk.files.find(path);
    if (found == m_disk.files.end())
        return Error{ErrorKind::NotFound, path, "no such file"};
    record({SimDisk::Change::Kind::Remove, found->second->file, 0, {}, path});
    m_disk.files.erase(found);
    return {};
}

Status SimStation::syncFolderOf(const std::string &)
{
    Status status = call(true);
    if (status.ok())
        record({SimDisk::Change::Kind::SyncFolder});
    return status;
}

void SimStation::record(SimDisk::Change change)
{
    if (m_disk.recording)
        m_disk.changes.push_back(std::move(change));
}

} // namespace enginetest
