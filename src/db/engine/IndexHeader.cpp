#include "db/engine/IndexHeader.h"

#include "db/engine/ExpressionNode.h"

#include <algorithm>

namespace norvane::engine
{

namespace
{

enum Option : Byte {
    uniqueKeys = 0x01,
    nullable = 0x02,
    candidate = 0x04,
    hasFilter = 0x08,
    compact = 0x20,
    compound = 0x40,
    directory = 0x80
};

constexpr Byte compactSignature = 1, collatedSignature = 2;
constexpr std::size_t counterPlace = 8, keyLengthPlace = 12, optionsPlace = 14, signaturePlace = 15;
constexpr std::size_t collationPlace = 494, orderPlace = 502, filterAtPlace = 504;
constexpr std::size_t filterSizePlace = 506, keyAtPlace = 508, keySizePlace = 510;

Error damaged(const char *detail)
{
    return {ErrorKind::Damaged, {}, detail};
}

Error refused(const char *detail)
{
    return {ErrorKind::Refused, {}, detail};
}

// A zero-terminated text of the expression page, from its place and its size with the zero.
bool readText(ByteView pool, std::size_t at, std::size_t size, std::string &text)
{
    if (size == 0 || at + size > pool.size())
        return false;
    const ByteView bytes = pool.subspan(at, size);
    const auto end = std::find(bytes.begin(), bytes.end(), Byte{0});
    if (end != bytes.end() - 1)
        return false;
    text.assign(bytes.begin(), end);
    return true;
}

void putHeader(ByteSpan bytes, std::uint32_t root, std::size_t keyLength, unsigned options,
               const std::string &expression, const std::string &filter)
{
    std::fill(bytes.begin(), bytes.end(), Byte{0});
    putLe32(&bytes[0], root);
    putLe16(&bytes[keyLengthPlace], static_cast<std::uint16_t>(keyLength));
    bytes[optionsPlace] = static_cast<Byte>(options);
    bytes[signaturePlace] = compactSignature;
    const std::size_t keySize = expression.size() + 1;
    putLe16(&bytes[filterAtPlace], static_cast<std::uint16_t>(keySize));
    putLe16(&bytes[filterSizePlace], static_cast<std::uint16_t>(filter.size() + 1));
    putLe16(&bytes[keyAtPlace], 0);
    putLe16(&bytes[keySizePlace], static_cast<std::uint16_t>(keySize));
    const auto pool = bytes.begin() + indexPageSize;
    std::copy(expression.begin(), expression.end(), pool);
    std::copy(filter.begin(), filter.end(), pool + static_cast<std::ptrdiff_t>(keySize));
}

} // namespace

Result<IndexHeader> decodeTagHeader(ByteView bytes)
{
    IndexHeader header;
    const unsigned options = bytes[optionsPlace];
    header.root = getLe32(&bytes[0]);
    header.keyLength = getLe16(&bytes[keyLengthPlace]);
    header.unique = options & uniqueKeys;
    header.descending = getLe16(&bytes[orderPlace]) == 1;
    constexpr unsigned basic = compact | compound;
    if ((options & basic) != basic || options & directory || header.keyLength == 0)
        return damaged("a tag header makes no sense");
    if (options & nullable)
        return refused("a tag over fields that may be null is not supported");
    if (options & ~unsigned{uniqueKeys | candidate | hasFilter | basic})
        return refused("a tag has unknown options");
    if (bytes[signaturePlace] == collatedSignature || bytes[collationPlace] != 0)
        return refused("a tag sorted by a language is not supported");
    if (bytes[signaturePlace] != compactSignature)
        return refused("a tag is of an unknown kind");
    if (header.keyLength > maxKeyLength)
        return damaged("the keys of a tag are too long");
    const ByteView pool = bytes.subspan(indexPageSize);
    const bool key = readText(pool, getLe16(&bytes[keyAtPlace]), getLe16(&bytes[keySizePlace]),
                              header.expression);
    const bool filter = readText(pool, getLe16(&bytes[filterAtPlace]),
                                 getLe16(&bytes[filterSizePlace]), header.filter);
    if (!key || !filter || header.expression.empty())
        return damaged("the expressions of a tag make no sense");
    if (((options & hasFilter) != 0) == header.filter.empty())
        return damaged("the filter of a tag does not fit its options");
    return header;
}

Result<IndexHeader> decodeDirectoryHeader(ByteView bytes)
{
    IndexHeader header;
    header.root = getLe32(&bytes[0]);
    header.keyLength = getLe16(&bytes[keyLengthPlace]);
    constexpr unsigned wanted = compact | compound | directory;
    const unsigned options = bytes[optionsPlace] & ~unsigned{candidate};
    if (options != wanted || header.keyLength != directoryKeyLength)
        return damaged("the file has no tag directory");
    if (bytes[signaturePlace] != compactSignature)
        return refused("the tag directory is of an unknown kind");
    return header;
}

void encodeTagHeader(ByteSpan bytes, const IndexHeader &header)
{
    unsigned options = compact | compound;
    if (!header.filter.empty())
        options |= hasFilter;
    if (header.unique)
        options |= uniqueKeys;
    putHeader(bytes, header.root, header.keyLength, options, header.expression, header.filter);
    putLe16(&bytes[orderPlace], header.descending ? 1 : 0);
}

void encodeDirectoryHeader(ByteSpan bytes, std::uint32_t root)
{
    putHeader(bytes, root, directoryKeyLength, compact | compound | directory, {}, {});
    putBe32(&bytes[counterPlace], 1);
}

} // namespace norvane::engine
