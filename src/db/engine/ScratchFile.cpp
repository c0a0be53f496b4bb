#include "db/engine/ScratchFile.h"

#include <algorithm>

namespace norvane::engine
{

Result<std::size_t> ScratchFile::read(std::uint64_t offset, ByteSpan into)
{
    if (offset >= m_bytes.size())
        return std::size_t{0};
    const std::size_t from = static_cast<std::size_t>(offset);
    const std::size_t length = std::min(into.size(), m_bytes.size() - from);
    std::copy_n(m_bytes.begin() + static_cast<std::ptrdiff_t>(from), length, into.begin());
    return length;
}

Status ScratchFile::write(std::uint64_t offset, ByteView bytes)
{
    const std::size_t from = static_cast<std::size_t>(offset);
    if (from + bytes.size() > m_bytes.size())
        m_bytes.resize(from + bytes.size());
    std::copy(bytes.begin(), bytes.end(), m_bytes.begin() + static_cast<std::ptrdiff_t>(from));
    return {};
}

Status ScratchFile::resize(std::uint64_t size)
{
    m_bytes.resize(static_cast<std::size_t>(size));
    return {};
}

} // namespace norvane::engine
