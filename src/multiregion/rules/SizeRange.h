#pragma once

/// Range and increment of a size feature as the camera reports them, in sensor pixels. A bound that
/// is not positive bounds nothing; an increment that is not counts as 0.
struct SizeRange
{
    double minimum = 0.0;
    double maximum = 0.0;
    double increment = 0.0;
};

/// The size next to @p size within the range; the minimum wins over the maximum.
double withinRange(double size, const SizeRange& range);

/// 0 when it is negative.
double incrementOf(const SizeRange& range);
