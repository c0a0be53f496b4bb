#include "db/engine/IndexTree.h"

namespace norvane::engine
{

// Goes on from path[level - 1] (or the root for level 0) to a leaf, always taking the last or the
// first entry.
Status IndexTree::goDown(TreePath &path, std::size_t level, bool toLast)
{
    for (;; ++level) {
        const std::uint32_t offset =
            level == 0 ? m_shape.root : path[level - 1].page->interior.child(path[level - 1].entry);
        const Result<IndexPage *> page = m_pages.fetch(offset, m_shape);
        if (!page.ok())
            return page.error();
        const std::size_t last = (*page)->count() > 0 ? (*page)->count() - 1 : 0;
        path[level] = {*page, toLast ? last : 0};
        (*page)->depth = static_cast<std::uint8_t>(level);
        path.levels = level + 1;
        if ((*page)->isLeaf())
            return {};
        if (path.levels == mostTreeLevels)
            return m_pages.damaged("a tree has too many levels", offset);
    }
}

Status IndexTree::descend(std::string_view key, std::uint32_t record, TreePath &path)
{
    std::uint32_t offset = m_shape.root;
    for (std::size_t level = 0; level < mostTreeLevels; ++level) {
        const Result<IndexPage *> fetched = m_pages.fetch(offset, m_shape);
        if (!fetched.ok())
            return fetched.error();
        IndexPage *page = *fetched;
        page->depth = static_cast<std::uint8_t>(level);
        path.levels = level + 1;
        if (page->isLeaf()) {
            path[level] = {page, page->leaf.lowerBound(key, record)};
            return {};
        }
        const std::size_t entry = page->interior.lowerBound(key, record);
        path[level] = {page, entry < page->count() ? entry : page->count() - 1};
        offset = page->interior.child(path[level].entry);
    }
    return m_pages.damaged("a tree has too many levels", offset);
}

Result<bool> IndexTree::step(TreePath &path, std::size_t level, bool toRight)
{
    const std::size_t levels = path.levels;
    const IndexPage *from = path[level].page;
    std::size_t turn = level;
    while (turn > 0) {
        const TreePath::Step &parent = path[turn - 1];
        if (toRight ? parent.entry + 1 < parent.page->count() : parent.entry > 0)
            break;
        --turn;
    }
    if (turn == 0)
        return false;
    path[turn - 1].entry = toRight ? path[turn - 1].entry + 1 : path[turn - 1].entry - 1;
    if (Status down = goDown(path, turn, !toRight); !down.ok())
        return down.error();
    if (path.levels != levels)
        return m_pages.damaged("leaves stand on different levels", path.leaf().page->offset);
    if (path[level].page == from)
        return m_pages.damaged("a page stands twice in its tree", from->offset);
    return true;
}

Result<bool> IndexTree::stepRight(TreePath &path, std::size_t level)
{
    return step(path, level, true);
}

Result<bool> IndexTree::stepLeft(TreePath &path, std::size_t level)
{
    return step(path, level, false);
}

Result<bool> IndexTree::seek(std::string_view key, std::uint32_t record, TreePath &path)
{
    if (Status down = descend(key, record, path); !down.ok())
        return down.error();
    // Other programs may leave empty leaves; no tree has more leaves than the file has pages.
    for (std::uint64_t left = m_pages.size() / indexPageSize; left > 0; --left) {
        TreePath::Step &leaf = path.leaf();
        leaf.entry = leaf.page->leaf.lowerBound(key, record);
        if (leaf.entry < leaf.page->count())
            return true;
        const Result<bool> more = stepRight(path, path.levels - 1);
        if (!more.ok() || !*more)
            return more;
    }
    return m_pages.damaged("a tree does not come to an end", m_shape.root);
}

Result<bool> IndexTree::seekBefore(std::string_view key, std::uint32_t record, TreePath &path)
{
    if (Status down = descend(key, record, path); !down.ok())
        return down.error();
    for (std::uint64_t left = m_pages.size() / indexPageSize; left > 0; --left) {
        TreePath::Step &leaf = path.leaf();
        leaf.entry = leaf.page->leaf.lowerBound(key, record);
        if (leaf.entry > 0) {
            --leaf.entry;
            return true;
        }
        const Result<bool> more = stepLeft(path, path.levels - 1);
        if (!more.ok() || !*more)
            return more;
    }
    return m_pages.damaged("a tree does not come to an end", m_shape.root);
}

// Makes the entries above path[level] tell that page's last entry again, as far up as it matters.
void IndexTree::syncParents(const TreePath &path, std::size_t level)
{
    for (; level > 0; --level) {
        const IndexPage &page = *path[level].page;
        const auto &[parent, entry] = path[level - 1];
        const bool same = parent->interior.record(entry) == page.lastRecord() &&
                          parent->interior.key(entry) == page.lastKey();
        if (same)
            return;
        parent->interior.setLast(entry, page.lastKey(), page.lastRecord());
        m_pages.touch(*parent);
        if (entry + 1 < parent->count())
            return;
    }
}

} // namespace norvane::engine
