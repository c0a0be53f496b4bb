#include "Sqlite.h"
#include "Store.h"

#include <filesystem>
#include <optional>

namespace bench
{

namespace
{

constexpr const char *kSchema =
    "CREATE TABLE issues (rowid INTEGER PRIMARY KEY, custid INTEGER, psid INTEGER, shortdesc TEXT,"
    " custom1 TEXT, custom2 TEXT, assignedto INTEGER, priority INTEGER, status INTEGER,"
    " issuecat INTEGER, submitdt TEXT, responsedt TEXT, resolvedt TEXT, desc TEXT,"
    " resolution TEXT, lastmodby INTEGER, lastmoddt TEXT, lastmodtm TEXT, underedit INTEGER,"
    " edtstation TEXT);"
    "CREATE TABLE customers (rowid INTEGER PRIMARY KEY, company TEXT);"
    "CREATE TABLE users (rowid INTEGER PRIMARY KEY, login TEXT);"
    "CREATE TABLE categories (rowid INTEGER PRIMARY KEY, desc TEXT);"
    "CREATE TABLE counters (tblname TEXT PRIMARY KEY, lastid INTEGER);";
constexpr const char *kInsert =
    "INSERT INTO issues VALUES (?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?)";
constexpr const char *kLookup =
    "SELECT custid, shortdesc, status, submitdt FROM issues WHERE rowid = ?";

void insert(Statement &statement, const Issue &issue)
{
    statement.bind(issue.rowId)
        .bind(issue.custId)
        .bind(issue.psId)
        .bind(issue.shortDesc)
        .bind(issue.custom1)
        .bind(issue.custom2)
        .bind(issue.assignedTo)
        .bind(issue.priority)
        .bind(issue.status)
        .bind(issue.category)
        .bind(issue.submitted)
        .bind(issue.responded)
        .bind(issue.resolved)
        .bind(issue.desc)
        .bind(issue.resolution)
        .bind(issue.lastModBy)
        .bind(issue.lastModDate)
        .bind(issue.lastModTime)
        .bind(0)
        .bind(issue.station)
        .run();
}

int takeNumber(const Connection &db)
{
    Statement(db, "UPDATE counters SET lastid = lastid + 1 WHERE tblname = 'issues'").run();
    Statement taken(db, "SELECT lastid FROM counters WHERE tblname = 'issues'");
    taken.step();
    return taken.number(0) - 1;
}

class SqliteStore final : public Store
{
public:
    explicit SqliteStore(const std::string &folder) : m_path(folder + "/issues.sqlite") {}

    void setDurable(bool durable) override { m_durable = durable; }

    void load(int rows) override;
    void loadOthers(int customers) override;
    void reindex() override { connection().run("REINDEX"); }
    void fullCheck() override;
    std::uint64_t bytes() const override { return std::filesystem::file_size(m_path); }

    long lookupCycle(int rowId) override;
    int nextIdCycle() override;
    int insertCycle(int customers) override;
    void updateCycle(int rowId, int status) override;

    void open() override;
    void close() override;
    long lookup(int rowId) override;
    long walkStatus(int status, std::string_view upTo) override;
    long walkAssignee(int user) override;
    long walkCustomer(int custId) override;
    long containsShort(std::string_view word) override;
    long containsMemo(std::string_view word) override;
    long searchShort(std::string_view word) override;
    long searchMemos(std::string_view word) override;
    long listProduct(int product) override;
    long listPerson(int user) override;
    std::vector<Row> report(int status) override;

private:
    // Statements that are prepared once while the database is open.
    struct Prepared {
        explicit Prepared(const Connection &db) : lookup(db, kLookup), customer(db, byCustomer) {}
        static constexpr const char *byCustomer =
            "SELECT rowid, status, shortdesc, submitdt FROM issues WHERE custid = ?";
        Statement lookup;
        Statement customer;
    };

    Connection connection() const { return {m_path, m_durable}; }
    static long walk(Statement &statement);
    template <class Value>
    long hits(const char *condition, Value value) const;

