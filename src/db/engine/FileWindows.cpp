// The real files on Windows. Locks belong to the handle; a range must be unlocked exactly as it
// was locked, and one handle's own locks would block each other, so held ranges are remembered.
#include "db/engine/File.h"

#include <algorithm>
#include <filesystem>
#include <vector>

#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>

namespace norvane::engine
{

namespace
{

ErrorKind kindOf(DWORD number)
{
    switch (number) {
    case ERROR_FILE_NOT_FOUND:
    case ERROR_PATH_NOT_FOUND:
        return ErrorKind::NotFound;
    case ERROR_ACCESS_DENIED:
    case ERROR_WRITE_PROTECT:
        return ErrorKind::ReadOnly;
    case ERROR_SHARING_VIOLATION:
    case ERROR_LOCK_VIOLATION:
    case ERROR_IO_PENDING:
        return ErrorKind::Locked;
    case ERROR_DISK_FULL:
    case ERROR_HANDLE_DISK_FULL:
        return ErrorKind::NoSpace;
    case ERROR_NETNAME_DELETED:
    case ERROR_BAD_NETPATH:
    case ERROR_DEV_NOT_EXIST:
    case ERROR_UNEXP_NET_ERR:
        return ErrorKind::Gone;
    default:
        return ErrorKind::Io;
    }
}

Error systemError(DWORD number, const std::string &path, const char *what, std::int64_t place = -1)
{
    return {kindOf(number), path, std::string(what) + ": system error " + std::to_string(number),
            place};
}

// Paths are UTF-8 in the engine.
std::wstring wide(const std::string &path)
{
    const int length = static_cast<int>(path.size());
    const int needed = ::MultiByteToWideChar(CP_UTF8, 0, path.data(), length, nullptr, 0);
    std::wstring text(static_cast<std::size_t>(std::max(needed, 0)), L'\0');
    ::MultiByteToWideChar(CP_UTF8, 0, path.data(), length, text.data(), needed);
    return text;
}

OVERLAPPED at(std::uint64_t offset)
{
    OVERLAPPED place = {};
    place.Offset = static_cast<DWORD>(offset);
    place.OffsetHigh = static_cast<DWORD>(offset >> 32);
    return place;
}

class WindowsFile final : public File
{
public:
    WindowsFile(HANDLE handle, std::string path, bool readOnly)
        : m_handle(handle), m_path(std::move(path)), m_readOnly(readOnly)
    {
    }

    ~WindowsFile() override { ::CloseHandle(m_handle); }

    WindowsFile(const WindowsFile &) = delete;
    WindowsFile &operator=(const WindowsFile &) = delete;

    Result<std::size_t> read(std::uint64_t offset, ByteSpan into) override
    {
        std::size_t done = 0;
        while (done < into.size()) {
            OVERLAPPED place = at(offset + done);
            DWORD got = 0;
            if (!::ReadFile(m_handle, into.data() + done, portion(into.size() - done), &got,
                            &place)) {
                const DWORD number = ::GetLastError();
                if (number == ERROR_HANDLE_EOF)
                    break;
                return systemError(number, m_path, "read", static_cast<std::int64_t>(offset));
            }
            if (got == 0)
                break;
            done += got;
        }
        return done;
    }

    Status write(std::uint64_t offset, ByteView bytes) override
    {
        if (m_readOnly)
            return refusedWrite();
        std::size_t done = 0;
        while (done < bytes.size()) {
            OVERLAPPED place = at(offset + done);
            DWORD put = 0;
            if (!::WriteFile(m_handle, bytes.data() + done, portion(bytes.size() - done), &put,
                             &place) ||
                put == 0)
                return systemError(::GetLastError(), m_path, "write",
                                   static_cast<std::int64_t>(offset));
            done += put;
        }
        return {};
    }

    Result<std::uint64_t> size() override
    {
        LARGE_INTEGER size = {};
        if (!::GetFileSizeEx(m_handle, &size))
            return systemError(::GetLastError(), m_path, "size");
        return static_cast<std::uint64_t>(size.QuadPart);
    }

    Status resize(std::uint64_t size) override
    {
        if (m_readOnly)
            return refusedWrite();
        LARGE_INTEGER place = {};
        place.QuadPart = static_cast<LONGLONG>(size);
        if (!::SetFilePointerEx(m_handle, place, nullptr, FILE_BEGIN) || !::SetEndOfFile(m_handle))
            return systemError(::GetLastError(), m_path, "resize");
        return {};
    }

