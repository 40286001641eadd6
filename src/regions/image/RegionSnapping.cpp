#include "regions/image/RegionSnapping.h"

#include "features/NumberConversion.h"

#include <QString>

#include <cmath>

namespace {

bool isOdd(double value)
{
    return std::fmod(std::trunc(value), 2.0) != 0.0;
}

} // namespace

double snappedUp(double value, const FieldGrid& grid)
{
    const double step = toInt(grid.step);
    if (step < 1.0 || !std::isfinite(value))
        return value;
    const double minimum = toInt(grid.minimum);
    const double distance = std::trunc(value) - minimum;
    const double remainder = std::fmod(distance, step);
    if (remainder == 0.0)
        return value;
    return minimum + (remainder > 0.0 ? step : 0.0) + step * std::trunc(distance / step);
}

bool needsEvenSize(const QString& offsetCategory, const QString& pixelFormat)
{
    return offsetCategory == QLatin1String("/ImageFormat")
        && (pixelFormat.contains(QLatin1String("Bayer"))
            || pixelFormat.contains(QLatin1String("YUV")));
}

double raisedToEven(double value)
{
    return isOdd(value) ? value + 1.0 : value;
}

double cutToMaximum(double value, double otherValue, double maximum)
{
    return otherValue + value > maximum ? maximum - otherValue : value;
}

OffsetRange evenOffsetRange(const OffsetRange& range)
{
    return {range.minimum < 2.0 && isOdd(range.minimum) ? 2.0 : range.minimum,
            raisedToEven(range.maximum), range.increment < 2.0 ? 2.0 : range.increment};
}
