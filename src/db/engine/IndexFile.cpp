#include "db/engine/IndexFile.h"

#include "db/engine/ExpressionTokens.h"
#include "db/engine/IndexFileImpl.h"
#include "db/engine/IndexHeader.h"
#include "db/engine/IndexTree.h"
#include "db/engine/KeyEncoding.h"
#include "db/engine/TagList.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace norvane::engine
{

namespace
{

constexpr std::size_t mostTags = 1000; // far above any real index; bounds the work on a bad one

KeyType keyTypeOf(ValueType type)
{
    switch (type) {
    case ValueType::Character:
        return KeyType::Character;
    case ValueType::Date:
        return KeyType::Date;
    case ValueType::Logical:
        return KeyType::Logical;
    default:
        return KeyType::Number;
    }
}

Error placed(Error error, const File &file, std::uint64_t place)
{
    if (error.kind == ErrorKind::NotFound)
        error.kind = ErrorKind::Damaged; // a tag over fields of another table
    error.file = file.path();
    error.place = static_cast<std::int64_t>(place);
    return error;
}

std::string_view withoutBlanks(std::string_view name)
{
    return name.substr(0, name.find_last_not_of(' ') + 1);
}

} // namespace

Status IndexFile::Impl::listTags(Listed &found)
{
    std::array<Byte, headerSize> bytes{};
    if (Status read = pages.readRaw(0, bytes); !read.ok())
        return read;
    const Result<IndexHeader> header = decodeDirectoryHeader(bytes);
    if (!header.ok())
        return placed(header.error(), *file, 0);
    directory = {header->root, directoryKeyLength, ' '};
    IndexTree tree(pages, directory);
    TreePath path;
    std::string key;
    for (std::uint32_t record = 0;;) {
        const Result<bool> more = tree.seek(key, record, path);
        if (!more.ok())
            return more.error();
        if (!*more)
            break;
        key = path.leaf().page->leaf.key(path.leaf().entry);
        record = path.leaf().page->leaf.record(path.leaf().entry);
        if (found.size() == mostTags)
            return pages.damaged("there are too many tags", 0);
        found.emplace_back(record++, withoutBlanks(key));
    }
    std::sort(found.begin(), found.end());
    return {};
}

Status IndexFile::Impl::readDirectory(const RowLayout &layout)
{
    Listed found;
    if (Status listed = listTags(found); !listed.ok())
        return listed;
    for (const auto &[at, name] : found) {
        if (Status read = readTag(name, at, layout); !read.ok())
            return read;
    }
    return {};
}

Status IndexFile::Impl::readTag(std::string_view name, std::uint32_t at, const RowLayout &layout)
{
    if (at % indexPageSize != 0 || at + std::uint64_t{headerSize} > pages.size())
        return pages.damaged("a tag header lies outside the file", at);
    std::array<Byte, headerSize> bytes{};
    if (Status read = pages.readRaw(at, bytes); !read.ok())
        return read;
    const Result<IndexHeader> header = decodeTagHeader(bytes);
    if (!header.ok())
        return placed(header.error(), *file, at);
    Result<KeyExpression> key = KeyExpression::parse(header->expression, layout);
    if (!key.ok())
        return placed(key.error(), *file, at);
    if (key->keyLength() != header->keyLength)
        return pages.damaged("the key length of a tag does not fit its expression", at);
    std::optional<KeyExpression> filter;
    if (!header->filter.empty()) {
        Result<KeyExpression> parsed = KeyExpression::parse(header->filter, layout);
        if (!parsed.ok())
            return placed(parsed.error(), *file, at);
        if (parsed->type() != ValueType::Logical)
            return placed({ErrorKind::Refused, {}, "a filter is not a condition"}, *file, at);
        filter = std::move(*parsed);
    }
    for (const IndexTag &other : tags) {
        if (other.shape.root == header->root || other.header == at ||
            header->root == directory.root)
            return pages.damaged("two tags share a page", at);
    }
    infos.push_back({std::string(name), header->expression, header->filter, keyTypeOf(key->type()),
                     header->keyLength, header->unique, header->descending});
    const TreeShape shape{header->root, header->keyLength, key->padByte()};
    tags.push_back({at, shape, header->unique, std::move(*key), std::move(filter)});
    return {};
}

Status IndexFile::Impl::checkTag(int tag) const
{
    if (tag >= 0 && static_cast<std::size_t>(tag) < tags.size())
        return {};
    return Error{ErrorKind::Misuse, file->path(), "there is no such tag"};
}

Status IndexFile::Impl::checkKey(int tag, std::string_view keyBytes) const
{
    if (Status known = checkTag(tag); !known.ok())
        return known;
    if (pages.broken())
        return Error{ErrorKind::Misuse, file->path(), "an index change broke off half way"};
    if (keyBytes.size() == at(tag).shape.keyLength)
        return {};
    return Error{ErrorKind::Misuse, file->path(), "a key has the wrong length"};
}

IndexFile::IndexFile(std::unique_ptr<Impl> impl) : m_impl(std::move(impl)) {}
IndexFile::~IndexFile() = default;

Result<std::unique_ptr<IndexFile>> IndexFile::open(std::shared_ptr<File> file,
                                                   const RowLayout &layout)
{
    auto impl = std::make_unique<Impl>(std::move(file));
    impl->recordLength = layout.recordLength;
    if (Status read = impl->pages.refresh(); !read.ok())
        return read.error();
    if (Status read = impl->readDirectory(layout); !read.ok())
        return read.error();
    impl->pages.distrust();
    return std::unique_ptr<IndexFile>(new IndexFile(std::move(impl)));
}

SalvagedTags IndexFile::salvage(std::shared_ptr<File> file, const RowLayout &layout)
{
    SalvagedTags salvaged;
    Impl impl(std::move(file));
    Impl::Listed found;
    if (!impl.pages.refresh().ok() || !impl.listTags(found).ok())
        return salvaged;
    for (const auto &[at, name] : found) {
        const Status read = impl.readTag(name, at, layout);
        if (!read.ok() && read.error().kind == ErrorKind::Refused)
            salvaged.refused.push_back(name);
    }
    salvaged.tags = asDefs(impl.infos);
    return salvaged;
}

const std::vector<TagInfo> &IndexFile::tags() const
{
    return m_impl->infos;
}

int IndexFile::findTag(std::string_view name) const
{
    for (std::size_t i = 0; i < m_impl->infos.size(); ++i) {
        if (sameWord(m_impl->infos[i].name, name))
            return static_cast<int>(i);
    }
    return -1;
}

Result<std::optional<std::string>> IndexFile::keyOf(int tag, ByteView row) const
{
    if (Status known = m_impl->checkTag(tag); !known.ok())
        return known.error();
    if (row.size() < m_impl->recordLength)
        return Error{ErrorKind::Misuse, m_impl->file->path(), "a row is too short"};
    const IndexTag &found = m_impl->at(tag);
    if (!found.has(row))
        return std::optional<std::string>();
    std::string key(found.shape.keyLength, '\0');
    found.key.writeKey(row, reinterpret_cast<Byte *>(key.data()));
    return std::optional(std::move(key));
}

std::optional<std::string> IndexFile::soughtKey(int tag, std::string_view text) const
{
    if (!m_impl->checkTag(tag).ok())
        return std::nullopt;
    const TagInfo &info = m_impl->infos[static_cast<std::size_t>(tag)];
    const std::string_view trimmed = withoutBlanks(text);
    switch (info.keyType) {
    case KeyType::Character: {
        // A field cuts what does not fit, so the sought text is cut alike.
        std::string key(text.substr(0, info.keyLength));
        m_impl->at(tag).key.foldSought(key);
        return key;
    }
    case KeyType::Date: {
        const double day = julianDay(trimmed);
        if (day == 0.0 && !trimmed.empty())
            return std::nullopt;
        std::string key(numberKeyLength, '\0');
        putNumberKey(day, reinterpret_cast<Byte *>(key.data()));
        return key;
    }
    case KeyType::Logical:
        if (sameWord(trimmed, "T") || sameWord(trimmed, "Y"))
            return "T";
        return sameWord(trimmed, "F") || sameWord(trimmed, "N") ? std::optional<std::string>("F")
                                                                : std::nullopt;
    case KeyType::Number:
        break;
    }
    const std::optional<double> number = leadingNumber(text);
    return number ? soughtKey(tag, *number) : std::nullopt;
}

std::optional<std::string> IndexFile::soughtKey(int tag, double number) const
{
    if (!m_impl->checkTag(tag).ok() || std::isnan(number))
        return std::nullopt;
    const TagInfo &info = m_impl->infos[static_cast<std::size_t>(tag)];
    if (info.keyType != KeyType::Number && info.keyType != KeyType::Date)
        return std::nullopt;
    std::string key(info.keyLength, '\0');
    const auto out = reinterpret_cast<Byte *>(key.data());
    if (info.keyLength == numberKeyLength) {
        putNumberKey(number, out);
        return key;
    }
    using Limits = std::numeric_limits<std::int32_t>;
    if (number != std::floor(number) || number < Limits::min() || number > Limits::max())
        return std::nullopt;
    putIntegerKey(static_cast<std::int32_t>(number), out);
    return key;
}

bool IndexFile::unchanged()
{
    return m_impl->pages.unchanged();
}

Status IndexFile::refresh()
{
    return m_impl->pages.refresh();
}

std::uint32_t IndexFile::counter() const
{
    return m_impl->pages.counter();
}

Status IndexFile::checkRoots()
{
    for (const IndexTag &tag : m_impl->tags) {
        const Result<IndexPage *> root = m_impl->pages.fetch(tag.shape.root, tag.shape);
        if (!root.ok())
            return root.error();
    }
    return {};
}

namespace
{

std::vector<IndexEntry> copied(const IndexLeaf &leaf, std::size_t first, std::size_t end)
{
    std::vector<IndexEntry> entries;
    entries.reserve(end - first);
    for (std::size_t i = first; i < end; ++i)
        entries.push_back({std::string(leaf.key(i)), leaf.record(i)});
    return entries;
}

} // namespace

// The leaf with the first entry >= (key, record), and that entry; null at the end of the tag.
Result<const IndexLeaf *> IndexFile::Impl::leafAt(int tag, std::string_view key,
                                                  std::uint32_t record, std::size_t &entry)
{
    if (Status known = checkTag(tag); !known.ok())
        return known.error();
    pages.trim();
    TreePath path;
    const Result<bool> found = IndexTree(pages, at(tag).shape).seek(key, record, path);
    if (!found.ok())
        return found.error();
    if (!*found)
        return static_cast<const IndexLeaf *>(nullptr);
    entry = path.leaf().entry;
    return static_cast<const IndexLeaf *>(&path.leaf().page->leaf);
}

Result<std::vector<IndexEntry>> IndexFile::entriesFrom(int tag, std::string_view key,
                                                       std::uint32_t record, std::size_t most)
{
    std::size_t first = 0;
    const Result<const IndexLeaf *> leaf = m_impl->leafAt(tag, key, record, first);
    if (!leaf.ok())
        return leaf.error();
    if (!*leaf)
        return std::vector<IndexEntry>();
    return copied(**leaf, first, first + std::min(most, (*leaf)->count() - first));
}

Result<std::vector<IndexEntry>> IndexFile::entriesOf(int tag, std::string_view key,
                                                     std::size_t most)
{
    std::size_t first = 0;
    const Result<const IndexLeaf *> leaf = m_impl->leafAt(tag, key, 0, first);
    if (!leaf.ok())
        return leaf.error();
    if (!*leaf)
        return std::vector<IndexEntry>();
    std::size_t end = first;
    while (end < (*leaf)->count() && end - first < most && (*leaf)->key(end).starts_with(key))
        ++end;
    return copied(**leaf, first, std::min(end + 1, (*leaf)->count()));
}

Result<std::vector<IndexEntry>> IndexFile::entriesBefore(int tag, std::string_view key,
                                                         std::uint32_t record, std::size_t most)
{
    if (Status known = m_impl->checkTag(tag); !known.ok())
        return known.error();
    m_impl->pages.trim();
    TreePath path;
    const Result<bool> found =
        IndexTree(m_impl->pages, m_impl->at(tag).shape).seekBefore(key, record, path);
    if (!found.ok())
        return found.error();
    if (!*found)
        return std::vector<IndexEntry>();
    const IndexLeaf &leaf = path.leaf().page->leaf;
    const std::size_t end = path.leaf().entry + 1;
    const std::size_t first = end - std::min(most, end);
    return copied(leaf, first, end);
}

Status IndexFile::insert(int tag, std::string_view key, std::uint32_t record)
{
    if (Status fits = m_impl->checkKey(tag, key); !fits.ok())
        return fits;
    m_impl->pages.trim();
    IndexTree tree(m_impl->pages, m_impl->at(tag).shape);
    if (m_impl->at(tag).unique) {
        TreePath path;
        const Result<bool> found = tree.seek(key, 0, path);
        if (!found.ok())
            return found.error();
        if (*found && path.leaf().page->leaf.key(path.leaf().entry) == key)
            return {}; // such a tag keeps the first record only
    }
    Status done = tree.insert(key, record);
    if (!done.ok())
        m_impl->pages.setBroken();
    return done;
}

Status IndexFile::remove(int tag, std::string_view key, std::uint32_t record)
{
    if (Status fits = m_impl->checkKey(tag, key); !fits.ok())
        return fits;
    m_impl->pages.trim();
    IndexTree tree(m_impl->pages, m_impl->at(tag).shape);
    if (m_impl->at(tag).unique) {
        TreePath path;
        const Result<bool> found = tree.seek(key, record, path);
        if (!found.ok())
            return found.error();
        const TreePath::Step &leaf = path.leaf();
        if (!*found || leaf.page->leaf.key(leaf.entry) != key ||
            leaf.page->leaf.record(leaf.entry) != record)
            return {}; // another record of the same key stands for this one
    }
    Status done = tree.remove(key, record);
    if (!done.ok())
        m_impl->pages.setBroken();
    return done;
}

std::vector<PageChange> IndexFile::changes() const
{
    return m_impl->pages.changes();
}

Status IndexFile::commit()
{
    return m_impl->pages.commit();
}

void IndexFile::noteWritten(const std::vector<PageChange> &list)
{
    m_impl->pages.written(list);
}

void IndexFile::discard()
{
    m_impl->pages.discard();
}

void IndexFile::distrust()
{
    m_impl->pages.distrust();
}

bool IndexFile::laidOutLike(const IndexFile &other) const
{
    const auto same = [](const IndexTag &a, const IndexTag &b) {
        return a.header == b.header && a.shape.root == b.shape.root &&
               a.shape.keyLength == b.shape.keyLength;
    };
    return m_impl->directory.root == other.m_impl->directory.root &&
           std::equal(m_impl->tags.begin(), m_impl->tags.end(), other.m_impl->tags.begin(),
                      other.m_impl->tags.end(), same);
}

} // namespace norvane::engine
