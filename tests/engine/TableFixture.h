// Tables in a folder of their own and sessions over them, for the tests of the engine.
#pragma once

#include "db/engine/engine.h"
#include "db/engine/RowLayout.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace enginetest
{

using norvane::engine::Code;
using norvane::engine::Error;
using norvane::engine::ErrorKind;
using norvane::engine::Handle;

// A fresh folder, gone with the object.
class TempFolder
{
public:
    TempFolder();
    ~TempFolder();
    TempFolder(const TempFolder &) = delete;
    TempFolder &operator=(const TempFolder &) = delete;
    std::string operator/(std::string_view name) const;

private:
    std::string m_path;
};

using Bytes = std::vector<std::uint8_t>;
Bytes readFile(const std::string &path);
void writeFile(const std::string &path, const Bytes &bytes);

// A table of each field type with two memos and tags of each key kind.
norvane::engine::TableDef peopleTable();
// Counters as the program keeps them: name and next number, one tag.
norvane::engine::TableDef counterTable();
// Makes table, index and memo file; fails the test when it cannot.
void makeTable(const std::string &dbfPath, const norvane::engine::TableDef &table);

// A session that keeps the errors it hears of.
class TestSession
{
public:
    explicit TestSession(int attempts = 1, int hundredths = 1);
    ~TestSession();
    TestSession(const TestSession &) = delete;
    TestSession &operator=(const TestSession &) = delete;

    operator Handle() const { return m_handle; }
    // Errors heard of since the last call.
    std::vector<Error> takeErrors();
    ErrorKind lastKind() const;

private:
    Handle m_handle;
    std::vector<Error> m_errors;
};

// Fields by name, as text.
std::string text(Handle table, std::string_view field); // trimmed on the right
std::string memo(Handle table, std::string_view field);
void assign(Handle table, std::string_view field, std::string_view value);
void assignMemo(Handle table, std::string_view field, std::string_view value);
void assign(Handle table, std::string_view field, double value);

// Appends a row of peopleTable() and lets its lock go.
Code addPerson(Handle table, int id, std::string_view name, std::string_view note = {});
// Seeks a row by number through the tag ROWID.
Code findPerson(Handle table, int id);
void selectTag(Handle table, std::string_view name);

// The full check's findings as one text; empty when the table is sound.
std::string findings(const std::string &dbfPath);

} // namespace enginetest
