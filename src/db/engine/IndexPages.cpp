#include "db/engine/IndexPages.h"

#include <algorithm>

namespace norvane::engine
{

namespace
{

constexpr std::size_t counterPlace = 8;
constexpr std::size_t freeChainPlace = 64; // reserved bytes of the header, ours by the mark
constexpr std::size_t headLength = 16;
constexpr std::size_t frontLength = 16 * 1024; // tag headers and roots mostly lie in it
constexpr std::uint64_t firstLockByte = 0x7FFFFFFE;
constexpr std::size_t mostCachedBytes = 128 * 1024 * 1024;

std::uint32_t freeHeadIn(ByteView header)
{
    const ByteView mark = header.subspan(freeChainPlace, freeMark.size());
    return asText(mark) == freeMark ? getLe32(&header[freeChainPlace + freeMark.size()]) : 0;
}

// Lower ranks are written earlier. A reader that comes in between never finds a reference to a
// page that is not there yet.
int writingRank(const IndexPage &page)
{
    constexpr int freed = 1000;
    if (page.kind == PageKind::Free)
        return freed;
    return page.fresh ? 0 : 256 - page.depth;
}

std::size_t memoryOf(const IndexPage &page)
{
    return sizeof(IndexPage) + page.count() * (page.keyLength + std::size_t{8});
}

} // namespace

Error IndexPages::damaged(std::string detail, std::uint64_t place) const
{
    return {ErrorKind::Damaged, m_file->path(), std::move(detail),
            static_cast<std::int64_t>(place)};
}

std::uint32_t IndexPages::counter() const
{
    return getBe32(&m_header[counterPlace]);
}

bool IndexPages::plausible(std::uint64_t offset) const
{
    return offset % indexPageSize == 0 && offset >= 2 * indexPageSize &&
           offset + indexPageSize <= m_size;
}

void IndexPages::forget()
{
    m_known = m_broken = false;
    m_pages.clear();
    m_dirty.clear();
    m_front.clear();
    m_cachedBytes = 0;
}

Status IndexPages::load()
{
    forget();
    const Result<std::uint64_t> fileSize = m_file->size();
    if (!fileSize.ok())
        return fileSize.error();
    const std::uint64_t wanted = std::min<std::uint64_t>(frontLength, *fileSize);
    m_front.resize(static_cast<std::size_t>(wanted));
    const Result<std::size_t> got = m_file->read(0, m_front);
    if (!got.ok())
        return got.error();
    if (*got < 3 * indexPageSize)
        return damaged("an index file is too short", 0);
    m_front.resize(*got / indexPageSize * indexPageSize);
    std::copy_n(m_front.begin(), indexPageSize, m_header.begin());
    m_size = m_committedSize = *fileSize / indexPageSize * indexPageSize;
    m_freeHead = m_committedFreeHead = freeHeadIn(m_header);
    m_known = true;
    return {};
}

Status IndexPages::refresh()
{
    if (changed() || m_broken)
        return Error{ErrorKind::Misuse, m_file->path(), "index changes were not committed"};
    return unchanged() ? Status() : load();
}

bool IndexPages::unchanged()
{
    if (!m_known || changed() || m_broken)
        return false;
    std::array<Byte, headLength> head{};
    const Result<std::size_t> got = m_file->read(0, head);
    return got.ok() && *got == head.size() &&
           std::equal(head.begin(), head.end(), m_header.begin());
}

Status IndexPages::readRaw(std::uint64_t offset, ByteSpan into)
{
    if (offset + into.size() <= m_front.size()) {
        std::copy_n(m_front.begin() + static_cast<std::ptrdiff_t>(offset), into.size(),
                    into.begin());
        return {};
    }
    const Result<std::size_t> got = m_file->read(offset, into);
    if (!got.ok())
        return got.error();
    if (*got < into.size())
        return damaged("an index file ends inside a page", offset);
    return {};
}

Result<IndexPage *> IndexPages::fetch(std::uint32_t offset, const TreeShape &shape)
{
    if (IndexPage *page = m_pages.find(offset)) {
        if (page->kind == PageKind::Free || page->root != shape.root)
            return damaged("a page belongs to two trees", offset);
        return page;
    }
    if (!m_known)
        return Error{ErrorKind::Misuse, m_file->path(), "the index was not refreshed"};
    if (!plausible(offset))
        return damaged("a page reference leads out of the file", offset);
    RawPage raw;
    if (const Status read = readRaw(offset, raw); !read.ok())
        return read.error();
    auto page = std::make_unique<IndexPage>(offset, PageKind::Leaf, shape);
    if (const Status decoded = decodePage(raw, *page); !decoded.ok())
        return damaged(decoded.error().detail, offset);
    m_cachedBytes += memoryOf(*page);
    std::unique_ptr<IndexPage> &slot = m_pages.slot(offset);
    slot = std::move(page);
    return slot.get();
}

IndexPage *IndexPages::makePage(std::uint32_t offset, PageKind kind, const TreeShape &shape)
{
    auto page = std::make_unique<IndexPage>(offset, kind, shape);
    std::unique_ptr<IndexPage> &slot = m_pages.slot(offset);
    page->fresh = true;
    page->dirty = slot && slot->dirty; // a page freed by this very change is listed already
    slot = std::move(page);
    touch(*slot);
    return slot.get();
}

void IndexPages::touch(IndexPage &page)
{
    if (!page.dirty)
        m_dirty.push_back(page.offset);
    page.dirty = true;
}

Result<IndexPage *> IndexPages::allocate(PageKind kind, const TreeShape &shape)
{
    std::uint32_t offset = 0;
    if (takeFreePage(offset))
        return makePage(offset, kind, shape);
    if (m_size + indexPageSize > firstLockByte)
        return Error{ErrorKind::TooLarge, m_file->path(), "the index file is full",
                     static_cast<std::int64_t>(m_size)};
    offset = static_cast<std::uint32_t>(m_size);
    m_size += indexPageSize;
    return makePage(offset, kind, shape);
}

// Takes the first page of the free chain. Anything doubtful about it ends the chain for good:
// the pages behind it are lost to reuse, which is harmless.
bool IndexPages::takeFreePage(std::uint32_t &offset)
{
    offset = m_freeHead;
    m_freeHead = 0;
    if (offset == 0 || !plausible(offset))
        return false;
    std::uint32_t next = 0;
    if (const IndexPage *page = m_pages.find(offset)) {
        if (page->kind != PageKind::Free)
            return false;
        next = page->nextFree;
    } else {
        RawPage raw;
        if (!readRaw(offset, raw).ok() || !decodeFreePage(raw, next))
            return false;
    }
    m_freeHead = next;
    return true;
}

void IndexPages::release(IndexPage &page)
{
    page.kind = PageKind::Free;
    page.nextFree = m_freeHead;
    m_freeHead = page.offset;
    touch(page);
}

void IndexPages::trim()
{
    if (m_cachedBytes < mostCachedBytes)
        return;
    m_pages.eraseIf([](const IndexPage &page) { return !page.dirty; });
    m_cachedBytes = 0;
}

std::vector<const IndexPage *> IndexPages::changedPages() const
{
    std::vector<const IndexPage *> pages;
    for (const std::uint32_t offset : m_dirty)
        pages.push_back(&m_pages.at(offset));
    std::sort(pages.begin(), pages.end(), [](const IndexPage *a, const IndexPage *b) {
        const int rankA = writingRank(*a), rankB = writingRank(*b);
        return rankA != rankB ? rankA < rankB : a->offset < b->offset;
    });
    return pages;
}

std::vector<PageChange> IndexPages::changes() const
{
    std::vector<PageChange> list;
    if (!changed() || m_broken)
        return list;
    for (const IndexPage *page : changedPages()) {
        PageChange change{page->offset, std::vector<Byte>(indexPageSize)};
        if (page->kind == PageKind::Free)
            encodeFreePage(change.bytes, page->nextFree);
        else
            page->encode(change.bytes, page->offset == page->root);
        list.push_back(std::move(change));
    }
    PageChange head{0, {m_header.begin(), m_header.end()}};
    putBe32(&head.bytes[counterPlace], getBe32(&m_header[counterPlace]) + 1);
    if (m_freeHead != m_committedFreeHead) {
        std::copy(freeMark.begin(), freeMark.end(), head.bytes.begin() + freeChainPlace);
        putLe32(&head.bytes[freeChainPlace + freeMark.size()], m_freeHead);
    }
    list.push_back(std::move(head));
    return list;
}

Status IndexPages::commit()
{
    if (m_broken)
        return Error{ErrorKind::Misuse, m_file->path(), "an index change broke off half way"};
    if (!changed())
        return {};
    for (const std::uint32_t offset : m_dirty) {
        const IndexPage &page = m_pages.at(offset);
        if (page.kind == PageKind::Interior && !page.interior.rises()) {
            forget();
            return damaged("a change would put the keys of a page out of order", offset);
        }
    }
    const std::vector<PageChange> list = changes();
    for (const PageChange &change : list) {
        if (Status status = m_file->write(change.offset, change.bytes); !status.ok()) {
            forget();
            return status;
        }
    }
    written(list);
    return {};
}

void IndexPages::written(const std::vector<PageChange> &list)
{
    if (list.empty())
        return;
    std::copy(list.back().bytes.begin(), list.back().bytes.end(), m_header.begin());
    for (const std::uint32_t offset : m_dirty) {
        IndexPage &page = m_pages.at(offset);
        page.dirty = page.fresh = false;
    }
    m_dirty.clear();
    m_committedSize = m_size;
    m_committedFreeHead = m_freeHead;
    m_front.clear(); // older than the pages just written
}

void IndexPages::discard()
{
    for (const std::uint32_t offset : m_dirty)
        m_pages.erase(offset);
    m_dirty.clear();
    m_size = m_committedSize;
    m_freeHead = m_committedFreeHead;
    m_broken = false;
}

} // namespace norvane::engine
