// The changing half of IndexTree: insert with spilling and splitting, remove with merging.
#include "db/engine/IndexTree.h"

namespace norvane::engine
{

namespace
{

// Two neighbours share their entries evenly instead of splitting while both keep some room.
std::size_t mostToSpill(const IndexPage &page)
{
    return 2 * page.capacity() - page.capacity() / 5;
}

// Two neighbours become one page when it keeps room for a few more entries.
std::size_t mostToMerge(const IndexPage &page)
{
    return page.capacity() - page.capacity() / 10;
}

bool isSparse(const IndexPage &page)
{
    return page.load() * 2 <= page.capacity();
}

bool isAt(const TreePath::Step &step, std::string_view key, std::uint32_t record)
{
    const IndexLeaf &leaf = step.page->leaf;
    return step.entry < leaf.count() && leaf.record(step.entry) == record &&
           leaf.key(step.entry) == key;
}

} // namespace

Status IndexTree::insert(std::string_view key, std::uint32_t record)
{
    TreePath path;
    if (Status down = descend(key, record, path); !down.ok())
        return down;
    const auto [page, entry] = path.leaf();
    if (isAt(path.leaf(), key, record))
        return m_pages.damaged("a key is in its index already", page->offset);
    page->leaf.insert(entry, key, record);
    m_pages.touch(*page);
    if (entry + 1 == page->count())
        syncParents(path, path.levels - 1);
    return page->overfull() ? makeRoom(path) : Status();
}

Status IndexTree::remove(std::string_view key, std::uint32_t record)
{
    TreePath path;
    if (Status down = descend(key, record, path); !down.ok())
        return down;
    const auto [page, entry] = path.leaf();
    if (!isAt(path.leaf(), key, record))
        return m_pages.damaged("a key is missing in its index", page->offset);
    page->leaf.erase(entry);
    m_pages.touch(*page);
    if (page->count() > 0 && entry == page->count())
        syncParents(path, path.levels - 1);
    // A leaf laid out by another program may grow when it is written our way.
    return page->overfull() ? makeRoom(path) : shrink(path);
}

// Brings overfull pages back to size, from the leaf upwards.
Status IndexTree::makeRoom(TreePath &path)
{
    for (std::size_t level = path.levels - 1; path[level].page->overfull(); --level) {
        if (level == 0) {
            if (Status pushed = pushRootDown(path); !pushed.ok())
                return pushed;
            level = 1;
        }
        const auto [page, entry] = path[level];
        const bool appending = page->right == noPage && entry + 1 == page->count();
        for (const bool toRight : {true, false}) {
            if (appending || !page->overfull())
                break;
            if (const Result<bool> spilled = spill(path, level, toRight); !spilled.ok())
                return spilled.error();
        }
        if (!page->overfull())
            return {};
        if (Status cut = split(path, level); !cut.ok())
            return cut;
        ++path[level - 1].entry; // the newest entry there, as on the leaf level
    }
    return {};
}

// The root keeps its place: its content goes into a new page below it.
Status IndexTree::pushRootDown(TreePath &path)
{
    IndexPage &root = *path[0].page;
    if (path.levels == mostTreeLevels)
        return m_pages.damaged("a tree has too many levels", root.offset);
    const Result<IndexPage *> made = m_pages.allocate(root.kind, m_shape);
    if (!made.ok())
        return made.error();
    IndexPage &child = **made;
    child.takeContent(root);
    root.kind = PageKind::Interior;
    root.interior.insert(0, child.lastKey(), child.lastRecord(), child.offset);
    m_pages.touch(root);
    for (std::size_t level = path.levels; level > 0; --level)
        path[level] = path[level - 1];
    path[1].page = &child;
    path[0] = {&root, 0};
    ++path.levels;
    return {};
}

// Evens the page out with its neighbour; false when the two have too little room.
Result<bool> IndexTree::spill(const TreePath &path, std::size_t level, bool toRight)
{
    TreePath other = path;
    const Result<bool> stepped = step(other, level, toRight);
    if (!stepped.ok() || !*stepped)
        return stepped;
    const TreePath &leftPath = toRight ? path : other;
    IndexPage &left = *leftPath[level].page;
    IndexPage &right = *(toRight ? other : path)[level].page;
    if (left.loadJoined(right) > mostToSpill(left))
        return false;
    if (!left.endsBefore(right))
        return m_pages.damaged("the keys of two neighbours overlap", right.offset);
    IndexPage head = left, tail = right;
    head.absorb(tail);
    head.moveTail(head.splitPoint(), tail);
    if (head.overfull() || tail.overfull())
        return false;
    left.takeContent(head);
    right.takeContent(tail);
    m_pages.touch(left);
    m_pages.touch(right);
    syncParents(leftPath, level);
    return true;
}

// Cuts an overfull page in two (very rarely more) and enters the new ones in the parent. At the
// end of the tree only the newest entry moves, so that numbers in rising order fill the pages.
Status IndexTree::split(TreePath &path, std::size_t level)
{
    const auto [page, entry] = path[level];
    const bool appending = page->right == noPage && entry + 1 == page->count();
    std::size_t cut = appending ? page->count() - 1 : page->splitPoint();
    while (page->overfull()) {
        if (Status done = splitOnce(path, level, cut); !done.ok())
            return done;
        cut = page->splitPoint();
    }
    return {};
}

Status IndexTree::splitOnce(TreePath &path, std::size_t level, std::size_t cut)
{
    IndexPage &page = *path[level].page;
    const Result<IndexPage *> allocated = m_pages.allocate(page.kind, m_shape);
    if (!allocated.ok())
        return allocated.error();
    IndexPage &made = **allocated;
    made.depth = page.depth;
    if (page.right != noPage) {
        const Result<IndexPage *> behind = neighbour(page, true);
        if (!behind.ok())
            return behind.error();
        (*behind)->left = made.offset;
        m_pages.touch(**behind);
    }
    made.left = page.offset;
    made.right = page.right;
    page.right = made.offset;
    page.moveTail(cut, made);
    m_pages.touch(page);
    const auto [parent, entry] = path[level - 1];
    parent->interior.setLast(entry, page.lastKey(), page.lastRecord());
    parent->interior.insert(entry + 1, made.lastKey(), made.lastRecord(), made.offset);
    m_pages.touch(*parent);
    if (!made.overfull())
        return {};
    TreePath side = path;
    side[level] = {&made, 0};
    ++side[level - 1].entry;
    return split(side, level);
}

// After a removal: empty pages leave the tree, sparse ones join a neighbour.
Status IndexTree::shrink(TreePath &path)
{
    for (std::size_t level = path.levels - 1; level > 0; --level) {
        const IndexPage &page = *path[level].page;
        if (page.count() > 0) {
            if (!isSparse(page))
                return {};
            TreePath gone;
            bool merged = false;
            for (const bool withRight : {true, false}) {
                if (merged)
                    break;
                const Result<bool> tried = merge(path, level, withRight, gone);
                if (!tried.ok())
                    return tried.error();
                merged = *tried;
            }
            if (!merged)
                return {};
            path = gone;
        }
        if (Status removed = removePage(path, level); !removed.ok())
            return removed;
    }
    return liftRoot();
}

// Joins the page and a neighbour into the left one of the two when they fit. `gone` is then the
// way to the right one, emptied and still to be taken out of the tree.
Result<bool> IndexTree::merge(const TreePath &path, std::size_t level, bool withRight,
                              TreePath &gone)
{
    TreePath other = path;
    const Result<bool> stepped = step(other, level, withRight);
    if (!stepped.ok() || !*stepped)
        return stepped;
    const TreePath &leftPath = withRight ? path : other;
    gone = withRight ? other : path;
    IndexPage &left = *leftPath[level].page;
    IndexPage &right = *gone[level].page;
    if (left.loadJoined(right) > mostToMerge(left))
        return false;
    if (left.right != right.offset)
        return m_pages.damaged("a page has a wrong neighbour", left.offset);
    if (!left.endsBefore(right))
        return m_pages.damaged("the keys of two neighbours overlap", right.offset);
    m_pages.touch(left);
    m_pages.touch(right); // at once: should taking it out fail, both are read again
    left.absorb(right);
    syncParents(leftPath, level);
    return true;
}

Status IndexTree::removePage(TreePath &path, std::size_t level)
{
    IndexPage &page = *path[level].page;
    if (Status unlinked = unlink(page); !unlinked.ok())
        return unlinked;
    m_pages.release(page);
    auto &[parent, entry] = path[level - 1];
    parent->interior.erase(entry);
    m_pages.touch(*parent);
    if (parent->count() > 0 && entry == parent->count())
        syncParents(path, level - 1);
    return {};
}

Status IndexTree::unlink(IndexPage &page)
{
    for (const bool right : {true, false}) {
        if ((right ? page.right : page.left) == noPage)
            continue;
        const Result<IndexPage *> beside = neighbour(page, right);
        if (!beside.ok())
            return beside.error();
        (right ? (*beside)->left : (*beside)->right) = right ? page.left : page.right;
        m_pages.touch(**beside);
    }
    return {};
}

Result<IndexPage *> IndexTree::neighbour(const IndexPage &page, bool right)
{
    const Result<IndexPage *> beside = m_pages.fetch(right ? page.right : page.left, m_shape);
    if (!beside.ok())
        return beside;
    const std::uint32_t back = right ? (*beside)->left : (*beside)->right;
    if (back != page.offset || (*beside)->kind != page.kind)
        return m_pages.damaged("a page has a wrong neighbour", page.offset);
    (*beside)->depth = page.depth;
    return beside;
}

// A root with one child takes over the child's content; one without becomes an empty leaf.
Status IndexTree::liftRoot()
{
    for (;;) {
        const Result<IndexPage *> fetched = m_pages.fetch(m_shape.root, m_shape);
        if (!fetched.ok())
            return fetched.error();
        IndexPage &root = **fetched;
        if (root.isLeaf() || root.count() > 1)
            return {};
        m_pages.touch(root);
        if (root.count() == 0) {
            root.kind = PageKind::Leaf;
            return {};
        }
        const Result<IndexPage *> child = m_pages.fetch(root.interior.child(0), m_shape);
        if (!child.ok())
            return child.error();
        root.takeContent(**child);
        m_pages.release(**child);
    }
}

} // namespace norvane::engine
