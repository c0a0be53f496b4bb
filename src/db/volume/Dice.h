// Numbers that look random, the same each time for a seed.
#pragma once

#include <cstdint>
#include <iterator>

namespace volume
{

class Dice
{
public:
    explicit Dice(std::uint64_t seed) : m_state(seed) {}

    std::uint64_t next()
    {
        m_state += 0x9E3779B97F4A7C15;
        std::uint64_t z = m_state;
        z = (z ^ z >> 30) * 0xBF58476D1CE4E5B9;
        z = (z ^ z >> 27) * 0x94D049BB133111EB;
        return z ^ z >> 31;
    }
    int below(int limit) { return static_cast<int>(next() % static_cast<std::uint64_t>(limit)); }
    template <class List>
    auto &oneOf(const List &list)
    {
        return list[next() % std::size(list)];
    }

private:
    std::uint64_t m_state;
};

} // namespace volume
