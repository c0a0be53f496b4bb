#include "long/SoakWorker.h"

#include "engine/Churn.h"
#include "engine/TableFixture.h"

#include <chrono>
#include <iostream>
#include <random>

using namespace norvane::engine;

namespace enginetest
{

namespace
{

constexpr const char *kNone = "-";

class Worker
{
public:
    Worker(std::string path, int first, int seed, const std::string &durability)
        : m_path(std::move(path)),
          m_counter(m_path.substr(0, m_path.rfind('/')) + "/counter.dbf"),
          m_first(first),
          m_random(static_cast<std::uint32_t>(seed))
    {
        code4durability(m_session, durability);
    }

    std::string step()
    {
        const auto begun = std::chrono::steady_clock::now();
        if (m_table == 0 && (m_table = d4open(m_session, m_path)) == 0)
            return failed("not opened");
        const int choice = number(1000);
        const std::string problem = choice == 0    ? walk()
                                    : choice <= 50 ? takeNumber()
                                                   : work(m_first + number(kSoakRows));
        if (number(10) != 0) // opened and closed around each change, now and then kept open
            closeTable();
        const auto took = std::chrono::duration_cast<std::chrono::milliseconds>(
            std::chrono::steady_clock::now() - begun);
        if (took.count() >= kSoakTold)
            std::cout << "~ " << took.count() << '\n' << std::flush;
        return problem;
    }

private:
    int number(int below) { return static_cast<int>(m_random() % static_cast<unsigned>(below)); }
    std::string failed(const char *what)
    {
        return std::string(what) + ": " + lastError(m_session).detail;
    }
    void closeTable()
    {
        d4close(m_table);
        m_table = 0;
    }

    std::string work(int id)
    {
        const bool found = findPerson(m_table, id) == r4success;
        std::cout << "= " << id << ' ' << (found ? shownPerson(m_table) : kNone) << '\n';
        const int choice = number(50);
        if (choice < 10)
            return {};
        if (found && d4lock(m_table, d4recNo(m_table)) != r4success)
            return failed("not locked");
        if (!found)
            d4appendStartVB(m_table, 0), d4blank(m_table);
        if (found && choice == 10)
            d4delete(m_table);
        else
            fill(id, !found || choice < 20);
        std::cout << "? " << id << ' ' << (d4deleted(m_table) ? kNone : shownPerson(m_table))
                  << '\n'
                  << std::flush;
        if ((found ? d4flush(m_table) : d4append(m_table)) != r4success ||
            d4unlock(m_table) != r4success)
            return failed("not saved");
        std::cout << "! " << id << '\n' << std::flush;
        return {};
    }

    void fill(int id, bool anew)
    {
        if (anew) {
            const std::string name = "Name " + std::to_string(number(1000000));
            assign(m_table, "rowid", id);
            assign(m_table, "name", name);
            assignMemo(m_table, "notes", std::string(static_cast<std::size_t>(number(90)), 'n'));
        }
        assign(m_table, "city", "City " + std::to_string(number(1000)));
        assign(m_table, "active", number(2) == 0 ? "T" : "F");
    }

    std::string takeNumber()
    {
        int taken = 0;
        std::string problem = takeId(m_session, m_counter, taken);
        if (problem.empty())
            std::cout << "# " << taken << '\n' << std::flush;
        return problem;
    }

    // From somewhere a while along the names, which must come in order.
    std::string walk()
    {
        selectTag(m_table, "name");
        std::string last;
        d4seek(m_table, "NAME " + std::to_string(number(1000000)));
        for (int left = 300; left > 0 && d4recNo(m_table) != 0; --left) {
            const std::string name = text(m_table, "name");
            if (name < last)
                return name + " comes behind " + last;
            last = name;
            if (d4skip(m_table, 1) != r4success)
                break;
        }
        return {};
    }

    TestSession m_session{400, 10};
    std::string m_path;
    std::string m_counter;
    int m_first;
    std::mt19937 m_random;
    Handle m_table = 0;
};

} // namespace

std::string shownPerson(Handle table)
{
    return text(table, "name") + '/' + text(table, "city") + '/' +
           std::to_string(memo(table, "notes").size());
}

std::string soakWork(const std::string &path, int first, int seed, const std::string &durability)
{
    Worker worker(path, first, seed, durability);
    while (std::cout) {
        if (std::string problem = worker.step(); !problem.empty())
            return problem;
    }
    return {};
}

} // namespace enginetest
