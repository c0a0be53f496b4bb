// Watches the locks of a folder as an open database does: station_watch FOLDER SECONDS
// Says in one line what it found and after how long.
#include "db/StationWatch.h"

#include <chrono>
#include <cstdlib>
#include <iostream>
#include <string>
#include <thread>

int main(int argc, char **argv)
{
    using Finding = StationWatch::Finding;
    if (argc != 3)
        return 2;
    const auto begun = std::chrono::steady_clock::now();
    const auto seconds = [&] {
        return std::chrono::duration<double>(std::chrono::steady_clock::now() - begun).count();
    };
    StationWatch watch;
    Finding found =
        watch.start(norvane::engine::systemFiles(), std::string(argv[1]) + "/nvnstations.nvs");
    double after = seconds();
    while (found != Finding::Refused && seconds() < std::atof(argv[2])) {
        std::this_thread::sleep_for(StationWatch::Interval);
        const Finding now = watch.beat(); // also when all is known: the others want to find out
        if (now != found || now == Finding::None)
            after = seconds();
        found = now;
    }
    std::cout << (found == Finding::None   ? "all is well"
                  : found == Finding::Deaf ? "locks do not reach"
                                           : "locks are refused")
              << " after " << after << " s\n";
    return 0;
}
