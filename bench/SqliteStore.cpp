#include "CustomerStore.h"

#include <sqlite3.h>

#include <array>
#include <stdexcept>

namespace bench
{

namespace
{

// One prepared statement; values are bound in order.
class Statement
{
public:
    Statement(sqlite3 *db, const char *sql)
    {
        if (sqlite3_prepare_v2(db, sql, -1, &m_statement, nullptr) != SQLITE_OK)
            throw std::runtime_error(sqlite3_errmsg(db));
    }
    ~Statement() { sqlite3_finalize(m_statement); }
    Statement(const Statement &) = delete;
    Statement &operator=(const Statement &) = delete;

    Statement &bind(int value)
    {
        sqlite3_bind_int(m_statement, ++m_bound, value);
        return *this;
    }
    Statement &bind(const std::string &value)
    {
        sqlite3_bind_text(m_statement, ++m_bound, value.data(), static_cast<int>(value.size()),
                          SQLITE_STATIC);
        return *this;
    }
    bool step()
    {
        const int code = sqlite3_step(m_statement);
        if (code != SQLITE_ROW && code != SQLITE_DONE)
            throw std::runtime_error(sqlite3_errstr(code));
        return code == SQLITE_ROW;
    }
    void run()
    {
        step();
        reset();
    }
    void reset()
    {
        sqlite3_reset(m_statement);
        m_bound = 0;
    }
    int number(int column) { return sqlite3_column_int(m_statement, column); }

private:
    sqlite3_stmt *m_statement = nullptr;
    int m_bound = 0;
};

struct Statements {
    explicit Statements(sqlite3 *database) : db(database) {}

    sqlite3 *db; // before those that need it
    Statement find{db, "SELECT * FROM customers WHERE rowid = ?"};
    Statement findName{db, "SELECT * FROM customers WHERE lastname = ? COLLATE NOCASE LIMIT 1"};
    Statement insert{db, "INSERT INTO customers VALUES (?,?,?,?,?,?,?,?,?)"};
    Statement update{db, "UPDATE customers SET custcat = ? WHERE rowid = ?"};
    Statement rename{db, "UPDATE customers SET lastname = ? WHERE rowid = ?"};
    Statement byName{db, "SELECT * FROM customers ORDER BY lastname COLLATE NOCASE"};
    Statement all{db, "SELECT * FROM customers"};
};

class SqliteStore final : public CustomerStore
{
public:
    SqliteStore(const std::string &folder, std::string synchronous)
        : m_path(folder + "/customers.sqlite"), m_synchronous(std::move(synchronous))
    {
    }
    ~SqliteStore() override
    {
        m_statements.reset();
        sqlite3_close(m_db);
    }
    SqliteStore(const SqliteStore &) = delete;
    SqliteStore &operator=(const SqliteStore &) = delete;

    void fill(int rows) override
    {
        connect();
        run("CREATE TABLE customers (rowid INTEGER PRIMARY KEY, custno TEXT, firstname TEXT,"
            " lastname TEXT, company TEXT, city TEXT, workphone TEXT, custcat INTEGER,"
            " notes TEXT)");
        for (const char *column : {"custno", "lastname", "company", "workphone"})
            run((std::string("CREATE INDEX by_") + column + " ON customers (" + column +
                 " COLLATE NOCASE)")
                    .c_str());
        m_statements = std::make_unique<Statements>(m_db);
        run("BEGIN");
        for (int i = 0; i < rows; ++i)
            append(makeCustomer(kFirstId + i));
        run("COMMIT");
        close();
    }

    void open() override
    {
        connect();
        m_statements = std::make_unique<Statements>(m_db);
    }

    void close() override
    {
        m_statements.reset();
        sqlite3_close(m_db);
        m_db = nullptr;
    }

    long find(int id) override { return firstNumber(m_statements->find.bind(id)); }
    long findLastName(const std::string &name) override
    {
        return firstNumber(m_statements->findName.bind(name));
    }

    void append(const Customer &c) override
    {
        m_statements->insert.bind(c.id)
            .bind(c.custno)
            .bind(c.firstName)
            .bind(c.lastName)
            .bind(c.company)
            .bind(c.city)
            .bind(c.phone)
            .bind(c.category)
            .bind(c.notes)
            .run();
    }

    void update(int id, int category) override
    {
        m_statements->update.bind(category).bind(id).run();
    }

    void rename(int id, const std::string &lastName) override
    {
        m_statements->rename.bind(lastName).bind(id).run();
    }

    long walkByLastName(int rows) override { return walk(m_statements->byName, rows); }
    long walkAll() override { return walk(m_statements->all, INT32_MAX); }

private:
    void connect()
    {
        if (sqlite3_open(m_path.c_str(), &m_db) != SQLITE_OK)
            throw std::runtime_error(sqlite3_errmsg(m_db));
        run(("PRAGMA synchronous = " + m_synchronous).c_str());
    }

    void run(const char *sql)
    {
        if (sqlite3_exec(m_db, sql, nullptr, nullptr, nullptr) != SQLITE_OK)
            throw std::runtime_error(sqlite3_errmsg(m_db));
    }

    static long firstNumber(Statement &statement)
    {
        if (!statement.step())
            throw std::runtime_error("row not found");
        const long number = statement.number(0);
        statement.reset();
        return number;
    }

    static long walk(Statement &statement, int rows)
    {
        long sum = 0;
        while (rows-- > 0 && statement.step())
            sum += statement.number(0);
        statement.reset();
        return sum;
    }

    std::string m_path;
    std::string m_synchronous;
    sqlite3 *m_db = nullptr;
    std::unique_ptr<Statements> m_statements;
};

} // namespace

std::unique_ptr<CustomerStore> makeSqliteStore(const std::string &folder,
                                               const std::string &synchronous)
{
    return std::make_unique<SqliteStore>(folder, synchronous);
}

} // namespace bench
