// The real files on Linux: positioned reads and writes, and open-file-description locks, which
// stay with this open file whatever else the process opens and closes (docs/locking.md).
#include "db/engine/File.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <filesystem>
#include <fstream>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/vfs.h>
#include <unistd.h>

namespace norvane::engine
{

namespace
{

ErrorKind kindOf(int number)
{
    switch (number) {
    case ENOENT:
    case ENOTDIR:
        return ErrorKind::NotFound;
    case EACCES:
    case EPERM:
    case EROFS:
        return ErrorKind::ReadOnly;
    case ENOSPC:
    case EDQUOT:
        return ErrorKind::NoSpace;
    case EFBIG:
        return ErrorKind::TooLarge;
    case ESTALE:
    case ENOTCONN:
    case ENODEV:
    case ENXIO:
    case EHOSTDOWN:
    case ESHUTDOWN:
        return ErrorKind::Gone;
    default:
        return ErrorKind::Io;
    }
}

Error systemError(int number, const std::string &path, const char *what, std::int64_t place = -1)
{
    return {kindOf(number), path, std::string(what) + ": " + std::strerror(number), place};
}

// Makes a call again for as long as a signal breaks it off.
template <class Call>
auto insistOn(Call call)
{
    auto result = call();
    while (result < 0 && errno == EINTR)
        result = call();
    return result;
}

// Network folders show other hosts what was written at unlock only when it has been sent.
bool liesOnNetwork(int descriptor)
{
    struct statfs info = {};
    if (::fstatfs(descriptor, &info) != 0)
        return false;
    switch (static_cast<std::uint32_t>(info.f_type)) {
    case 0x6969U:     // NFS
    case 0x517BU:     // SMB
    case 0xFF534D42U: // CIFS
    case 0xFE534D42U: // SMB 2 and later
    case 0x65735546U: // FUSE
    case 0x01021997U: // 9P
    case 0x5346414FU: // AFS
        return true;
    default:
        return false;
    }
}

bool sameOwners(const struct stat &a, const struct stat &b)
{
    return a.st_uid == b.st_uid && a.st_gid == b.st_gid;
}

class PosixFile final : public File
{
public:
    PosixFile(std::string path, bool readOnly) : m_path(std::move(path)), m_readOnly(readOnly) {}

    ~PosixFile() override
    {
        if (m_descriptor >= 0)
            ::close(m_descriptor);
    }

    PosixFile(const PosixFile &) = delete;
    PosixFile &operator=(const PosixFile &) = delete;

    // Takes over the open file. REQUIRES: none yet.
    void adopt(int descriptor) { m_descriptor = descriptor; }

    Result<std::size_t> read(std::uint64_t offset, ByteSpan into) override
    {
        std::size_t done = 0;
        while (done < into.size()) {
            const auto place = static_cast<off_t>(offset + done);
            const ssize_t n = insistOn([&] {
                return ::pread(m_descriptor, into.data() + done, into.size() - done, place);
            });
            if (n < 0)
                return systemError(errno, m_path, "read", place);
            if (n == 0)
                break;
            done += static_cast<std::size_t>(n);
        }
        return done;
    }

    Status write(std::uint64_t offset, ByteView bytes) override
    {
        if (m_readOnly)
            return refusedWrite();
        m_unsynced = true;
        std::size_t done = 0;
        while (done < bytes.size()) {
            const auto place = static_cast<off_t>(offset + done);
            const ssize_t n = insistOn([&] {
                return ::pwrite(m_descriptor, bytes.data() + done, bytes.size() - done, place);
            });
            if (n <= 0)
                return systemError(n < 0 ? errno : ENOSPC, m_path, "write", place);
            done += static_cast<std::size_t>(n);
        }
        return {};
    }

    Result<std::uint64_t> size() override
    {
        struct stat info = {};
        if (insistOn([&] { return ::fstat(m_descriptor, &info); }) != 0)
            return systemError(errno, m_path, "size");
        return static_cast<std::uint64_t>(info.st_size);
    }

