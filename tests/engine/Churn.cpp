#include "engine/Churn.h"

#include "engine/TableFixture.h"

#include <iostream>
#include <map>
#include <random>

using namespace norvane::engine;

namespace enginetest
{

namespace
{

class Churner
{
public:
    Churner(Handle session, std::string path, int seed)
        : m_session(session),
          m_path(std::move(path)),
          m_random(static_cast<std::uint32_t>(seed)),
          m_nextId(seed * 1000000)
    {
    }

    std::string step()
    {
        // open and closed around each change, now and then kept open for a few
        if (m_table == 0 && (m_table = d4open(m_session, m_path)) == 0)
            return "not opened: " + lastError(m_session).detail;
        const int choice = number(10);
        std::string problem;
        if (m_names.size() < 5 || choice < 4)
            problem = insert();
        else if (choice < 8)
            problem = update();
        else
            problem = remove();
        if (number(3) > 0)
            closeTable();
        return problem;
    }

    std::string finish()
    {
        if (m_table == 0)
            m_table = d4open(m_session, m_path);
        std::string problem;
        for (const auto &[id, name] : m_names) {
            if (findPerson(m_table, id) != r4success || text(m_table, "name") != name)
                problem = "row " + std::to_string(id) + " is not as it was stored";
        }
        closeTable();
        return problem;
    }

private:
    int number(int below) { return static_cast<int>(m_random() % static_cast<unsigned>(below)); }
    std::string name() { return "Name " + std::to_string(number(100000)); }
    std::string note() { return std::string(static_cast<std::size_t>(number(300)), 'n'); }
    std::string failed(const char *what)
    {
        return std::string(what) + ": " + lastError(m_session).detail;
    }
    void closeTable()
    {
        d4close(m_table);
        m_table = 0;
    }

    std::string insert()
    {
        const int id = m_nextId++;
        const std::string stored = name();
        if (addPerson(m_table, id, stored, note()) != r4success)
            return failed("append");
        m_names[id] = stored;
        return checkFound(id, stored);
    }

    std::string lockSome(int &id)
    {
        auto chosen = m_names.begin();
        std::advance(chosen, number(static_cast<int>(m_names.size())));
        id = chosen->first;
        if (findPerson(m_table, id) != r4success)
            return "row " + std::to_string(id) + " is not found";
        return d4lock(m_table, d4recNo(m_table)) == r4success ? "" : failed("lock");
    }

    std::string update()
    {
        int id = 0;
        if (std::string problem = lockSome(id); !problem.empty())
            return problem;
        std::string stored = m_names[id];
        if (number(2) == 0) {
            stored = name();
            assign(m_table, "name", stored);
        }
        assign(m_table, "city", "City " + std::to_string(number(50)));
        assign(m_table, "active", number(2) == 0 ? "T" : "F");
        if (number(3) == 0)
            assignMemo(m_table, "detail", note());
        if (d4flush(m_table) != r4success || d4unlock(m_table) != r4success)
            return failed("update");
        m_names[id] = stored;
        return checkFound(id, stored);
    }

    std::string remove()
    {
        int id = 0;
        if (std::string problem = lockSome(id); !problem.empty())
            return problem;
        if (d4delete(m_table) != r4success || d4flush(m_table) != r4success ||
            d4unlock(m_table) != r4success)
            return failed("delete");
        m_names.erase(id);
        return findPerson(m_table, id) == r4success
                   ? "row " + std::to_string(id) + " is found after its deletion"
                   : "";
    }

    std::string checkFound(int id, const std::string &stored)
    {
        if (findPerson(m_table, id) != r4success)
            return "row " + std::to_string(id) + " is not found after its store";
        return text(m_table, "name") == stored ? ""
                                               : "row " + std::to_string(id) + " is not as stored";
    }

