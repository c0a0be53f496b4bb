#include "db/engine/IndexLeaf.h"

#include <algorithm>
#include <bit>
#include <cassert>
#include <cstring>

namespace norvane::engine
{

// The bit layout of a leaf's entries, from bytes 14-23 of its page.
struct LeafBits {
    unsigned record = 0;
    unsigned shared = 0;
    unsigned trailing = 0;
    std::size_t width = 0; // bytes
};

namespace
{

constexpr std::size_t entriesStart = 24;
constexpr unsigned leastWidth = 3;
constexpr unsigned mostRecordBits = 32;

unsigned countBits(std::size_t keyLength)
{
    return static_cast<unsigned>(std::bit_width(keyLength));
}

unsigned widthFor(std::size_t keyLength, std::uint32_t record)
{
    const unsigned bits = 2 * countBits(keyLength) + static_cast<unsigned>(std::bit_width(record));
    return std::max(leastWidth, (bits + 7) / 8);
}

LeafBits canonicalBits(std::size_t keyLength, std::size_t width)
{
    LeafBits bits;
    bits.width = width;
    bits.shared = bits.trailing = countBits(keyLength);
    bits.record = std::min(mostRecordBits, static_cast<unsigned>(8 * width) - 2 * bits.shared);
    return bits;
}

std::uint64_t mask(unsigned bits)
{
    return (std::uint64_t{1} << bits) - 1;
}

bool readBits(ByteView page, LeafBits &bits)
{
    bits = {page[20], page[21], page[22], page[23]};
    const bool possible = bits.width >= 1 && bits.width <= 8 && bits.record >= 1 &&
                          bits.record <= mostRecordBits && bits.shared <= 8 && bits.trailing <= 8 &&
                          bits.record + bits.shared + bits.trailing <= 8 * bits.width;
    return possible && getLe32(&page[14]) == mask(bits.record) && page[18] == mask(bits.shared) &&
           page[19] == mask(bits.trailing);
}

Status damaged(const char *problem)
{
    return Error{ErrorKind::Damaged, {}, problem};
}

} // namespace

IndexLeaf::IndexLeaf(std::uint16_t keyLength, Byte pad) : m_keyLength(keyLength), m_pad(pad) {}

std::string_view IndexLeaf::key(std::size_t i) const
{
    return asText({keyBytes(i), m_keyLength});
}

std::uint8_t IndexLeaf::strippedLength(const Byte *key) const
{
    std::size_t length = m_keyLength;
    while (length > 0 && key[length - 1] == m_pad)
        --length;
    return static_cast<std::uint8_t>(length);
}

std::uint8_t IndexLeaf::sharedLength(std::size_t i) const
{
    if (i == 0)
        return 0;
    const std::size_t most = std::min(m_slots[i - 1].stripped, m_slots[i].stripped);
    const Byte *a = keyBytes(i - 1);
    return static_cast<std::uint8_t>(std::mismatch(a, a + most, keyBytes(i)).first - a);
}

// Works the shared length of an entry out again after its neighbour changed.
void IndexLeaf::reshare(std::size_t i)
{
    if (i >= count())
        return;
    m_textBytes -= textBytes(i);
    m_slots[i].shared = sharedLength(i);
    m_textBytes += textBytes(i);
}

void IndexLeaf::widenFor(std::uint32_t record)
{
    const LeafBits bits = canonicalBits(m_keyLength, m_width);
    if (bits.record < mostRecordBits && record > mask(bits.record))
        m_width = static_cast<std::uint8_t>(widthFor(m_keyLength, record));
}

Status IndexLeaf::decode(ByteView page)
{
    clear();
    LeafBits bits;
    const std::size_t entries = getLe16(&page[2]);
    if (!readBits(page, bits))
        return damaged("bit widths of a leaf do not fit together");
    const std::size_t textsStart = entriesStart + entries * bits.width;
    if (textsStart > indexPageSize)
        return damaged("a leaf has more entries than it can hold");
    m_slots.reserve(entries + 1);
    m_keys.reserve((entries + 1) * m_keyLength);
    std::size_t textEnd = indexPageSize;
    for (std::size_t i = 0; i < entries; ++i) {
        if (!decodeEntry(page, i, bits, textEnd) || textEnd < textsStart)
            return damaged("an entry of a leaf makes no sense");
        const Slot &slot = m_slots[i];
        // Walks ask for what stands behind a pair, so the highest number must have a next one.
        if (slot.record == 0 || slot.record == UINT32_MAX)
            return damaged("a leaf has an entry with an impossible record number");
        if (i > 0 && compare(i - 1, key(i), slot.record) >= 0)
            return damaged("the entries of a leaf are out of order");
    }
    if (getLe16(&page[12]) != textEnd - textsStart)
        return damaged("the free space of a leaf does not fit its entries");
    m_textBytes = indexPageSize - textEnd;
    // A page of ours keeps its width; an unusual one of another program gets the usual layout.
    m_width = static_cast<std::uint8_t>(bits.width);
    if (bits.shared != countBits(m_keyLength) || bits.trailing != bits.shared) {
        m_width = leastWidth;
        for (const Slot &slot : m_slots)
            widenFor(slot.record);
        if (bytes() > leafCapacity)
            return damaged("a leaf has more entries than fit our layout");
    }
    return {};
}

bool IndexLeaf::decodeEntry(ByteView page, std::size_t i, const LeafBits &bits,
                            std::size_t &textEnd)
{
    std::uint64_t packed = 0;
    const Byte *entry = &page[entriesStart + i * bits.width];
    for (std::size_t b = 0; b < bits.width; ++b)
        packed |= std::uint64_t{entry[b]} << (8 * b);
    const std::size_t shared = packed >> bits.record & mask(bits.shared);
    const std::size_t trailing = packed >> (bits.record + bits.shared) & mask(bits.trailing);
    const std::size_t sharedLimit = i > 0 ? m_slots[i - 1].stripped : 0;
    if (shared + trailing > m_keyLength || shared > sharedLimit)
        return false;
    const std::size_t fresh = m_keyLength - shared - trailing;
    if (fresh > textEnd - entriesStart)
        return false;
    textEnd -= fresh;
    m_keys.resize(m_keys.size() + m_keyLength, m_pad);
    Byte *key = m_keys.data() + i * m_keyLength;
    if (shared > 0)
        std::memcpy(key, key - m_keyLength, shared);
    if (fresh > 0)
        std::memcpy(key + shared, &page[textEnd], fresh);
    m_slots.push_back({static_cast<std::uint32_t>(packed & mask(bits.record)),
                       static_cast<std::uint8_t>(shared + fresh),
                       static_cast<std::uint8_t>(shared)});
    return true;
}

void IndexLeaf::encode(ByteSpan page) const
{
    assert(bytes() <= leafCapacity);
    const LeafBits bits = canonicalBits(m_keyLength, m_width);
    std::fill(page.begin() + 12, page.end(), Byte{0});
    putLe16(&page[2], static_cast<std::uint16_t>(count()));
    putLe16(&page[12], static_cast<std::uint16_t>(leafCapacity - bytes()));
    putLe32(&page[14], static_cast<std::uint32_t>(mask(bits.record)));
    page[18] = static_cast<Byte>(mask(bits.shared));
    page[19] = static_cast<Byte>(mask(bits.trailing));
    page[20] = static_cast<Byte>(bits.record);
    page[21] = static_cast<Byte>(bits.shared);
    page[22] = static_cast<Byte>(bits.trailing);
    page[23] = m_width;
    Byte *entry = page.data() + entriesStart;
    Byte *text = page.data() + indexPageSize;
    for (std::size_t i = 0; i < count(); ++i) {
        const Slot &slot = m_slots[i];
        const std::uint64_t trailing = m_keyLength - std::uint64_t{slot.stripped};
        const std::uint64_t packed = slot.record | std::uint64_t{slot.shared} << bits.record |
                                     trailing << (bits.record + bits.shared);
        for (std::size_t b = 0; b < m_width; ++b)
            *entry++ = static_cast<Byte>(packed >> (8 * b));
        text -= textBytes(i);
        std::copy_n(keyBytes(i) + slot.shared, textBytes(i), text);
    }
}

std::size_t IndexLeaf::bytesJoined(const IndexLeaf &next) const
{
    std::size_t sum =
        (count() + next.count()) * std::max(m_width, next.m_width) + m_textBytes + next.m_textBytes;
    if (count() > 0 && next.count() > 0) {
        const std::size_t most = std::min(m_slots.back().stripped, next.m_slots[0].stripped);
        const Byte *a = keyBytes(count() - 1);
        sum -= static_cast<std::size_t>(std::mismatch(a, a + most, next.keyBytes(0)).first - a);
    }
    return sum;
}

std::size_t IndexLeaf::bytesWith(std::string_view key, std::uint32_t record) const
{
    const Byte *bytes = asBytes(key).data();
    std::size_t text = strippedLength(bytes);
    if (count() > 0) {
        const std::size_t most = std::min<std::size_t>(m_slots.back().stripped, text);
        text -= static_cast<std::size_t>(
            std::mismatch(bytes, bytes + most, keyBytes(count() - 1)).first - bytes);
    }
    const std::size_t width = std::max<std::size_t>(m_width, widthFor(m_keyLength, record));
    return (count() + 1) * width + m_textBytes + text;
}

int IndexLeaf::compare(std::size_t i, std::string_view key, std::uint32_t record) const
{
    const std::size_t length = std::min<std::size_t>(m_keyLength, key.size());
    if (const int order = length == 0 ? 0 : std::memcmp(keyBytes(i), key.data(), length))
        return order;
    if (key.size() != m_keyLength)
        return key.size() < m_keyLength ? 1 : -1;
    return m_slots[i].record < record ? -1 : m_slots[i].record > record;
}

std::size_t IndexLeaf::lowerBound(std::string_view key, std::uint32_t record) const
{
    std::size_t first = 0;
    for (std::size_t size = count(); size > 0;) {
        const std::size_t half = size / 2;
        if (compare(first + half, key, record) < 0) {
            first += half + 1;
            size -= half + 1;
        } else {
            size = half;
        }
    }
    return first;
}

void IndexLeaf::insert(std::size_t i, std::string_view key, std::uint32_t record)
{
    const ByteView bytes = asBytes(key);
    const auto place = static_cast<std::ptrdiff_t>(i);
    m_keys.insert(m_keys.begin() + place * m_keyLength, bytes.begin(), bytes.end());
    m_slots.insert(m_slots.begin() + place, Slot{record, strippedLength(bytes.data()), 0});
    m_slots[i].shared = sharedLength(i);
    m_textBytes += textBytes(i);
    reshare(i + 1);
    widenFor(record);
}

void IndexLeaf::erase(std::size_t i)
{
    m_textBytes -= textBytes(i);
    const auto place = static_cast<std::ptrdiff_t>(i);
    const auto key = m_keys.begin() + place * m_keyLength;
    m_keys.erase(key, key + m_keyLength);
    m_slots.erase(m_slots.begin() + place);
    reshare(i);
}

std::size_t IndexLeaf::splitPoint() const
{
    std::size_t best = count() / 2;
    std::size_t bestExcess = SIZE_MAX;
    std::size_t left = 0;
    for (std::size_t i = 1; i < count(); ++i) {
        left += m_width + textBytes(i - 1);
        const std::size_t right = bytes() - left + m_slots[i].shared; // its first repeats nothing
        if (std::max(left, right) < bestExcess) {
            bestExcess = std::max(left, right);
            best = i;
        }
    }
    return best;
}

IndexLeaf IndexLeaf::splitOff(std::size_t i)
{
    IndexLeaf tail(m_keyLength, m_pad);
    tail.m_width = m_width;
    const auto place = static_cast<std::ptrdiff_t>(i);
    const auto key = m_keys.begin() + place * m_keyLength;
    tail.m_slots.assign(m_slots.begin() + place, m_slots.end());
    tail.m_keys.assign(key, m_keys.end());
    for (std::size_t j = 0; j < tail.count(); ++j)
        tail.m_textBytes += tail.textBytes(j);
    m_textBytes -= tail.m_textBytes;
    tail.reshare(0);
    m_slots.erase(m_slots.begin() + place, m_slots.end());
    m_keys.erase(key, m_keys.end());
    return tail;
}

void IndexLeaf::append(const IndexLeaf &next)
{
    const std::size_t seam = count();
    m_slots.insert(m_slots.end(), next.m_slots.begin(), next.m_slots.end());
    m_keys.insert(m_keys.end(), next.m_keys.begin(), next.m_keys.end());
    m_textBytes += next.m_textBytes;
    m_width = std::max(m_width, next.m_width);
    reshare(seam);
}

void IndexLeaf::clear()
{
    m_slots.clear();
    m_keys.clear();
    m_textBytes = 0;
    m_width = leastWidth;
}

} // namespace norvane::engine
