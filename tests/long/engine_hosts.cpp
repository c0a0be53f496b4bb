// Two stations, each on a host of its own, on one folder.
//
//   engine_hosts FOLDER TESTS ROUNDS [HOST_A HOST_B [CUT JOIN]]
//
// TESTS is a list of numbers, walk, change, dead, link and full with commas. HOST_A and HOST_B are
// words put before the command of a station, such as "nsenter -t 123 -n -m"; without them both are
// stations of this machine. CUT and JOIN are commands that take the first host off the network and
// back; for `full` they fill the folder's disk but for a little and empty it again. Each test
// prints a line; the exit status is 1 when one did not hold.
#include "engine/Churn.h"
#include "engine/Station.h"

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <iostream>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <sstream>
#include <thread>

#include <poll.h>

using namespace enginetest;
using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

namespace
{

constexpr int kFixed = 100; // rows of the walk that stay

double secondsSince(Clock::time_point begun)
{
    return std::chrono::duration<double>(Clock::now() - begun).count();
}

struct Hosts {
    std::string folder;
    int rounds = 100;
    std::string first, second; // what is put before a station's command
    std::string cut, join;

    std::string path(const char *name) const { return folder + '/' + name; }
    std::unique_ptr<Station> station(const std::string &host) const
    {
        std::istringstream words(host);
        std::vector<std::string> command;
        for (std::string word; words >> word;)
            command.push_back(word);
        command.push_back(Station::program());
        auto made = std::make_unique<Station>(command);
        made->ask("attempts 300 10");
        return made;
    }
};

// Nothing when the station does not answer in time.
std::optional<std::string> answerIn(Station &station, std::chrono::seconds time)
{
    pollfd end{station.output(), POLLIN, 0};
    if (::poll(&end, 1, static_cast<int>(std::chrono::milliseconds(time).count())) <= 0)
        return {};
    return station.answer();
}

bool wrong(const std::string &what)
{
    std::cout << "  " << what << std::endl;
    return false;
}

bool sound(Station &station, const std::string &path)
{
    const std::string found = station.ask("check " + path);
    return found == "sound" || wrong(found);
}

// A new row of the open table, which stays locked; false when it is refused.
bool append(Station &station, const std::vector<std::string> &fields)
{
    station.ask("begin");
    for (const std::string &field : fields)
        station.ask(field);
    return station.ask("append") == "0";
}

// Each takes its numbers, opening and closing the counter table for each: all are different and the
// counter has gone up by as many.
bool numbers(const Hosts &hosts)
{
    const auto a = hosts.station(hosts.first);
    const auto b = hosts.station(hosts.second);
    const std::string path = hosts.path("counter.dbf");
    a->ask("make counter " + path);
    a->ask("open " + path);
    append(*a, {"set tblname PEOPLE.DBF", "set lastid 1"});
    a->ask("unlock");
    a->ask("close");
    const auto begun = Clock::now();
    for (Station *station : {a.get(), b.get()})
        station->tell("numbers " + path + ' ' + std::to_string(hosts.rounds));
    std::set<int> taken;
    bool good = true;
    for (Station *station : {a.get(), b.get()}) {
        const std::string answer = station->answer();
        std::istringstream all(answer);
        int count = 0;
        for (int number = 0; all >> number; ++count)
            taken.insert(number);
        good = (count == hosts.rounds || wrong(answer)) && good;
    }
    const double each = secondsSince(begun) * 1000 / (2.0 * hosts.rounds);
    const int lost = 2 * hosts.rounds - static_cast<int>(taken.size());
    good = good && lost == 0 && *taken.rbegin() == 2 * hosts.rounds && sound(*b, path);
    std::cout << "numbers: 2 x " << hosts.rounds << ", " << lost << " given twice, " << each
              << " ms each" << std::endl;
    return good;
}

// The first keeps a walk open while the second adds and deletes rows in between; and what the
// second saved, the first one's next command sees.
bool walk(const Hosts &hosts)
{
    const auto a = hosts.station(hosts.first);
    const auto b = hosts.station(hosts.second);
    const std::string path = hosts.path("people.dbf");
    a->ask("make people " + path);
    for (Station *station : {a.get(), b.get()})
        station->ask("open " + path);
    for (int id = 1; id <= kFixed; ++id) {
        if (!append(*a, {"set rowid " + std::to_string(id), "set name " + fixedName(id)}) ||
            a->ask("unlock") != "0")
            return wrong("the first rows are not stored");
    }
    int stale = 0;
    int astray = 0;
    const auto begun = Clock::now();
    for (int round = 1; round <= hosts.rounds; ++round) {
        b->tell("push 4 " + std::to_string(round));
        if (const std::string seen = a->ask("watch " + std::to_string(kFixed)); seen != "ok")
            wrong(seen), ++astray;
        if (const std::string pushed = b->answer(); pushed != "ok")
            wrong(pushed), ++astray;
        const std::string number = std::to_string(1 + round * 37 % kFixed);
        const std::string city = "Round " + std::to_string(round);
        for (Station *station : {a.get(), b.get()})
            station->ask("tag rowid");
        b->ask("id " + number);
        b->ask("lock " + b->ask("recno"));
        b->ask("set city " + city);
        b->ask("setmemo notes " + city);
        if (b->ask("unlock") != "0")
            wrong("round " + std::to_string(round) + " is not stored"), ++astray;
        const std::string found = a->ask("id " + number);
        const std::string seen = a->ask("get city") + '/' + a->ask("memo notes");
        if (found != "0" || seen != city + '/' + city)
            wrong("round " + std::to_string(round) + " is seen as " + seen), ++stale;
    }
    std::cout << "walk: " << hosts.rounds << " rounds, " << astray
              << " with wrong or missing rows, " << stale << " with old data, "
              << secondsSince(begun) * 1000 / hosts.rounds << " ms each" << std::endl;
    return astray == 0 && stale == 0 && sound(*b, path);
}

// Both add, change and delete at once, each checking what it finds of its own.
bool change(const Hosts &hosts)
{
    const auto a = hosts.station(hosts.first);
    const auto b = hosts.station(hosts.second);
    const std::string path = hosts.path("change.dbf");
    a->ask("make people " + path);
    const int each = std::max(hosts.rounds / 2, 10);
    const auto begun = Clock::now();
    a->tell("churn " + path + " 1 " + std::to_string(each));
    b->tell("churn " + path + " 2 " + std::to_string(each));
    bool good = true;
    for (Station *station : {a.get(), b.get()}) {
        if (const std::string answer = station->answer(); answer != "ok")
            good = wrong(answer);
    }
    good = sound(*b, path) && good;
    std::cout << "change: 2 x " << each << (good ? ", sound, " : ", NOT sound, ")
              << secondsSince(begun) * 1000 / (2.0 * each) << " ms each" << std::endl;
    return good;
}

// A station that dies with a lock or in a save.
bool dead(const Hosts &hosts)
{
    const std::string path = hosts.path("dead.dbf");
    const auto b = hosts.station(hosts.second);
    b->ask("attempts 1 0");
    double longest = 0;
    int lost = 0;
    int saved = 0;
    b->ask("make people " + path);
    b->ask("open " + path);
    append(*b, {});
    b->ask("unlock");
    for (int round = 0; round < 10; ++round) {
        const auto a = hosts.station(hosts.first);
        a->ask("open " + path);
        if (a->ask("lock 1") != "0" || b->ask("lock 1") != "50")
            return wrong("the lock of the other is not seen");
        a->kill();
        const auto begun = Clock::now();
        while (b->ask("lock 1") != "0" && secondsSince(begun) < 60)
            std::this_thread::sleep_for(2ms);
        longest = std::max(longest, secondsSince(begun));
        b->ask("unlock");
    }
    b->ask("attempts 300 10");
    b->ask("tag rowid");
    for (int round = 1; round <= 20; ++round) {
        const auto a = hosts.station(hosts.first);
        a->tell("ack " + path + ' ' + std::to_string(round * 1000));
        a->answer();
        std::this_thread::sleep_for(std::chrono::milliseconds(50 + round * 7));
        a->kill();
        int last = round * 1000;
        for (const std::string &line : a->lastWords())
            last = std::max(last, std::atoi(line.c_str()));
        for (int id = round * 1000; id <= last; ++id, ++saved)
            lost += b->ask("id " + std::to_string(id)) != "0";
    }
    std::cout << "dead: lock free after at most " << longest * 1000 << " ms; " << saved
              << " saves of 20 killed stations, " << lost << " lost" << std::endl;
    return longest <= 1 && lost == 0 && sound(*b, path);
}

// The first host loses the network: an error within so many seconds as there are rounds, the other
// works on, and it works again afterwards.
bool linkDown(const Hosts &hosts)
{
    const std::string path = hosts.path("link.dbf");
    auto a = hosts.station(hosts.first);
    const auto b = hosts.station(hosts.second);
    a->ask("make people " + path);
    for (Station *station : {a.get(), b.get()}) {
        station->ask("open " + path);
        station->ask("tag rowid");
    }
    for (const char *id : {"1", "2"}) {
        append(*a, {std::string("set rowid ") + id});
        a->ask("unlock");
    }
    if (a->ask("lock 1") != "0" || std::system(hosts.cut.c_str()) != 0)
        return wrong("the link cannot be cut");
    auto begun = Clock::now();
    a->tell("id 2");
    const std::optional<std::string> sought = answerIn(*a, std::chrono::seconds(hosts.rounds));
    const double error = secondsSince(begun);
    begun = Clock::now();
    b->ask("attempts 1 0");
    while (b->ask("lock 1") != "0" && secondsSince(begun) < 150)
        std::this_thread::sleep_for(200ms);
    const double freed = secondsSince(begun) + error;
    b->ask("attempts 300 10");
    const bool others = b->ask("id 2") == "0";
    if (std::system(hosts.join.c_str()) != 0)
        return wrong("the link cannot be joined");
    begun = Clock::now();
    bool works = false;
    while (sought && !works && secondsSince(begun) < 60) {
        for (const std::string &command :
             {std::string("close"), "open " + path, std::string("tag rowid")})
            a->ask(command);
        works = a->ask("id 2") == "0";
    }
    if (!sought)
        a->kill();
    std::cout << "link down: " << (sought ? "answer " + *sought : "NO answer") << " after " << error
              << " s, the other " << (others ? "works on" : "does NOT work on")
              << ", its row lock free after " << freed << " s; works again after "
              << secondsSince(begun) << " s" << std::endl;
    return sought && *sought != "0" && others && works && sound(*b, path);
}

// The server's disk gets full under the first host's saves: what was told as saved is there, for
// the other host too, and with room the work goes on.
bool full(const Hosts &hosts)
{
    const std::string path = hosts.path("full.dbf");
    const auto a = hosts.station(hosts.first);
    const auto b = hosts.station(hosts.second);
    a->ask("make people " + path);
    b->ask("open " + path);
    b->ask("tag rowid");
    std::set<int> told;
    int lost = 0;
    int there = 0; // of those that were refused
    const auto save = [&](int id, int length) {
        a->ask("open " + path);
        const std::string text(static_cast<std::size_t>(length), 'n');
        const bool done = append(*a, {"set rowid " + std::to_string(id), "setmemo notes " + text});
        a->ask("unlock");
        a->ask("close");
        if (done)
            told.insert(id);
        return done;
    };
    const auto seen = [&](int id) { return b->ask("id " + std::to_string(id)) == "0"; };
    int id = 0;
    for (int round = 0; round < hosts.rounds; ++round) {
        if (!save(++id, 100))
            return wrong("with room nothing is saved");
        if (std::system(hosts.cut.c_str()) != 0)
            return wrong("the disk cannot be filled");
        const int first = id;
        while (save(++id, 50 + round * 311 % 3000) && id < first + 2000) {
        }
        for (int saved = first; saved < id; ++saved)
            lost += !seen(saved);
        if (std::system(hosts.join.c_str()) != 0)
            return wrong("the disk cannot be emptied");
        there += seen(id);
    }
    for (const int saved : told)
        lost += !seen(saved);
    std::cout << "full disk: " << hosts.rounds << " times, " << told.size() << " saves, " << lost
              << " lost, " << there << " refused and there all the same" << std::endl;
    return lost == 0 && sound(*b, path);
}

} // namespace

int main(int argc, char **argv)
{
    if (argc < 4) {
        std::cerr << "engine_hosts FOLDER TESTS ROUNDS [HOST_A HOST_B [CUT JOIN]]\n";
        return 2;
    }
    const auto word = [&](int i) { return std::string(i < argc ? argv[i] : ""); };
    const Hosts hosts{word(1), std::atoi(argv[3]), word(4), word(5), word(6), word(7)};
    bool good = true;
    std::istringstream tests(word(2));
    for (std::string test; std::getline(tests, test, ',');) {
        const std::map<std::string, bool (*)(const Hosts &)> all = {
            {"numbers", numbers}, {"walk", walk},     {"change", change},
            {"dead", dead},       {"link", linkDown}, {"full", full}};
        const auto run = all.find(test);
        if (run == all.end())
            return 2;
        good = run->second(hosts) && good;
    }
    return good ? 0 : 1;
}
