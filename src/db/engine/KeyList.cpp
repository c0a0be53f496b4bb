#include "db/engine/KeyList.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <utility>

namespace norvane::engine
{

namespace
{

constexpr std::size_t prefixBytes = 8;
constexpr std::size_t fewItems = 256; // below, counting passes do not pay

std::uint64_t prefixOf(const Byte *key, std::size_t length)
{
    std::uint64_t prefix = 0;
    for (std::size_t i = 0; i < prefixBytes; ++i)
        prefix = prefix << 8 | (i < length ? key[i] : Byte{0});
    return prefix;
}

} // namespace

Byte *KeyList::add(std::uint32_t record)
{
    m_rising = m_rising && (m_records.empty() || m_records.back() < record);
    m_records.push_back(record);
    m_keys.resize(m_keys.size() + m_keyLength);
    return m_keys.data() + m_keys.size() - m_keyLength;
}

bool KeyList::isBefore(const Item &a, const Item &b) const
{
    if (a.prefix != b.prefix)
        return a.prefix < b.prefix;
    if (m_keyLength > prefixBytes) {
        if (const int order = std::memcmp(bytes(a) + prefixBytes, bytes(b) + prefixBytes,
                                          m_keyLength - prefixBytes))
            return order < 0;
    }
    return m_records[a.place] < m_records[b.place];
}

void KeyList::sort()
{
    m_order.resize(size());
    for (std::size_t i = 0; i < size(); ++i)
        m_order[i] = {prefixOf(m_keys.data() + i * m_keyLength, m_keyLength),
                      static_cast<std::uint32_t>(i)};
    const auto before = [this](const Item &a, const Item &b) { return isBefore(a, b); };
    if (std::is_sorted(m_order.begin(), m_order.end(), before))
        return;
    if (size() < fewItems || !m_rising) {
        std::sort(m_order.begin(), m_order.end(), before);
        return;
    }
    sortByPrefix(); // stable, so equal keys stay in record order
    if (m_keyLength > prefixBytes)
        sortEqualPrefixes();
}

// Counting sort byte by byte from the last; bytes that are the same in all keys cost nothing.
void KeyList::sortByPrefix()
{
    std::array<std::array<std::size_t, 256>, prefixBytes> counts{};
    for (const Item &item : m_order) {
        for (std::size_t b = 0; b < prefixBytes; ++b)
            ++counts[b][item.prefix >> (8 * b) & 0xFF];
    }
    Items sorted(m_order.size());
    for (std::size_t b = 0; b < prefixBytes; ++b) {
        auto &starts = counts[b];
        if (std::find(starts.begin(), starts.end(), m_order.size()) != starts.end())
            continue;
        std::size_t sum = 0;
        for (std::size_t &start : starts)
            sum += std::exchange(start, sum);
        for (const Item &item : m_order)
            sorted[starts[item.prefix >> (8 * b) & 0xFF]++] = item;
        m_order.swap(sorted);
    }
}

void KeyList::sortEqualPrefixes()
{
    const auto before = [this](const Item &a, const Item &b) { return isBefore(a, b); };
    for (auto first = m_order.begin(); first != m_order.end();) {
        const auto end = std::find_if(
            first, m_order.end(), [&](const Item &item) { return item.prefix != first->prefix; });
        std::sort(first, end, before);
        first = end;
    }
}

void KeyList::clear()
{
    *this = KeyList(m_keyLength);
}

} // namespace norvane::engine
