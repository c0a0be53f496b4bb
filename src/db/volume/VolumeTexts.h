// Made-up but believable contents for a large database, always the same for a number. All persons,
// firms and addresses are invented. Texts are stored bytes.
#pragma once

#include "db/volume/Dice.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace volume
{

struct Customer {
    std::string firstName, lastName, company, address, city, postalCode, phone, email;
};
Customer makeCustomer(std::uint64_t number);

struct IssueText {
    std::string shortDesc, desc, resolution; // the last is empty for what is still open
};
IssueText makeIssueText(std::uint64_t number, std::string_view product, bool resolved);

std::string productName(int number);
std::string loginName(int number);
// A day of the years 2012 to 2026, YYYYMMDD.
std::string someDay(Dice &dice);

} // namespace volume
