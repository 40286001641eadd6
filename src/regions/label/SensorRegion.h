#pragma once

#include <QSize>

/// A rectangle of the sensor area, in sensor pixels and in the order in which the region labels and
/// their pages pass it on.
struct SensorRegion
{
    int top = 0;
    int left = 0;
    int width = 0;
    int height = 0;

    static SensorRegion whole(const QSize& sensor)
    {
        return {0, 0, sensor.width(), sensor.height()};
    }
};

constexpr bool operator==(const SensorRegion& a, const SensorRegion& b)
{
    return a.top == b.top && a.left == b.left && a.width == b.width && a.height == b.height;
}

constexpr bool operator!=(const SensorRegion& a, const SensorRegion& b)
{
    return !(a == b);
}
