// Customers in some store, for measuring the same work in each.
#pragma once

#include <memory>
#include <string>

namespace bench
{

inline constexpr int kRows = 100000; // numbers kFirstId to kFirstId + kRows - 1
inline constexpr int kFirstId = 1000;

struct Customer {
    int id;
    std::string custno, firstName, lastName, company, city, phone, notes;
    int category;
};

// Always the same customer for a number.
Customer makeCustomer(int id);

class CustomerStore
{
public:
    virtual ~CustomerStore() = default;

    virtual void fill(int rows) = 0; // as quickly as the store can
    virtual void open() = 0;
    virtual void close() = 0;
    // Each gives something read, so that nothing is optimised away.
    virtual long find(int id) = 0;
    virtual long findLastName(const std::string &name) = 0;
    virtual void append(const Customer &customer) = 0;            // stored when it returns
    virtual void update(int id, int category) = 0;                // the same; no key changes
    virtual void rename(int id, const std::string &lastName) = 0; // a key changes
    virtual long walkByLastName(int rows) = 0;
    virtual long walkAll() = 0;
};

// In a folder that exists; not yet filled or open.
std::unique_ptr<CustomerStore> makeEngineStore(const std::string &folder);
// `synchronous`: the value of SQLite's setting of that name.
std::unique_ptr<CustomerStore> makeSqliteStore(const std::string &folder,
                                               const std::string &synchronous);

} // namespace bench
