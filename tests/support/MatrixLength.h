// How far the long-winded reliability tests go. NORVANE_MATRIX is not set in ./test, which takes a
// sample; "short" in .ci/run, which goes further; "long" in tests/long.sh, which leaves nothing out.
#pragma once

#include <cstdlib>
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

} // namespace norvane::test
