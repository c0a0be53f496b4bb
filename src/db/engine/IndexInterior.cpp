#include "db/engine/IndexInterior.h"

#include <algorithm>
#include <cstring>

namespace norvane::engine
{

namespace
{

constexpr std::size_t entriesStart = 12;

} // namespace

Status IndexInterior::decode(ByteView page)
{
    const std::size_t entries = getLe16(&page[2]);
    if (entries < 1 || entries > capacity())
        return Error{
            ErrorKind::Damaged, {}, "an interior page has an impossible number of entries"};
    const auto first = page.begin() + entriesStart;
    m_entries.assign(first, first + static_cast<std::ptrdiff_t>(entries * step()));
    if (!rises())
        return Error{ErrorKind::Damaged, {}, "the entries of an interior page are out of order"};
    return {};
}

bool IndexInterior::rises() const
{
    for (std::size_t i = 1; i < count(); ++i) {
        // Record numbers are big endian behind the key: one comparison covers the pair.
        if (std::memcmp(entry(i - 1), entry(i), m_keyLength + std::size_t{4}) >= 0)
            return false;
    }
    return true;
}

void IndexInterior::encode(ByteSpan page) const
{
    putLe16(&page[2], static_cast<std::uint16_t>(count()));
    const auto end = std::copy(m_entries.begin(), m_entries.end(), page.begin() + entriesStart);
    std::fill(end, page.end(), Byte{0});
}

std::size_t IndexInterior::lowerBound(std::string_view key, std::uint32_t record) const
{
    const std::size_t length = std::min<std::size_t>(m_keyLength, key.size());
    const auto isBefore = [&](std::size_t i) {
        if (const int order = length == 0 ? 0 : std::memcmp(entry(i), key.data(), length))
            return order < 0;
        if (key.size() != m_keyLength)
            return key.size() > m_keyLength;
        return this->record(i) < record;
    };
    std::size_t first = 0;
    for (std::size_t size = count(); size > 0;) {
        const std::size_t half = size / 2;
        if (isBefore(first + half)) {
            first += half + 1;
            size -= half + 1;
        } else {
            size = half;
        }
    }
    return first;
}

void IndexInterior::insert(std::size_t i, std::string_view key, std::uint32_t record,
                           std::uint32_t child)
{
    m_entries.insert(place(i), step(), Byte{0});
    setLast(i, key, record);
    putBe32(entry(i) + m_keyLength + 4, child);
}

void IndexInterior::setLast(std::size_t i, std::string_view key, std::uint32_t record)
{
    std::memcpy(entry(i), key.data(), m_keyLength);
    putBe32(entry(i) + m_keyLength, record);
}

void IndexInterior::erase(std::size_t i)
{
    m_entries.erase(place(i), place(i + 1));
}

IndexInterior IndexInterior::splitOff(std::size_t i)
{
    IndexInterior tail(m_keyLength);
    tail.m_entries.assign(place(i), m_entries.end());
    m_entries.erase(place(i), m_entries.end());
    return tail;
}

void IndexInterior::append(const IndexInterior &next)
{
    m_entries.insert(m_entries.end(), next.m_entries.begin(), next.m_entries.end());
}

} // namespace norvane::engine
