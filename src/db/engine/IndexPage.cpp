#include "db/engine/IndexPage.h"

#include <algorithm>
#include <utility>

namespace norvane::engine
{

namespace
{

constexpr std::uint16_t rootBit = 1, leafBit = 2, ignoredBit = 4;

} // namespace

IndexPage::IndexPage(std::uint32_t at, PageKind made, const TreeShape &shape)
    : offset(at),
      kind(made),
      keyLength(shape.keyLength),
      pad(shape.pad),
      root(shape.root),
      leaf(shape.keyLength, shape.pad),
      interior(shape.keyLength)
{
}

std::string_view IndexPage::lastKey() const
{
    return isLeaf() ? leaf.key(leaf.count() - 1) : interior.key(interior.count() - 1);
}

std::uint32_t IndexPage::lastRecord() const
{
    return isLeaf() ? leaf.record(leaf.count() - 1) : interior.record(interior.count() - 1);
}

bool IndexPage::endsBefore(const IndexPage &next) const
{
    if (count() == 0 || next.count() == 0)
        return true;
    const std::string_view first = next.isLeaf() ? next.leaf.key(0) : next.interior.key(0);
    if (const int order = lastKey().compare(first))
        return order < 0;
    return lastRecord() < (next.isLeaf() ? next.leaf.record(0) : next.interior.record(0));
}

std::size_t IndexPage::loadJoined(const IndexPage &next) const
{
    return isLeaf() ? leaf.bytesJoined(next.leaf) : count() + next.count();
}

void IndexPage::moveTail(std::size_t i, IndexPage &to)
{
    to.kind = kind;
    if (isLeaf())
        to.leaf = leaf.splitOff(i);
    else
        to.interior = interior.splitOff(i);
}

void IndexPage::absorb(IndexPage &next)
{
    if (isLeaf()) {
        leaf.append(next.leaf);
        next.leaf = IndexLeaf(keyLength, pad);
    } else {
        interior.append(next.interior);
        next.interior = IndexInterior(keyLength);
    }
}

void IndexPage::takeContent(IndexPage &from)
{
    kind = from.kind;
    leaf = std::exchange(from.leaf, IndexLeaf(keyLength, pad));
    interior = std::exchange(from.interior, IndexInterior(keyLength));
}

void IndexPage::encode(ByteSpan page, bool isRoot) const
{
    const unsigned attributes = (isLeaf() ? leafBit : 0u) | (isRoot ? rootBit : 0u);
    putLe16(&page[0], static_cast<std::uint16_t>(attributes));
    putLe32(&page[4], left);
    putLe32(&page[8], right);
    if (isLeaf())
        leaf.encode(page);
    else
        interior.encode(page);
}

Status decodePage(ByteView bytes, IndexPage &page)
{
    const unsigned attributes = getLe16(&bytes[0]) & ~unsigned{ignoredBit};
    if (attributes > (rootBit | leafBit))
        return Error{ErrorKind::Damaged, {}, "a page is not one of an index tree"};
    page.kind = attributes & leafBit ? PageKind::Leaf : PageKind::Interior;
    page.left = getLe32(&bytes[4]);
    page.right = getLe32(&bytes[8]);
    return page.isLeaf() ? page.leaf.decode(bytes) : page.interior.decode(bytes);
}

void encodeFreePage(ByteSpan page, std::uint32_t next)
{
    std::fill(page.begin(), page.end(), Byte{0});
    std::copy(freeMark.begin(), freeMark.end(), page.begin());
    putLe32(&page[freeMark.size()], next);
}

bool decodeFreePage(ByteView page, std::uint32_t &next)
{
    if (!std::equal(freeMark.begin(), freeMark.end(), page.begin()))
        return false;
    next = getLe32(&page[freeMark.size()]);
    return std::all_of(page.begin() + freeMark.size() + 4, page.end(),
                       [](Byte b) { return b == 0; });
}

} // namespace norvane::engine
