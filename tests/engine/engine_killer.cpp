// Stations save people while one of them after the other is killed; then every save that was
// reported as done must be there, and the table sound.
//
//   engine_killer [STATIONS [SECONDS [MILLISECONDS]]]
//
// A station is killed every MILLISECONDS and another takes its place. The exit status is 1 when
// anything was lost.
#include "engine/Station.h"
#include "engine/TableFixture.h"

#include <chrono>
#include <cstdlib>
#include <iostream>
#include <map>
#include <memory>
#include <random>
#include <thread>
#include <vector>

using namespace norvane::engine;
using namespace enginetest;

namespace
{

using Names = std::map<int, std::string>;

class Killer
{
public:
    Killer(std::string path, std::size_t stations) : m_path(std::move(path)), m_stations(stations)
    {
        for (auto &station : m_stations)
            begin(station);
    }

    void run(std::chrono::milliseconds rhythm, std::chrono::seconds length)
    {
        const auto end = std::chrono::steady_clock::now() + length;
        while (std::chrono::steady_clock::now() < end) {
            std::this_thread::sleep_for(rhythm);
            auto &victim = m_stations[m_random() % m_stations.size()];
            kill(victim);
            begin(victim);
        }
        for (auto &station : m_stations)
            kill(station);
    }

    int lost() const
    {
        const TestSession session(100, 10);
        const Handle table = d4open(session, m_path);
        int count = 0;
        for (const auto &[id, name] : m_saved) {
            // the next save of the row may have been done and not told
            const std::string later = "Other " + std::to_string(id);
            const bool found = findPerson(table, id) == r4success;
            const std::string now = found ? text(table, "name") : "";
            if ((now != name && now != later) || memo(table, "notes") != "note " + now) {
                std::cout << "row " << id << " was saved as " << name << " and is \"" << now
                          << "\"\n";
                ++count;
            }
        }
        d4close(table);
        return count;
    }

    std::size_t saved() const { return m_saved.size(); }
    int kills() const { return m_kills; }
    bool sound() const { return m_problems == 0; }

private:
    void begin(std::unique_ptr<Station> &station)
    {
        station = std::make_unique<Station>();
        station->tell("ack " + m_path + ' ' + std::to_string(++m_begun * 100000));
    }

    void kill(std::unique_ptr<Station> &station)
    {
        station->kill();
        ++m_kills;
        for (const std::string &line : station->lastWords()) {
            const std::size_t blank = line.find(' ');
            const int id = std::atoi(line.c_str());
            if (id > 0 && blank != std::string::npos) {
                m_saved[id] = line.substr(blank + 1);
            } else {
                std::cout << "a station: " << line << '\n';
                ++m_problems;
            }
        }
    }

    std::string m_path;
    std::vector<std::unique_ptr<Station>> m_stations;
    std::mt19937 m_random{7};
    Names m_saved; // as last told
    int m_begun = 0;
    int m_kills = 0;
    int m_problems = 0;
};

} // namespace

int main(int argc, char **argv)
{
    const int stations = argc > 1 ? std::atoi(argv[1]) : 4;
    const int seconds = argc > 2 ? std::atoi(argv[2]) : 5;
    const int rhythm = argc > 3 ? std::atoi(argv[3]) : 200;
    const TempFolder folder;
    const std::string path = folder / "people.dbf";
    makeTable(path, peopleTable());
    Killer killer(path, static_cast<std::size_t>(stations));
    killer.run(std::chrono::milliseconds(rhythm), std::chrono::seconds(seconds));
    const std::string found = findings(path);
    const int lost = killer.lost();
    std::cout << killer.kills() << " kills, " << killer.saved() << " rows saved, " << lost
              << " lost\n"
              << found << (found.empty() ? "sound\n" : "NOT sound\n");
    return lost == 0 && found.empty() && killer.sound() ? 0 : 1;
}
