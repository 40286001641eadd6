#include "regions/image/AxisRules.h"

#include "features/NumberConversion.h"

#include <QString>

#include <algorithm>
#include <cmath>

namespace {

bool isOdd(double value)
{
    return std::fmod(std::trunc(value), 2.0) != 0.0;
}

} // namespace

bool mayNeedEvenSize(const QString& offsetCategory)
{
    return offsetCategory == QLatin1String("/ImageFormat");
}

bool needsEvenSize(const QString& offsetCategory, const QString& pixelFormat)
{
    return mayNeedEvenSize(offsetCategory)
        && (pixelFormat.contains(QLatin1String("Bayer"))
            || pixelFormat.contains(QLatin1String("YUV")));
}

double raisedToEven(double value)
{
    return isOdd(value) ? value + 1.0 : value;
}

Reading<double> evenOffsets(const Reading<double>& offset)
{
    Reading<double> even = offset;
    if (even.minimum && *even.minimum < 2.0 && isOdd(*even.minimum))
        even.minimum = 2.0;
    if (even.maximum)
        even.maximum = raisedToEven(*even.maximum);
    if (even.increment)
        even.increment = std::max(2.0, *even.increment);
    return even;
}

double cutToMaximum(double value, double otherValue, double maximum)
{
    return maximum > 0.0 && otherValue + value > maximum ? maximum - otherValue : value;
}

Span<double> onSensor(const Span<double>& span, double maximum)
{
    return spanBetween(std::min(span.start, maximum), std::min(span.end(), maximum));
}

Span<double> overflowCorrected(const Span<double>& span, double maximum, const FieldGrid& sizeField,
                               double step)
{
    if (span.end() <= maximum)
        return span;
    const double room = maximum - span.start;
    // The quotient is not truncated, so that the size ends at the maximum rather than on the grid.
    const double size = sizeField.step < 1.0
        ? room
        : sizeField.minimum + sizeField.step * ((room - sizeField.minimum) / sizeField.step);
    const double truncatedSize = std::trunc(size + 0.5);
    return {maximum - truncatedSize - toInt(step), truncatedSize};
}
