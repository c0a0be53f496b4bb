// The only way from the engine to the system: files and folders behind two small interfaces.
// Product code uses systemFiles() (FilePosix.cpp, FileWindows.cpp); tests put counting, failing
// and recording ones in its place.
#pragma once

#include "db/engine/Bytes.h"
#include "db/engine/Status.h"

#include <cstdint>
#include <memory>
#include <string>

namespace norvane::engine
{

enum class LockMode { Shared, Exclusive };
enum class OpenMode { ReadWrite, ReadOnly, CreateNew }; // CreateNew fails when the file exists

// An open file. Offsets and lengths are bytes. Closing (destroying) it drops its locks.
class File
{
public:
    virtual ~File() = default;

    // Reads up to `into.size()` bytes at `offset`; gives how many there were (fewer at the end).
    virtual Result<std::size_t> read(std::uint64_t offset, ByteSpan into) = 0;
    // Writes all bytes at `offset`, growing the file when needed.
    virtual Status write(std::uint64_t offset, ByteView bytes) = 0;
    virtual Result<std::uint64_t> size() = 0;
    virtual Status resize(std::uint64_t size) = 0;
    // Puts written data on the medium.
    virtual Status sync() = 0;

    // One try for a byte range lock, never waiting. ErrorKind::Locked when another holder has it.
    // Locks of one File object never block itself, but do block other File objects of the same
    // file, in this process too. They go with this object only (not with other closes).
    virtual Status tryLock(std::uint64_t offset, std::uint64_t length, LockMode mode) = 0;
    virtual Status unlock(std::uint64_t offset, std::uint64_t length) = 0;

    virtual const std::string &path() const = 0;
    virtual bool readOnly() const = 0;
    // True on a network folder: others see what was written once it was synced under the lock.
    virtual bool onNetwork() { return false; }
    // Gives a file just made the owner, group and rights of another one, as far as that is allowed.
    virtual void takeRightsOf(const std::string & /*path*/) {}
    // What other hosts wrote until now is what reads and size() tell from here on.
    virtual Status freshen() { return {}; }
};

class FileSystem
{
public:
    virtual ~FileSystem() = default;

    // ReadWrite on a file that refuses writing gives ErrorKind::ReadOnly, a missing one NotFound.
    virtual Result<std::unique_ptr<File>> open(const std::string &path, OpenMode mode) = 0;
    // The file's path as it stands in its folder when only letter case differs; NotFound otherwise.
    virtual Result<std::string> findIgnoringCase(const std::string &path) = 0;
    // Over a file that is there. What becomes of names may get lost until the folder is synced.
    virtual Status rename(const std::string &from, const std::string &to) = 0;
    virtual Status remove(const std::string &path) = 0;
    // Puts the names in this file's folder on the medium, where the system knows such a thing.
    virtual Status syncFolderOf(const std::string & /*path*/) { return {}; }
    // A number that changes whenever this machine starts; 0 when there is none to be had.
    virtual std::uint64_t bootMark() { return 0; }
};

// The real files of this machine; lives for ever.
FileSystem &systemFiles();

} // namespace norvane::engine
