#include "multiregion/label/RegionRanges.h"

#include <algorithm>

namespace {

/// From the next one of the others to either side of @p own, or from the ends of the whole.
Span<int> roomAround(const Span<int>& own, const QVector<Span<int>>& others, int whole)
{
    int start = 0;
    int end = whole;
    for (const Span<int>& other : others) {
        if (other.end() <= own.start)
            start = std::max(start, other.end());
        else if (other.start >= own.end())
            end = std::min(end, other.start);
    }
    return {start, end - start};
}

} // namespace

BandSizeLimits bandLimits(const QRect& rectangle, const RegionSizeLimits& limits,
                          const SensorMapping& mapping)
{
    QRect least;
    QRect greatest;
    for (const Qt::Orientation axis : {Qt::Horizontal, Qt::Vertical}) {
        const AxisLimits& allowed = limits.along(axis);
        const qint64 reach = qint64{spanOf(rectangle, axis).start} + allowed.maximum;
        const int most = static_cast<int>(std::min<qint64>(reach, lengthOf(mapping.sensor, axis)));
        least = withSpan(least, axis, {0, allowed.minimum});
        greatest = withSpan(greatest, axis, {0, most});
    }
    return {labelRect(least, mapping).size(), labelRect(greatest, mapping).size()};
}

QRect rangeBetweenNeighbours(const QVector<ShownRegion>& regions, ArrangementMode mode,
                             const QVector<ConstraintGroup>& groups, const QSize& sensor,
                             int region)
{
    QRect range(QPoint(0, 0), sensor);
    if (mode == ArrangementMode::Free)
        return range;
    for (const Qt::Orientation axis : {Qt::Horizontal, Qt::Vertical}) {
        const QVector<int> followers = sharingRegions(groups, region, axis);
        QVector<Span<int>> others;
        for (const ShownRegion& other : regions) {
            if (other.number != region && !followers.contains(other.number))
                others << spanOf(other.rectangle, axis);
        }
        const Span<int> own = spanOf(regionIn(regions, region).rectangle, axis);
        range = withSpan(range, axis, roomAround(own, others, lengthOf(sensor, axis)));
    }
    return range;
}

LineBounds lineBounds(const QVector<ShownRegion>& regions, const ConstraintGroup& group,
                      BandEdge edge, const SensorMapping& mapping)
{
    const Qt::Orientation axis = group.axis();
    const int image = lengthOf(mapping.shown, axis);
    int minimum = 1;
    int maximum = image;
    Span<int> shared;
    QVector<Span<int>> others;
    for (const ShownRegion& region : regions) {
        const Span<int> placed = spanOf(labelRect(region.rectangle, mapping), axis);
        if (group.members.contains(region.number)) {
            const auto limits = bandLimits(region.rectangle, region.limits, mapping);
            minimum = std::max(minimum, lengthOf(limits.minimum, axis));
            maximum = std::min(maximum, lengthOf(limits.maximum, axis));
        } else {
            others << placed;
        }
        if (region.number == group.master())
            shared = placed;
    }
    const Span<int> room = roomAround(shared, others, image);
    const LineBounds bounds = edge == BandEdge::Leading
        ? LineBounds{std::max(room.start, shared.end() - maximum), shared.end() - minimum}
        : LineBounds{shared.start + minimum - constraintLineThickness,
                     std::min(room.end(), shared.start + maximum) - constraintLineThickness};
    return {bounds.lower, std::max(bounds.lower, bounds.upper)};
}
