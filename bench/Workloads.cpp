#include "Workloads.h"

#include "Clock.h"
#include "TwoProcesses.h"

#include <algorithm>

namespace bench
{

namespace
{

constexpr int kLookups = 20000;
constexpr int kLookupCycles = 2000;
constexpr int kSaves = 300;
constexpr int kCounts = 1000;
constexpr int kDurableCounts = 300;
constexpr int kMostCustomers = 10000; // walked
constexpr int kOneStatus = kFirstId + 3;
constexpr int kOneUser = kFirstId + 7;
constexpr int kOneProduct = kFirstId + 5;
constexpr double kMega = 1e6;

int someRow(Numbers &numbers, const Ground &ground)
{
    return kFirstId + numbers.below(ground.rows);
}

// Seconds of a piece of work with the database open that gives what it found.
template <class F>
Measured opened(Store &store, F work)
{
    Measured measured;
    store.open();
    measured.figure = seconds([&] { measured.found = work(); });
    store.close();
    return measured;
}

Measured bulkLoad(Store &store, const Ground &ground)
{
    const double took = seconds([&] { store.load(ground.rows); });
    store.loadOthers(ground.customers);
    return {took, 0};
}

Measured lookupOpen(Store &store, const Ground &ground)
{
    Numbers numbers(11);
    Measured measured = opened(store, [&] {
        long sum = 0;
        for (int i = 0; i < kLookups; ++i)
            sum += store.lookup(someRow(numbers, ground));
        return sum;
    });
    measured.figure *= 1e6 / kLookups;
    return measured;
}

Measured lookupCycle(Store &store, const Ground &ground)
{
    Numbers numbers(12);
    Measured measured;
    measured.figure = microsecondsEach(
        kLookupCycles, [&] { measured.found += store.lookupCycle(someRow(numbers, ground)); });
    return measured;
}

Measured insertCycle(Store &store, const Ground &ground)
{
    const int first = store.nextIdCycle();
    Measured measured;
    measured.figure =
        microsecondsEach(kSaves, [&] { measured.found = store.insertCycle(ground.customers); });
    measured.found -= first;
    return measured;
}

Measured updateCycle(Store &store, const Ground &ground)
{
    // Other changes each time, or rows would stay as they are.
    Numbers numbers(1300 + static_cast<std::uint64_t>(ground.round));
    return {microsecondsEach(kSaves,
                             [&] {
                                 const int row = someRow(numbers, ground);
                                 store.updateCycle(row, kFirstId + numbers.below(kStatuses));
                             }),
            0};
}

Measured counterOfTwo(Store &store, const Ground &ground, bool durable)
{
    const int before = store.nextIdCycle();
    const bool isOurs = &store == ground.ours.get();
    const double each = twoProcesses(durable ? kDurableCounts : kCounts, [&](int count) {
        const std::unique_ptr<Store> own =
            isOurs ? makeEngineStore(ground.ourFolder) : makeSqliteStore(ground.sqliteFolder);
        own->setDurable(durable);
        for (int i = 0; i < count; ++i)
            own->nextIdCycle();
    });
    return {each, store.nextIdCycle() - before}; // a lost number shows here
}

Measured walkCustomers(Store &store, const Ground &ground)
{
    const int count = std::min(kMostCustomers, ground.customers);
    Measured measured = opened(store, [&] {
        Numbers numbers(14);
        long rows = 0;
        for (int i = 0; i < count; ++i)
            rows += store.walkCustomer(kFirstId + numbers.below(ground.customers));
        return rows;
    });
    measured.figure *= 1e6 / count;
    return measured;
}

// Milliseconds for 10,000 hits.
template <class F>
Measured listed(Store &store, F work)
{
    Measured measured = opened(store, work);
    measured.figure *= 1e7 / static_cast<double>(measured.found);
    return measured;
}

double floorOfSort(const Floors &floors, const Ground & /*ground*/)
{
    return floors.sortAndWriteKeys();
}

std::vector<Workload> makeWorkloads()
{
    std::vector<Workload> all;
    // A load takes long; one repetition says enough about a million rows.
    all.push_back(
        {"bulk_load", "s", 2, false, bulkLoad,
         [](const Floors &f, const Ground &) { return f.writeRows() + f.sortAndWriteKeys(); },
         true});
    all.push_back({"reindex", "s", 2, false,
                   [](Store &store, const Ground &) {
                       return Measured{seconds([&] { store.reindex(); }), 0};
                   },
                   floorOfSort});
    all.push_back({"lookup_open", "us", 3, false, lookupOpen,
                   [](const Floors &f, const Ground &) { return f.lookup(); }});
    all.push_back({"lookup_cycle", "us", 3, false, lookupCycle,
                   [](const Floors &f, const Ground &) { return f.openLookup(); }});
    for (const bool durable : {true, false}) {
        const auto save = [durable](const Floors &f, const Ground &) { return f.save(durable); };
        all.push_back({durable ? "insert_cycle_durable" : "insert_cycle", "us", 3, durable,
                       insertCycle, save});
        all.push_back({durable ? "update_cycle_durable" : "update_cycle", "us", 3, durable,
                       updateCycle, save});
    }
    std::swap(all[all.size() - 3], all[all.size() - 2]); // both inserts before both updates
    const auto rowByRow = [](int part) {
        return [part](const Floors &f, const Ground &g) { return f.rowsOneByOne(g.rows / part); };
    };
    all.push_back({"walk_status", "s", 3, false,
                   [](Store &store, const Ground &) {
                       return opened(store,
                                     [&] { return store.walkStatus(kOneStatus, kMiddleDate); });
                   },
                   rowByRow(2 * kStatuses)});
    all.push_back({"walk_assignee", "s", 3, false,
                   [](Store &store, const Ground &) {
                       return opened(store, [&] { return store.walkAssignee(kOneUser); });
                   },
                   rowByRow(kUsers)});
    all.push_back(
        {"walk_customer", "us", 3, false, walkCustomers, [](const Floors &f, const Ground &) {
             constexpr int rows = 8;
             return f.lookup() + f.rowsOneByOne(rows * 1000) * 1e3;
         }});
    all.push_back({"contains_short", "s", 3, false,
                   [](Store &store, const Ground &) {
                       return opened(store, [&] { return store.containsShort(kRareWord); });
                   },
                   [](const Floors &f, const Ground &) { return f.readRows(); }});
    all.push_back({"contains_memo", "s", 3, false,
                   [](Store &store, const Ground &) {
                       return opened(store, [&] { return store.containsMemo(kRareWord); });
                   },
                   [](const Floors &f, const Ground &) { return f.readMemos(); }});
    all.push_back({"search_short", "s", 3, false,
                   [](Store &store, const Ground &) {
                       return opened(store, [&] { return store.searchShort(kRareWord); });
                   },
                   [](const Floors &f, const Ground &) { return f.readRows(); }});
    all.push_back({"search_memos", "s", 3, false,
                   [](Store &store, const Ground &) {
                       return opened(store, [&] { return store.searchMemos(kRareWord); });
                   },
                   [](const Floors &f, const Ground &) { return f.readMemos(); }});
    all.push_back({"list_product",
                   "ms/10k",
                   3,
                   false,
                   [](Store &store, const Ground &) {
                       return listed(store, [&] { return store.listProduct(kOneProduct); });
                   },
                   {}});
    all.push_back({"list_person",
                   "ms/10k",
                   3,
                   false,
                   [](Store &store, const Ground &) {
                       return listed(store, [&] { return store.listPerson(kOneUser); });
                   },
                   {}});
    all.push_back({"report_100k", "s", 3, false,
                   [](Store &store, const Ground &) {
                       return opened(store, [&] {
                           return static_cast<long>(store.report(kOneStatus).size());
                       });
                   },
                   rowByRow(kStatuses)});
    for (const bool durable : {true, false})
        all.push_back(
            {durable ? "counter_2proc_durable" : "counter_2proc", "us", 3, durable,
             [durable](Store &store, const Ground &g) { return counterOfTwo(store, g, durable); },
             [durable](const Floors &f, const Ground &) { return f.counter(durable); }});
    all.push_back({"file_size", "MB", 1, false,
                   [](Store &store, const Ground &) {
                       return Measured{static_cast<double>(store.bytes()) / kMega, 0};
                   },
                   [](const Floors &f, const Ground &) {
                       return static_cast<double>(f.rowAndMemoBytes()) / kMega;
                   }});
    all.push_back({"full_check", "s", 2, false,
                   [](Store &store, const Ground &) {
                       return Measured{seconds([&] { store.fullCheck(); }), 0};
                   },
                   [](const Floors &f, const Ground &) { return f.readAll(); }});
    return all;
}

} // namespace

const std::vector<Workload> &workloads()
{
    static const std::vector<Workload> all = makeWorkloads();
    return all;
}

} // namespace bench
