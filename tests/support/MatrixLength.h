// How far the long-winded reliability tests go: NORVANE_MATRIX is "short", "long", or not set,
// which is the sample that every run of ./test makes.
#pragma once

#include <cstdlib>
#include <string_view>

namespace norvane::test
{

template <class T>
T matrixLength(T sample, T shorter, T longer)
{
    const char *set = std::getenv("NORVANE_MATRIX");
    const std::string_view wanted = set ? set : "";
    return wanted == "long" ? longer : wanted == "short" ? shorter : sample;
}

} // namespace norvane::test
