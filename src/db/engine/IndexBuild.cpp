// Writing a whole new index file. Layout: directory header and root, then header and root of each
// tag, then all other pages, so that opening the file reads one piece from its start.
#include "db/engine/ExpressionNode.h"
#include "db/engine/IndexFile.h"
#include "db/engine/IndexHeader.h"
#include "db/engine/KeyExpression.h"
#include "db/engine/KeyList.h"
#include "db/engine/TreeBuilder.h"

#include <algorithm>

namespace norvane::engine
{

namespace
{

constexpr std::size_t treeFront = headerSize + indexPageSize; // header, expressions, root
constexpr std::uint64_t firstLockByte = 0x7FFFFFFE;

// One tag while it is being built.
struct NewTag {
    std::string name;
    IndexHeader header;
    KeyExpression key;
    std::optional<KeyExpression> filter;
    KeyList keys;
};

std::string paddedName(std::string_view name)
{
    std::string padded(name);
    for (char &c : padded)
        c = c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
    padded.resize(directoryKeyLength, ' ');
    return padded;
}

class IndexBuilder
{
public:
    IndexBuilder(File &target, const RowLayout &layout) : m_target(target), m_layout(layout) {}

    Status addTag(const TagDef &def);
    Status readRows(const RowSource &rows);
    Status write();

private:
    Error misuse(const char *detail) const { return {ErrorKind::Misuse, m_target.path(), detail}; }
    Status writeTree(const TreeShape &shape, KeyList &keys, bool unique);
    ByteSpan front(std::size_t offset, std::size_t length)
    {
        return ByteSpan(m_front).subspan(offset, length);
    }

    File &m_target;
    const RowLayout &m_layout;
    std::vector<NewTag> m_tags;
    std::vector<Byte> m_front; // headers and roots, written last
    std::uint64_t m_next = 0;  // where the next page goes
};

Status IndexBuilder::addTag(const TagDef &def)
{
    if (def.name.empty() || def.name.size() > directoryKeyLength)
        return misuse("a tag name is empty or too long");
    const std::string name = paddedName(def.name);
    for (const NewTag &tag : m_tags) {
        if (tag.name == name)
            return misuse("two tags have the same name");
    }
    if (def.expression.size() + def.filter.size() + 2 > indexPageSize)
        return Error{ErrorKind::Refused, m_target.path(), "the expressions of a tag are too long"};
    Result<KeyExpression> key = KeyExpression::parse(def.expression, m_layout);
    if (!key.ok())
        return key.error();
    if (key->keyLength() < 1 || key->keyLength() > maxKeyLength)
        return Error{ErrorKind::Refused, m_target.path(),
                     "the keys of a tag are empty or too long"};
    std::optional<KeyExpression> filter;
    if (!def.filter.empty()) {
        Result<KeyExpression> parsed = KeyExpression::parse(def.filter, m_layout);
        if (!parsed.ok())
            return parsed.error();
        if (parsed->type() != ValueType::Logical)
            return Error{ErrorKind::Refused, m_target.path(), "a filter is not a condition"};
        filter = std::move(*parsed);
    }
    IndexHeader header;
    header.keyLength = static_cast<std::uint16_t>(key->keyLength());
    header.expression = def.expression;
    header.filter = def.filter;
    header.unique = def.unique;
    header.descending = def.descending;
    m_tags.push_back({name, header, std::move(*key), std::move(filter), KeyList(header.keyLength)});
    return {};
}

Status IndexBuilder::readRows(const RowSource &rows)
{
    if (!rows.next)
        return {};
    std::uint32_t record = 0;
    ByteView row;
    for (;;) {
        const Result<bool> more = rows.next(record, row);
        if (!more.ok())
            return more.error();
        if (!*more)
            return {};
        if (row.size() < m_layout.recordLength || record == 0)
            return misuse("a row is too short or has no number");
        for (NewTag &tag : m_tags) {
            if (!tag.filter || tag.filter->isTrue(row))
                tag.key.writeKey(row, tag.keys.add(record));
        }
    }
}

// The front is written when all else stands, so a build that broke off leaves no valid file.
Status IndexBuilder::write()
{
    m_front.assign(treeFront * (m_tags.size() + 1), Byte{0});
    m_next = m_front.size();
    if (Status emptied = m_target.resize(0); !emptied.ok())
        return emptied;
    KeyList names(directoryKeyLength);
    for (std::size_t i = 0; i < m_tags.size(); ++i) {
        NewTag &tag = m_tags[i];
        const auto at = static_cast<std::uint32_t>(treeFront * (i + 1));
        tag.header.root = at + static_cast<std::uint32_t>(headerSize);
        encodeTagHeader(front(at, headerSize), tag.header);
        std::copy(tag.name.begin(), tag.name.end(), names.add(at));
        const TreeShape shape{tag.header.root, tag.header.keyLength, tag.key.padByte()};
        if (Status written = writeTree(shape, tag.keys, tag.header.unique); !written.ok())
            return written;
    }
    const TreeShape directory{headerSize, directoryKeyLength, ' '};
    encodeDirectoryHeader(front(0, headerSize), directory.root);
    if (Status written = writeTree(directory, names, false); !written.ok())
        return written;
    return m_target.write(0, m_front);
}

Status IndexBuilder::writeTree(const TreeShape &shape, KeyList &keys, bool unique)
{
    keys.sort();
    TreeBuilder tree(shape, m_next);
    for (std::size_t i = 0; i < keys.size(); ++i) {
        if (!unique || i == 0 || keys.key(i) != keys.key(i - 1))
            tree.add(keys.key(i), keys.record(i));
    }
    keys.clear();
    tree.finish();
    std::copy(tree.root().begin(), tree.root().end(), front(shape.root, indexPageSize).begin());
    const std::uint64_t at = m_next;
    m_next += tree.pages().size();
    if (m_next > firstLockByte)
        return Error{ErrorKind::TooLarge, m_target.path(), "the index file would be too large"};
    return tree.pages().empty() ? Status() : m_target.write(at, tree.pages());
}

} // namespace

Status buildIndex(File &target, const RowLayout &layout, const std::vector<TagDef> &tags,
                  const RowSource &rows)
{
    IndexBuilder builder(target, layout);
    for (const TagDef &tag : tags) {
        if (Status added = builder.addTag(tag); !added.ok())
            return added;
    }
    if (Status read = builder.readRows(rows); !read.ok())
        return read;
    return builder.write();
}

} // namespace norvane::engine
