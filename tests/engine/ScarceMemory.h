// Memory of this test program that runs out on order: operator new is replaced for all of it.
#pragma once

#include <cstddef>

namespace enginetest::memory
{

// The n-th allocation from now on fails, and when `forEver` all later ones.
void failAt(int allocation, bool forEver);
// No allocation fails any more; true when one has.
bool stop();
// The largest single allocation, in bytes, since the last call.
std::size_t largest();

} // namespace enginetest::memory
