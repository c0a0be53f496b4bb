// Many rows stored as one save: they wait in memory, and at the end one record of the journal and
// one sync carry them all, each index page once.
#include "db/engine/Cleanup.h"
#include "db/engine/Table.h"

#include <algorithm>
#include <utility>

namespace norvane::engine
{

// Sole use needs no groups: nothing is synced there before its end.
void Table::beginGroup()
{
    m_grouping = !m_files->exclusive();
}

bool Table::waits(std::uint32_t record) const
{
    return std::any_of(m_group.begin(), m_group.end(),
                       [record](const Waiting &row) { return row.record == record; });
}

void Table::addToGroup()
{
    std::vector<std::pair<int, std::string>> texts;
    for (std::size_t i = 0; i < m_memos.size(); ++i) {
        if (m_memos[i].changed)
            texts.emplace_back(static_cast<int>(i), m_memos[i].text);
    }
    m_group.push_back({m_recNo, m_row, std::move(texts)});
    leaveRow();
}

Status Table::endGroup()
{
    Status status = storeForSure(); // the row at hand waits with the others
    m_grouping = false;
    std::vector<Waiting> rows = std::exchange(m_group, {});
    Cleanup letGo([this] { (void)unlockAll(); });
    if (!status.ok())
        return status;
    if (rows.empty())
        return {};
    leaveRow();
    std::stable_partition(rows.begin(), rows.end(), [](const Waiting &row) { return row.isNew(); });
    status = storeGroup(rows);
    if (!status.ok() && m_files->isIndexDamage(status.error())) {
        m_batchTag = -1;
        if (m_files->mendAfter(status.error()).ok() && m_files->mayWrite().ok())
            status = storeGroup(rows);
    }
    leaveRow();
    return status;
}

Status Table::dropGroup()
{
    m_grouping = false;
    m_group.clear();
    return unlockAll();
}

Status Table::passLostMemos()
{
    TableFiles::IndexLock lock;
    Status status = lock.take(*m_files, LockMode::Exclusive, m_settings.patience);
    return status.ok() ? m_files->passLostMemos() : status;
}

Status Table::storeGroup(const std::vector<Waiting> &rows)
{
    const auto added = static_cast<std::uint32_t>(
        std::count_if(rows.begin(), rows.end(), [](const Waiting &row) { return row.isNew(); }));
    Status status = m_files->mayWrite(); // it may have become wrong since the rows were locked
    if (status.ok() && added > 0)
        status = lock(0);
    if (status.ok() && added > 0)
        status = m_files->checkRoom(added);
    if (!status.ok())
        return status;
    TableFiles::IndexLock lock;
    status = lock.take(*m_files, LockMode::Exclusive, m_settings.patience);
    if (status.ok())
        status = m_files->refreshCount(); // others may have finished a dead station's append
    if (status.ok())
        status = storeGroupLocked(rows);
    if (!status.ok())
        (void)m_files->dropIndexChanges(); // those of the rows before the one that failed
    return status;
}

Status Table::storeGroupLocked(const std::vector<Waiting> &rows)
{
    if (Status status = m_files->beginSave(); !status.ok())
        return status;
    Result<std::vector<std::uint32_t>> blocks = placeTexts(rows);
    if (!blocks.ok())
        return blocks.error();
    auto block = blocks->begin();
    std::uint32_t newRecord = m_files->count();
    m_stored.resize(layout().recordLength);
    for (const Waiting &waiting : rows) {
        m_row = waiting.row;
        for (const auto &[field, text] : waiting.texts)
            putMemoBlock(field, text.empty() ? 0 : *block++);
        const std::uint32_t record = waiting.isNew() ? ++newRecord : waiting.record;
        // A dead station's save of this row may have been finished since we read it.
        Status status = waiting.isNew() ? Status() : m_files->readRows(record, m_stored);
        if (!status.ok())
            return status;
        const Result<std::vector<KeyChange>> changes = keyChanges(waiting.isNew());
        if (!changes.ok())
            return changes.error();
        if (status = changeKeys(*changes, record); !status.ok())
            return status;
        if (waiting.isNew())
            m_files->putNewRow(m_row);
        else
            m_files->putRow(record, m_row);
    }
    return m_files->commitSave();
}

// Blocks for the texts that are not empty, in the order of the rows.
Result<std::vector<std::uint32_t>> Table::placeTexts(const std::vector<Waiting> &rows)
{
    std::vector<std::string_view> texts;
    for (const Waiting &waiting : rows) {
        for (const auto &[field, text] : waiting.texts) {
            if (!text.empty())
                texts.emplace_back(text);
        }
    }
    return texts.empty() ? std::vector<std::uint32_t>() : m_files->putMemos(texts);
}

} // namespace norvane::engine
