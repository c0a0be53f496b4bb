// The everyday work of the program on 100,000 customers: ours, SQLite without syncs, SQLite with
// full ones, all in one run. Results and their reading are in docs/performance.md.
#include "CustomerStore.h"

#include <benchmark/benchmark.h>

#include <array>
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <iostream>
#include <random>

namespace bench
{

Customer makeCustomer(int id)
{
    constexpr std::array<const char *, 8> syllables = {"ba", "den", "kel", "mor",
                                                       "ri", "sta", "tur", "win"};
    std::minstd_rand random(static_cast<std::uint32_t>(id)); // cheap to begin
    const auto name = [&](int parts) {
        std::string text;
        while (parts-- > 0)
            text += syllables[random() % syllables.size()];
        text[0] = static_cast<char>(text[0] - 'a' + 'A');
        return text;
    };
    Customer customer{id,
                      "C-" + std::to_string(random() % 1000000),
                      name(2),
                      name(5),
                      name(4),
                      name(3),
                      {},
                      std::string(random() % 120, 'n'),
                      static_cast<int>(random() % 20)};
    customer.company += " Ltd";
    customer.phone = "555-" + std::to_string(random() % 10000000);
    return customer;
}

namespace
{

using Step = std::function<void(CustomerStore &, std::mt19937 &)>;

int someId(std::mt19937 &random)
{
    return kFirstId + static_cast<int>(random() % kRows);
}

void work(benchmark::State &state, CustomerStore &store, bool keepOpen, const Step &step)
{
    std::mt19937 random(7);
    if (keepOpen)
        store.open();
    for (auto _ : state) {
        if (!keepOpen)
            store.open();
        step(store, random);
        if (!keepOpen)
            store.close();
    }
    if (keepOpen)
        store.close();
}

void find(CustomerStore &store, std::mt19937 &random)
{
    benchmark::DoNotOptimize(store.find(someId(random)));
}

void findName(CustomerStore &store, std::mt19937 &random)
{
    benchmark::DoNotOptimize(store.findLastName(makeCustomer(someId(random)).lastName));
}

void append(CustomerStore &store, std::mt19937 & /*random*/)
{
    static int next = 10 * kRows; // one sequence for all stores
    store.append(makeCustomer(++next));
}

void update(CustomerStore &store, std::mt19937 &random)
{
    store.update(someId(random), static_cast<int>(random() % 1000));
}

void renameOne(CustomerStore &store, std::mt19937 &random)
{
    store.rename(someId(random), makeCustomer(static_cast<int>(random())).lastName);
}

void walkTag(CustomerStore &store, std::mt19937 & /*random*/)
{
    benchmark::DoNotOptimize(store.walkByLastName(10000));
}

void walkAll(CustomerStore &store, std::mt19937 & /*random*/)
{
    benchmark::DoNotOptimize(store.walkAll());
}

struct Work {
    const char *name;
    bool keepOpen;
    Step step;
};

void registerAll(const std::string &storeName, CustomerStore &store)
{
    const Work works[] = {{"1 open, find, close", false, find},
                          {"2 find by number", true, find},
                          {"3 find by last name", true, findName},
                          {"4 walk 10,000 by last name", true, walkTag},
                          {"5 walk all", true, walkAll},
                          {"6 update", true, update},
                          {"7 open, update, close", false, update},
                          {"8 update a key", true, renameOne},
                          {"9 append, all tags", true, append},
                          {"10 open, append, close", false, append}};
    for (const Work &one : works) {
        benchmark::RegisterBenchmark(
            (std::string(one.name) + " / " + storeName).c_str(),
            [&store, one](benchmark::State &state) { work(state, store, one.keepOpen, one.step); })
            ->Unit(benchmark::kMicrosecond)
            ->UseRealTime();
    }
}

} // namespace

} // namespace bench

int main(int argc, char **argv)
{
    using namespace bench;
    benchmark::Initialize(&argc, argv);
    std::string pattern =
        (std::filesystem::temp_directory_path() / "norvane-bench-XXXXXX").string();
    const std::string folder = mkdtemp(pattern.data());
    struct Entry {
        const char *name;
        std::unique_ptr<CustomerStore> store;
    };
    std::filesystem::create_directories(folder + "/off");
    std::filesystem::create_directories(folder + "/full");
    Entry entries[] = {{"ours", makeEngineStore(folder)},
                       {"SQLite off", makeSqliteStore(folder + "/off", "OFF")},
                       {"SQLite full", makeSqliteStore(folder + "/full", "FULL")}};
    for (Entry &entry : entries) {
        const auto start = std::chrono::steady_clock::now();
        entry.store->fill(kRows);
        const std::chrono::duration<double> took = std::chrono::steady_clock::now() - start;
        std::cout << "0 bulk load of " << kRows << " rows / " << entry.name << ": " << took.count()
                  << " s\n";
        registerAll(entry.name, *entry.store);
    }
    benchmark::RunSpecifiedBenchmarks();
    std::filesystem::remove_all(folder);
    return 0;
}