    Status resize(std::uint64_t size) override
    {
        if (m_readOnly)
            return refusedWrite();
        m_unsynced = true;
        if (insistOn([&] { return ::ftruncate(m_descriptor, static_cast<off_t>(size)); }) != 0)
            return systemError(errno, m_path, "resize");
        return {};
    }

    Status sync() override
    {
        if (insistOn([&] { return ::fdatasync(m_descriptor); }) != 0)
            return systemError(errno, m_path, "sync");
        m_unsynced = false;
        return {};
    }

    Status tryLock(std::uint64_t offset, std::uint64_t length, LockMode mode) override
    {
        return setLock(offset, length, mode == LockMode::Shared ? F_RDLCK : F_WRLCK);
    }

    Status unlock(std::uint64_t offset, std::uint64_t length) override
    {
        if (!m_unsynced)
            return setLock(offset, length, F_UNLCK);
        const Status synced = onNetwork() ? sync() : Status();
        Status unlocked = setLock(offset, length, F_UNLCK);
        return synced.ok() ? unlocked : synced;
    }

    const std::string &path() const override { return m_path; }
    bool readOnly() const override { return m_readOnly; }

    // Network folders serve reads and the length from what they kept for a while.
    Status freshen() override
    {
        if (!onNetwork())
            return {};
        struct statx info = {};
        constexpr int how = AT_EMPTY_PATH | AT_STATX_FORCE_SYNC;
        if (insistOn([&] { return ::statx(m_descriptor, "", how, STATX_SIZE, &info); }) != 0)
            return systemError(errno, m_path, "size");
        // A change within a tick of the server's clock shows in no attribute, so what was kept
        // goes.
        (void)::posix_fadvise(m_descriptor, 0, 0, POSIX_FADV_DONTNEED);
        return {};
    }

    // Whoever may write the table must be able to write what is made beside it, whatever the umask
    // here. A group that cannot be had is not given the rights of another.
    void takeRightsOf(const std::string &path) override
    {
        struct stat theirs = {};
        struct stat ours = {};
        if (::stat(path.c_str(), &theirs) != 0 || ::fstat(m_descriptor, &ours) != 0)
            return;
        const bool taken = sameOwners(ours, theirs) ||
                           ::fchown(m_descriptor, theirs.st_uid, theirs.st_gid) == 0 ||
                           ::fchown(m_descriptor, ours.st_uid, theirs.st_gid) == 0;
        const mode_t others = theirs.st_mode & 07;
        const mode_t rights = taken ? theirs.st_mode & 0777 : (ours.st_mode & 0777) | others * 011;
        if (rights != (ours.st_mode & 0777))
            (void)::fchmod(m_descriptor, rights);
    }

    bool onNetwork() override
    {
        if (m_network == Network::NotAsked)
            m_network = liesOnNetwork(m_descriptor) ? Network::Yes : Network::No;
        return m_network == Network::Yes;
    }

private:
    enum class Network { NotAsked, No, Yes };

    Error refusedWrite() const
    {
        return {ErrorKind::ReadOnly, m_path, "the file is open for reading only"};
    }

    Status setLock(std::uint64_t offset, std::uint64_t length, int type)
    {
        struct flock range = {};
        range.l_type = static_cast<short>(type);
        range.l_whence = SEEK_SET;
        range.l_start = static_cast<off_t>(offset);
        range.l_len = static_cast<off_t>(length);
        const auto place = static_cast<std::int64_t>(offset);
        if (insistOn([&] { return ::fcntl(m_descriptor, F_OFD_SETLK, &range); }) == 0)
            return {};
        if (errno == EAGAIN || errno == EACCES)
            return Error{ErrorKind::Locked, m_path, "held by another session", place};
        if (errno == EBADF && m_readOnly)
            return refusedWrite();
        return systemError(errno, m_path, "lock", place);
    }

