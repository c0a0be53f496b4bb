// What the rows of the soak must hold, by what the stations told. A save that was begun and not
// reported as done may be there or not.
#pragma once

#include <map>
#include <set>
#include <string>

namespace enginetest
{

class SoakBook
{
public:
    // A line of soakWork(). False when it contradicts what was told before, or complains.
    bool read(const std::string &line);
    // Rows that the table does not hold as they were told last; each is named on standard output.
    int lost(const std::string &path) const;

    long saves() const { return m_saves; }
    long lookUps() const { return m_lookUps; }
    const std::set<int> &numbers() const { return m_numbers; }
    // The longest of all steps but so many in a hundred, in milliseconds; 0: less than kSoakTold.
    int longest(int butPercent) const;

private:
    struct Row {
        std::string known = "-";
        std::string begun; // empty: nothing
        bool holds(const std::string &value) const;
    };

    std::map<int, Row> m_rows;
    long m_saves = 0;
    long m_lookUps = 0;
    std::set<int> m_numbers;     // taken from the counter
    std::map<int, long> m_steps; // those that took so many milliseconds, when it was told
};

} // namespace enginetest
