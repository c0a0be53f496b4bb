// norvane_bench [--rows N] [--only NAME[,NAME]] [--tsv]: the work of the program in our engine and
// in SQLite by turns, one line a workload. Which lines mean what is in docs/performance.md.
#include "Workloads.h"

#include <algorithm>
#include <charconv>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <filesystem>
#include <iostream>
#include <optional>

namespace bench
{

namespace
{

struct Options {
    int rows = 1000000;
    std::vector<std::string> only;
    bool tsv = false;
};

int usage()
{
    std::cerr << "norvane_bench [--rows N] [--only NAME[,NAME]] [--tsv]\n"
                 "N: 1000 to 1500000. Names:";
    for (const Workload &work : workloads())
        std::cerr << ' ' << work.name;
    std::cerr << '\n';
    return 2;
}

bool takeNames(std::string_view text, std::vector<std::string> &names)
{
    while (!text.empty()) {
        const std::size_t comma = std::min(text.find(','), text.size());
        names.emplace_back(text.substr(0, comma));
        text.remove_prefix(std::min(comma + 1, text.size()));
        const auto &all = workloads();
        if (std::none_of(all.begin(), all.end(),
                         [&](const Workload &work) { return names.back() == work.name; }))
            return false;
    }
    return !names.empty();
}

bool takeRows(std::string_view text, int &rows)
{
    const auto result = std::from_chars(text.data(), text.data() + text.size(), rows);
    return result.ec == std::errc() && result.ptr == text.data() + text.size() && rows >= 1000 &&
           rows <= 1500000; // the table's file ends at 2 GB, locks lie behind it
}

std::optional<Options> readOptions(const std::vector<std::string_view> &arguments)
{
    Options options;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const bool more = i + 1 < arguments.size();
        if (arguments[i] == "--tsv")
            options.tsv = true;
        else if (arguments[i] == "--rows" && more && takeRows(arguments[i + 1], options.rows))
            ++i;
        else if (arguments[i] == "--only" && more && takeNames(arguments[i + 1], options.only))
            ++i;
        else
            return std::nullopt;
    }
    return options;
}

void fill(Ground &ground)
{
    for (Store *store : {ground.ours.get(), ground.sqlite.get()}) {
        store->load(ground.rows);
        store->loadOthers(ground.customers);
    }
}

struct Line {
    double ours = 0;
    double sqlite = 0;
    std::optional<double> floor;
};

// Repetitions by turns, so that whatever else the machine does meets both.
Line measure(const Workload &work, Ground &ground)
{
    if (!work.fills && !ground.filled)
        fill(ground);
    ground.filled = true;
    ground.ours->setDurable(work.durable);
    ground.sqlite->setDurable(work.durable);
    Line line;
    const auto best = [](double a, double b) { return a == 0 ? b : std::min(a, b); };
    for (int round = 0; round < work.rounds; ++round, ++ground.round) {
        const Measured ours = work.run(*ground.ours, ground);
        const Measured sqlite = work.run(*ground.sqlite, ground);
        if (ours.found != sqlite.found)
            throw std::runtime_error(std::string(work.name) + ": we found " +
                                     std::to_string(ours.found) + ", SQLite " +
                                     std::to_string(sqlite.found));
        line.ours = best(line.ours, ours.figure);
        line.sqlite = best(line.sqlite, sqlite.figure);
        if (work.floor) {
            const double floor = work.floor(Floors(ground.ourFolder, ground.rows), ground);
            line.floor = best(line.floor.value_or(0), floor);
        }
    }
    return line;
}

std::string figure(double value, const char *unit, bool tsv)
{
    char text[64];
    if (tsv)
        std::snprintf(text, sizeof text, "%.6g", value);
    else
        std::snprintf(text, sizeof text, value < 1000 ? "%.3g %s" : "%.0f %s", value, unit);
    return text;
}

void print(const Workload &work, const Line &line, bool tsv)
{
    const std::string ours = figure(line.ours, work.unit, tsv);
    const std::string sqlite = figure(line.sqlite, work.unit, tsv);
    const std::string floor = line.floor ? figure(*line.floor, work.unit, tsv) : "-";
    std::printf(tsv ? "%s\t%s\t%s\t%.3f\t%s" : "%-22s %12s %12s %7.2f %12s", work.name,
                ours.c_str(), sqlite.c_str(), line.ours / line.sqlite, floor.c_str());
    if (tsv)
        std::printf("\t%s", work.unit);
    std::puts("");
    std::fflush(stdout);
}

// A folder that goes with everything in it.
class Folder
{
public:
    Folder()
    {
        std::string pattern =
            (std::filesystem::temp_directory_path() / "norvane-bench-XXXXXX").string();
        if (mkdtemp(pattern.data()) == nullptr)
            throw std::runtime_error("cannot make a folder like " + pattern);
        m_path = pattern;
    }
    ~Folder()
    {
        std::error_code ignored;
        std::filesystem::remove_all(m_path, ignored);
    }
    Folder(const Folder &) = delete;
    Folder &operator=(const Folder &) = delete;
    std::string make(const char *name) const
    {
        std::filesystem::create_directory(m_path + '/' + name);
        return m_path + '/' + name;
    }

private:
    std::string m_path;
};

void run(const Options &options)
{
    const Folder folder;
    Ground ground;
    ground.ourFolder = folder.make("ours");
    ground.sqliteFolder = folder.make("sqlite");
    ground.ours = makeEngineStore(ground.ourFolder);
    ground.sqlite = makeSqliteStore(ground.sqliteFolder);
    ground.rows = options.rows;
    ground.customers = customersFor(options.rows);
    if (options.tsv)
        std::puts("name\tours\tsqlite\tratio\tfloor\tunit");
    else
        std::printf("%-22s %12s %12s %7s %12s\n", "workload", "ours", "SQLite", "ratio", "floor");
    for (const Workload &work : workloads()) {
        const bool wanted =
            options.only.empty() ||
            std::find(options.only.begin(), options.only.end(), work.name) != options.only.end();
        if (wanted)
            print(work, measure(work, ground), options.tsv);
    }
}

} // namespace

} // namespace bench

int main(int argc, char **argv)
{
    const auto options = bench::readOptions({argv + 1, argv + argc});
    if (!options)
        return bench::usage();
    try {
        bench::run(*options);
    } catch (const std::exception &failure) {
        std::cerr << "norvane_bench: " << failure.what() << '\n';
        return 1;
    }
    return 0;
}
