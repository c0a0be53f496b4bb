// Waiting for a lock by trying again: the blocking system calls know neither a bound nor deadlocks.
#pragma once

#include "db/engine/Status.h"

#include <chrono>
#include <functional>

namespace norvane::engine
{

// How long to try: attempts times delay, without end for -1.
struct LockPatience {
    int attempts = -1;
    std::chrono::milliseconds delay{1000};
    std::function<void(std::chrono::milliseconds)> onWait; // between tries, with the time so far
};

// Record locks are held as long as a save takes, the others for parts of a millisecond.
enum class LockPace { Record, Brief };

// Calls `tryOnce` until it gives something else than Locked or the patience ends.
Status waitForLock(const LockPatience &patience, LockPace pace,
                   const std::function<Status()> &tryOnce);

} // namespace norvane::engine
