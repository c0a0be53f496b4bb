#include "CustomerStore.h"

#include "db/engine/engine.h"
#include "db/engine/File.h"
#include "db/engine/TableCreate.h"

#include <stdexcept>

using namespace norvane::engine;

namespace bench
{

namespace
{

TableDef customerTable()
{
    TableDef table;
    table.fields = {
        {"ROWID", 'N', 0, 10, 0},     {"CUSTNO", 'C', 0, 40, 0},  {"FIRSTNAME", 'C', 0, 25, 0},
        {"LASTNAME", 'C', 0, 25, 0},  {"COMPANY", 'C', 0, 50, 0}, {"CITY", 'C', 0, 30, 0},
        {"WORKPHONE", 'C', 0, 25, 0}, {"CUSTCAT", 'N', 0, 10, 0}, {"NOTES", 'M', 0, 10, 0}};
    table.tags = {{"ROWID", "ROWID", ".NOT. DELETED()"},
                  {"CUSTNO", "UPPER(CUSTNO)", ".NOT. DELETED()"},
                  {"LASTNAME", "UPPER(LASTNAME)", ".NOT. DELETED()"},
                  {"COMPANY", "UPPER(COMPANY)", ".NOT. DELETED()"},
                  {"WORKPHONE", "UPPER(WORKPHONE)", ".NOT. DELETED()"}};
    return table;
}

class EngineStore final : public CustomerStore
{
public:
    explicit EngineStore(const std::string &folder)
        : m_base(folder + "/customers."), m_session(d4init_v())
    {
        code4errorHandler(m_session, [](const Error &error) {
            throw std::runtime_error(error.file + ": " + error.detail);
        });
        const Status made = createTable(systemFiles(), customerTable(),
                                        {m_base + "dbf", m_base + "cdx", m_base + "fpt"});
        if (!made.ok())
            throw std::runtime_error(made.error().detail);
    }
    ~EngineStore() override { d4initUndo(m_session); }
    EngineStore(const EngineStore &) = delete;
    EngineStore &operator=(const EngineStore &) = delete;

    void fill(int rows) override
    {
        code4accessMode(m_session, 1);
        open();
        for (int i = 0; i < rows; ++i)
            append(makeCustomer(kFirstId + i));
        close();
        code4accessMode(m_session, 0);
    }

    void open() override
    {
        m_table = d4open(m_session, m_base + "dbf");
        if (m_table == 0)
            throw std::runtime_error(lastError(m_session).detail);
    }

    void close() override { d4close(m_table); }

    long find(int id) override
    {
        seekId(id);
        return f4len_v(d4field(m_table, "lastname"));
    }

    long findLastName(const std::string &name) override
    {
        d4tagSelect(m_table, d4tag(m_table, "lastname"));
        if (d4seek(m_table, name) != r4success)
            throw std::runtime_error("not found: " + name);
        return f4long(d4field(m_table, "rowid"));
    }

    void append(const Customer &customer) override
    {
        d4appendStartVB(m_table, 0);
        d4blank(m_table);
        f4assignLong(d4field(m_table, "rowid"), customer.id);
        assign("custno", customer.custno);
        assign("firstname", customer.firstName);
        assign("lastname", customer.lastName);
        assign("company", customer.company);
        assign("city", customer.city);
        assign("workphone", customer.phone);
        f4assignLong(d4field(m_table, "custcat"), customer.category);
        f4memoAssignN(d4field(m_table, "notes"), customer.notes,
                      static_cast<std::uint32_t>(customer.notes.size()));
        d4append(m_table);
        d4unlock(m_table);
    }

    void update(int id, int category) override
    {
        seekId(id);
        d4lock(m_table, d4recNo(m_table));
        f4assignLong(d4field(m_table, "custcat"), category);
        d4flush(m_table);
        d4unlock(m_table);
    }

    void rename(int id, const std::string &lastName) override
    {
        seekId(id);
        d4lock(m_table, d4recNo(m_table));
        assign("lastname", lastName);
        d4flush(m_table);
        d4unlock(m_table);
    }

    long walkByLastName(int rows) override
    {
        d4tagSelect(m_table, d4tag(m_table, "lastname"));
        return walk(rows);
    }

    long walkAll() override
    {
        d4tagSelect(m_table, 0);
        return walk(INT32_MAX);
    }

private:
    void assign(const char *field, const std::string &text)
    {
        f4assignNVB(d4field(m_table, field), text, static_cast<std::uint32_t>(text.size()));
    }

    void seekId(int id)
    {
        d4tagSelect(m_table, d4tag(m_table, "rowid"));
        if (d4seekDouble(m_table, id) != r4success)
            throw std::runtime_error("not found: " + std::to_string(id));
    }

    long walk(int rows)
    {
        const Handle id = d4field(m_table, "rowid");
        long sum = 0;
        for (Code code = d4top(m_table); code == r4success && rows > 0; --rows) {
            sum += f4long(id);
            code = d4skip(m_table, 1);
        }
        return sum;
    }

    std::string m_base;
    Handle m_session;
    Handle m_table = 0;
};

} // namespace

std::unique_ptr<CustomerStore> makeEngineStore(const std::string &folder)
{
    return std::make_unique<EngineStore>(folder);
}

} // namespace bench
