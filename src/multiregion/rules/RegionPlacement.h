#pragma once

#include "multiregion/rules/SizeRange.h"

#include <QRect>

/// Offset and size of a region along one axis, in sensor pixels as read from the camera.
struct RegionExtent
{
    double offset = 0.0;
    double size = 0.0;
};

/// What the place of a newly activated region depends on. "Along" is the axis on which the regions
/// follow one another.
struct PlacementRequest
{
    double sensorSize = 0.0;  ///< along
    RegionExtent predecessor; ///< the region before it, along
    RegionExtent current;     ///< the region itself, along
    RegionExtent first;       ///< region 0, across: the new region takes it over
    SizeRange size;           ///< the region's own, along
};

// A region is placed one increment behind its predecessor, so that the two never touch; one that
// lies behind it already stays. Where less than the minimum size is left, the result is the null
// rectangle.

/// In a row, from left to right.
QRect placedInRow(const PlacementRequest& request);

/// In a column, from top to bottom. The camera bounds rows by the sensor alone: the maximum of the
/// range does not count.
QRect placedInColumn(const PlacementRequest& request);
