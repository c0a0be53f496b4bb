// How far the long-winded reliability tests go. NORVANE_MATRIX is not set in ./test, which takes a
// sample; "short" in .ci/run, which goes further; "long" in tests/long.sh, which leaves nothing
// out.
#pragma once

#include <cstdlib>
#include <iostream>
#include <map>
#include <string>
#include <string_view>

namespace norvane::test
{

template <class T>
T matrixLength(T sample, T shortRun, T longRun)
{
    const char *set = std::getenv("NORVANE_MATRIX");
    const std::string_view wanted = set ? set : "";
    return wanted == "long" ? longRun : wanted == "short" ? shortRun : sample;
}

// Counts what is gone through; the sums are told when the program ends and stand in
// docs/crash-safety.md.
inline void countPoint(const char *what)
{
    struct Sums {
        std::map<std::string, long> of;
        ~Sums()
        {
            for (const auto &[name, count] : of)
                std::cout << "matrix: " << count << ' ' << name << '\n';
        }
    };
    static Sums sums;
    ++sums.of[what];
}

} // namespace norvane::test