    std::string m_path;
    bool m_durable = false;
    std::optional<Connection> m_db;
    std::optional<Prepared> m_prepared;
};

void SqliteStore::load(int rows)
{
    std::filesystem::remove(m_path);
    const Connection db = connection();
    db.run(kSchema);
    for (const std::string column :
         {"custid", "psid", "assignedto", "priority", "status", "issuecat", "submitdt"})
        db.run("CREATE INDEX by_" + column + " ON issues (" + column + ")");
    db.run("BEGIN");
    {
        const int customers = customersFor(rows);
        Statement statement(db, kInsert);
        for (int i = 0; i < rows; ++i)
            insert(statement, makeIssue(kFirstId + i, customers));
        Statement counter(db, "INSERT INTO counters VALUES ('issues', ?)");
        counter.bind(kFirstId + rows).run();
    }
    db.run("COMMIT");
}

void SqliteStore::loadOthers(int customers)
{
    const Connection db = connection();
    db.run("BEGIN");
    const auto fill = [&](const char *sql, int count, std::string (*name)(int)) {
        Statement statement(db, sql);
        for (int id = kFirstId; id < kFirstId + count; ++id) {
            const std::string text = name(id);
            statement.bind(id).bind(text).run();
        }
    };
    fill("INSERT INTO customers VALUES (?,?)", customers, companyName);
    fill("INSERT INTO users VALUES (?,?)", kUsers, userName);
    fill("INSERT INTO categories VALUES (?,?)", kStatuses, statusName);
    db.run("COMMIT");
}

void SqliteStore::fullCheck()
{
    const Connection db = connection();
    Statement check(db, "PRAGMA integrity_check");
    if (!check.step() || check.text(0) != "ok")
        throw std::runtime_error("SQLite finds its file damaged");
}

long SqliteStore::lookupCycle(int rowId)
{
    const Connection db = connection();
    Statement statement(db, kLookup);
    if (!statement.bind(rowId).step())
        throw std::runtime_error("row not found");
    return statement.number(0);
}

int SqliteStore::nextIdCycle()
{
    const Connection db = connection();
    db.run("BEGIN IMMEDIATE");
    const int taken = takeNumber(db);
    db.run("COMMIT");
    return taken;
}

int SqliteStore::insertCycle(int customers)
{
    const Connection db = connection();
    db.run("BEGIN IMMEDIATE");
    const int taken = takeNumber(db);
    Statement statement(db, kInsert);
    insert(statement, makeIssue(taken, customers));
    db.run("COMMIT");
    return taken;
}

void SqliteStore::updateCycle(int rowId, int status)
{
    const Connection db = connection();
    Statement statement(db, "UPDATE issues SET status = ? WHERE rowid = ?");
    statement.bind(status).bind(rowId).run();
}

void SqliteStore::open()
{
    m_db.emplace(m_path, m_durable);
    m_prepared.emplace(*m_db);
}

void SqliteStore::close()
{
    m_prepared.reset();
    m_db.reset();
}

long SqliteStore::lookup(int rowId)
{
    Statement &statement = m_prepared->lookup;
    if (!statement.bind(rowId).step())
        throw std::runtime_error("row not found");
    const long found = statement.number(0) + static_cast<long>(statement.text(1).size());
    statement.reset();
    return found;
}

// Looks at two numbers and two texts of every row; how many rows there were.
long SqliteStore::walk(Statement &statement)
{
    long rows = 0;
    long seen = 0;
    for (; statement.step(); ++rows) {
        seen += statement.number(0) + statement.number(1);
        seen += static_cast<long>(statement.text(2).size() + statement.text(3).size());
    }
    statement.reset();
    return seen > 0 ? rows : 0;
}

long SqliteStore::walkStatus(int status, std::string_view upTo)
{
    Statement statement(*m_db, "SELECT rowid, custid, shortdesc, submitdt FROM issues"
                               " WHERE status = ? AND submitdt <= ?");
    return walk(statement.bind(status).bind(upTo));
}

long SqliteStore::walkAssignee(int user)
{
    Statement statement(*m_db, "SELECT rowid, custid, shortdesc, submitdt FROM issues"
                               " WHERE assignedto = ?");
    return walk(statement.bind(user));
}

long SqliteStore::walkCustomer(int custId)
{
    return walk(m_prepared->customer.bind(custId));
}

long SqliteStore::containsShort(std::string_view word)
{
    const std::string pattern = '%' + std::string(word) + '%';
    Statement statement(*m_db, "SELECT count(*) FROM issues WHERE shortdesc LIKE ?");
    statement.bind(pattern).step();
    return statement.number(0);
}

long SqliteStore::containsMemo(std::string_view word)
{
    const std::string pattern = '%' + std::string(word) + '%';
    Statement statement(*m_db, "SELECT count(*) FROM issues WHERE desc LIKE ?1"
                               " OR resolution LIKE ?1");
    statement.bind(pattern).step();
    return statement.number(0);
}

// Collects rows with their texts and names.
template <class Value>
long SqliteStore::hits(const char *condition, Value value) const
{
    const std::string sql = std::string("SELECT i.rowid, i.shortdesc, k.desc, c.company"
                                        " FROM issues i"
                                        " LEFT JOIN customers c ON c.rowid = i.custid"
                                        " LEFT JOIN categories k ON k.rowid = i.status WHERE ") +
                            condition;
    struct Shown {
        int rowid;
        std::string shortDesc, status, customer;
    };
    std::vector<Shown> rows;
    Statement statement(*m_db, sql.c_str());
    statement.bind(value);
    while (statement.step())
        rows.push_back({statement.number(0), std::string(statement.text(1)),
                        std::string(statement.text(2)), std::string(statement.text(3))});
    return static_cast<long>(rows.size());
}

long SqliteStore::searchShort(std::string_view word)
{
    const std::string pattern = '%' + std::string(word) + '%';
    return hits("i.shortdesc LIKE ?", std::string_view(pattern));
}

long SqliteStore::searchMemos(std::string_view word)
{
    const std::string pattern = '%' + std::string(word) + '%';
    return hits("i.desc LIKE ?1 OR i.resolution LIKE ?1", std::string_view(pattern));
}

long SqliteStore::listProduct(int product)
{
    return hits("i.psid = ?", product);
}

long SqliteStore::listPerson(int user)
{
    return hits("i.assignedto = ?", user);
}

std::vector<Store::Row> SqliteStore::report(int status)
{
    Statement statement(*m_db,
                        "SELECT i.rowid, c.company, i.shortdesc, u.login, k.desc, i.priority,"
                        " i.submitdt, i.resolvedt FROM issues i"
                        " LEFT JOIN customers c ON c.rowid = i.custid"
                        " LEFT JOIN users u ON u.rowid = i.assignedto"
                        " LEFT JOIN categories k ON k.rowid = i.status"
                        " WHERE i.status = ? ORDER BY i.shortdesc COLLATE NOCASE");
    statement.bind(status);
    std::vector<Row> rows;
    while (statement.step()) {
        Row &row = rows.emplace_back();
        for (int column = 0; column < 8; ++column)
            row.emplace_back(statement.text(column));
    }
    return rows;
}

} // namespace

std::unique_ptr<Store> makeSqliteStore(const std::string &folder)
{
    return std::make_unique<SqliteStore>(folder);
}

} // namespace bench
