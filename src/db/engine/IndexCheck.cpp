// The full check of an index: every page of every tree, then every key against the rows.
#include "db/engine/IndexFileImpl.h"
#include "db/engine/IndexHeader.h"
#include "db/engine/IndexTree.h"

#include <algorithm>
#include <array>

namespace norvane::engine
{

namespace
{

constexpr std::size_t freeFieldPlace = 4; // in a header page
constexpr std::size_t mostFindings = 20;  // of one tag; more only say the same again

// What went wrong, collected under the name of a tag.
class Findings
{
public:
    void begin(std::string name)
    {
        m_name = std::move(name);
        m_count = 0;
    }
    void add(const std::string &text)
    {
        if (++m_count <= mostFindings)
            m_lines.push_back(m_name + ": " + text);
    }
    void addPage(std::uint32_t offset, const std::string &text)
    {
        add("page at " + std::to_string(offset) + ": " + text);
    }
    void addRecord(std::uint32_t record, const std::string &text)
    {
        add("record " + std::to_string(record) + " " + text);
    }
    void end()
    {
        if (m_count > mostFindings)
            m_lines.push_back(m_name + ": and " + std::to_string(m_count - mostFindings) + " more");
    }
    std::vector<std::string> &lines() { return m_lines; }

private:
    std::string m_name;
    std::size_t m_count = 0;
    std::vector<std::string> m_lines;
};

// The keys a tag holds, by record; of a key its hash is enough to tell a wrong one.
class HeldKeys
{
public:
    void add(std::uint32_t record, std::string_view key)
    {
        m_items.push_back({record, false, std::hash<std::string_view>()(key)});
    }
    // Gives a record that has two keys, 0 when none has.
    std::uint32_t sort();
    // True when the record holds this key; `found` tells whether it holds any.
    bool check(std::uint32_t record, std::string_view key, bool &found);
    bool holdsKey(std::string_view key);
    template <class F>
    void forUnchecked(F report) const
    {
        for (const Item &item : m_items) {
            if (!item.checked)
                report(item.record);
        }
    }

private:
    struct Item {
        std::uint32_t record;
        bool checked;
        std::size_t hash;
    };

    void placeByRecord(std::size_t most);

    std::vector<Item> m_items;
    std::vector<std::size_t> m_hashes; // sorted, made when first asked for
    std::size_t m_next = 0;            // rows mostly come in record order
};

// Counting instead of comparing: record numbers are nearly all there.
void HeldKeys::placeByRecord(std::size_t most)
{
    std::vector<std::uint32_t> starts(most + 2);
    for (const Item &item : m_items)
        ++starts[item.record + std::size_t{1}];
    for (std::size_t i = 1; i < starts.size(); ++i)
        starts[i] += starts[i - 1];
    std::vector<Item> placed(m_items.size());
    for (const Item &item : m_items)
        placed[starts[item.record]++] = item;
    m_items = std::move(placed);
}

std::uint32_t HeldKeys::sort()
{
    const auto byRecord = [](const Item &a, const Item &b) { return a.record < b.record; };
    if (!std::is_sorted(m_items.begin(), m_items.end(), byRecord)) {
        const std::size_t most = std::max_element(m_items.begin(), m_items.end(), byRecord)->record;
        if (most / 4 <= m_items.size()) // a wild number in a damaged page would take much memory
            placeByRecord(most);
        else
            std::sort(m_items.begin(), m_items.end(), byRecord);
    }
    const auto twice =
        std::adjacent_find(m_items.begin(), m_items.end(),
                           [](const Item &a, const Item &b) { return a.record == b.record; });
    return twice == m_items.end() ? 0 : twice->record;
}

bool HeldKeys::check(std::uint32_t record, std::string_view key, bool &found)
{
    if (m_next >= m_items.size() || m_items[m_next].record != record) {
        const auto at =
            std::lower_bound(m_items.begin(), m_items.end(), record,
                             [](const Item &item, std::uint32_t r) { return item.record < r; });
        m_next = static_cast<std::size_t>(at - m_items.begin());
    }
    found = m_next < m_items.size() && m_items[m_next].record == record;
    if (!found)
        return false;
    Item &item = m_items[m_next++];
    item.checked = true;
    return item.hash == std::hash<std::string_view>()(key);
}

bool HeldKeys::holdsKey(std::string_view key)
{
    if (m_hashes.empty()) {
        for (const Item &item : m_items)
            m_hashes.push_back(item.hash);
        std::sort(m_hashes.begin(), m_hashes.end());
    }
    return std::binary_search(m_hashes.begin(), m_hashes.end(), std::hash<std::string_view>()(key));
}

// Walks the trees of one file level by level and remembers which pages they use.
class TreeChecker
{
public:
    TreeChecker(IndexPages &pages, Findings &findings)
        : m_pages(pages), m_findings(findings), m_used(pages.size() / indexPageSize)
    {
    }

