// Storing rows. Under the commit lock a save is put together in memory (texts, keys, the row) and
// then stored as one (TableSave.cpp).
#include "db/engine/Cleanup.h"
#include "db/engine/LockPlaces.h"
#include "db/engine/Table.h"

#include <algorithm>

namespace norvane::engine
{

Status Table::beginChange()
{
    if (Status allowed = m_files->mayWrite(); !allowed.ok())
        return allowed;
    if (m_appending || m_changed)
        return {};
    if (m_recNo == 0)
        return Error{ErrorKind::Misuse, m_files->path(), "there is no current row to change"};
    if (!holdsLock(m_recNo)) {
        if (m_settings.lockEnforce)
            return Error{ErrorKind::Misuse, m_files->path(), "the row is not locked", m_recNo};
        if (Status status = lock(m_recNo); !status.ok())
            return status;
    }
    if (waits(m_recNo))
        return Error{ErrorKind::Misuse, m_files->path(), "the row waits to be stored", m_recNo};
    // The row as it is in the file tells which keys have to go.
    if (!m_loadedLocked || m_rowStamp != m_files->stamp()) {
        if (Status status = reloadRow(); !status.ok())
            return status;
    }
    m_stored = m_row;
    m_changed = true;
    return {};
}

void Table::discard()
{
    if (m_appending) {
        leaveRow();
    } else if (m_changed) {
        m_row = m_stored;
        m_changed = false;
        forgetMemos();
    }
}

Status Table::flush()
{
    if (Status status = store(); !status.ok())
        return status;
    return m_files->flush();
}

Status Table::deleteRow()
{
    if (m_appending)
        return Error{ErrorKind::Misuse, m_files->path(), "a row not yet appended is not deleted"};
    if (Status status = beginChange(); !status.ok())
        return status;
    m_row[0] = kDeletedRow;
    return {};
}

Status Table::reindex()
{
    if (!m_files->exclusive())
        return Error{ErrorKind::Misuse, m_files->path(), "the table is not open exclusively"};
    if (Status status = store(); !status.ok())
        return status;
    m_batchTag = -1;
    if (m_files->tagsAreNew())
        return {};
    if (Status status = m_files->mendCount(); !status.ok())
        return status;
    return m_files->rebuildIndex();
}

// ---- the current row

Status Table::store()
{
    if (!m_changed || m_appending)
        return {};
    if (!holdsLock(m_recNo))
        return Error{ErrorKind::Misuse, m_files->path(), "the row is not locked", m_recNo};
    if (m_row == m_stored && !memosChanged()) {
        m_changed = false;
        return {};
    }
    if (m_grouping) {
        addToGroup();
        return {};
    }
    const int placeTag = m_placeTag >= 0 ? m_placeTag : orderTag();
    if (placeTag >= 0)
        (void)placeInTag(placeTag); // a deleted row keeps its place for the next move
    Status status = storeOnce();
    if (!status.ok() && m_files->isIndexDamage(status.error())) {
        m_batchTag = -1;
        if (m_files->mendAfter(status.error()).ok() && m_files->mayWrite().ok())
            status = storeOnce();
    }
    return status;
}

Status Table::storeOnce()
{
    TableFiles::IndexLock lock;
    if (Status status = lock.take(*m_files, LockMode::Exclusive, m_settings.patience); !status.ok())
        return status;
    // A dead station's save of this row may have been finished since we read it.
    if (Status status = m_files->exclusive() ? Status() : m_files->readRows(m_recNo, m_stored);
        !status.ok())
        return status;
    std::vector<KeyChange> changes;
    if (Status status = storeLocked(changes); !status.ok())
        return status;
    for (const KeyChange &change : changes) {
        if (change.tag == m_placeTag && !change.after.empty())
            m_placeKey = change.after;
    }
    rowStored(m_recNo);
    return {}; // stored, whatever becomes of the lock
}

Status Table::storeLocked(std::vector<KeyChange> &changes)
{
    if (Status status = m_files->beginSave(); !status.ok())
        return status;
    if (Status status = placeMemos(); !status.ok())
        return status;
    Result<std::vector<KeyChange>> found = keyChanges(false);
    if (!found.ok())
        return found.error();
    changes = std::move(*found);
    const bool keyed = m_files->isKeyed(m_recNo);
    if (Status status = keyed ? changeKeys(changes, m_recNo) : Status(); !status.ok())
        return status;
    m_files->putRow(m_recNo, m_row);
    Status status = m_files->commitSave();
    if (!status.ok() && m_files->exclusive()) {
        if (keyed)
            takeBackKeys(changes, m_recNo);
        m_files->restoreRow(m_recNo, m_stored);
    }
    return status;
}

void Table::rowStored(std::uint32_t record)
{
    m_recNo = record;
    m_appending = false;
    m_changed = false;
    m_behindLast = false;
    m_loadedLocked = true;
    m_rowStamp = m_files->stamp();
    for (Memo &memo : m_memos)
        memo.changed = false;
}

bool Table::memosChanged() const
{
    return std::any_of(m_memos.begin(), m_memos.end(),
                       [](const Memo &memo) { return memo.changed; });
}

// Changed texts get fresh blocks, so that the old ones stay until the row is committed.
Status Table::placeMemos()
{
    std::vector<std::string_view> texts;
    std::vector<int> fields;
    for (std::size_t i = 0; i < m_memos.size(); ++i) {
        if (!m_memos[i].changed)
            continue;
        if (m_memos[i].text.empty()) {
            putMemoBlock(static_cast<int>(i), 0);
            continue;
        }
        texts.emplace_back(m_memos[i].text);
        fields.push_back(static_cast<int>(i));
    }
    if (texts.empty())
        return {};
    const Result<std::vector<std::uint32_t>> blocks = m_files->putMemos(texts);
    if (!blocks.ok())
        return blocks.error();
    for (std::size_t i = 0; i < fields.size(); ++i)
        putMemoBlock(fields[i], (*blocks)[i]);
    return {};
}

// ---- keys

Result<std::vector<Table::KeyChange>> Table::keyChanges(bool newRow) const
{
    std::vector<KeyChange> changes;
    const IndexFile *index = m_files->index();
    const int tags = index ? static_cast<int>(index->tags().size()) : 0;
    for (int tag = 0; tag < tags; ++tag) {
        KeyChange change{tag, {}, {}};
        if (!newRow) {
            Result<std::optional<std::string>> before = index->keyOf(tag, m_stored);
            if (!before.ok())
                return before.error();
            change.before = std::move(before.value()).value_or(std::string());
        }
        Result<std::optional<std::string>> after = index->keyOf(tag, m_row);
        if (!after.ok())
            return after.error();
        change.after = std::move(after.value()).value_or(std::string());
        if (change.before != change.after)
            changes.push_back(std::move(change));
    }
    return changes;
}

Status Table::changeKey(int tag, const std::string &from, const std::string &to,
                        std::uint32_t record)
{
    IndexFile &index = *m_files->index();
    Status status;
    if (!from.empty())
        status = index.remove(tag, from, record);
    if (status.ok() && !to.empty())
        status = index.insert(tag, to, record);
    return status;
}

// All keys of a row change in memory or none does.
Status Table::changeKeys(const std::vector<KeyChange> &changes, std::uint32_t record)
{
    for (const KeyChange &change : changes) {
        Status status = changeKey(change.tag, change.before, change.after, record);
        if (!status.ok()) {
            (void)m_files->dropIndexChanges();
            return status;
        }
    }
    return {};
}

// Sole use: the keys of rows stored before wait in memory too and must stay.
void Table::takeBackKeys(const std::vector<KeyChange> &changes, std::uint32_t record)
{
    for (auto it = changes.rbegin(); it != changes.rend(); ++it)
        (void)changeKey(it->tag, it->after, it->before, record);
}

// ---- new rows

void Table::blankRow()
{
    m_row.assign(layout().recordLength, kLiveRow);
    for (const FieldDef &field : layout().fields)
        blankField(field);
    forgetMemos();
}

Status Table::blank()
{
    if (Status status = beginChange(); !status.ok())
        return status;
    const Byte flag = m_row[0];
    blankRow();
    m_row[0] = flag;
    return {};
}

Status Table::startAppend()
{
    if (Status allowed = m_files->mayWrite(); !allowed.ok())
        return allowed;
    if (Status status = settleBeforeMove(); !status.ok())
        return status;
    m_recNo = 0;
    m_placeTag = -1;
    m_appending = true;
    m_row[0] = kLiveRow;
    for (const FieldDef &field : layout().fields) {
        if (field.type == 'M')
            blankField(field); // two rows never share a text
    }
    forgetMemos();
    return {};
}

Status Table::append()
{
    if (!m_appending)
        return Error{ErrorKind::Misuse, m_files->path(), "no row has been begun"};
    if (m_grouping) {
        addToGroup();
        return {};
    }
    bool moved = false;
    Status status = appendOnce(moved);
    while (status.ok() && moved)
        status = appendOnce(moved);
    if (!status.ok() && m_files->isIndexDamage(status.error())) {
        if (!m_files->mendAfter(status.error()).ok() || !m_files->mayWrite().ok())
            return status;
        do
            status = appendOnce(moved);
        while (status.ok() && moved);
    }
    return status;
}

// `moved`: the row's number went to a save that had to be finished first; nothing was stored.
Status Table::appendOnce(bool &moved)
{
    moved = false;
    std::uint32_t record = 0;
    if (Status status = lockForAppend(record); !status.ok())
        return status;
    Cleanup letGo([&] {
        (void)unlockAfterAppend();
        (void)unlockOne(record);
    });
    TableFiles::IndexLock lock;
    Status status = lock.take(*m_files, LockMode::Exclusive, m_settings.patience);
    if (status.ok() && !m_files->exclusive())
        status = m_files->refreshCount(); // others may have finished a dead station's append
    moved = status.ok() && m_files->count() + 1 != record;
    if (status.ok() && !moved)
        status = appendLocked(record);
    letGo.cancel();
    (void)lock.release(); // once stored it is stored, whatever becomes of the locks
    (void)unlockAfterAppend();
    if (!status.ok() || moved) {
        const Status left = unlockOne(record);
        return status.ok() ? left : status;
    }
    m_placeTag = -1;
    rowStored(record);
    return {};
}

Status Table::unlockAfterAppend()
{
    return m_files->exclusive() ? Status()
                                : m_files->table().unlock(kLockByte, LockMode::Exclusive);
}

// The append lock and that of the row to come; never waits for the second holding the first.
Status Table::lockForAppend(std::uint32_t &record)
{
    const auto measure = [this, &record]() -> Status {
        if (Status status = m_files->refreshCount(); !status.ok())
            return status;
        record = m_files->count() + 1;
        return m_files->checkRoom();
    };
    if (m_files->exclusive())
        return measure();
    LockedFile &table = m_files->table();
    m_locks.reserve(m_locks.size() + 1);
    return waitForLock(m_settings.patience, LockPace::Brief, [&]() -> Status {
        if (Status status = table.tryLock(kLockByte, LockMode::Exclusive); !status.ok())
            return status;
        Cleanup letGo([&] { (void)table.unlock(kLockByte, LockMode::Exclusive); });
        Status status = measure();
        if (status.ok())
            status = table.tryLock(recordLockByte(record), LockMode::Exclusive);
        if (status.ok()) {
            m_locks.push_back(record);
            letGo.cancel();
        }
        return status;
    });
}

Status Table::appendLocked(std::uint32_t record)
{
    if (Status status = m_files->beginSave(); !status.ok())
        return status;
    if (Status status = placeMemos(); !status.ok())
        return status;
    // In sole use the keys come later, all at once (TableLoad.cpp).
    const bool keyNow = !m_files->exclusive();
    const Result<std::vector<KeyChange>> changes =
        keyNow ? keyChanges(true) : std::vector<KeyChange>();
    if (!changes.ok())
        return changes.error();
    if (Status status = changeKeys(*changes, record); !status.ok())
        return status;
    m_files->putNewRow(m_row);
    return m_files->commitSave();
}

} // namespace norvane::engine
