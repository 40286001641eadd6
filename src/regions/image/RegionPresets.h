#pragma once

#include "regions/label/SensorRegion.h"

#include <QPointF>
#include <QSize>

/// A centred part of the sensor that is @p factor times as wide and as high. Fractions of a pixel
/// are dropped.
/// @param maximum the maximum size, in sensor pixels
SensorRegion centredRegion(const QSize& maximum, double factor);

/// A centred part of the image for the camera's automatic functions.
struct AutoRegionPreset
{
    QPointF position; ///< with halves of a pixel, which the camera rounds
    QSize size;
};

/// @param limit the region's largest size
/// @param origin the offset from which the camera counts the region
AutoRegionPreset centredAutoRegion(const QSize& limit, double factor, const QPointF& origin);
