#include "engine/TableFixture.h"

#include "db/engine/File.h"
#include "db/engine/TableCreate.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>

using namespace norvane::engine;

namespace enginetest
{

TempFolder::TempFolder()
{
    std::random_device random;
    std::filesystem::path path;
    do
        path = std::filesystem::temp_directory_path() / ("norvane-" + std::to_string(random()));
    while (!std::filesystem::create_directory(path));
    m_path = path.string();
}

TempFolder::~TempFolder()
{
    std::error_code ignored;
    std::filesystem::remove_all(m_path, ignored);
}

std::string TempFolder::operator/(std::string_view name) const
{
    return m_path + '/' + std::string(name);
}

Bytes readFile(const std::string &path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

void writeFile(const std::string &path, const Bytes &bytes)
{
    std::ofstream file(path, std::ios::binary | std::ios::trunc);
    file.write(reinterpret_cast<const char *>(bytes.data()),
               static_cast<std::streamsize>(bytes.size()));
}

TableDef peopleTable()
{
    TableDef table;
    table.fields = {{"ROWID", 'N', 0, 10, 0},  {"NAME", 'C', 0, 30, 0},  {"CITY", 'C', 0, 25, 0},
                    {"AMOUNT", 'N', 0, 12, 2}, {"OPENED", 'D', 0, 8, 0}, {"ACTIVE", 'L', 0, 1, 0},
                    {"NOTES", 'M', 0, 10, 0},  {"DETAIL", 'M', 0, 10, 0}};
    table.tags = {{"ROWID", "ROWID", ".NOT. DELETED()"},
                  {"NAME", "UPPER(NAME)", ".NOT. DELETED()"},
                  {"CITY", "UPPER(CITY)", ".NOT. DELETED()"},
                  {"OPENED", "OPENED", ".NOT. DELETED()"},
                  {"ACTNAME", "UPPER(NAME)", ".NOT. DELETED() .AND. ACTIVE"}};
    return table;
}

TableDef counterTable()
{
    TableDef table;
    table.fields = {{"TBLNAME", 'C', 0, 20, 0}, {"LASTID", 'N', 0, 10, 0}};
    table.tags = {{"TBLNAME", "UPPER(TBLNAME)", ".NOT. DELETED()"}};
    return table;
}

void makeTable(const std::string &dbfPath, const TableDef &table)
{
    const std::string base = dbfPath.substr(0, dbfPath.size() - 3);
    const Status made = createTable(systemFiles(), table, {dbfPath, base + "cdx", base + "fpt"});
    ASSERT_TRUE(made.ok()) << made.error().file << ": " << made.error().detail;
}

TestSession::TestSession(int attempts, int hundredths) : m_handle(d4init_v())
{
    code4lockAttempts(m_handle, attempts);
    code4durability(m_handle, "process"); // what survives a power cut is shown on SimDisk
    code4lockDelay(m_handle, hundredths);
    code4lockEnforce(m_handle, 1);
    code4errorHandler(m_handle, [this](const Error &error) { m_errors.push_back(error); });
}

TestSession::~TestSession()
{
    d4initUndo(m_handle);
}

std::vector<Error> TestSession::takeErrors()
{
    return std::exchange(m_errors, {});
}

ErrorKind TestSession::lastKind() const
{
    return lastError(m_handle).kind;
}

std::string text(Handle table, std::string_view field)
{
    const Handle handle = d4field(table, field);
    const char *bytes = f4ptr(handle);
    std::string value = bytes ? std::string(bytes, f4len_v(handle)) : std::string();
    value.erase(value.find_last_not_of(' ') + 1);
    return value;
}

std::string memo(Handle table, std::string_view field)
{
    const Handle handle = d4field(table, field);
    const std::uint32_t length = f4memoLenVB(handle);
    const char *bytes = f4memoPtr(handle);
    return bytes ? std::string(bytes, length) : "(unreadable)";
}

void assign(Handle table, std::string_view field, std::string_view value)
{
    f4assignNVB(d4field(table, field), value, static_cast<std::uint32_t>(value.size()));
}

void assignMemo(Handle table, std::string_view field, std::string_view value)
{
    f4memoAssignN(d4field(table, field), value, static_cast<std::uint32_t>(value.size()));
}

void assign(Handle table, std::string_view field, double value)
{
    f4assignDouble(d4field(table, field), value);
}

Code addPerson(Handle table, int id, std::string_view name, std::string_view note)
{
    d4appendStartVB(table, 0);
    d4blank(table);
    f4assignLong(d4field(table, "rowid"), id);
    assign(table, "name", name);
    assignMemo(table, "notes", note);
    const Code code = d4append(table);
    d4unlock(table);
    return code;
}

Code findPerson(Handle table, int id)
{
    selectTag(table, "rowid");
    return d4seekDouble(table, id);
}

void selectTag(Handle table, std::string_view name)
{
    const Handle tag = d4tag(table, name);
    ASSERT_GT(tag, 0) << name;
    d4tagSelect(table, tag);
}

std::string findings(const std::string &dbfPath)
{
    const TestSession session(100);
    const Handle table = d4open(session, dbfPath);
    if (table == 0)
        return "cannot be opened: " + lastError(session).detail;
    std::string all;
    for (const std::string &finding : d4check(table))
        all += finding + "\n";
    d4close(table);
    return all;
}

} // namespace enginetest
