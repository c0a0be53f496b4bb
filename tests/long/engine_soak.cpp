// Stations work on one table for long while one after the other is killed, and what grows is
// watched.
//
//   engine_soak [STATIONS [SECONDS [MILLISECONDS [FOLDER]]]]
//
// Every MILLISECONDS a station is killed and another takes its place (0: none is); a quarter of
// them lives through the whole run. Half of them sync each save. Every look-up and, at the end,
// every row is held against what was told as saved, and no number of the counter may come twice.
// The exit status is 1 when anything was lost, wrong or not sound, or fewer were killed than asked
// for; from half a minute on also when one step in a hundred took over a second or any took ten,
// and in runs of ten minutes and more when memory, descriptors, index or processor time a save
// grew.
#include "engine/Churn.h"
#include "engine/Station.h"
#include "engine/TableFixture.h"
#include "long/SoakBook.h"
#include "long/SoakWorker.h"

#include <array>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <limits>
#include <memory>
#include <random>
#include <vector>

#include <poll.h>
#include <sys/resource.h>
#include <sys/time.h>
#include <unistd.h>

using namespace norvane::engine;
using namespace enginetest;
using Clock = std::chrono::steady_clock;

namespace
{

constexpr int kTenths = 10;
constexpr int kMostProblems = 20;

struct Sizes {
    long memory = 0; // resident pages of all lasting stations together
    long files = 0;  // open descriptors of the one that has most
    long saves = 0;
    double seconds = 0; // of processor time that the stations took, also those that were killed
};

double processorSeconds(const timeval &user, const timeval &system)
{
    return static_cast<double>(user.tv_sec + system.tv_sec) +
           static_cast<double>(user.tv_usec + system.tv_usec) / 1e6;
}

// Processor time of a live process; 0 when it cannot be read.
double processorSeconds(pid_t process)
{
    std::ifstream file("/proc/" + std::to_string(process) + "/stat");
    file.ignore(std::numeric_limits<std::streamsize>::max(), ')'); // behind the name
    std::string skipped;
    for (int field = 3; field < 14; ++field)
        file >> skipped;
    long user = 0;
    long system = 0;
    file >> user >> system;
    return static_cast<double>(user + system) / static_cast<double>(::sysconf(_SC_CLK_TCK));
}

struct Seat {
    std::unique_ptr<Station> station;
    std::string rest; // of an unfinished line
};

class Soak
{
public:
    Soak(std::string path, int stations) : m_path(std::move(path)), m_seats(stations)
    {
        for (std::size_t i = 0; i < m_seats.size(); ++i)
            begin(i);
    }

    void run(std::chrono::seconds length, std::chrono::milliseconds rhythm)
    {
        const auto start = Clock::now();
        const auto stop = start + length;
        auto kill = rhythm.count() > 0 ? start + rhythm / 2 : Clock::time_point::max();
        for (int tenth = 1; tenth <= kTenths; ++tenth) {
            const auto end = start + length * tenth / kTenths;
            // on a busy machine the last kills come a little later
            while ((Clock::now() < end || (end == stop && kill < stop)) &&
                   Clock::now() < stop + length / 4 && m_problems < kMostProblems) {
                listen(std::min(kill, end));
                if (Clock::now() < kill)
                    continue;
                replaceOne();
                kill += rhythm;
            }
            m_sizes.push_back(sizes());
            tell(m_sizes.back());
        }
        for (std::size_t i = 0; i < m_seats.size(); ++i)
            end(i);
    }

    int problems() const { return m_problems; }
    int kills() const { return m_kills; }
    const SoakBook &book() const { return m_book; }
    const Sizes &first() const { return m_sizes.front(); }
    const Sizes &last() const { return m_sizes.back(); }
    // Saves a second of processor time in the last tenth for each in the first: what else the
    // machine does at the time does not count.
    double pace() const
    {
        const Sizes &before = m_sizes[kTenths - 2];
        const double late = static_cast<double>(last().saves - before.saves) /
                            std::max(last().seconds - before.seconds, 0.01);
        const double early =
            static_cast<double>(std::max(first().saves, 1L)) / std::max(first().seconds, 0.01);
        return late / early;
    }

private:
    std::size_t lasting() const { return (m_seats.size() + 3) / 4; }

