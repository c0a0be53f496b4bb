// The pages of one index file: cached while the file's change counter stands, changed in memory,
// written together. Emptied pages go to a chain of their own and are used again
// (docs/index-format.md, "Free pages").
#pragma once

#include "db/engine/File.h"
#include "db/engine/IndexPageTable.h"
#include "db/engine/Status.h"

#include <array>
#include <cstdint>
#include <memory>
#include <vector>

namespace norvane::engine
{

// Bytes that a commit writes at an offset.
struct PageChange {
    std::uint64_t offset = 0;
    std::vector<Byte> bytes;
};

using RawPage = std::array<Byte, indexPageSize>;

class IndexPages
{
public:
    explicit IndexPages(std::shared_ptr<File> file) : m_file(std::move(file)) {}

    // Reads the file's head and forgets all pages when its change counter moved.
    // Misuse with changes that are neither committed nor discarded.
    Status refresh();
    // True when the change counter is known to stand and there are no changes here either.
    bool unchanged();
    // Makes the next refresh() read everything again (after reading without a lock).
    void distrust() { m_known = false; }
    ByteView header() const { return m_header; } // the directory's header page
    std::uint32_t counter() const; // the file's change counter, as last read or written
    std::uint64_t size() const { return m_size; }
    std::uint32_t freeHead() const { return m_freeHead; }
    // Bytes of a page as they are in the file (a short file is Damaged).
    Status readRaw(std::uint64_t offset, ByteSpan into);

    // The page at `offset`, owned here and good until trim(), discard() or refresh().
    Result<IndexPage *> fetch(std::uint32_t offset, const TreeShape &shape);
    // An empty page for a tree. TooLarge when the file would grow into its lock bytes.
    Result<IndexPage *> allocate(PageKind kind, const TreeShape &shape);
    void release(IndexPage &page);
    void touch(IndexPage &page);
    // Forgets unchanged pages when there are very many. No page pointer may be in use.
    void trim();

    // After a change that broke off half way nothing but discard() is possible.
    void setBroken() { m_broken = true; }
    bool broken() const { return m_broken; }
    // What commit() writes, in its order: new pages, changed ones from the leaves up, freed ones,
    // last the head with the change counter one higher. Empty without changes.
    std::vector<PageChange> changes() const;
    // Writes changes(). When that fails everything cached is forgotten and read again later.
    Status commit();
    // The caller has written `list`, which changes() gave.
    void written(const std::vector<PageChange> &list);
    void discard();

    Error damaged(std::string detail, std::uint64_t place) const;

private:
    Status load();
    void forget();
    bool plausible(std::uint64_t offset) const;
    IndexPage *makePage(std::uint32_t offset, PageKind kind, const TreeShape &shape);
    bool takeFreePage(std::uint32_t &offset);
    std::vector<const IndexPage *> changedPages() const;
    bool changed() const { return !m_dirty.empty(); }

    std::shared_ptr<File> m_file;
    bool m_known = false; // header, size and pages fit the file
    bool m_broken = false;
    RawPage m_header{};
    std::uint64_t m_size = 0;          // bytes, new pages included
    std::uint64_t m_committedSize = 0; // in the file
    std::uint32_t m_freeHead = 0;
    std::uint32_t m_committedFreeHead = 0;
    std::vector<Byte> m_front; // start of the file, read along with the header
    IndexPageTable m_pages;
    std::vector<std::uint32_t> m_dirty; // offsets of changed pages
    std::size_t m_cachedBytes = 0;
};

} // namespace norvane::engine
