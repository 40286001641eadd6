#pragma once

/// What the camera allows for a size, sensor pixels. A bound of 0 bounds nothing.
struct SizeRange
{
    double minimum = 0.0;
    double maximum = 0.0;
    double increment = 0.0;
};