    int m_descriptor = -1;
    std::string m_path;
    bool m_readOnly;
    bool m_unsynced = false;
    Network m_network = Network::NotAsked;
};

char lower(char c)
{
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

bool sameButForCase(std::string_view a, std::string_view b)
{
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](char x, char y) { return lower(x) == lower(y); });
}

Status syncFolder(const std::string &path)
{
    const std::filesystem::path parent = std::filesystem::path(path).parent_path();
    const std::filesystem::path folder = parent.empty() ? std::filesystem::path(".") : parent;
    constexpr int how = O_RDONLY | O_DIRECTORY | O_CLOEXEC;
    const int descriptor = insistOn([&] { return ::open(folder.c_str(), how); });
    if (descriptor < 0)
        return systemError(errno, folder.string(), "open folder");
    // EINVAL: this file system cannot sync a folder; it sees to its names in its own way
    const bool synced = insistOn([&] { return ::fsync(descriptor); }) == 0 || errno == EINVAL;
    const int number = errno;
    ::close(descriptor);
    return synced ? Status() : systemError(number, folder.string(), "sync folder");
}

// A digest of the identifier that the kernel draws at each start.
std::uint64_t readBootMark()
{
    std::ifstream file("/proc/sys/kernel/random/boot_id");
    std::string text;
    if (!std::getline(file, text) || text.empty())
        return 0;
    std::uint64_t mark = 0xCBF29CE484222325U;
    for (const char c : text)
        mark = (mark ^ static_cast<unsigned char>(c)) * 0x100000001B3U;
    return mark;
}

class PosixFileSystem final : public FileSystem
{
public:
    Result<std::unique_ptr<File>> open(const std::string &path, OpenMode mode) override
    {
        int flags = O_CLOEXEC | O_NONBLOCK; // a pipe in the place of a file must not stop us
        if (mode == OpenMode::ReadOnly)
            flags |= O_RDONLY;
        else
            flags |= mode == OpenMode::CreateNew ? O_RDWR | O_CREAT | O_EXCL : O_RDWR;
        // made first: a descriptor must not get lost when there is no memory for its object
        auto file = std::make_unique<PosixFile>(path, mode == OpenMode::ReadOnly);
        const int descriptor = insistOn([&] { return ::open(path.c_str(), flags, 0666); });
        if (descriptor >= 0) {
            file->adopt(descriptor);
            return std::unique_ptr<File>(std::move(file));
        }
        Error error = systemError(errno, path, "open");
        if (mode == OpenMode::ReadOnly && error.kind == ErrorKind::ReadOnly)
            error.kind = ErrorKind::Io; // not even reading is allowed
        return error;
    }

    Result<std::string> findIgnoringCase(const std::string &path) override
    {
        std::error_code failed;
        if (std::filesystem::exists(path, failed))
            return path;
        const std::filesystem::path wanted(path);
        const std::string name = wanted.filename().string();
        const std::filesystem::path folder =
            wanted.has_parent_path() ? wanted.parent_path() : std::filesystem::path(".");
        std::filesystem::directory_iterator entry(folder, failed);
        const std::filesystem::directory_iterator end;
        while (!failed && entry != end) {
            const std::filesystem::path found = entry->path().filename();
            if (sameButForCase(found.string(), name))
                return wanted.has_parent_path() ? (wanted.parent_path() / found).string()
                                                : found.string();
            entry.increment(failed);
        }
        return Error{ErrorKind::NotFound, path, "no such file"};
    }

    Status rename(const std::string &from, const std::string &to) override
    {
        if (insistOn([&] { return ::rename(from.c_str(), to.c_str()); }) != 0)
            return systemError(errno, from, "rename");
        return {};
    }

    Status remove(const std::string &path) override
    {
        if (insistOn([&] { return ::unlink(path.c_str()); }) != 0)
            return systemError(errno, path, "remove");
        return {};
    }

    Status syncFolderOf(const std::string &path) override { return syncFolder(path); }

    std::uint64_t bootMark() override
    {
        static const std::uint64_t mark = readBootMark();
        return mark;
    }
};

} // namespace

FileSystem &systemFiles()
{
    static PosixFileSystem files;
    return files;
}

} // namespace norvane::engine