    Handle m_session;
    std::string m_path;
    std::mt19937 m_random;
    int m_nextId;
    Handle m_table = 0;
    std::map<int, std::string> m_names; // of the rows that this station made
};

} // namespace

std::string takeId(Handle session, const std::string &path, int &id)
{
    const Handle table = d4open(session, path);
    if (table == 0)
        return "not opened: " + lastError(session).detail;
    std::string problem;
    const Code sought = d4seek(table, "PEOPLE.DBF");
    if (sought != r4success)
        problem =
            "counter row not found: " + std::to_string(sought) + ' ' + lastError(session).detail;
    else if (d4lock(table, d4recNo(table)) != r4success)
        problem = "not locked: " + lastError(session).detail;
    else {
        const Handle field = d4field(table, "lastid");
        id = f4long(field);
        f4assignLong(field, id + 1);
        if (d4flush(table) != r4success || d4unlock(table) != r4success)
            problem = "not stored: " + lastError(session).detail;
    }
    d4close(table);
    return problem;
}

std::string takeIds(Handle session, const std::string &path, int count, bool all)
{
    std::string numbers;
    int first = 0;
    int last = 0;
    for (int i = 0; i < count; ++i) {
        const int before = last;
        if (std::string problem = takeId(session, path, last); !problem.empty())
            return problem;
        if (i == 0)
            first = last;
        else if (last <= before)
            return "number " + std::to_string(last) + " came twice";
        if (all)
            numbers += std::to_string(last) + ' ';
    }
    return all ? numbers : std::to_string(first) + ' ' + std::to_string(last);
}

std::string saveAndTell(Handle session, const std::string &path, int first)
{
    for (int id = first;; ++id) {
        const Handle table = d4open(session, path);
        if (table == 0)
            return "not opened: " + lastError(session).detail;
        std::string name = "Name " + std::to_string(id);
        if (addPerson(table, id, name, "note " + name) != r4success)
            return "not added: " + lastError(session).detail;
        std::cout << id << ' ' << name << std::endl;
        if (id % 3 == 0) {
            name = "Other " + std::to_string(id);
            if (findPerson(table, id) != r4success)
                return "row " + std::to_string(id) + " is not found after its store";
            d4lock(table, d4recNo(table));
            assign(table, "name", name);
            assignMemo(table, "notes", "note " + name);
            if (d4flush(table) != r4success)
                return "not changed: " + lastError(session).detail;
            std::cout << id << ' ' << name << std::endl;
            d4unlock(table);
        }
        d4close(table);
    }
}

std::string fixedName(int number)
{
    std::string digits = std::to_string(number);
    return "FIXED " + std::string(4 - digits.size(), '0') + digits;
}

std::string pushBetween(Handle table, int count, int seed)
{
    constexpr int kFirst = 100000;
    std::minstd_rand random(static_cast<std::uint32_t>(seed));
    for (int i = 0; i < count; ++i) {
        const std::string name = fixedName(static_cast<int>(random() % 100)) + ' ' +
                                 std::to_string(random()) + std::to_string(random());
        const int id = kFirst + seed * count + i;
        if (addPerson(table, id, name) != r4success)
            return "not added: " + std::to_string(id);
        if (findPerson(table, id - count) != r4success)
            continue; // the first call
        if (d4lock(table, d4recNo(table)) != r4success || d4delete(table) != r4success ||
            d4flush(table) != r4success || d4unlock(table) != r4success)
            return "not deleted: " + std::to_string(id - count);
    }
    return "ok";
}

std::string watchFixed(Handle table, int count)
{
    selectTag(table, "name");
    int next = 1;
    std::string last;
    Code code = d4seek(table, "FIXED");
    for (; code == r4success || code == r4after; code = d4skip(table, 1)) {
        const std::string name = text(table, "name");
        if (name < last)
            return name + " comes behind " + last;
        last = name;
        if (f4long(d4field(table, "rowid")) > count)
            continue;
        if (name != fixedName(next))
            return name + " instead of " + fixedName(next);
        ++next;
    }
    return next == count + 1 ? "ok"
                             : fixedName(next) + " does not come, code " + std::to_string(code);
}

std::string churn(Handle session, const std::string &path, int seed, int count)
{
    Churner churner(session, path, seed);
    for (int i = 0; i < count; ++i) {
        if (std::string problem = churner.step(); !problem.empty())
            return problem;
    }
    const std::string problem = churner.finish();
    return problem.empty() ? "ok" : problem;
}

} // namespace enginetest
