// What is done with every table an input gives: read, sought, checked, changed.
#pragma once

#include "db/engine/engine.h"
#include "Samples.h"

namespace norvane::fuzz
{

// A session on the files that waits for no lock; closed at the end.
class FuzzSession
{
public:
    explicit FuzzSession(SmallDisk &disk);
    ~FuzzSession() { d4initUndo(m_session); }
    FuzzSession(const FuzzSession &) = delete;
    FuzzSession &operator=(const FuzzSession &) = delete;
    Handle handle() const { return m_session; }

private:
    Handle m_session;
};

// Ends the run with a message when something that must hold does not.
void require(bool holds, const char *what);
// The same when the full check finds something; its findings are printed first.
void requireSound(Handle table, const char *what);

// Rows in record order, every field in every form; then some from the end back.
void readRows(Handle table);
// Every tag: from both ends, and seeks for what rows hold and for what none does.
void walkTags(Handle table);
// Appends a row, changes one and deletes one. What was found sound must be so afterwards.
void changeRows(Handle table);

} // namespace norvane::fuzz
