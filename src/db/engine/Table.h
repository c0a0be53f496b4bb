// One open handle on a table: a row buffer, a place in an order, locks and a pending change.
//
// Sections follow the source files: Table.cpp, TableAhead.cpp, TableMove.cpp, TableLock.cpp,
// TableWrite.cpp, TableGroup.cpp, TableFields.cpp. Words of the contract are in engine.h.
#pragma once

#include "db/engine/engine.h"
#include "db/engine/TableFiles.h"

#include <chrono>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace norvane::engine
{

class Table
{
public:
    Table(const SessionSettings &settings, std::shared_ptr<TableFiles> files);
    ~Table();
    Table(const Table &) = delete;
    Table &operator=(const Table &) = delete;

    TableFiles &files() { return *m_files; }
    const RowLayout &layout() const { return m_files->layout(); }
    // Sole use from now on. Locked when another session has the table open.
    Status enterExclusive();
    // Stores a pending change and gives everything back; the table is of no use afterwards.
    Status close();
    // Memory ran out in the middle of an operation: nothing of what it was at is relied on.
    void giveUp();

    // ---- the current row (Table.cpp)
    std::uint32_t recNo() const { return m_recNo; }
    bool onRow() const { return m_recNo != 0 || m_appending; }
    bool deleted() const { return m_row[0] == kDeletedRow; }
    ByteView row() const { return m_row; }
    Result<std::uint32_t> countRows();

    // ---- moves (TableMove.cpp); r4success, r4after, r4eof or r4noRow
    void selectTag(int tag) { m_tag = tag; } // -1: record order
    Result<Code> top();
    Result<Code> bottom();
    Result<Code> skip(std::int32_t count);
    Result<Code> go(std::uint32_t record);
    Result<Code> seek(std::string_view text);
    Result<Code> seek(double number);
    Result<Code> seekNext(std::string_view text);
    Result<Code> seekNext(double number);

    // ---- locks (TableLock.cpp)
    Status lock(std::uint32_t record); // 0: append lock
    Status unlock();                   // stores first; locks go also when that fails

    // ---- writes (TableWrite.cpp)
    Status flush();
    Status deleteRow();
    Status startAppend();
    Status blank();
    Status append();
    Status reindex();
    // Forgets what was assigned and not stored.
    void discard();

    // ---- many rows as one save (TableGroup.cpp)
    // What is stored or appended from here on waits in memory, the locks of its rows are kept.
    // A row that waits cannot be changed again.
    void beginGroup();
    // Stores all that waits, or nothing of it; in either case the locks go.
    Status endGroup();
    Status dropGroup();

    Status passLostMemos(); // see TableFiles

    // ---- fields (TableFields.cpp); `field` is a position in the layout
    ByteView fieldBytes(int field) const;
    double number(int field) const;
    std::int32_t integer(int field) const;
    Status assignNumber(int field, double value);
    Status assignInteger(int field, std::int32_t value);
    Status assignText(int field, std::string_view text);
    Result<const std::string *> memo(int field); // valid until the next move
    Status assignMemo(int field, std::string_view text);

private:
    struct Memo {
        bool known = false;
        bool changed = false;
        std::string text;
    };
    struct KeyChange {
        int tag;
        std::string before; // empty: was not in the tag
        std::string after;  // empty: is not in the tag
    };
    struct Waiting {
        std::uint32_t record; // 0: a new row
        std::vector<Byte> row;
        std::vector<std::pair<int, std::string>> texts; // changed ones, by field

        bool isNew() const { return record == 0; }
    };
    enum class Direction { Forward, Backward };

    // Table.cpp
    Status storeForSure();
    void leaveRow(); // onto no row, the buffer blank
    Status loadRow(std::uint32_t record);
    Status reloadRow(); // keeps the place in the order
    void rowLoaded(std::uint32_t record);
    bool holdsLock(std::uint32_t record) const;

    // TableAhead.cpp
    struct RowSpan {
        std::uint32_t first;
        std::uint32_t rows;
        std::uint32_t wanted; // of them
    };
    std::uint32_t rowsAhead() const; // at the most
    Status readAhead(std::uint32_t first, std::uint32_t rows);
    bool isReadAhead(std::uint32_t record) const;
    bool lockedHere(std::uint32_t record) const;
    void takeFromBlock(std::uint32_t record);
    Status loadRowInPass(std::uint32_t record);
    Status loadRowAhead(Direction direction);
    RowSpan spanAhead(Direction direction) const;

    // TableMove.cpp
    Status settleBeforeMove();
    int orderTag() const;
    int seekTag() const;
    Result<Code> topOf(int tag, Direction direction);
    Result<Code> seekKey(int tag, const std::string &key);
    Result<Code> seekKeyNext(int tag, const std::string &key);
    template <class F>
    Result<Code> inIndex(F ask);
    enum class Reading { OneRow, Ahead };
    Result<Code> settle(int tag, Direction direction, Reading reading, bool &passedOver);
    Result<bool> rowBelongs(int tag, const IndexEntry &entry);
    Result<bool> nextBelongs(int tag, Direction direction, Reading reading);
    Result<bool> isInFile(std::uint32_t record);
    Result<bool> hasKey(int tag, const IndexEntry &entry) const;
    enum class Fit { Fits, Gone, Wrong };
    Result<Fit> lookAgain(int tag, const IndexEntry &entry);
    bool othersChange(std::uint32_t record);
    Result<bool> placeInTag(int tag);
    Result<Code> stepInTag(int tag, Direction direction);
    Result<Code> stepFrom(int tag, const std::string &key, std::uint32_t record,
                          Direction direction, Reading reading);
    Result<Code> stepInRecordOrder(Direction direction);
    Status loadBatch(int tag, const std::string &key, std::uint32_t record, Direction direction,
                     bool soughtOnly = false);
    bool batchIsFresh(int tag) const;

    // TableLock.cpp
    Status unlockAll();
    Status unlockOne(std::uint32_t record);

    // TableWrite.cpp
    Status beginChange();
    void blankRow();
    Status store();
    Status storeOnce();
    Status placeMemos();
    Result<std::vector<KeyChange>> keyChanges(bool newRow) const;
    Status changeKeys(const std::vector<KeyChange> &changes, std::uint32_t record);
    Status changeKey(int tag, const std::string &from, const std::string &to, std::uint32_t record);
    Status lockForAppend(std::uint32_t &record);
    Status unlockAfterAppend();
    Status appendOnce(bool &moved);
    bool memosChanged() const;
    Status storeLocked(std::vector<KeyChange> &changes);
    Status appendLocked(std::uint32_t record);
    void takeBackKeys(const std::vector<KeyChange> &changes, std::uint32_t record);
    void rowStored(std::uint32_t record);

    // TableGroup.cpp
    bool waits(std::uint32_t record) const;
    void addToGroup();
    Status storeGroup(const std::vector<Waiting> &rows);
    Status storeGroupLocked(const std::vector<Waiting> &rows);
    Result<std::vector<std::uint32_t>> placeTexts(const std::vector<Waiting> &rows);

    // TableFields.cpp
    Status putField(int field, std::string_view text);
    void putMemoBlock(int field, std::uint32_t block);
    void blankField(const FieldDef &field);
    void forgetMemos();

    const SessionSettings &m_settings;
    std::shared_ptr<TableFiles> m_files;

    std::vector<Byte> m_row;    // with pending changes
    std::vector<Byte> m_stored; // as it lies in the file, while m_changed
    std::uint32_t m_recNo = 0;  // 0: on no row
    bool m_appending = false;   // the buffer is a row to come
    bool m_changed = false;
    bool m_behindLast = false; // on no row because a move ran past the end
    bool m_loadedLocked = false;
    bool m_exclusive = false;
    bool m_judges = true; // an entry that does not fit its row makes the index suspect
    bool m_grouping = false;
    std::uint32_t m_rowStamp = 0;
    std::vector<Memo> m_memos; // one for each field, used for M fields

    // the place in an order: (key, record) in m_placeTag
    int m_tag = -1;
    int m_placeTag = -1;
    std::string m_placeKey;

    // entries of one leaf around the place
    std::vector<IndexEntry> m_batch;
    std::size_t m_at = 0;
    int m_batchTag = -1;
    std::uint32_t m_batchStamp = 0;
    std::chrono::steady_clock::time_point m_batchTime;

    // rows read ahead: in record order, or those that the next entries of the batch lead to
    std::vector<Byte> m_block;
    std::uint32_t m_blockFirst = 0;
    std::uint32_t m_blockRows = 0;
    std::uint32_t m_blockStamp = 0;
    std::chrono::steady_clock::time_point m_blockTime;
    bool m_inPass = false;        // the current row is from there
    MemoFile::Ahead m_memosAhead; // texts of those rows, read after them

    std::vector<std::uint32_t> m_locks; // records, 0 for the append lock
    std::vector<Waiting> m_group;       // while m_grouping
};

} // namespace norvane::engine
