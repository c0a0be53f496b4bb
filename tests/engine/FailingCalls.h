// The system's file calls under the engine of this test program, one of them failing: the linker
// leads the engine's calls through here (--wrap in CMakeLists.txt).
#pragma once

namespace enginetest::failing
{

// What a call does instead of its work.
struct Fault {
    int number = 0;    // errno; 0: only half of what was asked is read or written
    bool room = false; // only calls that may need room on the disk
    bool forEver = false;
    bool folder = false; // only the sync of a folder
};

// The n-th call from now on that the fault can befall fails, and when `forEver` all later ones.
void at(int call, const Fault &fault);
// No call fails any more; true when one has.
bool stop();

} // namespace enginetest::failing
