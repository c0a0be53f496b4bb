#include "IssueData.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <vector>

namespace bench
{

namespace
{

constexpr std::size_t kPoolBytes = 1 << 20;
constexpr std::size_t kLongestText = 450;
constexpr int kWordsBetweenRareOnes = 1200;

std::string makeWord(Numbers &numbers)
{
    constexpr std::array<const char *, 16> syllables = {"ba",  "den", "kel", "mor", "ri",  "sta",
                                                        "tur", "win", "o",   "pla", "gen", "tes",
                                                        "ar",  "li",  "fo",  "um"};
    std::string word;
    for (int parts = 1 + numbers.below(4); parts > 0; --parts)
        word += syllables[numbers.next() % syllables.size()];
    return word;
}

// Words with blanks between; texts are pieces of it.
const std::string &textPool()
{
    static const std::string pool = [] {
        Numbers numbers(1);
        std::string text;
        int words = 0;
        while (text.size() < kPoolBytes + kLongestText) {
            text +=
                ++words % kWordsBetweenRareOnes == 0 ? std::string(kRareWord) : makeWord(numbers);
            text += ' ';
        }
        return text;
    }();
    return pool;
}

std::string_view someText(Numbers &numbers, int least, int most)
{
    const std::size_t start = numbers.next() % kPoolBytes;
    const auto length = static_cast<std::size_t>(least + numbers.below(most - least + 1));
    std::string_view text = std::string_view(textPool()).substr(start, length);
    while (text.front() == ' ')
        text.remove_prefix(1);
    while (text.back() == ' ')
        text.remove_suffix(1);
    return text;
}

std::string_view someDate(Numbers &numbers)
{
    static const std::vector<std::string> days = [] {
        std::vector<std::string> made;
        for (int day = 0; day < 10 * 12 * 28; ++day) {
            std::array<char, 16> text{};
            std::snprintf(text.data(), text.size(), "%04d%02d%02d", 2015 + day / 336,
                          1 + day / 28 % 12, 1 + day % 28);
            made.emplace_back(text.data());
        }
        return made;
    }();
    return days[numbers.next() % days.size()];
}

} // namespace

int customersFor(int rows)
{
    return std::max(100, static_cast<int>(rows * 0.13));
}

Issue makeIssue(int rowId, int customers)
{
    Numbers numbers(static_cast<std::uint64_t>(rowId));
    Issue issue{};
    issue.rowId = rowId;
    issue.custId = kFirstId + numbers.below(customers);
    issue.psId = kFirstId + numbers.below(kProducts);
    issue.assignedTo = kFirstId + numbers.below(kUsers);
    issue.priority = kFirstId + numbers.below(5);
    issue.status = kFirstId + numbers.below(kStatuses);
    issue.category = kFirstId + numbers.below(30);
    issue.lastModBy = kFirstId + numbers.below(kUsers);
    issue.shortDesc = someText(numbers, 20, 70);
    issue.custom1 = someText(numbers, 8, 30);
    issue.custom2 = someText(numbers, 8, 30);
    issue.submitted = someDate(numbers);
    issue.responded = someDate(numbers);
    issue.resolved = someDate(numbers);
    issue.desc = someText(numbers, 150, static_cast<int>(kLongestText));
    if (rowId % 2 == 0)
        issue.resolution = someText(numbers, 150, static_cast<int>(kLongestText));
    issue.lastModDate = someDate(numbers);
    issue.lastModTime = "10:20:30";
    issue.station = "STATION1";
    return issue;
}

std::string companyName(int custId)
{
    Numbers numbers(static_cast<std::uint64_t>(custId) << 32);
    return makeWord(numbers) + ' ' + makeWord(numbers) + " Ltd";
}

std::string userName(int user)
{
    return "user" + std::to_string(user);
}

std::string statusName(int status)
{
    return "Status " + std::to_string(status);
}

} // namespace bench
