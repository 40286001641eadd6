#include "regions/automatic/ExposureLimit.h"

#include "features/NumberConversion.h"

#include <cmath>
#include <limits>

namespace {

/// The language leaves values beyond single precision undefined.
float toFloat(double value)
{
    constexpr float largest = std::numeric_limits<float>::max();
    if (value > static_cast<double>(largest))
        return largest;
    if (value < static_cast<double>(-largest))
        return -largest;
    return static_cast<float>(value);
}

} // namespace

double exposureLimitToWrite(double value, double increment, int decimals, int scaleDecimals)
{
    if (!(increment > 0.0) || decimals <= 0)
        return value;
    const std::int64_t scale = toInt64(std::pow(10.0, scaleDecimals));
    return static_cast<double>(toFloat(static_cast<double>(scale) * value + 0.5)
                               / static_cast<float>(scale));
}
