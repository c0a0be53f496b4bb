#include "db/engine/TreeBuilder.h"

#include <utility>

namespace norvane::engine
{

namespace
{

constexpr std::size_t leafFill = leafCapacity - leafCapacity / 10; // room that saves splits later
constexpr std::size_t fewEntries = 8; // of long keys: leaving room would waste whole entries

} // namespace

TreeBuilder::TreeBuilder(const TreeShape &shape, std::uint64_t first)
    : m_shape(shape), m_next(first), m_leaf(0, PageKind::Leaf, shape)
{
}

void TreeBuilder::add(std::string_view key, std::uint32_t record)
{
    IndexLeaf &leaf = m_leaf.leaf;
    const std::size_t limit = leaf.count() < fewEntries ? leafCapacity : leafFill;
    if (leaf.count() > 0 && leaf.bytesWith(key, record) > limit) {
        writePage(m_leaf, false);
        leaf.clear();
    }
    leaf.append(key, record);
}

// Appends a page to its level, linked to the one before and, unless it is the last, to the next.
void TreeBuilder::writePage(IndexPage &page, bool last)
{
    const auto offset = static_cast<std::uint32_t>(m_next);
    const auto size = static_cast<std::uint32_t>(indexPageSize);
    page.left = m_level.offsets.empty() ? noPage : offset - size;
    page.right = last ? noPage : offset + size;
    m_pages.resize(m_pages.size() + indexPageSize);
    page.encode(ByteSpan(m_pages).last(indexPageSize), false);
    m_next += indexPageSize;
    if (page.count() > 0) {
        const ByteView key = asBytes(page.lastKey());
        m_level.keys.insert(m_level.keys.end(), key.begin(), key.end());
        m_level.records.push_back(page.lastRecord());
    }
    m_level.offsets.push_back(offset);
}

void TreeBuilder::finish()
{
    writePage(m_leaf, true);
    while (m_level.offsets.size() > 1)
        m_level = buildAbove(std::exchange(m_level, Level()));
    // The page made last is the root; it goes to its own place.
    const ByteView last = ByteView(m_pages).last(indexPageSize);
    m_root.assign(last.begin(), last.end());
    m_root[0] |= 1;
    m_pages.resize(m_pages.size() - indexPageSize);
}

TreeBuilder::Level TreeBuilder::buildAbove(const Level &below)
{
    const std::size_t capacity = IndexInterior::capacityFor(m_shape.keyLength);
    const std::size_t fill = capacity - capacity / 10;
    const std::size_t count = below.offsets.size();
    for (std::size_t i = 0; i < count;) {
        IndexPage page(0, PageKind::Interior, m_shape);
        for (; i < count && page.count() < fill; ++i) {
            const ByteView key(below.keys.data() + i * m_shape.keyLength, m_shape.keyLength);
            page.interior.insert(page.count(), asText(key), below.records[i], below.offsets[i]);
        }
        writePage(page, i == count);
    }
    return std::exchange(m_level, Level());
}

} // namespace norvane::engine
