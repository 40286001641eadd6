#include "regions/label/EdgeDrag.h"

#include <algorithm>

namespace {

/// A band's label pixels in sensor pixels.
SensorRegion regionOf(const QRect& band, double scale)
{
    return {roundHalfUp(band.top() * scale), roundHalfUp(band.left() * scale),
            roundHalfUp(band.width() * scale), roundHalfUp(band.height() * scale)};
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

EdgeDragStep dragRightEdge(const EdgeDrag& drag, const QRect& band, const QPoint& pointer,
                           const LabelGeometry& geometry)
{
    const double scale = sensorPerLabel(geometry);
    const int x = std::max(pointer.x(), band.left());
    EdgeDragStep step{band, drag.region};
    switch (drag.cursor) {
    case Qt::SizeBDiagCursor:
        step.band = atLeastOnePixel(QRect(QPoint(band.left(), std::min(pointer.y(), band.bottom())),
                                          QPoint(x, band.bottom())));
        step.region.width = regionOf(step.band, scale).width;
        // Rounded down, unlike all others: the region never begins below the pointer.
        step.region.top = toInt(step.band.top() * scale - 0.5);
        break;
    case Qt::SizeHorCursor:
        step.band = atLeastOnePixel(QRect(band.topLeft(), QPoint(x, band.bottom())));
        step.region.width = regionOf(step.band, scale).width;
        break;
    default: {
        const QPoint limit(displayedSize(geometry).width(),
                           heightForWidth(geometry.label.width(), geometry.sensor));
        step.band = atLeastOnePixel(QRect(
            band.topLeft(), QPoint(std::min(x, limit.x()), std::min(pointer.y(), limit.y()))));
        step.region.width = regionOf(step.band, scale).width;
        step.region.height = regionOf(step.band, scale).height;
        break;
    }
    }
    return step;
}

EdgeDragStep dragLeftEdge(const EdgeDrag& drag, const QRect& band, const QPoint& pointer,
                          double scale)
{
    const int x = std::min(pointer.x(), band.right());
    EdgeDragStep step{band, drag.region};
    switch (drag.cursor) {
    case Qt::SizeFDiagCursor:
        step.band = atLeastOnePixel(
            QRect(QPoint(x, std::min(pointer.y(), band.bottom())), band.bottomRight()));
        step.region = regionOf(step.band, scale);
        break;
    case Qt::SizeHorCursor:
        step.band = atLeastOnePixel(QRect(QPoint(x, band.top()), band.bottomRight()));
        step.region.left = regionOf(step.band, scale).left;
        step.region.width = regionOf(step.band, scale).width;
        break;
    case Qt::SizeBDiagCursor:
        step.band
            = atLeastOnePixel(QRect(QPoint(x, band.top()), QPoint(band.right(), pointer.y())));
        step.region.left = regionOf(step.band, scale).left;
        step.region.width = regionOf(step.band, scale).width;
        step.region.height = regionOf(step.band, scale).height;
        break;
    default:
        // A press that no hover prepared: the band waits for the release.
        break;
    }
    return step;
}

/// Only the offset follows until the release; the height keeps its value from the press.
EdgeDragStep dragTopEdge(const EdgeDrag& drag, const QRect& band, const QPoint& pointer,
                         double scale)
{
    EdgeDragStep step{band, drag.region};
    step.band = atLeastOnePixel(
        QRect(QPoint(band.left(), std::min(pointer.y(), band.bottom())), band.bottomRight()));
    step.region.top = regionOf(step.band, scale).top;
    return step;
}

EdgeDragStep dragBottomEdge(const EdgeDrag& drag, const QRect& band, const QPoint& pointer,
                            double scale)
{
    EdgeDragStep step{band, drag.region};
    step.band = atLeastOnePixel(QRect(band.topLeft(), QPoint(band.right(), pointer.y())));
    step.region.height = regionOf(step.band, scale).height;
    return step;
}

EdgeDragStep moveBand(const EdgeDrag& drag, const QRect& band, const QPoint& pointer,
                      const LabelGeometry& geometry)
{
    const QPoint wanted(difference(pointer.x(), drag.grabOffset.x()),
                        difference(pointer.y(), drag.grabOffset.y()));
    const QSize room = displayedSize(geometry) - band.size();
    EdgeDragStep step{band, drag.region};
    step.band.moveTo(std::max(0, std::min(room.width(), wanted.x())),
                     std::max(0, std::min(room.height(), wanted.y())));
    const SensorRegion read = regionOf(step.band, sensorPerLabel(geometry));
    step.region.top = read.top;
    step.region.left = read.left;
    return step;
}

/// A displayed border is rounded, so that a band within it may still stand for a region beyond it.
void clampMove(SensorRegion& region, const QSize& sensor)
{
    clampOffset(region.left, region.width, sensor.width());
    clampOffset(region.top, region.height, sensor.height());
}

} // namespace

EdgeDragStep dragBand(const EdgeDrag& drag, const QRect& band, const QPoint& pointer,
                      const LabelGeometry& geometry)
{
    const EdgeGrab& flags = drag.flags;
    const double scale = sensorPerLabel(geometry);
    EdgeDragStep step{band, drag.region};
    if (flags.right)
        step = dragRightEdge(drag, band, pointer, geometry);
    else if (flags.left)
        step = dragLeftEdge(drag, band, pointer, scale);
    else if (flags.top)
        step = dragTopEdge(drag, band, pointer, scale);
    else if (flags.bottom)
        step = dragBottomEdge(drag, band, pointer, scale);
    else if (flags.moving)
        step = moveBand(drag, band, pointer, geometry);

    SensorRegion& region = step.region;
    if (flags.left)
        clampOffset(region.left, region.width, geometry.sensor.width());
    if (flags.right)
        clampSize(region.width, region.left, geometry.sensor.width());
    if (flags.top)
        clampOffset(region.top, region.height, geometry.sensor.height());
    if (flags.bottom)
        clampSize(region.height, region.top, geometry.sensor.height());
    if (flags.moving)
        clampMove(region, geometry.sensor);
    return step;
}

SensorRegion regionForRelease(const EdgeDrag& drag, const QRect& band, const QPoint& pointer,
                              const LabelGeometry& geometry)
{
    const EdgeGrab& flags = drag.flags;
    const QSize& sensor = geometry.sensor;
    const SensorRegion read = regionOf(band, sensorPerLabel(geometry));
    SensorRegion region = drag.region;

    if (flags.top || flags.moving)
        region.top = read.top;
    if (flags.left || flags.moving)
        region.left = read.left;
    if (flags.left || flags.right)
        region.width = pointer.x() >= geometry.label.width()
            ? difference(sensor.width(), region.left)
            : read.width;
    if (flags.top || flags.bottom)
        region.height = pointer.y() >= geometry.label.height()
            ? difference(sensor.height(), region.top)
            : read.height;

    if (flags.left)
        clampOffset(region.left, region.width, sensor.width());
    else if (flags.right)
        clampSize(region.width, region.left, sensor.width());
    if (flags.top)
        clampOffset(region.top, region.height, sensor.height());
    else if (flags.bottom)
        clampSize(region.height, region.top, sensor.height());
    if (flags.moving)
        clampMove(region, sensor);

    region.width = std::max(0, region.width);
    region.height = std::max(0, region.height);
    return region;
}

SensorRegion heldRegion(const EdgeDrag& drag, const QRect& band, const LabelGeometry& geometry)
{
    return regionForRelease(drag, band, QPoint(0, 0), geometry);
}
