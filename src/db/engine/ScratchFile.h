// A file in memory, for an index that only this session uses. It grants every lock.
#pragma once

#include "db/engine/File.h"

#include <string>
#include <vector>

namespace norvane::engine
{

class ScratchFile final : public File
{
public:
    explicit ScratchFile(std::string name) : m_name(std::move(name)) {}

    Result<std::size_t> read(std::uint64_t offset, ByteSpan into) override;
    Status write(std::uint64_t offset, ByteView bytes) override;
    Result<std::uint64_t> size() override { return std::uint64_t{m_bytes.size()}; }
    Status resize(std::uint64_t size) override;
    Status sync() override { return {}; }
    Status tryLock(std::uint64_t, std::uint64_t, LockMode) override { return {}; }
    Status unlock(std::uint64_t, std::uint64_t) override { return {}; }
    const std::string &path() const override { return m_name; }
    bool readOnly() const override { return false; }

private:
    std::string m_name;
    std::vector<Byte> m_bytes;
};

} // namespace norvane::engine
