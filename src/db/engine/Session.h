// A session: settings, open tables, and the failures it met.
#pragma once

#include "db/engine/engine.h"
#include "db/engine/Table.h"

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace norvane::engine
{

class Session;

// A table handle's object with the handles that hang on it; 0 for those not yet given.
struct OpenTable {
    OpenTable(Session &owner, std::shared_ptr<TableFiles> files);

    Session &session;
    Table table;
    Handle handle = 0;
    std::vector<Handle> fields;
    std::vector<Handle> tags;
};

class Session
{
public:
    explicit Session(FileSystem &files) : m_files(files) {}

    SessionSettings settings;
    std::function<void(const Error &)> onError;
    int errorCode = 0;

    // The session owns it until closeTable.
    Result<OpenTable *> openTable(const std::string &path);
    Status closeTable(OpenTable *table);
    Status closeAll();

    // Keeps the error as the last one; the handler hears of it unless it is an expected answer.
    enum class Answer { Expected, Failure };
    void note(const Error &error, Answer answer);
    void noteNoMemory();
    const Error &lastError() const { return m_lastError; }
    void clearError() { m_lastError = {}; }

private:
    Result<std::shared_ptr<TableFiles>> filesFor(const std::string &path);

    FileSystem &m_files;
    std::vector<std::unique_ptr<OpenTable>> m_tables;
    // What is open now, so that all handles on a table share its files and locks.
    std::map<std::string, std::weak_ptr<TableFiles>> m_open;
    std::map<std::string, TableMemory> m_known; // tables opened at least once
    Error m_lastError;
};

} // namespace norvane::engine
