#include "db/engine/LockWait.h"

#include <algorithm>
#include <thread>

namespace norvane::engine
{

Status waitForLock(const LockPatience &patience, LockPace pace,
                   const std::function<Status()> &tryOnce)
{
    using namespace std::chrono;
    Status status = tryOnce();
    if (status.ok() || status.error().kind != ErrorKind::Locked)
        return status;

    const bool endless = patience.attempts < 0;
    const steady_clock::time_point start = steady_clock::now();
    const steady_clock::time_point end = start + patience.delay * std::max(patience.attempts, 0);
    const microseconds longest = pace == LockPace::Record ? 25ms : 4ms;
    microseconds pause = pace == LockPace::Record ? 1ms : 50us;
    for (;;) {
        const steady_clock::time_point now = steady_clock::now();
        if (!endless && now >= end)
            return status;
        if (patience.onWait && now - start >= 1ms)
            patience.onWait(duration_cast<milliseconds>(now - start));
        const auto left = duration_cast<microseconds>(end - now);
        std::this_thread::sleep_for(endless ? pause : std::min(pause, left));
        pause = std::min(pause * 2, longest);
        status = tryOnce();
        if (status.ok() || status.error().kind != ErrorKind::Locked)
            return status;
    }
}

} // namespace norvane::engine
