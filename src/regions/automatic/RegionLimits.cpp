#include "regions/automatic/RegionLimits.h"

#include "features/NumberConversion.h"

#include <cmath>

namespace {

/// Differs from @p value by floating-point rounding only.
double scaledThroughIncrement(double value, double increment)
{
    return increment > 0.0 ? (value / increment) * increment : value;
}

} // namespace

qint64 aoiHeightLimit(double height, double increment, double minimumHeight, double minimumOffsetX)
{
    const double wholeHeight = std::trunc(height);
    const int wholeIncrement = toInt(increment);
    const bool offGrid = wholeIncrement > 0 && std::fmod(wholeHeight, wholeIncrement) != 0.0;
    const double remainder = offGrid ? minimumHeight : 0.0;
    return toInt64(scaledThroughIncrement(wholeHeight - remainder, increment) + minimumOffsetX);
}

qint64 aoiWidthLimit(double width, double increment, double minimumOffsetY)
{
    return toInt64(scaledThroughIncrement(width, increment) + minimumOffsetY);
}
