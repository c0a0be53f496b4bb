// The issues both stores are filled with: every field filled, always the same for a number.
#pragma once

#include "db/volume/Dice.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace bench
{

inline constexpr int kFirstId = 1000; // rows have numbers from here on
inline constexpr int kProducts = 999;
inline constexpr int kUsers = 50;
inline constexpr int kStatuses = 10;

// A word that stands in a few texts of a hundred, in no particular letter case.
inline constexpr std::string_view kRareWord = "Quicksilver";
// About half of the issues were submitted up to this day.
inline constexpr std::string_view kMiddleDate = "20191231";

struct Issue {
    int rowId, custId, psId, assignedTo, priority, status, category, lastModBy;
    std::string_view shortDesc, custom1, custom2;    // live for ever
    std::string_view submitted, responded, resolved; // YYYYMMDD
    std::string_view desc, resolution;               // 150 to 450 bytes; every other one has both
    std::string_view lastModDate, lastModTime, station;
};

// 7.7 issues for each.
int customersFor(int rows);
Issue makeIssue(int rowId, int customers);
std::string companyName(int custId);
std::string userName(int user);
std::string statusName(int status);

using Numbers = volume::Dice;

} // namespace bench
