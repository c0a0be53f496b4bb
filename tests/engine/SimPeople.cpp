#include "engine/SimPeople.h"

#include "db/engine/TableCreate.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace enginetest
{

namespace
{

bool fill(Handle table, const Person &person)
{
    assign(table, "name", person.name);
    assign(table, "city", person.city);
    assignMemo(table, "notes", person.notes);
    assignMemo(table, "detail", person.detail);
    return text(table, "name") == person.name; // assigning needs the row, which may be lost
}

bool performOn(Handle table, const Save &save)
{
    if (save.kind == Save::Kind::Group) {
        const auto perform = [table](const Save &one) { return performOn(table, one); };
        return d4groupBegin(table) == r4success &&
               std::all_of(save.group.begin(), save.group.end(), perform) &&
               d4groupEnd(table) == r4success;
    }
    if (save.kind == Save::Kind::Insert) {
        d4appendStartVB(table, 0);
        d4blank(table);
        f4assignLong(d4field(table, "rowid"), save.id);
        if (!fill(table, save.person) || d4append(table) != r4success)
            return false;
        (void)d4unlock(table);
        return true;
    }
    if (findPerson(table, save.id) != r4success || d4lock(table, d4recNo(table)) != r4success)
        return false;
    const bool filled =
        save.kind == Save::Kind::Update ? fill(table, save.person) : d4delete(table) == r4success;
    const bool done = filled && d4flush(table) == r4success;
    if (!done)
        d4discard(table);
    (void)d4unlock(table);
    return done;
}

int nextId(const People &people)
{
    return (people.empty() ? 0 : people.rbegin()->first) + 1;
}

Save randomOne(const People &people, std::mt19937 &random)
{
    const auto number = [&random](unsigned below) { return static_cast<int>(random() % below); };
    const auto note = [&] {
        const int kind = number(4);
        const int length = kind == 0 ? 0 : kind == 3 ? number(3000) : number(90);
        return std::string(static_cast<std::size_t>(length), static_cast<char>('a' + number(26)));
    };
    const int choice = number(10);
    if (people.size() < 3 || choice < 4) {
        Save save = insertOf(nextId(people), note());
        save.person.detail = note();
        return save;
    }
    auto chosen = people.begin();
    std::advance(chosen, number(static_cast<unsigned>(people.size())));
    if (choice == 9)
        return {Save::Kind::Delete, chosen->first, {}, {}};
    Save save{Save::Kind::Update, chosen->first, chosen->second, {}};
    if (number(2) == 0)
        save.person.name = "Name " + std::to_string(number(1000));
    if (number(3) == 0)
        save.person.notes = note();
    if (number(3) == 0)
        save.person.detail = note();
    save.person.city = "City " + std::to_string(number(40));
    return save;
}

// Each of another one of the people.
Save randomGroup(People people, std::mt19937 &random)
{
    Save all = groupOf({});
    int id = nextId(people);
    for (auto count = 2 + random() % 6; count > 0; --count) {
        Save one = randomOne(people, random);
        if (one.kind == Save::Kind::Insert)
            one.id = id++;
        people.erase(one.id);
        all.group.push_back(std::move(one));
    }
    return all;
}

std::string readPeople(Handle table, People &people)
{
    for (std::uint32_t record = 1; record <= d4recCountDo(table); ++record) {
        if (d4go(table, record) != r4success)
            return "row " + std::to_string(record) + " cannot be read";
        if (d4deleted(table))
            continue;
        const int id = f4long(d4field(table, "rowid"));
        const Person person{text(table, "name"), text(table, "city"), memo(table, "notes"),
                            memo(table, "detail")};
        if (!people.emplace(id, person).second)
            return "row " + std::to_string(id) + " is there twice";
    }
    return {};
}

std::string missingFrom(const People &actual, const People &expected)
{
    for (const auto &[id, person] : expected) {
        const auto found = actual.find(id);
        if (found == actual.end())
            return "row " + std::to_string(id) + " is lost";
        if (found->second != person)
            return "row " + std::to_string(id) + " is not as it was saved: " + found->second.name +
                   ", " + found->second.city + ", " + std::to_string(found->second.notes.size()) +
                   " bytes, " + std::to_string(found->second.detail.size()) + " bytes";
    }
    return {};
}

std::string difference(const People &expected, const People &actual)
{
    std::string problem = missingFrom(actual, expected);
    if (problem.empty() && expected.size() != actual.size())
        problem = "there are rows that nobody saved";
    return problem;
}

std::string differenceFromEither(const People &actual, const People &expected, const People *other,
                                 bool *found)
{
    if (found)
        *found = false;
    const std::string problem = difference(expected, actual);
    if (problem.empty() || !other || *other == expected)
        return problem;
    const std::string second = difference(*other, actual);
    if (found)
        *found = second.empty();
    return second.empty() ? "" : problem + " (and after the save: " + second + ")";
}

// Opens the table, which finishes what was left, checks and reads it; what is wrong with it.
std::string readWhole(SimDisk &disk, People &actual)
{
    const SimSession session(disk);
    d4expectTags(session, "people", peopleTable().tags);
    const Handle table = d4open(session, kPeoplePath);
    if (table == 0)
        return "cannot be opened: " + lastError(session).detail;
    // the look at the index is what finishes a save that was under way
    selectTag(table, "rowid");
    (void)d4top(table);
    d4tagSelect(table, 0);
    std::string problem;
    for (const std::string &finding : d4check(table))
        problem += finding + "; ";
    return problem.empty() ? readPeople(table, actual) : problem;
}

} // namespace

std::unique_ptr<SimDisk> diskWithPeople()
{
    auto disk = std::make_unique<SimDisk>();
    SimStation maker(*disk);
    const Status made =
        createTable(maker, peopleTable(), {kPeoplePath, "/people.cdx", "/people.fpt"});
    EXPECT_TRUE(made.ok()) << made.error().detail;
    return disk;
}

Save insertOf(int id, const std::string &notes)
{
    const std::string number = std::to_string(id * 7919 % 1000);
    return {Save::Kind::Insert, id, {"Name " + number, "City " + number, notes, {}}, {}};
}

Save groupOf(std::vector<Save> saves)
{
    return {Save::Kind::Group, 0, {}, std::move(saves)};
}

Save mixedGroup()
{
    Save all = groupOf({});
    for (int id = 9; id <= 28; ++id)
        all.group.push_back(insertOf(id, std::string(static_cast<std::size_t>(id % 3 * 40), 'g')));
    Save update = insertOf(5, "another text");
    update.kind = Save::Kind::Update;
    update.person.name = "Zz";
    all.group.push_back(update);
    for (const int id : {2, 3})
        all.group.push_back({Save::Kind::Delete, id, {}});
    return all;
}

Save randomSave(const People &people, std::mt19937 &random)
{
    return random() % 8 == 0 ? randomGroup(people, random) : randomOne(people, random);
}

void note(People &people, const Save &save)
{
    for (const Save &one : save.group)
        note(people, one);
    if (save.kind == Save::Kind::Group)
        return;
    if (save.kind == Save::Kind::Delete)
        people.erase(save.id);
    else
        people[save.id] = save.person;
}

std::size_t performSaves(Handle session, const std::string &path, const std::vector<Save> &saves)
{
    const Handle table = d4open(session, path);
    if (table == 0)
        return 0;
    std::size_t done = 0;
    if (d4tag(table, "rowid") > 0) {
        while (done < saves.size() && performOn(table, saves[done]))
            ++done;
    }
    (void)d4close(table);
    return done;
}

SimSession::SimSession(SimDisk &disk, const char *durability)
    : station(disk), m_handle(d4init_v(&station))
{
    code4lockAttempts(m_handle, 1);
    code4lockDelay(m_handle, 1);
    code4durability(m_handle, durability);
}

SimSession::~SimSession()
{
    d4initUndo(m_handle);
}

void SimSession::look()
{
    const Handle table = d4open(m_handle, kPeoplePath);
    if (table == 0)
        return;
    d4tagSelect(table, d4tag(table, "rowid"));
    (void)d4top(table);
    (void)d4close(table);
}

std::string compare(SimDisk &disk, const People &expected, const People *other, bool *found)
{
    People actual;
    const std::string problem = readWhole(disk, actual);
    return problem.empty() ? differenceFromEither(actual, expected, other, found) : problem;
}

std::string compareBetween(SimDisk &disk, const People &least, const People &most)
{
    People actual;
    std::string problem = readWhole(disk, actual);
    if (problem.empty())
        problem = missingFrom(actual, least);
    return problem.empty() ? missingFrom(most, actual) : problem;
}

std::string compareReading(SimDisk &disk, const People &expected, const People *other,
                           bool *refused)
{
    const SimSession session(disk);
    code4readOnly(session, 1);
    const Handle table = d4open(session, kPeoplePath);
    *refused = table == 0 && lastError(session).kind == ErrorKind::ReadOnly &&
               lastError(session).detail.find("where it can be written") != std::string::npos;
    if (table == 0)
        return *refused ? "" : "cannot be opened: " + lastError(session).detail;
    People actual;
    std::string problem = readPeople(table, actual);
    for (const auto &[id, person] : actual) {
        if (problem.empty() && findPerson(table, id) != r4success)
            problem = "row " + std::to_string(id) + " is not found";
    }
    std::size_t walked = 0;
    selectTag(table, "name");
    for (Code code = d4top(table); code == r4success; code = d4skip(table, 1))
        ++walked;
    if (problem.empty() && walked != actual.size())
        problem = std::to_string(walked) + " rows in the walk";
    return problem.empty() ? differenceFromEither(actual, expected, other, nullptr) : problem;
}

} // namespace enginetest
