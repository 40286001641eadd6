#include "multiregion/label/RegionConversion.h"

#include <algorithm>

namespace {

int roundedDown(int value, int increment)
{
    return increment > 1 ? value - value % increment : value;
}

int roundedUp(int value, int increment)
{
    return increment > 1 ? roundedDown(value + (increment - 1), increment) : value;
}

/// The spans of a dragged region along one axis.
struct SpanDrag
{
    SpanDrag(const ShownRegion& dragged, Qt::Orientation axis, const SensorMapping& mapping)
        : stored(spanOf(dragged.rectangle, axis))
        , placed(spanOf(labelRect(dragged.rectangle, mapping), axis))
        , band(spanOf(dragged.band, axis))
        , limits(dragged.limits.along(axis))
    {
    }

    bool startMoved() const { return band.start != placed.start; }
    bool endMoved() const { return band.end() != placed.end(); }
    bool movedAsWhole() const { return startMoved() && band.length == placed.length; }

    Span<int> stored;
    Span<int> placed;
    Span<int> band;
    const AxisLimits& limits;
};

Span<int> movedSpan(const SpanDrag& drag, Qt::Orientation axis, const SensorMapping& mapping)
{
    const int farthest = std::max(0, lengthOf(mapping.sensor, axis) - drag.stored.length);
    const bool isAtBorder = drag.band.start > 0 && drag.band.end() >= lengthOf(mapping.shown, axis);
    const int start
        = isAtBorder ? farthest : std::min(farthest, sensorEdge(drag.band.start, axis, mapping));
    return {roundedDown(start, drag.limits.offsetIncrement), drag.stored.length};
}

Span<int> resizedSpan(const SpanDrag& drag, Qt::Orientation axis, const SensorMapping& mapping)
{
    const int minimum = std::max(1, drag.limits.minimum);
    int start = drag.stored.start;
    int end = drag.stored.end();
    if (drag.endMoved())
        end = std::min(lengthOf(mapping.sensor, axis),
                       std::max(start + minimum, sensorEdge(drag.band.end(), axis, mapping)));
    if (drag.startMoved()) {
        const int last = std::max(0, end - minimum);
        start = roundedDown(std::min(last, sensorEdge(drag.band.start, axis, mapping)),
                            drag.limits.offsetIncrement);
    }
    return end > start ? Span<int>{start, end - start} : drag.stored;
}

bool touchesOnlyOnSensor(const QRect& region, const ShownRegion& dragged, const ShownRegion& other)
{
    return other.number != dragged.number && overlap(region, other.rectangle)
        && !overlap(dragged.band, other.band);
}

} // namespace

const ShownRegion& regionIn(const QVector<ShownRegion>& regions, int number)
{
    return *std::lower_bound(
        regions.begin(), regions.end(), number,
        [](const ShownRegion& region, int wanted) { return region.number < wanted; });
}

Span<int> convertedSpan(const ShownRegion& dragged, Qt::Orientation axis,
                        const SensorMapping& mapping)
{
    const SpanDrag drag(dragged, axis, mapping);
    if (mapping.sensor.isEmpty() || (!drag.startMoved() && !drag.endMoved()))
        return drag.stored;
    return drag.movedAsWhole() ? movedSpan(drag, axis, mapping) : resizedSpan(drag, axis, mapping);
}

Span<int> keptOffNeighbour(const Span<int>& span, const ShownRegion& dragged, Qt::Orientation axis,
                           const ShownRegion& neighbour, const SensorMapping& mapping)
{
    const SpanDrag drag(dragged, axis, mapping);
    const Span<int> other = spanOf(neighbour.rectangle, axis);
    const Span<int> otherBand = spanOf(neighbour.band, axis);
    if (!overlap(span, other) || overlap(drag.band, otherBand))
        return span;

    Span<int> result = span;
    if (otherBand.end() <= drag.band.start && drag.startMoved()) {
        result.start = roundedUp(other.end(), drag.limits.offsetIncrement);
        if (!drag.movedAsWhole())
            result.length = span.end() - result.start;
    } else if (drag.band.end() <= otherBand.start && drag.endMoved()) {
        if (drag.movedAsWhole())
            result.start
                = roundedDown(std::max(0, other.start - span.length), drag.limits.offsetIncrement);
        else
            result.length = roundedDown(other.start - span.start, drag.limits.increment);
    }
    return result.length >= std::max(1, drag.limits.minimum) ? result : drag.stored;
}

QRect convertedRegion(const ShownRegion& dragged, const QVector<ShownRegion>& shown,
                      const SensorMapping& mapping)
{
    const QRect stored = dragged.rectangle;
    QRect result = stored;
    for (const Qt::Orientation axis : {Qt::Horizontal, Qt::Vertical})
        result = withSpan(result, axis, convertedSpan(dragged, axis, mapping));

    for (const ShownRegion& other : shown) {
        for (const Qt::Orientation axis : {Qt::Horizontal, Qt::Vertical}) {
            if (touchesOnlyOnSensor(result, dragged, other))
                result = withSpan(
                    result, axis,
                    keptOffNeighbour(spanOf(result, axis), dragged, axis, other, mapping));
        }
    }

    const auto overlapsAnew = [&](const ShownRegion& other) {
        return touchesOnlyOnSensor(result, dragged, other) && !overlap(stored, other.rectangle);
    };
    const bool sensorFits = QRect(QPoint(0, 0), mapping.sensor).contains(result);
    if (std::any_of(shown.begin(), shown.end(), overlapsAnew) || (!sensorFits && result != stored))
        return stored;
    return result;
}
