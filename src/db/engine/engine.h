// The engine's face: sessions, tables, rows, fields, tags and locks as plain functions over
// integer handles. Handles are above 0; 0 means none. Results are 16-bit codes: 0 success (found,
// positioned), r4locked when another session holds the record; any other value is a failure or
// "no row", and lastError() tells more. All text is bytes of code page 1252, paths are bytes as
// the file system has them. One thread. A handle that is not (or no longer) one gives a failure.
// Nothing is thrown: a call that gets no memory fails with ErrorKind::NoMemory, and what it had
// begun is given up or finished under the next lock.
#pragma once

#include "db/engine/RowLayout.h"
#include "db/engine/Status.h"

#include <chrono>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace norvane::engine
{

using Handle = std::int32_t;
using Code = std::int16_t;

inline constexpr Code r4success = 0;
inline constexpr Code r4found = 1;    // found a row behind the sought key (seek), not the key
inline constexpr Code r4after = 2;    // sought key not there, positioned behind it
inline constexpr Code r4eof = 3;      // past the last row
inline constexpr Code r4noRow = 4;    // not positioned on a row
inline constexpr Code d4locked = 50;  // locked by another session
inline constexpr Code r4failure = -1; // see lastError()

class FileSystem;

// ---- sessions
// A session over the given files (the system's own when null; not owned). 0 when it cannot.
Handle d4init_v(FileSystem *files = nullptr);
// Closes what the session holds; 0 on success.
Code d4initUndo(Handle session);
void code4accessMode(Handle session, int mode);       // 0 shared, 1 exclusive
void code4readOnly(Handle session, int flag);         // 1: tables open for reading only
void code4readLock(Handle session, int flag);         // kept, reading never locks
void code4lockAttempts(Handle session, int attempts); // -1 without end
void code4lockEnforce(Handle session, int flag);      // 1: writing needs the row's lock
void code4lockDelay(Handle session, int hundredths);  // between attempts
void code4errTagName(Handle session, int flag);       // 1 reports unknown tag names (default)
// What survives once a save was reported as done: "full" (default) a killed process and a power
// cut, "process" a killed process; anything else is as full.
void code4durability(Handle session, std::string_view setting);
Code code4errorCode(Handle session, int value); // sets, gives the one before
// What failed last in the session; kind None when nothing did.
const Error &lastError(Handle session);
// Called for each engine failure that is not an expected answer (a row locked elsewhere, a table
// that d4open does not find or another session has alone); empty switches it off.
void code4errorHandler(Handle session, std::function<void(const Error &)> handler);
// Called between polls while waiting for a lock, with the time waited so far.
void code4waitHandler(Handle session, std::function<void(std::chrono::milliseconds)> handler);

// ---- tables
Handle d4open(Handle session, std::string_view path); // with its production index and memo file
Code d4close(Handle table);                           // stores a pending change, drops its locks
Handle d4field(Handle table, std::string_view name);
Handle d4fieldAt(Handle table, int position); // 1 to d4numFields
int d4numFields(Handle table);
Handle d4tag(Handle table, std::string_view name);
std::vector<std::string> d4tagNames(Handle table);
void d4tagSelect(Handle table, Handle tag); // 0: record order
std::uint32_t d4recCountDo(Handle table);   // rows in the file, deleted ones included
std::uint32_t d4recNo(Handle table);        // 0 when not on a row

// ---- moves; the selected tag decides, and without a selection the file's first tag for seeks
// and record order for moves
Code d4top(Handle table);
Code d4bottom(Handle table);
Code d4skip(Handle table, std::int32_t count);
Code d4go(Handle table, std::uint32_t record);
Code d4seek(Handle table, std::string_view key);
Code d4seekDouble(Handle table, double key);
Code d4seekNext(Handle table, std::string_view key);
Code d4seekNextDouble(Handle table, double key);

// ---- locks and writes
// Reads the current row afresh once it is locked. Record 0 is the append lock: while it is held
// no other session adds a row, and no row lock may be waited for.
Code d4lock(Handle table, std::uint32_t record);
// Stores a pending change first; the locks go in any case, within a group at its end.
Code d4unlock(Handle table);
Code d4flush(Handle table);   // stores a pending change
void d4discard(Handle table); // forgets a pending change or a row begun
Code d4delete(Handle table);
bool d4deleted(Handle table);
// Begins a new row: a copy of the current one, its memos blank. Nothing is stored before d4append;
// a move forgets it.
Code d4appendStartVB(Handle table, int useMemoEntries);
Code d4blank(Handle table);
Code d4append(Handle table); // the new row is current and stays locked until d4unlock
// Rows stored, deleted or appended from here on wait in memory. d4groupEnd stores all of them as
// one save, or none; d4groupDrop and d4close forget them. Until then every reader finds the rows as
// they were, locks stay, changed rows cannot be changed again, and after each of them, appended or
// not, the table is on no row. Opened exclusively nothing waits.
Code d4groupBegin(Handle table);
Code d4groupEnd(Handle table);
Code d4groupDrop(Handle table);
Code d4reindex(Handle table); // REQUIRES: opened exclusively
// An empty memo file was put in the place of a lost one: no text to come goes where rows still
// lead to a lost one, not even behind the next 64 MB. Others may have the table open.
Code d4passLostMemos(Handle table);

// ---- fields of the current row
std::int32_t f4long(Handle field);
double f4double(Handle field);
std::uint32_t f4len_v(Handle field);
const char *f4ptr(Handle field); // bytes in the row buffer, valid until the next move
char f4type(Handle field);
int f4decimals(Handle field);
const char *f4name(Handle field);
// Assigning to a row that is not locked (or, without lock enforcement, cannot be), or a value the
// field cannot hold, leaves the field as it was and is reported.
void f4assignLong(Handle field, std::int32_t value);
void f4assignDouble(Handle field, double value);
void f4assignNVB(Handle field, std::string_view text, std::uint32_t length);
std::uint32_t f4memoLenVB(Handle field); // bytes
const char *f4memoPtr(Handle field);     // null when it cannot be read
Code f4memoAssignN(Handle field, std::string_view text, std::uint32_t length);

// ---- small helpers
// An engine date (YYYYMMDD) by picture: "MM", "DD", "YY", "CCYY" or joined ones.
std::string date4format(std::string_view date, std::string_view picture);

// ---- check and repair (docs/crash-safety.md, "Self-check")
// The tags that tables of this base name ("people", any letter case) have to have. d4open builds
// those that are missing or different anew from the rows; further tags of a file are kept.
void d4expectTags(Handle session, std::string_view baseName, std::vector<TagDef> tags);
// What is wrong with an open table and could not be put right; kind None when nothing is. Until
// then the table is open for reading only.
const Error &d4damage(Handle table);
// Findings of a full check of table, index and memo, one line each; empty when sound.
std::vector<std::string> d4check(Handle table);
// One thing that d4repair found: put right, or left as it is.
struct RepairLine {
    std::string file; // path
    std::string text; // technical sentence in English
    bool mended = true;
};
// Puts right what the files themselves prove: an unfinished save, the row count, the tags. Needs
// the table alone (d4locked otherwise). r4success when the table is sound afterwards; with
// r4failure the lines (or lastError(), when it cannot be opened) tell what is left.
Code d4repair(Handle session, std::string_view path, std::vector<RepairLine> &report);

} // namespace norvane::engine
