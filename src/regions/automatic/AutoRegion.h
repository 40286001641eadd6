#pragma once

#include "regions/automatic/RegionLimits.h"
#include "regions/label/SensorRegion.h"

#include <QPointF>

// The region that the automatic functions evaluate, in image pixels. Some cameras count it from an
// offset of their own, the origin; the label shows it without.

/// The six region fields of the page.
struct AutoRegionFields
{
    double top = 0.0;
    double left = 0.0;
    double right = 0.0;
    double bottom = 0.0;
    double width = 0.0;
    double height = 0.0;
};

/// The fields for a region drawn on the label.
AutoRegionFields fieldsForRegion(const SensorRegion& region, const QPointF& origin);

/// The region to draw for offset and size fields, cut to the limits.
SensorRegion drawnAutoRegion(const AutoRegionFields& fields, const QPointF& origin,
                             const RegionLimits& limits);

/// The whole multiple of @p step, both truncated, at or next below @p value, as it is written.
double onGrid(double value, double step);

/// Whether an axis reaches beyond its limit.
bool exceedsLimit(double offset, double origin, double size, qint64 limit);
