// One page of a tree in memory, leaf or interior, with what both kinds have in common.
#pragma once

#include "db/engine/IndexInterior.h"
#include "db/engine/IndexLeaf.h"

#include <cstdint>
#include <string_view>

namespace norvane::engine
{

inline constexpr std::uint32_t noPage = 0xFFFFFFFF; // a neighbour that is not there

// What all pages of one tree share.
struct TreeShape {
    std::uint32_t root = 0; // page offset; the root never moves
    std::uint16_t keyLength = 0;
    Byte pad = 0;
};

enum class PageKind : std::uint8_t { Leaf, Interior, Free };

struct IndexPage {
    IndexPage(std::uint32_t at, PageKind made, const TreeShape &shape);

    bool isLeaf() const { return kind == PageKind::Leaf; }
    std::size_t count() const { return isLeaf() ? leaf.count() : interior.count(); }
    std::string_view lastKey() const;
    std::uint32_t lastRecord() const;
    bool endsBefore(const IndexPage &next) const; // true when either is empty

    // How full the page is, in units of its kind (bytes of a leaf, entries of an interior page).
    std::size_t load() const { return isLeaf() ? leaf.bytes() : interior.count(); }
    std::size_t capacity() const { return isLeaf() ? leafCapacity : interior.capacity(); }
    bool overfull() const { return load() > capacity(); }
    std::size_t loadJoined(const IndexPage &next) const; // next: the right neighbour
    std::size_t splitPoint() const { return isLeaf() ? leaf.splitPoint() : interior.count() / 2; }

    // Moves the entries from `i` on into `to`, which holds nothing.
    void moveTail(std::size_t i, IndexPage &to);
    // Takes all entries of the right neighbour over.
    void absorb(IndexPage &next);
    void takeContent(IndexPage &from); // kind and entries

    // The page's 512 bytes. `isRoot` decides an attribute bit.
    void encode(ByteSpan page, bool isRoot) const;

    std::uint32_t offset;
    PageKind kind;
    bool dirty = false;
    bool fresh = false;     // not yet reachable in the file
    std::uint8_t depth = 0; // below the root, for the order of writing
    std::uint16_t keyLength;
    Byte pad;
    std::uint32_t root; // of the tree it belongs to
    std::uint32_t left = noPage;
    std::uint32_t right = noPage;
    std::uint32_t nextFree = 0; // of a free page
    IndexLeaf leaf;
    IndexInterior interior;
};

// Takes a tree page apart; Damaged (without file and place) when it makes no sense.
Status decodePage(ByteView bytes, IndexPage &page);

// Pages that hold nothing, kept for reuse in a chain only this engine knows.
void encodeFreePage(ByteSpan page, std::uint32_t next);
// False when the bytes are not those of a free page.
bool decodeFreePage(ByteView page, std::uint32_t &next);
inline constexpr std::string_view freeMark = "NVNFREE1";

} // namespace norvane::engine
