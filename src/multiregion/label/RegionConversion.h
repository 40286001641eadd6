#pragma once

#include "multiregion/label/SensorMapping.h"
#include "sensor/Span.h"

#include <QVector>

#include <limits>

/// What the camera allows on one axis of a region, in sensor pixels. An increment below 2 rounds
/// nothing.
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
const ShownRegion& regionIn(const QVector<ShownRegion>& regions, int number);

/// One axis of a region after a drag.
///
/// Only edges that the drag moved are converted, to where the camera would round them; a span that
/// moved as a whole keeps its stored length.
Span<int> convertedSpan(const ShownRegion& dragged, Qt::Orientation axis,
                        const SensorMapping& mapping);

/// Takes a converted span back to the edge of a neighbour that it overlaps on the sensor though not
/// on the label, rounded away from it. Edges that the drag did not move stay.
Span<int> keptOffNeighbour(const Span<int>& span, const ShownRegion& dragged, Qt::Orientation axis,
                           const ShownRegion& neighbour, const SensorMapping& mapping);

/// The region in sensor pixels. A region that would still overlap another one of @p shown from
/// which the label shows it apart keeps its rectangle.
QRect convertedRegion(const ShownRegion& dragged, const QVector<ShownRegion>& shown,
                      const SensorMapping& mapping);
