#include "regions/label/EdgeDrag.h"

#include "features/NumberConversion.h"
#include "sensor/PixelRect.h"
#include "sensor/Span.h"

#include <algorithm>

namespace {

/// The region that a band stands for. Across a flat sensor the band tells nothing.
QRect readRegion(const EdgeDrag& drag, const QRect& band, const LabelGeometry& geometry)
{
    const double scale = sensorPerLabel(geometry);
    const QRect read = truncatedRect(band.x() * scale + 0.5, band.y() * scale + 0.5,
                                     band.width() * scale + 0.5, band.height() * scale + 0.5);
    return isFlat(geometry) ? withSpan(read, Qt::Vertical, spanOf(drag.region, Qt::Vertical))
                            : read;
}

Span<int> clamped(Span<int> span, bool clampsStart, bool clampsLength, int sensor)
{
    if (clampsStart)
        span.start = std::max(0, std::min(sensor - span.length, span.start));
    if (clampsLength)
        span.length = std::max(0, std::min(sensor - span.start, span.length));
    return span;
}

/// A move too: a displayed border is rounded, and a band within it may be a region beyond it.
QRect clampedWhereHeld(const QRect& region, const EdgeGrab& held, const QSize& sensor)
{
    const auto x = clamped(spanOf(region, Qt::Horizontal), held.left || held.moving, held.right,
                           sensor.width());
    const auto y = clamped(spanOf(region, Qt::Vertical), held.top || held.moving, held.bottom,
                           sensor.height());
    return {x.start, y.start, x.length, y.length};
}

/// All that these edges change, but for the height.
QRect withEdges(QRect region, const EdgeGrab& edges, const QRect& read)
{
    if (edges.moving || edges.left)
        region.moveLeft(read.x());
    if (edges.moving || edges.top)
        region.moveTop(read.y());
    if (edges.left || edges.right)
        region.setWidth(read.width());
    return region;
}

} // namespace

QRect draggedBand(const EdgeDrag& drag, const QPoint& pointer, const LabelGeometry& geometry)
{
    const EdgeGrab& follows = drag.follows;
    if (follows.moving) {
        const QSize room = displayedSize(geometry) - drag.band.size();
        const QPoint position = pointer - drag.grabOffset;
        return {QPoint(std::max(0, std::min(room.width(), position.x())),
                       std::max(0, std::min(room.height(), position.y()))),
                drag.band.size()};
    }
    QPoint first = drag.band.topLeft();
    QPoint last = drag.band.bottomRight();
    if (follows.left)
        first.setX(std::min(pointer.x(), last.x()));
    if (follows.top)
        first.setY(std::min(pointer.y(), last.y()));
    if (follows.right)
        last.setX(std::max(pointer.x(), first.x()));
    if (follows.bottom)
        last.setY(std::max(pointer.y(), first.y()));
    if (follows.right && follows.bottom) {
        last.setX(std::min(last.x(), displayedSize(geometry).width()));
        last.setY(std::min(last.y(), heightForWidth(geometry.label.width(), geometry.sensor)));
    }
    return atLeastOnePixel(QRect(first, last));
}

QRect provisionalRegion(const EdgeDrag& drag, const QRect& band, const LabelGeometry& geometry)
{
    const EdgeGrab& follows = drag.follows;
    const QRect read = readRegion(drag, band, geometry);
    QRect region = withEdges(drag.region, follows, read);
    // Rounded down, unlike all others: the region never begins below the pointer.
    if (follows.top && follows.right)
        region.moveTop(toInt(band.y() * sensorPerLabel(geometry) - 0.5));
    // The top edge alone moves the offset; the height waits for the release.
    if (follows.bottom || (follows.top && follows.left))
        region.setHeight(read.height());
    return clampedWhereHeld(region, drag.held, geometry.sensor);
}

QRect releasedRegion(const EdgeDrag& drag, const QRect& band, const QPoint& pointer,
                     const LabelGeometry& geometry)
{
    const EdgeGrab& held = drag.held;
    const QSize& sensor = geometry.sensor;
    const QRect read = readRegion(drag, band, geometry);
    QRect region = withEdges(drag.region, held, read);
    if ((held.left || held.right) && pointer.x() >= geometry.label.width())
        region.setWidth(sensor.width() - region.x());
    if (held.top || held.bottom)
        region.setHeight(pointer.y() >= geometry.label.height() ? sensor.height() - region.y()
                                                                : read.height());
    region = clampedWhereHeld(region, held, sensor);
    return {region.topLeft(), region.size().expandedTo({0, 0})};
}
