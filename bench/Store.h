// A database of issues in some store, for doing the same work in each. Operations that give a
// number give what they found, so that the stores can be held against each other.
#pragma once

#include "IssueData.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace bench
{

class Store
{
public:
    virtual ~Store() = default;

    // Whether a save waits for the disk before it counts as done.
    virtual void setDurable(bool durable) = 0;

    // ---- the whole table. `load` starts with empty files: issues with all keys, the customers,
    // users and lookup items they refer to, and a counter behind the last issue.
    virtual void load(int rows) = 0;
    virtual void loadOthers(int customers) = 0;
    virtual void reindex() = 0;
    virtual void fullCheck() = 0; // throws when something is wrong
    virtual std::uint64_t bytes() const = 0;

    // ---- with files opened and closed around each
    virtual long lookupCycle(int rowId) = 0;
    virtual int nextIdCycle() = 0;
    virtual int insertCycle(int customers) = 0; // with a number from the counter, which it gives
    virtual void updateCycle(int rowId, int status) = 0;

    // ---- with the database open
    virtual void open() = 0;
    virtual void close() = 0;
    virtual long lookup(int rowId) = 0;
    virtual long walkStatus(int status, std::string_view upTo) = 0;
    virtual long walkAssignee(int user) = 0;
    virtual long walkCustomer(int custId) = 0;
    virtual long containsShort(std::string_view word) = 0;
    virtual long containsMemo(std::string_view word) = 0;
    // As the windows of issues do it, up to the rows that they show: a word in short descriptions,
    // or in descriptions and resolutions; the issues of a product or a person, with company and
    // status by name.
    virtual long searchShort(std::string_view word) = 0;
    virtual long searchMemos(std::string_view word) = 0;
    virtual long listProduct(int product) = 0;
    virtual long listPerson(int user) = 0;
    // Rows of the status with company, assignee and status by name, sorted by their text.
    using Row = std::vector<std::string>;
    virtual std::vector<Row> report(int status) = 0;
};

std::unique_ptr<Store> makeEngineStore(const std::string &folder);
std::unique_ptr<Store> makeSqliteStore(const std::string &folder);

} // namespace bench
