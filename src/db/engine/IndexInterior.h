// The entries of an interior page: the last (key, record) below each child, and the child's
// offset, kept packed as they stand in the file (docs/index-format.md, "Interior page").
#pragma once

#include "db/engine/Bytes.h"
#include "db/engine/Status.h"

#include <cstdint>
#include <string_view>
#include <vector>

namespace norvane::engine
{

class IndexInterior
{
public:
    IndexInterior() = default;
    explicit IndexInterior(std::uint16_t keyLength) : m_keyLength(keyLength) {}

    static std::size_t capacityFor(std::size_t keyLength) { return 500 / (keyLength + 8); }

    // Takes a page's bytes apart; Damaged (without file and place) when they make no sense.
    Status decode(ByteView page);
    // Writes bytes 2-3 and 12-511. REQUIRES: count() <= capacity().
    void encode(ByteSpan page) const;

    std::size_t capacity() const { return capacityFor(m_keyLength); }
    std::size_t count() const { return m_entries.size() / step(); }
    std::string_view key(std::size_t i) const { return asText({entry(i), m_keyLength}); }
    std::uint32_t record(std::size_t i) const { return getBe32(entry(i) + m_keyLength); }
    std::uint32_t child(std::size_t i) const { return getBe32(entry(i) + m_keyLength + 4); }

    bool rises() const; // no page with other entries is read
    // First entry >= (key, record). A shorter key stands before all that begin with it.
    std::size_t lowerBound(std::string_view key, std::uint32_t record) const;
    void insert(std::size_t i, std::string_view key, std::uint32_t record, std::uint32_t child);
    void setLast(std::size_t i, std::string_view key, std::uint32_t record);
    void erase(std::size_t i);
    IndexInterior splitOff(std::size_t i);
    void append(const IndexInterior &next);

private:
    std::size_t step() const { return m_keyLength + std::size_t{8}; }
    const Byte *entry(std::size_t i) const { return m_entries.data() + i * step(); }
    Byte *entry(std::size_t i) { return m_entries.data() + i * step(); }
    auto place(std::size_t i)
    {
        return m_entries.begin() + static_cast<std::ptrdiff_t>(i * step());
    }

    std::uint16_t m_keyLength = 0;
    std::vector<Byte> m_entries;
};

} // namespace norvane::engine
