#include "regions/label/EdgeDrag.h"

#include <algorithm>

namespace {

/// The region that a band stands for. Across a flat sensor the band tells nothing.
SensorRegion readRegion(const EdgeDrag& drag, const QRect& band, const LabelGeometry& geometry)
{
    const double scale = sensorPerLabel(geometry);
    const bool flat = isFlat(geometry);
    return {flat ? drag.region.top : roundHalfUp(band.y() * scale), roundHalfUp(band.x() * scale),
            roundHalfUp(band.width() * scale),
            flat ? drag.region.height : roundHalfUp(band.height() * scale)};
}

/// Saturates: an offset may be any number.
int difference(int from, int amount)
{
    return toInt(static_cast<double>(from) - amount);
}

void clampOffset(int& offset, int size, int sensorSize)
{
    offset = std::max(0, std::min(difference(sensorSize, size), offset));
}

void clampSize(int& size, int offset, int sensorSize)
{
    size = std::max(0, std::min(difference(sensorSize, offset), size));
}

/// A move too: a displayed border is rounded, so that a band within it may still stand for a region
/// beyond it.
void clampHeld(SensorRegion& region, const EdgeGrab& held, const QSize& sensor)
{
    if (held.left || held.moving)
        clampOffset(region.left, region.width, sensor.width());
    if (held.right)
        clampSize(region.width, region.left, sensor.width());
    if (held.top || held.moving)
        clampOffset(region.top, region.height, sensor.height());
    if (held.bottom)
        clampSize(region.height, region.top, sensor.height());
}

QRect movedBand(const EdgeDrag& drag, const QRect& band, const QPoint& pointer,
                const LabelGeometry& geometry)
{
    const QSize room = displayedSize(geometry) - band.size();
    const int x = difference(pointer.x(), drag.grabOffset.x());
    const int y = difference(pointer.y(), drag.grabOffset.y());
    return {QPoint(std::max(0, std::min(room.width(), x)), std::max(0, std::min(room.height(), y))),
            band.size()};
}

QRect pulledBand(const EdgeGrab& follows, const QRect& band, const QPoint& pointer,
                 const LabelGeometry& geometry)
{
    QPoint first = band.topLeft();
    QPoint last = band.bottomRight();
    if (follows.left)
        first.setX(std::min(pointer.x(), last.x()));
    if (follows.top)
        first.setY(std::min(pointer.y(), last.y()));
    if (follows.right)
        last.setX(std::max(pointer.x(), band.x()));
    if (follows.bottom)
        last.setY(pointer.y());
    if (follows.right && follows.bottom) {
        last.setX(std::min(last.x(), displayedSize(geometry).width()));
        last.setY(std::min(last.y(), heightForWidth(geometry.label.width(), geometry.sensor)));
    }
    return atLeastOnePixel(QRect(first, last));
}

} // namespace

EdgeDrag dragFromPress(const QPoint& point, const QRect& band, Qt::CursorShape shown,
                       const SensorRegion& region, const LabelGeometry& geometry)
{
    const EdgeGrab held = flagsForPress(bandForMouse(band, geometry), point);
    SensorRegion start = region;
    start.top = std::max(0, start.top);
    return {held, followingEdges(held, isFlat(geometry) ? Qt::SizeHorCursor : shown),
            point - band.topLeft(), start};
}

EdgeDragStep dragBand(const EdgeDrag& drag, const QRect& band, const QPoint& pointer,
                      const LabelGeometry& geometry)
{
    const EdgeGrab& follows = drag.follows;
    EdgeDragStep step{follows.moving ? movedBand(drag, band, pointer, geometry)
                                     : pulledBand(follows, band, pointer, geometry),
                      drag.region};
    const SensorRegion read = readRegion(drag, step.band, geometry);
    if (follows.moving || follows.left)
        step.region.left = read.left;
    if (follows.left || follows.right)
        step.region.width = read.width;
    if (follows.moving || follows.top)
        step.region.top = read.top;
    // Rounded down, unlike all others: the region never begins below the pointer.
    if (follows.top && follows.right)
        step.region.top = toInt(step.band.y() * sensorPerLabel(geometry) - 0.5);
    // The top edge alone moves the offset; the height waits for the release.
    if (follows.bottom || (follows.top && follows.left))
        step.region.height = read.height;
    clampHeld(step.region, drag.held, geometry.sensor);
    return step;
}

SensorRegion regionForRelease(const EdgeDrag& drag, const QRect& band, const QPoint& pointer,
                              const LabelGeometry& geometry)
{
    const EdgeGrab& held = drag.held;
    const QSize& sensor = geometry.sensor;
    const SensorRegion read = readRegion(drag, band, geometry);
    SensorRegion region = drag.region;

    if (held.top || held.moving)
        region.top = read.top;
    if (held.left || held.moving)
        region.left = read.left;
    if (held.left || held.right)
        region.width = pointer.x() >= geometry.label.width()
            ? difference(sensor.width(), region.left)
            : read.width;
    if (held.top || held.bottom)
        region.height = pointer.y() >= geometry.label.height()
            ? difference(sensor.height(), region.top)
            : read.height;

    clampHeld(region, held, sensor);
    region.width = std::max(0, region.width);
    region.height = std::max(0, region.height);
    return region;
}
