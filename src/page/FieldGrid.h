#pragma once

/// The grid of a number field, which carries its feature's minimum and increment. Both count
/// truncated to int.
struct FieldGrid
{
    double minimum = 0.0;
    double step = 1.0;
};

/// The grid point at or next above @p value; the value itself when the step is below 1.
double snappedUp(double value, const FieldGrid& grid);
