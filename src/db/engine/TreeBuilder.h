// Makes the pages of a new tree from pairs in order: leaves from left to right nearly full, then
// the levels above from their last pairs.
#pragma once

#include "db/engine/IndexPage.h"

#include <cstdint>
#include <string_view>
#include <vector>

namespace norvane::engine
{

class TreeBuilder
{
public:
    // The root goes to shape.root, all other pages to consecutive offsets from `first`.
    TreeBuilder(const TreeShape &shape, std::uint64_t first);

    void add(std::string_view key, std::uint32_t record); // in strictly rising order
    void finish();

    // After finish().
    ByteView root() const { return m_root; }
    ByteView pages() const { return m_pages; }

private:
    // The last pairs and offsets of the pages of one level.
    struct Level {
        std::vector<Byte> keys;
        std::vector<std::uint32_t> records;
        std::vector<std::uint32_t> offsets;
    };

    void writePage(IndexPage &page, bool last);
    Level buildAbove(const Level &below);

    TreeShape m_shape;
    std::uint64_t m_next; // offset of the next page
    IndexPage m_leaf;
    Level m_level; // the one being made
    std::vector<Byte> m_pages;
    std::vector<Byte> m_root;
};

} // namespace norvane::engine
