#include "long/SoakBook.h"

#include "engine/TableFixture.h"
#include "long/SoakWorker.h"

#include <iostream>
#include <sstream>

using namespace norvane::engine;

namespace enginetest
{

bool SoakBook::Row::holds(const std::string &value) const
{
    return value == known || (!begun.empty() && value == begun);
}

bool SoakBook::read(const std::string &line)
{
    std::istringstream words(line);
    std::string mark;
    std::string value;
    int id = 0;
    words >> mark >> id >> std::ws;
    std::getline(words, value);
    if (mark == "~") {
        ++m_steps[id];
        return true;
    }
    if (mark == "#") {
        const bool first = m_numbers.insert(id).second;
        if (!first)
            std::cout << "number " << id << " was given twice\n";
        return first;
    }
    Row &row = m_rows[id];
    if (mark == "?") {
        row.begun = value;
        return true;
    }
    if (mark == "!" && !row.begun.empty()) {
        ++m_saves;
        row = {row.begun, {}};
        return true;
    }
    if (mark == "=" && row.holds(value)) {
        ++m_lookUps;
        row = {value, {}};
        return true;
    }
    std::cout << "a station: " << line << " (told last: " << row.known << ")\n";
    return false;
}

int SoakBook::longest(int butPercent) const
{
    long left = (m_lookUps + static_cast<long>(m_numbers.size())) * butPercent / 100;
    for (auto step = m_steps.rbegin(); step != m_steps.rend(); ++step) {
        if ((left -= step->second) < 0)
            return step->first;
    }
    return 0;
}

int SoakBook::lost(const std::string &path) const
{
    const TestSession session(100, 10);
    const Handle table = d4open(session, path);
    int count = 0;
    for (const auto &[id, row] : m_rows) {
        const std::string now = findPerson(table, id) == r4success ? shownPerson(table) : "-";
        if (row.holds(now))
            continue;
        std::cout << "row " << id << " was saved as " << row.known << " and is " << now << '\n';
        ++count;
    }
    d4close(table);
    return count;
}

} // namespace enginetest
