#include "engine/ScarceMemory.h"

#include <algorithm>
#include <cstdlib>
#include <new>
#include <utility>

namespace enginetest::memory
{

namespace
{

int left = 0; // allocations until one fails; 0: none does
bool always = false;
bool failed = false;
std::size_t most = 0;

} // namespace

void failAt(int allocation, bool forEver)
{
    left = allocation;
    always = forEver;
    failed = false;
}

bool stop()
{
    left = 0;
    return failed;
}

std::size_t largest()
{
    return std::exchange(most, 0);
}

static void *allocate(std::size_t size)
{
    most = std::max(most, size);
    const bool strikes = left > 0 && --left == 0;
    if (strikes) {
        failed = true;
        left = always ? 1 : 0;
    }
    void *block = strikes ? nullptr : std::malloc(std::max<std::size_t>(size, 1));
    if (!block)
        throw std::bad_alloc();
    return block;
}

} // namespace enginetest::memory

void *operator new(std::size_t size)
{
    return enginetest::memory::allocate(size);
}

void *operator new(std::size_t size, const std::nothrow_t &) noexcept
try {
    return enginetest::memory::allocate(size);
} catch (const std::bad_alloc &) {
    return nullptr;
}

void operator delete(void *block) noexcept
{
    std::free(block);
}

void operator delete(void *block, std::size_t) noexcept
{
    std::free(block);
}
