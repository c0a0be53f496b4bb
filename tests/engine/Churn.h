// Work that several stations do at once in the tests and the stress program.
#pragma once

#include "db/engine/engine.h"

#include <string>

namespace enginetest
{

// Takes one number from the counter row "people.dbf", opening and closing the table as the program
// does. Empty, or what went wrong.
std::string takeId(norvane::engine::Handle session, const std::string &path, int &id);
// Takes numbers from the counter row "people.dbf", the same way. "first last", or all of them, or
// what went wrong.
std::string takeIds(norvane::engine::Handle session, const std::string &path, int count,
                    bool all = false);

// Random inserts, updates (keys and memos too) and deletes of people, numbers from `seed` * 1e6
// on, each checked at once: what was stored must be found again. "ok", or what went wrong.
std::string churn(norvane::engine::Handle session, const std::string &path, int seed, int count);

// Saves people from number `first` on, for ever, every third a second time with another name, and
// tells each save on standard output once it is reported as done. Gives what went wrong.
std::string saveAndTell(norvane::engine::Handle session, const std::string &path, int first);

// Names of rows that stay, and of rows that come in between them.
std::string fixedName(int number);
// Adds `count` people between the fixed ones, which splits pages, and deletes those of the call
// before. "ok", or what went wrong.
std::string pushBetween(norvane::engine::Handle table, int count, int seed);
// Walks along the names: the fixed people 1 to `count` must come, each once, in order.
std::string watchFixed(norvane::engine::Handle table, int count);

} // namespace enginetest
