#include "SizeRange.h"

#include "features/NumberConversion.h"

#include <algorithm>

namespace {

constexpr int largestCoordinate = 1 << 29;

int wholePixels(double value)
{
    return std::clamp(toInt(value), -largestCoordinate, largestCoordinate);
}

} // namespace

double withinRange(double size, const SizeRange& range)
{
    if (range.maximum > 0.0)
        size = std::min(size, range.maximum);
    return range.minimum > 0.0 ? std::max(size, range.minimum) : size;
}

double incrementOf(const SizeRange& range)
{
    return range.increment > 0.0 ? range.increment : 0.0;
}

QRect truncatedRect(double x, double y, double width, double height)
{
    return {wholePixels(x), wholePixels(y), wholePixels(width), wholePixels(height)};
}
