// The inside of IndexFile, shared with the full check.
#pragma once

#include "db/engine/IndexFile.h"
#include "db/engine/IndexPages.h"
#include "db/engine/KeyExpression.h"

#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace norvane::engine
{

struct IndexTag {
    std::uint32_t header = 0; // offset of its header page
    TreeShape shape;
    bool unique = false;
    KeyExpression key;
    std::optional<KeyExpression> filter;

    bool has(ByteView row) const { return !filter || filter->isTrue(row); }
};

struct IndexFile::Impl {
    explicit Impl(std::shared_ptr<File> opened) : file(opened), pages(std::move(opened)) {}

    // A tag's header offset and name.
    using Listed = std::vector<std::pair<std::uint32_t, std::string>>;
    Status listTags(Listed &found);
    Status readDirectory(const RowLayout &layout);
    Status readTag(std::string_view name, std::uint32_t at, const RowLayout &layout);
    Status checkTag(int tag) const;
    Status checkKey(int tag, std::string_view keyBytes) const;
    Result<const IndexLeaf *> leafAt(int tag, std::string_view key, std::uint32_t record,
                                     std::size_t &entry);
    IndexTag &at(int tag) { return tags[static_cast<std::size_t>(tag)]; }
    const IndexTag &at(int tag) const { return tags[static_cast<std::size_t>(tag)]; }

    std::shared_ptr<File> file;
    IndexPages pages;
    TreeShape directory;
    std::size_t recordLength = 0;
    std::vector<TagInfo> infos; // beside `tags`
    std::vector<IndexTag> tags; // in creation order
};

} // namespace norvane::engine
