// One tree of an index file: finding, inserting and removing (key, record) pairs. Rules and their
// numbers are in docs/index-format.md, "Changing a tree".
#pragma once

#include "db/engine/IndexPages.h"

#include <array>
#include <cstdint>
#include <string_view>

namespace norvane::engine
{

inline constexpr std::size_t mostTreeLevels = 40;

// The way from the root to a leaf: on each level the page, and the entry in it that leads on (in
// the last page: the entry meant, possibly one past its end).
struct TreePath {
    struct Step {
        IndexPage *page;
        std::size_t entry;
    };
    Step &operator[](std::size_t level) { return steps[level]; }
    const Step &operator[](std::size_t level) const { return steps[level]; }
    Step &leaf() { return steps[levels - 1]; }

    std::array<Step, mostTreeLevels> steps;
    std::size_t levels = 0;
};

class IndexTree
{
public:
    IndexTree(IndexPages &pages, const TreeShape &shape) : m_pages(pages), m_shape(shape) {}

    // To the leaf where the first entry >= (key, record) is, or would be.
    Status descend(std::string_view key, std::uint32_t record, TreePath &path);
    // To the next or previous page on `level`, entry 0 or the last; false at the end of the level.
    Result<bool> stepRight(TreePath &path, std::size_t level);
    Result<bool> stepLeft(TreePath &path, std::size_t level);
    // Like descend, and on to the leaf that has the entry; false at the end of the tree.
    Result<bool> seek(std::string_view key, std::uint32_t record, TreePath &path);
    // To the last entry < (key, record); false when there is none.
    Result<bool> seekBefore(std::string_view key, std::uint32_t record, TreePath &path);

    // Both take keys of full length. On failure the pages are half changed: discard them.
    Status insert(std::string_view key, std::uint32_t record);
    Status remove(std::string_view key, std::uint32_t record);

private:
    Status goDown(TreePath &path, std::size_t level, bool toLast);
    Result<bool> step(TreePath &path, std::size_t level, bool toRight);
    void syncParents(const TreePath &path, std::size_t level);

    Status makeRoom(TreePath &path);
    Status pushRootDown(TreePath &path);
    Result<bool> spill(const TreePath &path, std::size_t level, bool toRight);
    Status split(TreePath &path, std::size_t level);
    Status splitOnce(TreePath &path, std::size_t level, std::size_t entry);

    Status shrink(TreePath &path);
    Result<bool> merge(const TreePath &path, std::size_t level, bool withRight, TreePath &gone);
    Status removePage(TreePath &path, std::size_t level);
    Status unlink(IndexPage &page);
    Result<IndexPage *> neighbour(const IndexPage &page, bool right);
    Status liftRoot();

    IndexPages &m_pages;
    TreeShape m_shape;
};

} // namespace norvane::engine
