#pragma once

#include <cstdint>
#include <limits>
#include <type_traits>

/// Truncates toward zero; what lies outside the target, which the language leaves undefined,
/// saturates, NaN becomes 0. Cameras report unset ranges as infinities or 2^63.
template <typename Integer> constexpr Integer saturatingCast(double value)
{
    static_assert(std::is_integral_v<Integer>);
    if (value != value)
        return 0;
    constexpr auto lowest = std::numeric_limits<Integer>::lowest();
    constexpr auto highest = std::numeric_limits<Integer>::max();
    if (value <= static_cast<double>(lowest))
        return lowest;
    if (value >= static_cast<double>(highest))
        return highest;
    return static_cast<Integer>(value);
}

constexpr int toInt(double value)
{
    return saturatingCast<int>(value);
}

constexpr std::int64_t toInt64(double value)
{
    return saturatingCast<std::int64_t>(value);
}

constexpr std::uint64_t toUInt64(double value)
{
    return saturatingCast<std::uint64_t>(value);
}
