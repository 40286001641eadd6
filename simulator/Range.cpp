#include "Range.h"

#include <algorithm>
#include <cmath>

namespace sim {

namespace {

// A double that was divided and multiplied by the increment does not come back bit by bit.
constexpr double gridTolerance = 1e-6;

// Distances between 64-bit integers need 64 bits without a sign.
std::uint64_t distance(std::int64_t from, std::int64_t to)
{
    return static_cast<std::uint64_t>(to) - static_cast<std::uint64_t>(from);
}

std::int64_t advanced(std::int64_t from, std::uint64_t by)
{
    return static_cast<std::int64_t>(static_cast<std::uint64_t>(from) + by);
}

} // namespace

bool isLegal(const IntegerRange& range, std::int64_t value)
{
    if (value < range.minimum || value > range.maximum)
        return false;
    return range.increment <= 0
        || distance(range.minimum, value) % static_cast<std::uint64_t>(range.increment) == 0;
}

bool isLegal(const FloatRange& range, double value)
{
    if (!(value >= range.minimum && value <= range.maximum))
        return false;
    if (!(range.increment > 0.0))
        return true;
    const double steps = (value - range.minimum) / range.increment;
    return std::abs(steps - std::round(steps)) <= gridTolerance * std::max(1.0, std::abs(steps));
}

std::int64_t legalBelow(const IntegerRange& range, std::int64_t value)
{
    if (value <= range.minimum || range.maximum <= range.minimum)
        return range.minimum;
    const std::int64_t bounded = std::min(value, range.maximum);
    const std::uint64_t steps = distance(range.minimum, bounded);
    const std::uint64_t step
        = range.increment > 0 ? static_cast<std::uint64_t>(range.increment) : 1;
    return advanced(range.minimum, steps - steps % step);
}

double legalBelow(const FloatRange& range, double value)
{
    if (!(value > range.minimum) || !(range.maximum > range.minimum))
        return range.minimum;
    const double bounded = std::min(value, range.maximum);
    if (!(range.increment > 0.0))
        return bounded;
    const double steps = std::floor((bounded - range.minimum) / range.increment + gridTolerance);
    return std::min(range.minimum + steps * range.increment, range.maximum);
}

std::int64_t nearestLegal(const IntegerRange& range, std::int64_t value)
{
    const std::int64_t below = legalBelow(range, value);
    if (value <= below || range.increment <= 0)
        return below;
    const auto step = static_cast<std::uint64_t>(range.increment);
    const std::uint64_t above = distance(below, value);
    const bool nextExists = distance(below, range.maximum) >= step;
    return nextExists && above >= step - above ? advanced(below, step) : below;
}

double nearestLegal(const FloatRange& range, double value)
{
    const double below = legalBelow(range, value);
    if (!(value > below) || !(range.increment > 0.0))
        return below;
    const double next = below + range.increment;
    return next <= range.maximum && value - below >= next - value ? next : below;
}

} // namespace sim
