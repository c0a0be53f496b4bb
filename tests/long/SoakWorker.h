// What one station of the soak does until it is killed: looks up, adds, changes and deletes people
// of its own numbers, takes numbers from counter.dbf beside the table, and tells each on standard
// output, a line each:
//
//   = ID VALUE    looked up: see shownPerson(), or - when there is none
//   ? ID VALUE    is about to be saved
//   ! ID          was reported as saved
//   # NUMBER      was taken from the counter
//   ~ MS          a step of kSoakTold milliseconds and more
//
// Anything else is a complaint.
#pragma once

#include "db/engine/engine.h"

#include <string>

namespace enginetest
{

inline constexpr int kSoakRows = 500; // of each station, from its first number on
inline constexpr int kSoakTold = 20;

// Gives what went wrong, or nothing when nobody listens any more.
std::string soakWork(const std::string &path, int first, int seed, const std::string &durability);

// Name, city and length of the text of the current row.
std::string shownPerson(norvane::engine::Handle table);

} // namespace enginetest