    Status sync() override
    {
        if (!m_readOnly && !::FlushFileBuffers(m_handle))
            return systemError(::GetLastError(), m_path, "sync");
        return {};
    }

    Status tryLock(std::uint64_t offset, std::uint64_t length, LockMode mode) override
    {
        const auto held = find(offset, length);
        if (held == m_held.end())
            return lockRange({offset, length, mode});
        if (held->mode == mode)
            return {};
        const Range before = *held;
        if (Status status = unlock(offset, length); !status.ok())
            return status;
        Status changed = lockRange({offset, length, mode});
        if (!changed.ok())
            (void)lockRange(before);
        return changed;
    }

    Status unlock(std::uint64_t offset, std::uint64_t length) override
    {
        const auto held = find(offset, length);
        if (held == m_held.end())
            return {};
        m_held.erase(held);
        OVERLAPPED place = at(offset);
        if (!::UnlockFileEx(m_handle, 0, static_cast<DWORD>(length),
                            static_cast<DWORD>(length >> 32), &place))
            return systemError(::GetLastError(), m_path, "unlock",
                               static_cast<std::int64_t>(offset));
        return {};
    }

    const std::string &path() const override { return m_path; }
    bool readOnly() const override { return m_readOnly; }

private:
    struct Range {
        std::uint64_t offset;
        std::uint64_t length;
        LockMode mode;
    };

    static DWORD portion(std::size_t size)
    {
        return static_cast<DWORD>(std::min<std::size_t>(size, 1U << 30));
    }

    Error refusedWrite() const
    {
        return {ErrorKind::ReadOnly, m_path, "the file is open for reading only"};
    }

    std::vector<Range>::iterator find(std::uint64_t offset, std::uint64_t length)
    {
        return std::find_if(m_held.begin(), m_held.end(), [&](const Range &range) {
            return range.offset == offset && range.length == length;
        });
    }

    Status lockRange(const Range &range)
    {
        OVERLAPPED place = at(range.offset);
        DWORD flags = LOCKFILE_FAIL_IMMEDIATELY;
        if (range.mode == LockMode::Exclusive)
            flags |= LOCKFILE_EXCLUSIVE_LOCK;
        if (!::LockFileEx(m_handle, flags, 0, static_cast<DWORD>(range.length),
                          static_cast<DWORD>(range.length >> 32), &place))
            return systemError(::GetLastError(), m_path, "lock",
                               static_cast<std::int64_t>(range.offset));
        m_held.push_back(range);
        return {};
    }

    HANDLE m_handle;
    std::string m_path;
    bool m_readOnly;
    std::vector<Range> m_held;
};

class WindowsFileSystem final : public FileSystem
{
public:
    Result<std::unique_ptr<File>> open(const std::string &path, OpenMode mode) override
    {
        const bool readOnly = mode == OpenMode::ReadOnly;
        const HANDLE handle = ::CreateFileW(
            wide(path).c_str(), readOnly ? GENERIC_READ : GENERIC_READ | GENERIC_WRITE,
            FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
            mode == OpenMode::CreateNew ? CREATE_NEW : OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL,
            nullptr);
        if (handle != INVALID_HANDLE_VALUE)
            return std::unique_ptr<File>(std::make_unique<WindowsFile>(handle, path, readOnly));
        Error error = systemError(::GetLastError(), path, "open");
        if (readOnly && error.kind == ErrorKind::ReadOnly)
            error.kind = ErrorKind::Io; // not even reading is allowed
        return error;
    }

    Result<std::string> findIgnoringCase(const std::string &path) override
    {
        // the system itself does not distinguish case
        if (::GetFileAttributesW(wide(path).c_str()) == INVALID_FILE_ATTRIBUTES)
            return Error{ErrorKind::NotFound, path, "no such file"};
        return path;
    }

    Status rename(const std::string &from, const std::string &to) override
    {
        if (!::MoveFileExW(wide(from).c_str(), wide(to).c_str(),
                           MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH))
            return systemError(::GetLastError(), from, "rename");
        return {};
    }

    Status remove(const std::string &path) override
    {
        if (!::DeleteFileW(wide(path).c_str()))
            return systemError(::GetLastError(), path, "remove");
        return {};
    }
};

} // namespace

FileSystem &systemFiles()
{
    static WindowsFileSystem files;
    return files;
}

} // namespace norvane::engine
