// One open handle on a table: a row buffer, a place in an order, locks and a pending change.
//
// Sections follow the source files: Table.cpp, TableMove.cpp, TableLock.cpp, TableWrite.cpp,
// TableFields.cpp. Words of the contract are in engine.h.
#pragma once

#include "db/engine/engine.h"
#include "db/engine/TableFiles.h"

#include <chrono>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace norvane::engine
{

class Table
{
public:
    // `exclusive`: the files were entered exclusively for this handle.
    Table(const SessionSettings &settings, std::shared_ptr<TableFiles> files, bool exclusive);
    ~Table();
    Table(const Table &) = delete;
    Table &operator=(const Table &) = delete;

    TableFiles &files() { return *m_files; }
    const RowLayout &layout() const { return m_files->layout(); }
    // Stores a pending change and gives everything back; the table is of no use afterwards.
    Status close();

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
    enum class Direction { Forward, Backward };

    // Table.cpp
    void leaveRow(); // onto no row, the buffer blank
    Status loadRow(std::uint32_t record);
    Status reloadRow();                         // keeps the place in the order
    Status loadRowInPass(std::uint32_t record); // reads ahead
    void rowLoaded(std::uint32_t record);
    bool holdsLock(std::uint32_t record) const;

    // TableMove.cpp
    Status settleBeforeMove();
    int orderTag() const;
    int seekTag() const;
    Result<Code> topOf(int tag, Direction direction);
    Result<Code> seekKey(int tag, const std::string &key);
    Result<Code> seekKeyNext(int tag, const std::string &key);
    Result<Code> settle(int tag, Direction direction, bool &passedOver);
    Result<bool> rowBelongs(int tag, const IndexEntry &entry);
    Result<bool> placeInTag(int tag);
    Result<Code> stepInTag(int tag, Direction direction);
    Result<Code> stepInRecordOrder(Direction direction);
    Status loadBatch(int tag, const std::string &key, std::uint32_t record, Direction direction,
                     std::size_t most = SIZE_MAX);
    bool batchIsFresh(int tag) const;

    // TableLock.cpp
    Status unlockAll();
    Status unlockOne(std::uint32_t record);

    // TableWrite.cpp
    Status beginChange();
    void blankRow();
    Status store();
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

    // TableFields.cpp
    Status putField(int field, std::string_view text);
    Result<std::uint32_t> memoBlock(int field) const;
    void putMemoBlock(int field, std::uint32_t block);
    void blankField(const FieldDef &field);
    void forgetMemos();

    const SessionSettings &m_settings;
    std::shared_ptr<TableFiles> m_files;
    bool m_exclusive;

    std::vector<Byte> m_row;    // with pending changes
    std::vector<Byte> m_stored; // as it lies in the file
    std::uint32_t m_recNo = 0;  // 0: on no row
    bool m_appending = false;   // the buffer is a row to come
    bool m_changed = false;
    bool m_behindLast = false; // on no row because a move ran past the end
    bool m_loadedLocked = false;
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

    // rows read ahead in record order
    std::vector<Byte> m_block;
    std::uint32_t m_blockFirst = 0;
    std::uint32_t m_blockRows = 0;
    std::uint32_t m_blockStamp = 0;
    std::chrono::steady_clock::time_point m_blockTime;

    std::vector<std::uint32_t> m_locks; // records, 0 for the append lock
};

} // namespace norvane::engine
