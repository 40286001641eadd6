#pragma once

/// Range and increment of a size feature as the camera reports them, in sensor pixels. A bound that
/// is 0 or missing (-1) bounds nothing; an increment that is missing counts as 0.
struct SizeRange
{
    double minimum = -1.0;
    double maximum = -1.0;
    double increment = -1.0;
};

/// The size next to @p size within the range; the minimum wins over the maximum.
double withinRange(double size, const SizeRange& range);

/// The increment, 0 when it is missing.
double incrementOf(const SizeRange& range);
