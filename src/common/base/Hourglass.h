// The hourglass while it lives; given back on every way out. What is called in between may end it
// earlier, since it is not counted.
#pragma once

#include "common/base/clsSystem.h"

struct Hourglass {
    Hourglass() { clsSystem::WaitStart(); }
    ~Hourglass() { clsSystem::WaitEnd(); }
    Hourglass(const Hourglass &) = delete;
    Hourglass &operator=(const Hourglass &) = delete;
};
