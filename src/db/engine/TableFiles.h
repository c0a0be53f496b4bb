// The three files of an open table as one session has them: shared by all table handles of the
// session on the same path, so that locks, cached pages and counts agree.
#pragma once

#include "db/engine/IndexFile.h"
#include "db/engine/LockedFile.h"
#include "db/engine/LockWait.h"
#include "db/engine/MemoFile.h"
#include "db/engine/SessionSettings.h"
#include "db/engine/TableFormat.h"
#include "db/engine/TableJournal.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

namespace norvane::engine
{

class TableFiles
{
public:
    // Opens table, production index and memo file; a file that refuses writing is opened for
    // reading. Locked when another session holds the table exclusively. What a station that died
    // left unfinished is finished first. `firstUse`: the session did not open the table before.
    static Result<std::shared_ptr<TableFiles>> open(FileSystem &files, const std::string &path,
                                                    const SessionSettings &settings, bool firstUse);
    ~TableFiles();
    TableFiles(const TableFiles &) = delete;
    TableFiles &operator=(const TableFiles &) = delete;

    const std::string &path() { return m_table.file().path(); }
    const RowLayout &layout() const { return m_header.layout; }
    const TableHeader &header() const { return m_header; }
    bool readOnly() { return m_table.file().readOnly(); }
    LockedFile &table() { return m_table; }
    IndexFile *index() { return m_index.get(); } // null when the table has none
    MemoFile *memo() { return m_memo.get(); }    // null when the table has none

    // Sole use, counted per handle. Locked when another session has the table open.
    Status enterExclusive();
    Status leaveExclusive();
    bool exclusive() const { return m_exclusive > 0; }

    // Rows by the header as last read, never more than the file holds.
    std::uint32_t count() const { return m_count; }
    Status refreshCount();
    // Damaged when the header counts rows that the file does not hold, or when more rows lie
    // behind the count than the one that an interrupted append leaves. REQUIRES: a fresh count.
    Status checkCount();
    // Counts what the file holds, such rows with it. REQUIRES: exclusive().
    Status mendCount();
    // Reads rows into `into`; fewer bytes than asked for are Damaged.
    Status readRows(std::uint32_t first, ByteSpan into);
    // Refuses a table that is full or has a wrong count. REQUIRES: a fresh count.
    Status checkRoom();

    // ---- one save (TableSave.cpp). REQUIRES: the commit lock, exclusive
    void beginSave() { m_pieces.clear(); }
    // Blocks for texts (none empty) behind all others.
    Result<std::vector<std::uint32_t>> putMemos(const std::vector<std::string_view> &texts);
    void putRow(std::uint32_t record, ByteView row);
    // A row behind the last. REQUIRES: append lock.
    void putNewRow(ByteView row);
    // Stores what was put and the changes of the index: all of it, or nothing when it fails.
    // While the table is held exclusively index changes and count collect in memory.
    Status commitSave();
    // Puts a row back that a save held exclusively could not write.
    void restoreRow(std::uint32_t record, ByteView row);
    // Forgets key changes after one of them failed. Those of rows stored before that only waited
    // in memory come back by building the index anew.
    Status dropIndexChanges();
    // Everything that was collected goes to the files.
    Status writeOut();
    // Moved by each change of this session: what was read before it may be old.
    std::uint32_t stamp() const { return m_stamp; }

    // A new index from the rows, put in the place of the old one. REQUIRES: exclusive().
    Status rebuildIndex();
    RowSource allRows();

    // The index lock for one operation; nothing when the table is held exclusively. Held
    // exclusively it is the commit lock: one save at a time in a table. A table without an index
    // has its append byte for it.
    class IndexLock
    {
    public:
        IndexLock() = default;
        ~IndexLock();
        IndexLock(const IndexLock &) = delete;
        IndexLock &operator=(const IndexLock &) = delete;
        // Takes the lock, finishes a save whose station died, and drops pages that another
        // session has changed.
        Status take(TableFiles &files, LockMode mode, const LockPatience &patience);
        Status release();

    private:
        TableFiles *m_files = nullptr;
        LockMode m_mode = LockMode::Shared;
    };

private:
    TableFiles(FileSystem &files, std::shared_ptr<File> table, const SessionSettings &settings)
        : m_system(files), m_settings(settings), m_table(std::move(table))
    {
    }

    Status openBeside();
    Status openIndex(const std::string &path, bool readOnly);
    Status takeCount(std::uint32_t claimed);
    Result<std::uint32_t> rowsBehind(std::uint32_t most);
    Status writeOutCount();
    void nameTargets();

    // TableSave.cpp
    void putDate();
    bool dateIsOld() const;
    Status commitThroughJournal();
    Status writePast();
    void takeBackPast();
    LockedFile &lockFile() { return m_indexFile ? *m_indexFile : m_table; }
    Status takeCommitLock(LockMode mode, const LockPatience &patience);
    Status settle(LockMode mode, const LockPatience &patience);
    Status settleAtOpen();
    Status settleForReading();
    Status recover();
    Status mendIndex();
    Status layOver(File &fresh);

    FileSystem &m_system;
    const SessionSettings &m_settings;
    LockedFile m_table;
    TableHeader m_header;
    std::uint32_t m_count = 0;
    std::uint32_t m_claimed = 0; // the header's count, as of the last look
    std::uint64_t m_size = 0;    // bytes, as of the last look
    std::optional<LockedFile> m_indexFile;
    std::unique_ptr<IndexFile> m_index;
    std::unique_ptr<MemoFile> m_memo;
    std::unique_ptr<TableJournal> m_journal;
    Pieces m_pieces; // of the save being put together
    bool m_appends = false;
    int m_lockDepth = 0;
    int m_exclusive = 0;
    bool m_countWaits = false; // exclusive: the header's count is behind
    int m_indexWaits = 0;      // exclusive: index changes not yet committed
    std::uint32_t m_stamp = 0;
};

} // namespace norvane::engine
