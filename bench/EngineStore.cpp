#include "EngineStore.h"

#include "db/engine/File.h"
#include "db/engine/TableCreate.h"

#include <filesystem>

using namespace norvane::engine;

namespace bench
{

namespace
{

constexpr std::string_view kCounterName = "NVNISSUES.DBF";

[[noreturn]] void fail(const Error &error)
{
    throw std::runtime_error(error.file + ": " + error.detail);
}

} // namespace

EngineStore::EngineStore(std::string folder) : m_folder(std::move(folder)), m_session(d4init_v())
{
    code4errorHandler(m_session, fail);
}

void EngineStore::setDurable(bool durable)
{
    code4durability(m_session, durable ? "full" : "process");
}

EngineStore::Use::Use(const EngineStore &store, schema::Table which)
    : m_table(d4open(store.m_session, store.path(which, "dbf")))
{
    if (m_table == 0)
        fail(lastError(store.m_session));
}

void EngineStore::Use::assign(const char *name, std::string_view text) const
{
    f4assignNVB(field(name), text, static_cast<std::uint32_t>(text.size()));
}

void EngineStore::Use::assignMemo(const char *name, std::string_view text) const
{
    f4memoAssignN(field(name), text, static_cast<std::uint32_t>(text.size()));
}

void EngineStore::Use::begin() const
{
    d4appendStartVB(m_table, 0);
    d4blank(m_table);
}

std::string EngineStore::path(schema::Table which, const char *extension) const
{
    return m_folder + '/' + schema::table(which).baseName.toStdString() + '.' + extension;
}

void EngineStore::makeFiles(schema::Table which) const
{
    const TablePaths paths{path(which, "dbf"), path(which, "cdx"), path(which, "fpt")};
    for (const std::string &file : {paths.table, paths.index, paths.memo})
        std::filesystem::remove(file);
    if (Status made = createTable(systemFiles(), schema::table(which).def, paths); !made.ok())
        fail(made.error());
}

void EngineStore::append(const Use &issues, const Issue &issue)
{
    issues.begin();
    issues.assign("rowid", issue.rowId);
    issues.assign("custid", issue.custId);
    issues.assign("psid", issue.psId);
    issues.assign("shortdesc", issue.shortDesc);
    issues.assign("custom1", issue.custom1);
    issues.assign("custom2", issue.custom2);
    issues.assign("assignedto", issue.assignedTo);
    issues.assign("priority", issue.priority);
    issues.assign("status", issue.status);
    issues.assign("issuecat", issue.category);
    issues.assign("submitdt", issue.submitted);
    issues.assign("responsedt", issue.responded);
    issues.assign("resolvedt", issue.resolved);
    issues.assignMemo("desc", issue.desc);
    issues.assignMemo("resolution", issue.resolution);
    issues.assign("lastmodby", issue.lastModBy);
    issues.assign("lastmoddt", issue.lastModDate);
    issues.assign("lastmodtm", issue.lastModTime);
    issues.assign("underedit", 0);
    issues.assign("edtstation", issue.station);
    d4append(issues.table());
    d4unlock(issues.table());
}

void EngineStore::load(int rows)
{
    makeFiles(schema::Table::Issues);
    makeFiles(schema::Table::LastID);
    code4accessMode(m_session, 1);
    {
        const int customers = customersFor(rows);
        const Use issues(*this, schema::Table::Issues);
        for (int i = 0; i < rows; ++i)
            append(issues, makeIssue(kFirstId + i, customers));
        const Use counters(*this, schema::Table::LastID);
        counters.begin();
        counters.assign("tblname", kCounterName);
        counters.assign("lastid", kFirstId + rows);
        d4append(counters.table());
        d4unlock(counters.table());
    }
    code4accessMode(m_session, 0);
}

void EngineStore::fill(schema::Table which, const char *field, int count,
                       std::string (*name)(int)) const
{
    makeFiles(which);
    const Use rows(*this, which);
    for (int id = kFirstId; id < kFirstId + count; ++id) {
        rows.begin();
        rows.assign("rowid", id);
        rows.assign(field, name(id));
        d4append(rows.table());
        d4unlock(rows.table());
    }
}

void EngineStore::loadOthers(int customers)
{
    code4accessMode(m_session, 1);
    fill(schema::Table::Customer, "company", customers, companyName);
    fill(schema::Table::User, "login", kUsers, userName);
    fill(schema::Table::Category, "desc", kStatuses, statusName);
    code4accessMode(m_session, 0);
}

void EngineStore::reindex()
{
    code4accessMode(m_session, 1);
    {
        const Use issues(*this, schema::Table::Issues);
        if (d4reindex(issues.table()) != r4success)
            fail(lastError(m_session));
    }
    code4accessMode(m_session, 0);
}

void EngineStore::fullCheck()
{
    const Use issues(*this, schema::Table::Issues);
    const std::vector<std::string> findings = d4check(issues.table());
    if (!findings.empty())
        throw std::runtime_error("the check found: " + findings.front());
}

std::uint64_t EngineStore::bytes() const
{
    std::uint64_t sum = 0;
    for (const char *extension : {"dbf", "cdx", "fpt"})
        sum += std::filesystem::file_size(path(schema::Table::Issues, extension));
    return sum;
}

long EngineStore::lookupCycle(int rowId)
{
    const Use issues(*this, schema::Table::Issues);
    issues.select("rowid");
    if (!issues.seek(rowId))
        throw std::runtime_error("row not found");
    return f4long(issues.field("custid"));
}

int EngineStore::nextIdCycle()
{
    const Use counters(*this, schema::Table::LastID);
    if (d4seek(counters.table(), kCounterName) != r4success)
        throw std::runtime_error("no counter");
    d4lock(counters.table(), d4recNo(counters.table()));
    const Handle lastId = counters.field("lastid");
    const int taken = f4long(lastId);
    f4assignLong(lastId, taken + 1);
    d4flush(counters.table());
    d4unlock(counters.table());
    return taken;
}

int EngineStore::insertCycle(int customers)
{
    const int taken = nextIdCycle();
    append(Use(*this, schema::Table::Issues), makeIssue(taken, customers));
    return taken;
}

void EngineStore::updateCycle(int rowId, int status)
{
    const Use issues(*this, schema::Table::Issues);
    issues.select("rowid");
    if (!issues.seek(rowId))
        throw std::runtime_error("row not found");
    d4lock(issues.table(), d4recNo(issues.table()));
    issues.assign("status", status);
    d4flush(issues.table());
    d4unlock(issues.table());
}

std::unique_ptr<Store> makeEngineStore(const std::string &folder)
{
    return std::make_unique<EngineStore>(folder);
}

} // namespace bench
