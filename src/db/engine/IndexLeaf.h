// The entries of a leaf page, decoded: full keys and record numbers in order, with the encoded
// size kept up to date so that a change costs its own bytes and not a page (docs/index-format.md,
// "Leaf page").
#pragma once

#include "db/engine/Bytes.h"
#include "db/engine/Status.h"

#include <cstdint>
#include <string_view>
#include <vector>

namespace norvane::engine
{

inline constexpr std::size_t indexPageSize = 512;
inline constexpr std::size_t leafCapacity = 488; // bytes for entries and key texts

class IndexLeaf
{
public:
    IndexLeaf() = default;
    IndexLeaf(std::uint16_t keyLength, Byte pad);

    // Takes a page's bytes apart; Damaged (without file and place) when they make no sense.
    Status decode(ByteView page);
    // Writes bytes 2-3 and 12-511. REQUIRES: bytes() <= leafCapacity.
    void encode(ByteSpan page) const;

    std::size_t count() const { return m_slots.size(); }
    std::string_view key(std::size_t i) const;
    std::uint32_t record(std::size_t i) const { return m_slots[i].record; }
    // Bytes the entries and texts take; more than leafCapacity until the leaf is split.
    std::size_t bytes() const { return m_slots.size() * m_width + m_textBytes; }
    // Bytes both would take in one leaf, `next` standing behind this one.
    std::size_t bytesJoined(const IndexLeaf &next) const;

    // Bytes after appending the pair.
    std::size_t bytesWith(std::string_view key, std::uint32_t record) const;

    // First entry >= (key, record). A shorter key stands before all that begin with it.
    std::size_t lowerBound(std::string_view key, std::uint32_t record) const;
    void insert(std::size_t i, std::string_view key, std::uint32_t record);
    void append(std::string_view key, std::uint32_t record) { insert(count(), key, record); }
    void erase(std::size_t i);

    // Where to cut so that both parts fit a page and are about equal; the best there is when none
    // fits. REQUIRES: two entries.
    std::size_t splitPoint() const;
    // Takes the entries from `i` on away and gives them as a leaf.
    IndexLeaf splitOff(std::size_t i);
    void append(const IndexLeaf &next);
    void clear();

private:
    struct Slot {
        std::uint32_t record;
        std::uint8_t stripped; // key bytes without the padding at the end
        std::uint8_t shared;   // of them, those equal to the stripped key before
    };

    const Byte *keyBytes(std::size_t i) const { return m_keys.data() + i * m_keyLength; }
    std::size_t textBytes(std::size_t i) const
    {
        return std::size_t{m_slots[i].stripped} - m_slots[i].shared;
    }
    std::uint8_t strippedLength(const Byte *key) const;
    std::uint8_t sharedLength(std::size_t i) const;
    int compare(std::size_t i, std::string_view key, std::uint32_t record) const;
    void reshare(std::size_t i);
    void widenFor(std::uint32_t record);
    bool decodeEntry(ByteView page, std::size_t i, const struct LeafBits &bits,
                     std::size_t &textEnd);

    std::uint16_t m_keyLength = 0;
    Byte m_pad = 0;
    std::uint8_t m_width = 3; // bytes of an encoded entry
    std::size_t m_textBytes = 0;
    std::vector<Slot> m_slots;
    std::vector<Byte> m_keys; // one after the other, full length
};

} // namespace norvane::engine
