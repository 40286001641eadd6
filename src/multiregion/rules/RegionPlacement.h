#pragma once

#include <QRect>
#include <Qt>

/// What the camera allows for a size, sensor pixels. A bound of 0 bounds nothing.
struct SizeRange
{
    double minimum = 0.0;
    double maximum = 0.0;
    double increment = 0.0;
};

/// What the place of a new region depends on, in sensor pixels, along an axis.
struct PlacementRequest
{
    int sensorSize = 0; ///< along the axis
    QRect first;        ///< region 0, whose place across the axis is taken over
    QRect predecessor;
    QRect current; ///< the region itself
    SizeRange size;
};

/// One increment behind its predecessor, so that the two never touch; a region that lies behind it
/// already stays. Null where less than the minimum size is left. Rows are bounded by the sensor
/// alone: for Qt::Vertical the maximum of the range does not count.
QRect placedRegion(Qt::Orientation axis, const PlacementRequest& request);
