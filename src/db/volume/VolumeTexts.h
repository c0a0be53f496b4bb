// Made-up but believable contents for a large database, always the same for a number. All persons,
// firms and addresses are invented. Texts are stored bytes.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace volume
{

// Numbers that look random, the same each time for a seed.
class Dice
{
public:
    explicit Dice(std::uint64_t seed) : m_state(seed) {}
    std::uint64_t next();
    int below(int limit) { return static_cast<int>(next() % static_cast<std::uint64_t>(limit)); }
    template <class List>
    auto &oneOf(const List &list)
    {
        return list[next() % std::size(list)];
    }

private:
    std::uint64_t m_state;
};

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
