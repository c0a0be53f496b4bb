// Keys of rows that were added in sole use. A load writes rows and texts only; the tags get the
// keys when they are next read, or when sole use ends.
#include "db/engine/KeyList.h"
#include "db/engine/TableFiles.h"

#include <algorithm>

namespace norvane::engine
{

namespace
{

// Building the tags anew costs about an eighth a row of what adding a key does, and as much as a
// thousand keys for the new file.
constexpr std::uint32_t kRebuildShare = 8;
constexpr std::uint32_t kFewRows = 1000;
constexpr std::size_t kReadAtOnce = 1 << 18; // bytes

} // namespace

Status TableFiles::keyRows()
{
    if (m_indexLost)
        return rebuildIndex();
    if (m_unkeyed == 0 || !m_index)
        return {};
    const std::vector<TagInfo> &tags = m_index->tags();
    const bool anyUnique =
        std::any_of(tags.begin(), tags.end(), [](const TagInfo &tag) { return tag.unique; });
    const bool many = m_unkeyed >= kFewRows && m_unkeyed >= m_count / kRebuildShare;
    if (many && !anyUnique)
        return rebuildIndex();
    Status status = insertKeys();
    return status.ok() ? status : rebuildIndex();
}

Status TableFiles::insertKeys()
{
    const std::uint32_t length = layout().recordLength;
    const std::uint32_t most = std::max<std::uint32_t>(1, kReadAtOnce / length);
    std::vector<Byte> rows;
    while (m_unkeyed > 0) {
        const std::uint32_t first = m_count - m_unkeyed + 1;
        const std::uint32_t now = std::min(most, m_unkeyed);
        rows.resize(std::size_t{now} * length);
        if (Status status = readRows(first, rows); !status.ok())
            return status;
        const int tags = static_cast<int>(m_index->tags().size());
        for (int tag = 0; tag < tags; ++tag) {
            if (Status status = insertKeys(tag, first, rows); !status.ok())
                return status;
        }
        m_unkeyed -= now;
        m_indexWaits += static_cast<int>(now);
        if (m_indexWaits < kMostWaiting)
            continue;
        if (Status status = writeOutIndex(); !status.ok())
            return status;
    }
    return {};
}

// In the order of the tag, so that one leaf takes all that belongs there.
Status TableFiles::insertKeys(int tag, std::uint32_t first, ByteView rows)
{
    const std::size_t length = layout().recordLength;
    KeyList keys(m_index->tags()[static_cast<std::size_t>(tag)].keyLength);
    for (std::uint32_t record = first; !rows.empty(); ++record, rows = rows.subspan(length)) {
        const Result<std::optional<std::string>> key = m_index->keyOf(tag, rows.first(length));
        if (!key.ok())
            return key.error();
        if (*key)
            std::copy((*key)->begin(), (*key)->end(), keys.add(record));
    }
    keys.sort();
    for (std::size_t i = 0; i < keys.size(); ++i) {
        if (Status status = m_index->insert(tag, keys.key(i), keys.record(i)); !status.ok())
            return status;
    }
    return {};
}

} // namespace norvane::engine
