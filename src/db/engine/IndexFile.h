// A compound index file: its tags, their trees, and the cached pages (docs/index-format.md).
//
// The caller (Table) holds the index lock: shared for every reading operation, exclusive for
// every changing one, and calls refresh() right after taking it. Changes collect in memory until
// commit() writes them; discard() forgets them.
#pragma once

#include "db/engine/File.h"
#include "db/engine/IndexPages.h"
#include "db/engine/RowLayout.h"
#include "db/engine/Status.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace norvane::engine
{

// Positions in a tag are pairs (key, record); they stay valid when pages split or vanish.
struct IndexEntry {
    std::string key; // full key length, padded
    std::uint32_t record = 0;

    friend bool operator==(const IndexEntry &, const IndexEntry &) = default;
    friend auto operator<=>(const IndexEntry &, const IndexEntry &) = default;
};

struct RowSource;

enum class KeyType { Character, Number, Date, Logical };

struct TagInfo {
    std::string name; // upper case
    std::string expression;
    std::string filter;
    KeyType keyType = KeyType::Character;
    std::uint16_t keyLength = 0; // bytes
    bool unique = false;         // keeps the first record of equal keys
    bool descending = false;     // shown backwards by programs that care
};

// Tags of a file that cannot be used as it is, as far as they can be read.
struct SalvagedTags {
    std::vector<TagDef> tags;
    std::vector<std::string> refused; // names of tags outside what this engine supports
};

class IndexFile
{
public:
    // Opens and checks header, directory and expressions against the table's fields. Needs no
    // lock: what it reads here never changes while the file lives.
    // Damaged: the file makes no sense; Refused: an expression outside the closed set.
    static Result<std::unique_ptr<IndexFile>> open(std::shared_ptr<File> file,
                                                   const RowLayout &layout);
    ~IndexFile();
    static SalvagedTags salvage(std::shared_ptr<File> file, const RowLayout &layout);

    const std::vector<TagInfo> &tags() const; // in creation order
    int findTag(std::string_view name) const; // -1 when there is none; case does not matter

    // The key of a row in a tag, nothing when the row is not in it (filter false). `row` is the
    // whole record with its deletion flag.
    Result<std::optional<std::string>> keyOf(int tag, ByteView row) const;
    // Sought text or number as key bytes: text folded like the tag's expression, possibly shorter
    // than the key (then a prefix is meant); a number, or text read as one, for numeric tags;
    // YYYYMMDD for date tags. Nothing when it cannot be a key of that tag.
    std::optional<std::string> soughtKey(int tag, std::string_view text) const;
    std::optional<std::string> soughtKey(int tag, double number) const;

    // Drops cached pages when the file changed since they were read.
    Status refresh();
    // True when the file is known not to have changed since.
    bool unchanged();
    // The file's change counter as of the last refresh().
    std::uint32_t counter() const;
    // Damaged when the root of a tag makes no sense.
    Status checkRoots();
    // The entries of one leaf from the first one >= (key, record) on, at most `most`; empty at the
    // end of the tag. A key shorter than the tag's stands before all that begin with it.
    Result<std::vector<IndexEntry>> entriesFrom(int tag, std::string_view key, std::uint32_t record,
                                                std::size_t most = SIZE_MAX);
    // Of the entries that begin with the key those in the first leaf, at most `most`, and the one
    // behind them; without any the first behind the key.
    Result<std::vector<IndexEntry>> entriesOf(int tag, std::string_view key, std::size_t most);
    // The last entries of the tag that are < (key, record), in ascending order, at most `most`.
    Result<std::vector<IndexEntry>>
    entriesBefore(int tag, std::string_view key, std::uint32_t record, std::size_t most = SIZE_MAX);

    // Inserting a pair that is there already, or removing one that is not, is Damaged. After any
    // failure of the two only discard() makes the index usable again.
    Status insert(int tag, std::string_view key, std::uint32_t record);
    Status remove(int tag, std::string_view key, std::uint32_t record);
    // What commit() would write, in its order; empty without changes.
    std::vector<PageChange> changes() const;
    // Writes changed pages (children before parents, change counter last). When that fails, the
    // pages are read anew after the next refresh(), whatever of them reached the file.
    Status commit();
    // The caller has written what changes() gave.
    void noteWritten(const std::vector<PageChange> &list);
    void discard();
    // Makes the next refresh() read everything again.
    void distrust();
    // True when header pages and roots of all tags stand at the same places.
    bool laidOutLike(const IndexFile &other) const;

private:
    friend Result<std::vector<std::string>> checkIndex(IndexFile &index, const RowSource &rows);
    struct Impl;
    explicit IndexFile(std::unique_ptr<Impl> impl);
    std::unique_ptr<Impl> m_impl;
};

// Gives rows one after the other: true and the row filled in, false at the end.
struct RowSource {
    std::function<Result<bool>(std::uint32_t &record, ByteView &row)> next;
};

// Writes a whole new index over an empty file: tags in the order given, leaves nearly full.
Status buildIndex(File &target, const RowLayout &layout, const std::vector<TagDef> &tags,
                  const RowSource &rows);

// Full structural check of all tags: levels, links, order, parents, page use, and that each tag
// holds exactly the keys of `rows`. One line of text for each finding; empty when sound.
Result<std::vector<std::string>> checkIndex(IndexFile &index, const RowSource &rows);

} // namespace norvane::engine
