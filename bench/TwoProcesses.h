// The same work in two processes at once.
#pragma once

#include <functional>

namespace bench
{

// Each process does `work(count)`, begun together; microseconds for one of the 2 * count.
// Throws when one of the processes fails.
double twoProcesses(int count, const std::function<void(int count)> &work);

} // namespace bench
