// Several stations change one table at random, then everything is checked.
//
//   engine_stress [STATIONS [OPERATIONS [FOLDER]]]
//
// OPERATIONS is for all stations together. The folder, made when it is missing, stays for looking
// at; without one a temporary folder is used. The exit status is 1 when anything was wrong.
#include "engine/Station.h"
#include "engine/TableFixture.h"

#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <memory>
#include <vector>

using namespace enginetest;

namespace
{

bool runStations(const std::string &path, int count, int operations)
{
    std::vector<std::unique_ptr<Station>> stations;
    for (int i = 1; i <= count; ++i) {
        stations.push_back(std::make_unique<Station>());
        stations.back()->tell("churn " + path + ' ' + std::to_string(i) + ' ' +
                              std::to_string(operations / count));
    }
    bool good = true;
    for (const auto &station : stations) {
        const std::string answer = station->answer();
        if (answer != "ok") {
            std::cout << "a station: " << answer << '\n';
            good = false;
        }
    }
    return good;
}

} // namespace

int main(int argc, char **argv)
{
    const int count = argc > 1 ? std::atoi(argv[1]) : 4;
    const int operations = argc > 2 ? std::atoi(argv[2]) : 800;
    const TempFolder temporary;
    std::string path = temporary / "people.dbf";
    if (argc > 3) {
        std::filesystem::create_directories(argv[3]);
        path = std::string(argv[3]) + "/people.dbf";
    }
    makeTable(path, peopleTable());
    bool good = count > 0 && runStations(path, count, operations);
    const std::string found = findings(path);
    std::cout << found << (good && found.empty() ? "sound\n" : "NOT sound\n");
    return good && found.empty() ? 0 : 1;
}
