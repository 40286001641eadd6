#pragma once

#include <cstdint>
#include <limits>

namespace sim {

/// Which of the calls that match a rule fail: counted from 1, or by chance with a seed.
struct Occurrence
{
    std::uint64_t first = 1;
    std::uint64_t count = std::numeric_limits<std::uint64_t>::max();
    double probability = 1.0;
    std::uint64_t seed = 0;

    static Occurrence always() { return {}; }
    static Occurrence nth(std::uint64_t call) { return {call, 1, 1.0, 0}; }
    static Occurrence from(std::uint64_t call)
    {
        return {call, std::numeric_limits<std::uint64_t>::max(), 1.0, 0};
    }
    static Occurrence randomly(double probability, std::uint64_t seed)
    {
        return {1, std::numeric_limits<std::uint64_t>::max(), probability, seed};
    }
};

} // namespace sim
