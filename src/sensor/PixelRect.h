#pragma once

#include <QRect>

/// No sensor is as large; a sum of two such numbers still is an int.
constexpr int largestCoordinate = 1 << 29;

/// Whole pixels of a rectangle that a camera tells, each value truncated on its own. Numbers beyond
/// any sensor saturate.
QRect truncatedRect(double x, double y, double width, double height);
