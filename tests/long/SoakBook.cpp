#include "long/SoakBook.h"

#include "engine/TableFixture.h"
#include "long/SoakWorker.h"

#include <algorithm>
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
        m_slowest = std::max(m_slowest, id);
        return true;
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
