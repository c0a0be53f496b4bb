// Seconds that a piece of work takes.
#pragma once

#include <chrono>

namespace bench
{

template <class F>
double seconds(F work)
{
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

// Of one of `count` times, in microseconds.
template <class F>
double microsecondsEach(int count, F work)
{
    return seconds([&] {
               for (int i = 0; i < count; ++i)
                   work();
           }) *
           1e6 / count;
}

} // namespace bench
