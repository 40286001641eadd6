#pragma once

#include <cstdint>
#include <limits>

namespace sim {

/// Legal values of a number feature: minimum, minimum + increment, ... up to the maximum. An
/// increment that is not positive means that there is none. The arithmetic stays defined for any
/// bounds, also for the absurd ones that a faulty camera reports.
template <typename Number> struct Range
{
    Number minimum;
    Number maximum;
    Number increment;
};

struct IntegerRange : Range<std::int64_t>
{
    IntegerRange(std::int64_t minimumBound = std::numeric_limits<std::int64_t>::min(),
                 std::int64_t maximumBound = std::numeric_limits<std::int64_t>::max(),
                 std::int64_t step = 1)
        : Range{minimumBound, maximumBound, step}
    {
    }
};

struct FloatRange : Range<double>
{
    FloatRange(double minimumBound = std::numeric_limits<double>::lowest(),
               double maximumBound = std::numeric_limits<double>::max(), double step = 0.0)
        : Range{minimumBound, maximumBound, step}
    {
    }
};

bool isLegal(const IntegerRange& range, std::int64_t value);
bool isLegal(const FloatRange& range, double value);

/// The legal value nearest to @p value, the upper one of two; the minimum if there is none.
std::int64_t nearestLegal(const IntegerRange& range, std::int64_t value);
double nearestLegal(const FloatRange& range, double value);

/// The greatest legal value that is not above @p value; the minimum if there is none.
std::int64_t legalBelow(const IntegerRange& range, std::int64_t value);
double legalBelow(const FloatRange& range, double value);

} // namespace sim
