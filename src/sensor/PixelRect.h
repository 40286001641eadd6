#pragma once

#include "features/NumberConversion.h"

#include <QRect>

#include <algorithm>

/// No sensor is as large; a sum of two such numbers still is an int.
constexpr int largestCoordinate = 1 << 29;

/// Each value truncated on its own. Numbers beyond any sensor saturate.
inline QRect truncatedRect(double x, double y, double width, double height)
{
    const auto wholePixels = [](double value) {
        return std::clamp(toInt(value), -largestCoordinate, largestCoordinate);
    };
    return {wholePixels(x), wholePixels(y), wholePixels(width), wholePixels(height)};
}
