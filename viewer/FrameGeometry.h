#pragma once

#include "SensorState.h"

#include <QImage>
#include <QRectF>
#include <QTransform>

/// Where a sensor, its binned area and a frame lie on the screen, in widget pixels.
struct FramePlacement
{
    QRectF sensor;
    QRectF binnedArea;
    QRectF frame;
};

/// Size of the whole sensor in frame pixels; at least 1 x 1 for a sensor that has pixels.
QSize wholePicture(const SensorState& state);

/// The part of the binned area that one frame covers: the single region, or with multiple regions
/// the whole area, dark between the regions. Empty when the camera delivers no pixels.
QRect frameRect(const SensorState& state);

/// Maps a sensor pixel to the binned area. Regions are cut out after the reversal, so reversing
/// mirrors the picture within a region and leaves the region in its place.
QTransform sensorToBinned(const SensorState& state);

/// Fits the sensor into @p view with its aspect ratio kept. All three rectangles share one scale
/// per sensor pixel, so binning by 2 halves the drawn picture.
FramePlacement placeFrame(const SensorState& state, const QRectF& view);

/// @p frame at its place in a black picture of @p whole pixels, cut where it reaches beyond.
QImage placedFrame(const QImage& frame, const QRect& place, const QSize& whole);

/// Size at which a frame is rendered for a display of @p available pixels: its own size, or less.
QSize renderSize(const QSize& frame, const QSize& available);
