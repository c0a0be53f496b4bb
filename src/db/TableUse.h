// How clsDB's procedures hold tables, locks and session settings: each of these gives back on
// every way out what it took.
#pragma once

#include "db/clsDB.h"

#include <string>
#include <string_view>

// A table opened for one procedure, or the caller's own when its handle is above 0.
class TableUse
{
public:
    TableUse(clsDB &db, const QString &path, clsDB::Handle given = 0);
    ~TableUse();
    TableUse(const TableUse &) = delete;
    TableUse &operator=(const TableUse &) = delete;

    explicit operator bool() const { return m_table > 0; }
    clsDB::Handle handle() const { return m_table; }

    clsDB::Handle field(const QString &name) const;
    // Makes the tag the order of moves and seeks. Without such a tag: false, moves go in record
    // order and seeks find nothing. Before any select, seeks use the table's first tag.
    bool select(const QString &tag);
    bool seek(double key) { return m_seekable && norvane::engine::d4seekDouble(m_table, key) == 0; }
    // The engine's answer, which tells a row that is not there from one that cannot be looked for.
    norvane::engine::Code seekCode(double key)
    {
        return m_seekable ? norvane::engine::d4seekDouble(m_table, key) : norvane::engine::r4noRow;
    }
    bool seekNext(double key) { return norvane::engine::d4seekNextDouble(m_table, key) == 0; }
    // Seeks the whole text, not just a beginning; `fieldName` is the field the tag is made of.
    bool seekText(const QString &text, const QString &fieldName);
    bool seekNextText(const QString &text, const QString &fieldName);
    bool top() { return norvane::engine::d4top(m_table) == 0; }
    bool next() { return norvane::engine::d4skip(m_table, 1) == 0; }

    qint32 number(const QString &fieldName) const;
    QString text(const QString &fieldName) const; // trimmed

private:
    std::string wholeKey(const QString &text, const QString &fieldName) const;

    clsDB &m_db;
    clsDB::Handle m_table;
    bool m_opened;
    bool m_seekable = true;
};

// So many attempts for a lock while it lives, without end again afterwards.
class LockAttempts
{
public:
    explicit LockAttempts(clsDB::Handle session, int attempts = 10);
    ~LockAttempts();
    LockAttempts(const LockAttempts &) = delete;
    LockAttempts &operator=(const LockAttempts &) = delete;

private:
    clsDB::Handle m_session;
};

// The lock of the table's current row (or of record 0, the append lock).
class RowLock
{
public:
    explicit RowLock(clsDB::Handle table);
    RowLock(clsDB::Handle table, std::uint32_t record);
    ~RowLock();
    RowLock(const RowLock &) = delete;
    RowLock &operator=(const RowLock &) = delete;

    explicit operator bool() const { return m_code == norvane::engine::r4success; }
    bool heldElsewhere() const { return m_code == norvane::engine::d4locked; }

private:
    clsDB::Handle m_table;
    norvane::engine::Code m_code;
};

// While it lives rows stored through the table wait; store() makes one save of them, which costs
// one sync instead of one a row. What waits at its end is forgotten.
class SaveGroup
{
public:
    explicit SaveGroup(clsDB::Handle table);
    ~SaveGroup();
    SaveGroup(const SaveGroup &) = delete;
    SaveGroup &operator=(const SaveGroup &) = delete;

    // Stores what waits: all of it or, when this answers false, nothing. The group goes on.
    bool store();

private:
    clsDB::Handle m_table;
};

// Writes the current row's changes through to the files, or the row begun; when that fails nothing
// of it is kept. The new row's locks are given back.
bool storeChange(clsDB::Handle table);
bool storeNewRow(clsDB::Handle table);

// Tells the session which tags our tables have, so that a missing or foreign one is built anew.
void expectOurTags(clsDB::Handle session);

// A name as the engine takes it.
std::string engineText(const QString &text);
