// The workloads by name: what each does in a store, and what the machine needs at least.
#pragma once

#include "Floors.h"
#include "Store.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace bench
{

// Figure of one repetition, and what was found, which must be the same in both stores.
struct Measured {
    double figure = 0;
    long found = 0;
};

// Both stores in folders of their own.
struct Ground {
    std::string ourFolder, sqliteFolder;
    std::unique_ptr<Store> ours, sqlite;
    int rows = 0;
    int customers = 0;
    bool filled = false;
    int round = 0; // counts through all workloads
};

struct Workload {
    const char *name;
    const char *unit; // "s", "us" each, "MB"
    int rounds;       // the best one counts
    bool durable;
    std::function<Measured(Store &, const Ground &)> run;
    std::function<double(const Floors &, const Ground &)> floor; // empty: none
    bool fills = false;                                          // makes the rows itself
};

const std::vector<Workload> &workloads();

} // namespace bench
