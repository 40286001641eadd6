#include "sensor/PixelRect.h"

#include "features/NumberConversion.h"

#include <algorithm>

namespace {

int wholePixels(double value)
{
    return std::clamp(toInt(value), -largestCoordinate, largestCoordinate);
}

} // namespace

QRect truncatedRect(double x, double y, double width, double height)
{
    return {wholePixels(x), wholePixels(y), wholePixels(width), wholePixels(height)};
}
