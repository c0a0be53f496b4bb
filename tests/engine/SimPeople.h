// Saves of people on a simulated disk, and what the table should hold after them.
#pragma once

#include "engine/SimDisk.h"
#include "engine/TableFixture.h"

#include <map>
#include <random>
#include <string>
#include <vector>

namespace enginetest
{

struct Person {
    std::string name;
    std::string city;
    std::string notes;
    std::string detail;

    friend bool operator==(const Person &, const Person &) = default;
};
using People = std::map<int, Person>;

struct Save {
    enum class Kind { Insert, Update, Delete, Group } kind = Kind::Insert;
    int id = 0;
    Person person;             // as it is afterwards
    std::vector<Save> group{}; // of different people, stored together
};

inline const std::string kPeoplePath = "/people.dbf";

// A disk with the empty table on it.
std::unique_ptr<SimDisk> diskWithPeople();
Save insertOf(int id, const std::string &notes = {});
Save groupOf(std::vector<Save> saves);
// Twenty inserts, an update and two deletions as one, for people 1 to 8.
Save mixedGroup();
// Any save that fits the people there are.
Save randomSave(const People &people, std::mt19937 &random);
void note(People &people, const Save &save);

// Opens the table, makes the saves one after the other up to the first that fails, closes; how many
// were reported as done.
std::size_t performSaves(Handle session, const std::string &path, const std::vector<Save> &saves);

// A station at work: a session over its own view of the disk.
class SimSession
{
public:
    explicit SimSession(SimDisk &disk, const char *durability = "full");
    ~SimSession();
    SimSession(const SimSession &) = delete;
    SimSession &operator=(const SimSession &) = delete;

    operator Handle() const { return m_handle; }
    SimStation station;

    // Opens, saves, closes; true when the save was reported as done.
    bool perform(const Save &save) { return performSaves(m_handle, kPeoplePath, {save}) == 1; }
    // Opens, looks for the first row of a tag, closes.
    void look();

private:
    Handle m_handle;
};

// Opens the table in a fresh session (which finishes what was left), runs the full check, and
// compares. Empty when it holds `expected` or `other`; `found` tells which by true for `other`.
std::string compare(SimDisk &disk, const People &expected, const People *other = nullptr,
                    bool *found = nullptr);

// Empty when it holds all of `least` and nothing but `most`.
std::string compareBetween(SimDisk &disk, const People &least, const People &most);

// The same as a session that may not write sees it, by record order, by seeks and in a walk.
// `refused` when it is told to let somebody else open the table first.
std::string compareReading(SimDisk &disk, const People &expected, const People *other,
                           bool *refused);

} // namespace enginetest