    void begin(std::size_t i)
    {
        ++m_begun;
        const std::string program = std::filesystem::read_symlink("/proc/self/exe");
        m_seats[i].station = std::make_unique<Station>(
            std::vector<std::string>{program, "--work", m_path, std::to_string((i + 1) * 100000),
                                     std::to_string(m_begun), i % 2 == 0 ? "process" : "full"});
    }

    void end(std::size_t i)
    {
        Seat &seat = m_seats[i];
        seat.station->kill();
        for (const std::string &line : seat.station->lastWords()) {
            take(seat.rest + line);
            seat.rest.clear();
        }
        seat.rest.clear(); // the last line may be half
    }

    void replaceOne()
    {
        if (m_seats.size() <= lasting())
            return;
        const std::size_t i = lasting() + m_random() % (m_seats.size() - lasting());
        end(i);
        ++m_kills;
        begin(i);
    }

    // What the stations say until then.
    void listen(Clock::time_point until)
    {
        std::vector<pollfd> ends;
        for (const Seat &seat : m_seats)
            ends.push_back({seat.station->output(), POLLIN, 0});
        const auto left = std::chrono::ceil<std::chrono::milliseconds>(until - Clock::now());
        if (left.count() <= 0 ||
            ::poll(ends.data(), ends.size(), static_cast<int>(left.count())) <= 0)
            return;
        for (std::size_t i = 0; i < ends.size(); ++i) {
            if (ends[i].revents != 0)
                readFrom(i);
        }
    }

    void readFrom(std::size_t i)
    {
        Seat &seat = m_seats[i];
        std::array<char, 65536> buffer;
        const ssize_t n = ::read(seat.station->output(), buffer.data(), buffer.size());
        if (n <= 0) { // it ended by itself
            std::cout << "a station is gone\n";
            ++m_problems;
            end(i);
            begin(i);
            return;
        }
        seat.rest.append(buffer.data(), static_cast<std::size_t>(n));
        std::size_t at = 0;
        for (std::size_t stop; (stop = seat.rest.find('\n', at)) != std::string::npos;
             at = stop + 1)
            take(seat.rest.substr(at, stop - at));
        seat.rest.erase(0, at);
    }

    void take(const std::string &line)
    {
        if (!m_book.read(line))
            ++m_problems;
    }

    Sizes sizes() const
    {
        Sizes now;
        now.saves = m_book.saves();
        rusage ended{};
        ::getrusage(RUSAGE_CHILDREN, &ended);
        now.seconds = processorSeconds(ended.ru_utime, ended.ru_stime);
        for (const Seat &seat : m_seats)
            now.seconds += processorSeconds(seat.station->process());
        for (std::size_t i = 0; i < lasting(); ++i) {
            const std::string process = "/proc/" + std::to_string(m_seats[i].station->process());
            long all = 0;
            long resident = 0;
            std::ifstream(process + "/statm") >> all >> resident;
            now.memory += resident;
            std::error_code gone;
            const std::filesystem::directory_iterator files(process + "/fd", gone);
            now.files = std::max<long>(now.files,
                                       std::distance(files, std::filesystem::directory_iterator()));
        }
        return now;
    }

    void tell(const Sizes &now) const
    {
        std::error_code gone;
        const std::string base = m_path.substr(0, m_path.size() - 3);
        std::cout << now.saves << " saves, " << m_kills << " kills, memory " << now.memory
                  << " pages, " << now.files << " descriptors, index "
                  << std::filesystem::file_size(base + "cdx", gone) << " bytes" << std::endl;
    }

