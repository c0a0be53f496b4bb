// Collects the (key, record) pairs of one tag and sorts them.
#pragma once

#include "db/engine/Bytes.h"

#include <cstdint>
#include <string_view>
#include <vector>

namespace norvane::engine
{

class KeyList
{
public:
    explicit KeyList(std::size_t keyLength) : m_keyLength(keyLength) {}

    // Room for the key of one more record; to be filled before the next call.
    Byte *add(std::uint32_t record);
    // By key bytes, equal keys by record number.
    void sort();

    std::size_t size() const { return m_records.size(); }
    // REQUIRES: sort() after the last add().
    std::string_view key(std::size_t i) const { return asText({bytes(m_order[i]), m_keyLength}); }
    std::uint32_t record(std::size_t i) const { return m_records[m_order[i].place]; }
    void clear();

private:
    struct Item {
        std::uint64_t prefix; // first key bytes as a big-endian number
        std::uint32_t place;  // in m_keys and m_records
    };
    using Items = std::vector<Item>;

    const Byte *bytes(const Item &item) const { return m_keys.data() + item.place * m_keyLength; }
    bool isBefore(const Item &a, const Item &b) const;
    void sortByPrefix();
    void sortEqualPrefixes();

    std::size_t m_keyLength;
    std::vector<Byte> m_keys;
    std::vector<std::uint32_t> m_records;
    bool m_rising = true; // records came in rising order
    Items m_order;
};

} // namespace norvane::engine
