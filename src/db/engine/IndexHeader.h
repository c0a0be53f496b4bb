// Header and expression pages of the tag directory and of tags (docs/index-format.md, "Header").
#pragma once

#include "db/engine/Bytes.h"
#include "db/engine/IndexPage.h"
#include "db/engine/Status.h"

#include <cstdint>
#include <string>

namespace norvane::engine
{

inline constexpr std::size_t headerSize = 2 * indexPageSize; // header page and expression page
inline constexpr std::size_t directoryKeyLength = 10;

struct IndexHeader {
    std::uint32_t root = 0;
    std::uint16_t keyLength = 0;
    bool unique = false;     // only the first record of equal keys is kept
    bool descending = false; // shown backwards by programs that care; stored ascending
    std::string expression;
    std::string filter;
};

// Both work on headerSize bytes. Errors come without file and place.
Result<IndexHeader> decodeTagHeader(ByteView bytes);
Result<IndexHeader> decodeDirectoryHeader(ByteView bytes);
void encodeTagHeader(ByteSpan bytes, const IndexHeader &header);
void encodeDirectoryHeader(ByteSpan bytes, std::uint32_t root);

} // namespace norvane::engine
