// A connection and prepared statements; failures are exceptions.
#pragma once

#include <sqlite3.h>

#include <stdexcept>
#include <string>
#include <string_view>

namespace bench
{

class Connection
{
public:
    // Rollback journal, as SQLite has it from the start.
    Connection(const std::string &path, bool durable)
    {
        if (sqlite3_open(path.c_str(), &m_db) != SQLITE_OK)
            throw std::runtime_error(sqlite3_errmsg(m_db));
        sqlite3_busy_timeout(m_db, 60000);
        run(durable ? "PRAGMA synchronous = FULL" : "PRAGMA synchronous = OFF");
    }
    ~Connection() { sqlite3_close(m_db); }
    Connection(const Connection &) = delete;
    Connection &operator=(const Connection &) = delete;

    sqlite3 *get() const { return m_db; }
    void run(const std::string &sql) const
    {
        if (sqlite3_exec(m_db, sql.c_str(), nullptr, nullptr, nullptr) != SQLITE_OK)
            throw std::runtime_error(sql + ": " + sqlite3_errmsg(m_db));
    }

private:
    sqlite3 *m_db = nullptr;
};

// Values are bound in order and must live until run() or reset().
class Statement
{
public:
    Statement(const Connection &db, const char *sql) : m_db(db)
    {
        if (sqlite3_prepare_v2(db.get(), sql, -1, &m_statement, nullptr) != SQLITE_OK)
            throw std::runtime_error(std::string(sql) + ": " + sqlite3_errmsg(db.get()));
    }
    ~Statement() { sqlite3_finalize(m_statement); }
    Statement(const Statement &) = delete;
    Statement &operator=(const Statement &) = delete;

    Statement &bind(int value)
    {
        sqlite3_bind_int(m_statement, ++m_bound, value);
        return *this;
    }
    Statement &bind(std::string_view value)
    {
        sqlite3_bind_text(m_statement, ++m_bound, value.data(), static_cast<int>(value.size()),
                          SQLITE_STATIC);
        return *this;
    }
    bool step()
    {
        const int code = sqlite3_step(m_statement);
        if (code != SQLITE_ROW && code != SQLITE_DONE)
            throw std::runtime_error(sqlite3_errmsg(m_db.get()));
        return code == SQLITE_ROW;
    }
    void reset()
    {
        sqlite3_reset(m_statement);
        m_bound = 0;
    }
    void run()
    {
        step();
        reset();
    }
    int number(int column) { return sqlite3_column_int(m_statement, column); }
    std::string_view text(int column)
    {
        const void *bytes = sqlite3_column_text(m_statement, column);
        return {static_cast<const char *>(bytes),
                static_cast<std::size_t>(sqlite3_column_bytes(m_statement, column))};
    }

private:
    const Connection &m_db;
    sqlite3_stmt *m_statement = nullptr;
    int m_bound = 0;
};

} // namespace bench
