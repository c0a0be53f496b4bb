// A file whose last writes can be taken back: what they overwrite is read first. So a group of
// page writes of which one fails leaves the file as it was.
#pragma once

#include "db/engine/File.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

namespace norvane::engine
{

class UndoFile final : public File
{
public:
    explicit UndoFile(std::unique_ptr<File> file) : m_file(std::move(file)) {}

    // From here on writes can be taken back, until keep() or undo().
    void begin() { m_recording = true; }
    void keep();
    Status undo();

    Result<std::size_t> read(std::uint64_t offset, ByteSpan into) override
    {
        return m_file->read(offset, into);
    }
    Status write(std::uint64_t offset, ByteView bytes) override;
    Result<std::uint64_t> size() override { return m_file->size(); }
    Status resize(std::uint64_t size) override { return m_file->resize(size); }
    Status sync() override { return m_file->sync(); }
    Status tryLock(std::uint64_t offset, std::uint64_t length, LockMode mode) override
    {
        return m_file->tryLock(offset, length, mode);
    }
    Status unlock(std::uint64_t offset, std::uint64_t length) override
    {
        return m_file->unlock(offset, length);
    }
    const std::string &path() const override { return m_file->path(); }
    bool readOnly() const override { return m_file->readOnly(); }

private:
    struct Before {
        std::uint64_t offset;
        std::vector<Byte> bytes;
    };

    std::unique_ptr<File> m_file;
    bool m_recording = false;
    std::vector<Before> m_before;
    std::optional<std::uint64_t> m_sizeBefore; // bytes, known once a write went past the end
};

} // namespace norvane::engine