    std::string m_path;
    std::vector<Seat> m_seats;
    std::vector<Sizes> m_sizes;
    SoakBook m_book;
    std::mt19937 m_random{7};
    int m_begun = 0;
    int m_kills = 0;
    int m_problems = 0;
};

// The index's size for each byte of one just built.
double indexGrowth(const std::string &path)
{
    const std::string index = path.substr(0, path.size() - 3) + "cdx";
    const auto before = std::filesystem::file_size(index);
    const TestSession session(100);
    code4accessMode(session, 1);
    const Handle table = d4open(session, path);
    if (d4reindex(table) != r4success)
        return 0;
    d4close(table);
    return static_cast<double>(before) / static_cast<double>(std::filesystem::file_size(index));
}

void makeCounter(const std::string &path)
{
    makeTable(path, counterTable());
    const TestSession session;
    const Handle table = d4open(session, path);
    d4appendStartVB(table, 0);
    d4blank(table);
    assign(table, "tblname", "PEOPLE.DBF");
    assign(table, "lastid", 1);
    d4append(table);
    d4close(table);
}

// Numbers that nobody was told of, who died with them; less than 0 when the counter is behind.
int unheard(const SoakBook &book, const std::string &path)
{
    const TestSession session(100, 10);
    int next = 0;
    const std::string problem = takeId(session, path, next);
    if (!problem.empty() || (!book.numbers().empty() && *book.numbers().rbegin() >= next)) {
        std::cout << "the counter stands at " << next << "; " << problem << '\n';
        return -1;
    }
    return next - 1 - static_cast<int>(book.numbers().size());
}

} // namespace

int main(int argc, char **argv)
{
    if (argc == 6 && std::string(argv[1]) == "--work") {
        std::cout << soakWork(argv[2], std::atoi(argv[3]), std::atoi(argv[4]), argv[5]) << '\n';
        return 1;
    }
    const int stations = argc > 1 ? std::atoi(argv[1]) : 8;
    const int seconds = argc > 2 ? std::atoi(argv[2]) : 60;
    const int rhythm = argc > 3 ? std::atoi(argv[3]) : 200;
    const TempFolder temporary;
    const std::string folder = argc > 4 ? argv[4] : temporary / "";
    std::filesystem::create_directories(folder);
    const std::string path = folder + "/people.dbf";
    const std::string counter = folder + "/counter.dbf";
    makeTable(path, peopleTable());
    makeCounter(counter);

    Soak soak(path, stations);
    soak.run(std::chrono::seconds(seconds), std::chrono::milliseconds(rhythm));
    const std::string found = findings(path) + findings(counter);
    std::cout << found;
    const int lost = soak.book().lost(path);
    const double memory = static_cast<double>(soak.last().memory) /
                          static_cast<double>(std::max(soak.first().memory, 1L));
    const double index = indexGrowth(path);
    const SoakBook &book = soak.book();
    const int asked = rhythm > 0 && stations > 1 ? seconds * 1000 / rhythm : 0;
    const int silent = unheard(book, counter);
    const bool good = lost == 0 && found.empty() && soak.problems() == 0 && soak.kills() >= asked &&
                      silent >= 0 && silent <= soak.kills() + stations;
    const bool answered = book.longest(1) <= 1000 && book.longest(0) < 10000;
    const bool steady = memory <= 1.05 && soak.last().files <= soak.first().files + 4 &&
                        soak.pace() >= 0.9 && index > 0 && index <= 1.5;
    std::cout << seconds << " s, " << soak.kills() << " kills of " << asked << ", " << book.saves()
              << " saves, " << book.lookUps() << " look-ups, " << book.numbers().size()
              << " numbers, " << lost << " lost, " << soak.problems() << " complaints, "
              << (found.empty() ? "sound" : "NOT sound") << "; 99 of 100 steps within "
              << book.longest(1) << " ms, the slowest " << book.longest(0) << " ms"
              << (answered ? "" : " (NOT answered in time)") << "; memory x " << memory
              << ", descriptors " << soak.first().files << " to " << soak.last().files
              << ", last tenth x " << soak.pace() << ", index x " << index << " of a fresh one"
              << (steady ? "" : " (NOT steady)") << '\n';
    return good && (answered || seconds < 30) && (steady || seconds < 600) ? 0 : 1;
}
