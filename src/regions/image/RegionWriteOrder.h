#pragma once

#include "regions/image/RegionSnapping.h"

/// Offset and size of a region along one axis, in sensor pixels.
struct AxisSpan
{
    double offset = 0.0;
    double size = 0.0;
};

/// A span that reaches beyond the maximum size is cut there and moved back by one step; any other
/// stays. Snapping, and corner drags, take a region that far.
/// @param sizeField the grid of the axis's size
/// @param step by which the offset moves: of the height field vertically, of the left field
///     horizontally
AxisSpan overflowCorrected(const AxisSpan& span, double maximum, const FieldGrid& sizeField,
                           double step);

/// Whether the camera takes the offset before the size: the size it has now must fit behind the new
/// offset, and the offset within its present range. Otherwise the size goes first.
bool writesOffsetFirst(double offset, double currentSize, double maximum, double offsetMaximum);
