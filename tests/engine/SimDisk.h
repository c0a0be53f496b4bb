// A disk in memory with several stations on it: a station can die at any call, a call can fail,
// and the disk can be had as a power cut would leave it.
#pragma once

#include "db/engine/File.h"

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <random>
#include <string>
#include <vector>

namespace enginetest
{

using namespace norvane::engine;

class SimDisk
{
public:
    struct Lock {
        const void *owner;
        const void *station;
        std::uint64_t offset;
        std::uint64_t length;
        LockMode mode;
    };
    struct Content {
        std::vector<Byte> bytes;
        std::vector<Lock> locks;
        std::uint64_t file = newFile(); // the same in a copy of the disk, whatever its name
    };
    using Contents = std::map<std::string, std::shared_ptr<Content>>;

    // One call that changed something, for power cuts.
    struct Change {
        enum class Kind { Write, Resize, Sync, Make, Remove, Rename, SyncFolder } kind;
        std::uint64_t file = 0;
        std::uint64_t offset = 0; // Resize: the new size
        std::vector<Byte> bytes = {};
        std::string path = {}; // of what happens to names
        std::string to = {};   // Rename
    };

    Contents files;
    std::uint64_t boot = 1;
    bool recording = false;
    // Bytes that all files together may have; what goes beyond fails as on a full disk.
    std::uint64_t room = UINT64_MAX;
    std::uint64_t most = 0; // bytes they had at most
    std::vector<Change> changes;

    std::vector<Byte> &bytes(const std::string &path) { return files.at(path)->bytes; }
    bool has(const std::string &path) const { return files.count(path) != 0; }
    std::size_t locksHeld() const;
    std::uint64_t used() const;

    // A disk of its own with the same contents and no locks.
    std::unique_ptr<SimDisk> copy() const;
    // `base` after the first `count` of `changes` and a power cut: of what was not synced each
    // sector has any of the contents it had since, and what happened to names since the folder was
    // synced came to pass or not, each for itself and whatever the contents. The machine has
    // started again.
    static std::unique_ptr<SimDisk> afterPowerCut(const SimDisk &base,
                                                  const std::vector<Change> &changes,
                                                  std::size_t count, std::uint32_t seed);

private:
    static std::uint64_t newFile();
};

class SimFile;

// The files as one station sees them.
class SimStation final : public FileSystem
{
public:
    explicit SimStation(SimDisk &disk) : m_disk(disk) {}
    // On a network folder: a file shows what others wrote only after a lock on it, freshen() and
    // opening, and what is written waits here until it is synced, unlocked or closed, so that a
    // full disk shows at the next sync; one opened for writing shares the handle of others like
    // it, whose locks go with its close. Set before any file is opened.
    bool remote = false;
    int locksLost = 0; // in such a way

    // The n-th call from now on is the last that this station does not make; 0: lives on.
    void dieAt(int call);
    bool dead() const { return m_dead; }
    // Before the n-th call from now on others do something.
    void beforeCall(int call, std::function<void()> others);
    // The n-th call fails with `kind`, and when `forEver` all later ones.
    void failAt(int call, ErrorKind kind, bool forEver);
    bool failed() const { return m_failed; }
    void mend();
    int calls() const { return m_calls; }
    void restartCount() { m_calls = 0; }

    Result<std::unique_ptr<File>> open(const std::string &path, OpenMode mode) override;
    Result<std::string> findIgnoringCase(const std::string &path) override;
    Status rename(const std::string &from, const std::string &to) override;
    Status remove(const std::string &path) override;
    Status syncFolderOf(const std::string &path) override;
    std::uint64_t bootMark() override { return m_disk.boot; }

private:
    friend class SimFile;
    // Counts a call; an error when it is not to happen. `partial`: part of it happens all the same.
    Status call(bool changes, bool *partial = nullptr);
    void die();
    void record(SimDisk::Change change);

    SimDisk &m_disk;
    int m_calls = 0;
    int m_dieAt = 0;
    int m_failAt = 0;
    ErrorKind m_kind = ErrorKind::Io;
    bool m_forEver = false;
    bool m_failed = false;
    bool m_dead = false;
    std::vector<SimFile *> m_open;
    std::map<int, std::function<void()>> m_others;
};

} // namespace enginetest