    // False when the page is outside the file or in use already; says so.
    bool use(std::uint32_t offset);
    void check(const TreeShape &shape, HeldKeys &held);
    // The header page at `offset` with its expressions: the field in which other programs keep
    // free pages, of which none may be in use.
    void useHeader(std::uint32_t offset);
    // The pages that the header fields seen name. Our own chain needs no check: a page is only
    // taken from it when it is a free one.
    void useForeignFree()
    {
        for (const std::uint32_t offset : m_foreignFree)
            use(offset);
    }

private:
    // Pages of a level and, but for the root, the last pairs their parents name.
    struct Level {
        std::vector<std::uint32_t> offsets;
        std::vector<IndexEntry> lasts;
    };

    std::optional<IndexPage> readPage(std::uint32_t offset, const TreeShape &shape);
    void checkLinks(const IndexPage &page, const Level &level, std::size_t i);
    void takeEntries(const IndexPage &page, Level &below, HeldKeys &held);
    void takeEntry(const IndexPage &page, IndexEntry entry);

    IndexPages &m_pages;
    Findings &m_findings;
    std::vector<bool> m_used;
    std::vector<std::uint32_t> m_foreignFree;
    std::optional<IndexEntry> m_before; // the entry before on the level being checked
};

bool TreeChecker::use(std::uint32_t offset)
{
    const std::size_t page = offset / indexPageSize;
    if (offset % indexPageSize != 0 || page >= m_used.size()) {
        m_findings.addPage(offset, "there is no such page in the file");
        return false;
    }
    if (m_used[page]) {
        m_findings.addPage(offset, "is used twice");
        return false;
    }
    return m_used[page] = true;
}

void TreeChecker::useHeader(std::uint32_t offset)
{
    use(offset);
    use(offset + static_cast<std::uint32_t>(indexPageSize));
    RawPage raw;
    if (!m_pages.readRaw(offset, raw).ok())
        return; // outside the file, as was said
    const std::uint32_t free = getLe32(&raw[freeFieldPlace]);
    if (free != 0 && free != noPage)
        m_foreignFree.push_back(free);
}

std::optional<IndexPage> TreeChecker::readPage(std::uint32_t offset, const TreeShape &shape)
{
    if (!use(offset))
        return std::nullopt;
    RawPage raw;
    IndexPage page(offset, PageKind::Leaf, shape);
    Status read = m_pages.readRaw(offset, raw);
    if (read.ok())
        read = decodePage(raw, page);
    if (!read.ok()) {
        m_findings.addPage(offset, read.error().detail);
        return std::nullopt;
    }
    if (((raw[0] & 1) != 0) != (offset == shape.root))
        m_findings.addPage(offset, "the mark of the root is wrong");
    return page;
}

void TreeChecker::checkLinks(const IndexPage &page, const Level &level, std::size_t i)
{
    const std::size_t count = level.offsets.size();
    if (page.left != (i > 0 ? level.offsets[i - 1] : noPage) ||
        page.right != (i + 1 < count ? level.offsets[i + 1] : noPage))
        m_findings.addPage(page.offset, "its neighbours are wrong");
    if (page.count() == 0) {
        if (!level.lasts.empty())
            m_findings.addPage(page.offset, "it is empty");
    } else if (!level.lasts.empty() &&
               (level.lasts[i].record != page.lastRecord() || level.lasts[i].key != page.lastKey()))
        m_findings.addPage(page.offset, "its parent names another last key");
}

void TreeChecker::takeEntry(const IndexPage &page, IndexEntry entry)
{
    if (m_before && !(*m_before < entry))
        m_findings.addPage(page.offset, "its keys do not follow those of the page before");
    m_before = std::move(entry);
}

void TreeChecker::takeEntries(const IndexPage &page, Level &below, HeldKeys &held)
{
    if (page.count() == 0)
        return;
    // Inside a page the order was checked when it was taken apart.
    if (page.isLeaf()) {
        takeEntry(page, {std::string(page.leaf.key(0)), page.leaf.record(0)});
        for (std::size_t i = 0; i < page.count(); ++i)
            held.add(page.leaf.record(i), page.leaf.key(i));
    } else {
        takeEntry(page, {std::string(page.interior.key(0)), page.interior.record(0)});
        for (std::size_t i = 0; i < page.count(); ++i) {
            below.offsets.push_back(page.interior.child(i));
            below.lasts.push_back({std::string(page.interior.key(i)), page.interior.record(i)});
        }
    }
    m_before = IndexEntry{std::string(page.lastKey()), page.lastRecord()};
}

void TreeChecker::check(const TreeShape &shape, HeldKeys &held)
{
    Level level{{shape.root}, {}};
    for (std::size_t depth = 0; !level.offsets.empty(); ++depth) {
        if (depth == mostTreeLevels) {
            m_findings.addPage(level.offsets[0], "the tree has too many levels");
            return;
        }
        Level below;
        std::optional<PageKind> kind;
        m_before.reset();
        for (std::size_t i = 0; i < level.offsets.size(); ++i) {
            const std::optional<IndexPage> page = readPage(level.offsets[i], shape);
            if (!page)
                continue;
            if (kind && *kind != page->kind)
                m_findings.addPage(page->offset, "leaves stand on different levels");
            kind = page->kind;
            checkLinks(*page, level, i);
            takeEntries(*page, below, held);
        }
        level = std::move(below);
    }
}

Status checkRows(const std::vector<IndexTag> &tags, const std::vector<TagInfo> &infos,
                 std::size_t recordLength, std::vector<HeldKeys> &held, const RowSource &rows,
                 std::vector<Findings> &findings)
{
    std::array<Byte, 240> buffer{};
    std::uint32_t record = 0;
    ByteView row;
    while (rows.next) {
        const Result<bool> more = rows.next(record, row);
        if (!more.ok())
            return more.status();
        if (!*more)
            break;
        if (row.size() < recordLength)
            return Error{ErrorKind::Misuse, {}, "a row is too short"};
        for (std::size_t i = 0; i < tags.size(); ++i) {
            if (!tags[i].has(row))
                continue;
            tags[i].key.writeKey(row, buffer.data());
            const std::string_view key = asText({buffer.data(), infos[i].keyLength});
            bool found = false;
            if (held[i].check(record, key, found))
                continue;
            if (found)
                findings[i].addRecord(record, "stands under a wrong key");
            else if (!tags[i].unique || !held[i].holdsKey(key))
                findings[i].addRecord(record, "is missing");
        }
    }
    return {};
}

} // namespace

Result<std::vector<std::string>> checkIndex(IndexFile &index, const RowSource &rows)
{
    IndexFile::Impl &impl = *index.m_impl;
    if (Status fresh = impl.pages.refresh(); !fresh.ok())
        return fresh.error();
    std::vector<Findings> findings(impl.tags.size());
    std::vector<HeldKeys> held(impl.tags.size());
    Findings structure;
    TreeChecker checker(impl.pages, structure);
    structure.begin("tag directory");
    HeldKeys names;
    checker.useHeader(0);
    checker.check(impl.directory, names);
    structure.end();
    for (std::size_t i = 0; i < impl.tags.size(); ++i) {
        const std::string name = "tag " + impl.infos[i].name;
        structure.begin(name);
        checker.useHeader(impl.tags[i].header);
        checker.check(impl.tags[i].shape, held[i]);
        if (const std::uint32_t twice = held[i].sort())
            structure.addRecord(twice, "has more than one key");
        structure.end();
        findings[i].begin(name);
    }
    structure.begin("free pages");
    checker.useForeignFree();
    structure.end();
    if (Status read = checkRows(impl.tags, impl.infos, impl.recordLength, held, rows, findings);
        !read.ok())
        return read.error();
    std::vector<std::string> lines = std::move(structure.lines());
    for (std::size_t i = 0; i < impl.tags.size(); ++i) {
        held[i].forUnchecked([&](std::uint32_t record) {
            findings[i].addRecord(record, "has a key but no row that belongs in the tag");
        });
        findings[i].end();
        lines.insert(lines.end(), findings[i].lines().begin(), findings[i].lines().end());
    }
    return lines;
}

} // namespace norvane::engine
