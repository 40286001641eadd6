#pragma once

#include "multiregion/label/SensorMapping.h"
#include "sensor/Span.h"

#include <QVector>

#include <algorithm>
#include <limits>

/// What the camera allows on one axis, in sensor pixels. An increment below 2 rounds nothing.
struct AxisLimits
{
    int minimum = 1;                               ///< of the size
    int maximum = std::numeric_limits<int>::max(); ///< of the size, at the present offset
    int increment = 1;                             ///< of the size
    int offsetIncrement = 1;
};

struct RegionSizeLimits
{
    AxisLimits horizontal;
    AxisLimits vertical;

    const AxisLimits& along(Qt::Orientation axis) const
    {
        return axis == Qt::Horizontal ? horizontal : vertical;
    }
};

/// A region on the label. Its band stands for its rectangle until a drag moves it.
struct ShownRegion
{
    int number = 0;
    QRect rectangle; ///< sensor pixels
    QRect band;      ///< label pixels
    RegionSizeLimits limits;
};

/// The region with a number that is among @p regions, which ascend.
inline const ShownRegion& regionIn(const QVector<ShownRegion>& regions, int number)
{
    return *std::lower_bound(
        regions.begin(), regions.end(), number,
        [](const ShownRegion& region, int wanted) { return region.number < wanted; });
}
