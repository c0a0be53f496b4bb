// The three files of an open table as one session has them: shared by all table handles of the
// session on the same path, so that locks, cached pages and counts agree.
#pragma once

#include "db/engine/engine.h"
#include "db/engine/IndexFile.h"
#include "db/engine/LockedFile.h"
#include "db/engine/LockWait.h"
#include "db/engine/MemoFile.h"
#include "db/engine/SessionSettings.h"
#include "db/engine/TableFormat.h"
#include "db/engine/TableJournal.h"

#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace norvane::engine
{

// What a session remembers of a table between two openings.
struct TableMemory {
    bool used = false;
    // when its last rows were found in its index: header's count, change counter
    std::uint32_t rows = 0;
    std::uint32_t counter = 0;
};

class TableFiles
{
public:
    // Opens table, production index and memo file; when one of them or the journal refuses
    // writing, all of it is for reading. Locked when another session holds the table exclusively.
    // What a station that died left unfinished is finished first, and a wrong count or index is put
    // right.
    static Result<std::shared_ptr<TableFiles>> open(FileSystem &files, const std::string &path,
                                                    const SessionSettings &settings,
                                                    TableMemory &memory);
    ~TableFiles();
    TableFiles(const TableFiles &) = delete;
    TableFiles &operator=(const TableFiles &) = delete;

    const std::string &path() { return m_table.file().path(); }
    const RowLayout &layout() const { return m_header.layout; }
    const TableHeader &header() const { return m_header; }
    // True when one of its files is open for reading only: nothing is written to any of them.
    bool readOnly() { return refusingFile() != nullptr; }
    // What is wrong and could not be put right; such a table is not written to.
    const Error &damage() const { return m_damage; }
    // True when it is read rightly all the same and could not be written to anyhow.
    bool damageIsQuiet() { return readOnly() && m_copy; }
    Status mayWrite();
    // What was put right since the files were opened.
    const std::vector<RepairLine> &mended() const { return m_mended; }
    LockedFile &table() { return m_table; }
    std::string indexPath(); // also when there is none
    // Null when the table has none. A damaged one that cannot be built anew now is stood in for by
    // a copy in memory, for reading.
    IndexFile *index() { return m_copy ? m_copy.get() : m_index.get(); }
    IndexFile *fileIndex() { return m_index.get(); } // never the copy
    MemoFile *memo() { return m_memo.get(); }        // null when the table has none

    // Sole use, counted per handle. Locked when another session has the table open.
    Status enterExclusive();
    Status leaveExclusive();
    bool exclusive() const { return m_exclusive > 0; }

    // Rows by the header as last read, never more than the file holds.
    std::uint32_t count() const { return m_count; }
    Status refreshCount();
    // Damaged when the header counts rows that the file does not hold, or when more than
    // `tolerated` rows lie behind the count. REQUIRES: a fresh count.
    Status checkCount(std::uint32_t tolerated);
    // Counts what the file holds, such rows with it. REQUIRES: exclusive().
    Status mendCount();
    // Gives the table the end and the date that fit its count, the memo file the number of its
    // next free block, the index new tags; the files as they were are kept. REQUIRES: exclusive().
    Status mendEnds();
    Status mendTags();
    Status mendMemoHeader();
    // The memo file is a new one in the place of a lost one: blocks that rows lead to stay free of
    // new texts (docs/memo-format.md, rule 9). REQUIRES: the index lock for writing.
    Status passLostMemos();
    // Reads rows into `into`; fewer bytes than asked for are Damaged.
    Status readRows(std::uint32_t first, ByteSpan into);
    // Refuses a table without room for so many more rows or with a wrong count. REQUIRES: a fresh
    // count.
    Status checkRoom(std::uint32_t rows = 1);

    // ---- one save (TableSave.cpp). REQUIRES: the commit lock, exclusive
    // Fails while the index cannot be opened again.
    Status beginSave();
    // Blocks for texts (none empty) behind all others.
    Result<std::vector<std::uint32_t>> putMemos(const std::vector<std::string_view> &texts);
    void putRow(std::uint32_t record, ByteView row);
    // A row behind the last, of several each behind the one before. REQUIRES: append lock.
    void putNewRow(ByteView row);
    // Stores what was put and the changes of the index: all of it, or nothing when it fails.
    // While the table is held exclusively index changes and count collect in memory, and new rows
    // get no keys before the index is read or sole use ends.
    Status commitSave();
    // Puts a row back that a save held exclusively could not write.
    void restoreRow(std::uint32_t record, ByteView row);
    // Forgets key changes after one of them failed. Those of rows stored before that only waited
    // in memory come back by building the index anew.
    Status dropIndexChanges();
    // True for a row whose keys the tags are to have by now.
    bool isKeyed(std::uint32_t record) const
    {
        return record + std::uint64_t{m_unkeyed} <= m_count;
    }
    // What was collected goes to the files; the keys of new rows still wait.
    Status flush();
    // Everything does, those keys too.
    Status writeOut();
    // Memory ran out in the middle of something.
    void giveUp();
    // Moved by each change of this session: what was read before it may be old.
    std::uint32_t stamp() const { return m_stamp; }

    // A new index from the rows, put in the place of the old one. REQUIRES: exclusive().
    Status rebuildIndex();
    RowSource allRows();

    // ---- self-check (TableSelfCheck.cpp, TableMend.cpp, TableTags.cpp)
    // True for an error that says that the index is not what it should be.
    bool isIndexDamage(const Error &error);
    Error indexDamage(std::string detail, std::int64_t place = -1);
    // After such an error: the tags are built anew, or index() becomes a copy in memory. Whoever
    // asked asks again. REQUIRES: the caller holds no index lock.
    Status mendAfter(const Error &error);
    // Puts a count and an index right that do not fit the rows.
    Status mend(const LockPatience &patience);
    // True when the tags were built from the rows since the files were opened, and nothing was
    // stored after that.
    bool tagsAreNew() const { return m_tagsAreNew; }

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
    // Uncommitted index changes an exclusive session may collect; bounds memory.
    static constexpr int kMostWaiting = 20000;

    TableFiles(FileSystem &files, std::shared_ptr<File> table, const SessionSettings &settings)
        : m_system(files), m_settings(settings), m_table(std::move(table))
    {
    }

    const std::string *refusingFile(); // its path, null when all can be written
    Status refuseReader();             // fails when there is one
    Status openBeside();
    Status openIndexBeside();
    Status openIndex(const std::string &path, bool readOnly);
    Status reopenIndex();
    Status takeCount(std::uint32_t claimed);
    Result<std::uint32_t> rowsBehind(std::uint32_t most);
    Status writeOutCount();
    Status writeOutMemoHead();
    Status writeOutIndex();
    Status endSoleUse();
    void nameTargets();

    // TableSave.cpp
    void putHead();
    void putNewRows();
    void putDate();
    bool dateIsOld() const;
    Status commitThroughJournal();
    Status writePast();
    void takeBackPast();
    LockedFile &lockFile() { return m_indexFile ? *m_indexFile : m_table; }
    Status takeCommitLock(LockMode mode, const LockPatience &patience);
    bool nothingNew();
    Status settle(LockMode mode, const LockPatience &patience);
    Status recoverAlone(const LockPatience &patience);
    Status freshen(LockMode mode);
    Status settleAlone(LockMode mode);
    Status settleAtOpen();
    Status settleForReading();
    Error staleIndex();
    Status recover();

    // TableSelfCheck.cpp
    Status checkAtOpen(TableMemory &memory);
    Status lookAtIndex(const TableMemory &memory);
    Status checkTags();
    Status probe();
    Status probeLastRows(int tag);
    Status probeEnd(int tag, const std::vector<IndexEntry> &entries);
    Status examineIndex(bool everyKey);
    void removeLeftover();

    // TableMend.cpp
    LockPatience atMost(const LockPatience &longest) const;
    const std::vector<TagDef> &expectedTags();
    bool wantsIndex() { return m_header.hasIndex() || !expectedTags().empty(); }
    Result<std::vector<TagDef>> tagsToBuild();
    Status keep(File &damaged);
    Status mendLocked(bool &again);
    Status mendCountLocked(const Error &why);

    // TableTags.cpp
    Status mendIndex();
    Status buildTagsAnew(const std::vector<TagDef> &tags, const std::string &why);
    Result<std::shared_ptr<File>> buildBeside(const std::vector<TagDef> &tags, bool withSync);
    Status makeIndex(const std::vector<TagDef> &tags);
    Status takeNewIndex(const std::string &beside);
    Status layOver(const std::shared_ptr<File> &fresh);
    Status standIn(const Error &why, bool forIndex);
    Status refreshIndex();
    Status refreshCopy();

    // TableLoad.cpp
    Status keyRows();
    Status insertKeys();
    Status insertKeys(int tag, std::uint32_t first, ByteView rows);

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
    std::string m_refusingJournal; // its path when it can only be read
    Pieces m_pieces;               // of the save being put together
    std::vector<Byte> m_newRows;   // of this save, one behind the other
    std::uint32_t m_newCount = 0;
    bool m_noJournal = false; // at the index's change counter that m_index knows
    int m_lockDepth = 0;
    int m_exclusive = 0;
    bool m_memoHeadWaits = false; // exclusive: the memo header's next free block is behind
    bool m_countWaits = false;    // exclusive: the header's count is behind
    int m_indexWaits = 0;         // exclusive: index changes not yet committed
    std::uint32_t m_unkeyed = 0;  // exclusive: last rows whose keys are not in the tags yet
    bool m_indexLost = false;     // exclusive: changes are gone, the index has to be built anew
    bool m_indexDoubted = false;  // exclusive: cached pages are to be read again
    bool m_indexGone = false;     // it could not be opened again after it was built anew
    std::uint32_t m_stamp = 0;

    Status m_indexProblem; // as it was opened: why m_index is null though there should be one
    Error m_doubt;         // what a reader met in the index
    std::uint32_t m_doubtCounter = 0;
    Error m_damage;
    std::vector<RepairLine> m_mended;
    std::unique_ptr<IndexFile> m_copy;
    std::optional<std::array<std::uint64_t, 3>> m_copyOf; // the table's state it was made from
    bool m_tagsAreNew = false; // built from the rows, nothing stored since
};

} // namespace norvane::engine
