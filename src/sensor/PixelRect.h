#pragma once

#include <QRect>

/// Whole pixels of a rectangle that a camera tells, each value truncated on its own. Numbers beyond
/// any sensor saturate where their sum still is an int.
QRect truncatedRect(double x, double y, double width, double height);
