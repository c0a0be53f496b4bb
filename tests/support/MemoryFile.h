// Files in memory for engine tests: a file system whose files are shared between all File objects
// opened on them, with byte range locks between those objects, counters, and failures on order.
#pragma once

#include "db/engine/File.h"

#include <algorithm>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace norvane::test
{

using namespace norvane::engine;

struct MemoryLock {
    const void *owner;
    std::uint64_t offset;
    std::uint64_t length;
    LockMode mode;
};

// What all File objects of one path share.
struct MemoryContent {
    std::vector<Byte> bytes;
    std::vector<MemoryLock> locks;
    bool readOnly = false;
    int reads = 0;
    int writes = 0;
    int syncs = 0;
    // Asked before each write and resize; an error is given back instead of writing.
    std::function<Status(std::uint64_t offset, ByteView bytes)> beforeWrite;
};

class MemoryFile : public File
{
public:
    MemoryFile(std::string path, std::shared_ptr<MemoryContent> content, bool readOnly = false)
        : m_path(std::move(path)), m_content(std::move(content)), m_readOnly(readOnly)
    {
    }
    ~MemoryFile() override
    {
        std::erase_if(m_content->locks, [this](const MemoryLock &l) { return l.owner == this; });
    }

    Result<std::size_t> read(std::uint64_t offset, ByteSpan into) override
    {
        ++m_content->reads;
        const std::vector<Byte> &bytes = m_content->bytes;
        if (offset >= bytes.size())
            return std::size_t{0};
        const std::size_t count =
            std::min(into.size(), bytes.size() - static_cast<std::size_t>(offset));
        std::copy_n(bytes.begin() + static_cast<std::ptrdiff_t>(offset), count, into.begin());
        return count;
    }

    Status write(std::uint64_t offset, ByteView from) override
    {
        if (Status allowed = mayWrite(offset, from); !allowed.ok())
            return allowed;
        ++m_content->writes;
        std::vector<Byte> &bytes = m_content->bytes;
        if (offset + from.size() > bytes.size())
            bytes.resize(static_cast<std::size_t>(offset) + from.size());
        std::copy(from.begin(), from.end(), bytes.begin() + static_cast<std::ptrdiff_t>(offset));
        return {};
    }

    Result<std::uint64_t> size() override { return std::uint64_t{m_content->bytes.size()}; }

    Status resize(std::uint64_t size) override
    {
        if (Status allowed = mayWrite(size, {}); !allowed.ok())
            return allowed;
        m_content->bytes.resize(static_cast<std::size_t>(size));
        return {};
    }

    Status sync() override
    {
        ++m_content->syncs;
        return {};
    }

    Status tryLock(std::uint64_t offset, std::uint64_t length, LockMode mode) override
    {
        for (const MemoryLock &lock : m_content->locks) {
            const bool apart =
                lock.offset + lock.length <= offset || offset + length <= lock.offset;
            const bool shared = lock.mode == LockMode::Shared && mode == LockMode::Shared;
            if (lock.owner != this && !apart && !shared)
                return Error{ErrorKind::Locked, m_path, "locked by another",
                             static_cast<std::int64_t>(offset)};
        }
        if (Status undone = unlock(offset, length); !undone.ok())
            return undone;
        m_content->locks.push_back({this, offset, length, mode});
        return {};
    }

    Status unlock(std::uint64_t offset, std::uint64_t length) override
    {
        std::erase_if(m_content->locks, [&](const MemoryLock &lock) {
            return lock.owner == this && lock.offset == offset && lock.length == length;
        });
        return {};
    }

    const std::string &path() const override { return m_path; }
    bool readOnly() const override { return m_readOnly; }

private:
    Status mayWrite(std::uint64_t offset, ByteView bytes)
    {
        if (m_readOnly || m_content->readOnly)
            return Error{ErrorKind::ReadOnly, m_path, "opened for reading only"};
        return m_content->beforeWrite ? m_content->beforeWrite(offset, bytes) : Status();
    }

    std::string m_path;
    std::shared_ptr<MemoryContent> m_content;
    bool m_readOnly;
};

class MemoryFileSystem : public FileSystem
{
public:
    using Content = std::shared_ptr<MemoryContent>;

    // Makes the file when it is not there; for looking at and tampering with its bytes.
    MemoryContent &content(const std::string &path)
    {
        Content &entry = m_files[path];
        if (!entry)
            entry = std::make_shared<MemoryContent>();
        return *entry;
    }
    bool exists(const std::string &path) const { return m_files.count(path) != 0; }

    Result<std::unique_ptr<File>> open(const std::string &path, OpenMode mode) override
    {
        const auto found = m_files.find(path);
        if (mode == OpenMode::CreateNew) {
            if (found != m_files.end())
                return Error{ErrorKind::Io, path, "the file exists"};
            content(path);
        } else if (found == m_files.end()) {
            return Error{ErrorKind::NotFound, path, "no such file"};
        } else if (mode == OpenMode::ReadWrite && found->second->readOnly) {
            return Error{ErrorKind::ReadOnly, path, "opened for reading only"};
        }
        std::unique_ptr<File> file =
            std::make_unique<MemoryFile>(path, m_files[path], mode == OpenMode::ReadOnly);
        return file;
    }

    Result<std::string> findIgnoringCase(const std::string &path) override
    {
        const auto same = [](char a, char b) { return lower(a) == lower(b); };
        for (const auto &[name, content] : m_files) {
            if (std::equal(name.begin(), name.end(), path.begin(), path.end(), same))
                return name;
        }
        return Error{ErrorKind::NotFound, path, "no such file"};
    }

    Status rename(const std::string &from, const std::string &to) override
    {
        const auto found = m_files.find(from);
        if (found == m_files.end())
            return Error{ErrorKind::NotFound, from, "no such file"};
        const Content moved = found->second;
        m_files.erase(found);
        m_files[to] = moved;
        return {};
    }

    Status remove(const std::string &path) override
    {
        if (m_files.erase(path) == 0)
            return Error{ErrorKind::NotFound, path, "no such file"};
        return {};
    }

private:
    static char lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; }

    std::map<std::string, Content> m_files;
};

} // namespace norvane::test
