#include "multiregion/label/DragChanges.h"

#include <QMap>

#include <algorithm>

namespace {

using Regions = QVector<ShownRegion>;
using Changes = QMap<int, QRect>;

int roundedDown(int value, int increment)
{
    return increment > 1 ? value - value % increment : value;
}

/// One axis of a dragged region. Only edges that the drag moved are converted, to where the camera
/// would round them; a span that moved as a whole keeps its stored length.
class SpanDrag
{
public:
    SpanDrag(const ShownRegion& dragged, Qt::Orientation axis, const SensorMapping& mapping)
        : m_axis(axis)
        , m_mapping(mapping)
        , m_limits(dragged.limits.along(axis))
        , m_stored(spanOf(dragged.rectangle, axis))
        , m_placed(spanOf(labelRect(dragged.rectangle, mapping), axis))
        , m_band(spanOf(dragged.band, axis))
    {
    }

    bool isMoved() const { return m_band != m_placed && !m_mapping.sensor.isEmpty(); }
    Span<int> converted() const;
    Span<int> keptOff(const Span<int>& span, const ShownRegion& neighbour) const;

private:
    bool startMoved() const { return m_band.start != m_placed.start; }
    bool endMoved() const { return m_band.end() != m_placed.end(); }
    bool movedAsWhole() const { return startMoved() && m_band.length == m_placed.length; }
    int minimum() const { return std::max(1, m_limits.minimum); }

    const Qt::Orientation m_axis;
    const SensorMapping& m_mapping;
    const AxisLimits& m_limits;
    const Span<int> m_stored;
    const Span<int> m_placed;
    const Span<int> m_band;
};

Span<int> SpanDrag::converted() const
{
    if (!isMoved())
        return m_stored;
    const int shown = lengthOf(m_mapping.shown, m_axis);
    const int sensor = lengthOf(m_mapping.sensor, m_axis);
    const int bandStart = sensorEdge(m_band.start, m_axis, m_mapping);
    int start = m_stored.start;
    int end = m_stored.end();
    if (movedAsWhole()) {
        const int farthest = std::max(0, sensor - m_stored.length);
        const bool isAtBorder = m_band.start > 0 && m_band.end() >= shown;
        start = isAtBorder ? farthest : std::min(farthest, bandStart);
        return {roundedDown(start, m_limits.offsetIncrement), m_stored.length};
    }
    if (endMoved())
        end = std::min(sensor,
                       std::max(start + minimum(), sensorEdge(m_band.end(), m_axis, m_mapping)));
    if (startMoved())
        start = roundedDown(std::min(std::max(0, end - minimum()), bandStart),
                            m_limits.offsetIncrement);
    return end > start ? Span<int>{start, end - start} : m_stored;
}

/// A converted span taken back to the edge of a neighbour that it overlaps on the sensor though not
/// on the label, rounded away from it. Edges that the drag did not move stay.
Span<int> SpanDrag::keptOff(const Span<int>& span, const ShownRegion& neighbour) const
{
    const Span<int> other = spanOf(neighbour.rectangle, m_axis);
    const Span<int> otherBand = spanOf(neighbour.band, m_axis);
    if (!overlap(span, other) || overlap(m_band, otherBand))
        return span;

    const int step = m_limits.offsetIncrement;
    Span<int> result = span;
    if (otherBand.end() <= m_band.start && startMoved()) {
        result.start = roundedDown(other.end() + std::max(1, step) - 1, step);
        if (!movedAsWhole())
            result.length = span.end() - result.start;
    } else if (m_band.end() <= otherBand.start && endMoved()) {
        if (movedAsWhole())
            result.start = roundedDown(std::max(0, other.start - span.length), step);
        else
            result.length = roundedDown(other.start - span.start, m_limits.increment);
    }
    return result.length >= minimum() ? result : m_stored;
}

bool touchesOnlyOnSensor(const QRect& region, const ShownRegion& dragged, const ShownRegion& other)
{
    return other.number != dragged.number && overlap(region, other.rectangle)
        && !overlap(dragged.band, other.band);
}

/// Sensor pixels. One that would still overlap another, unlike on the label, keeps its rectangle.
QRect convertedRegion(const ShownRegion& dragged, const Regions& regions,
                      const SensorMapping& mapping)
{
    const QRect stored = dragged.rectangle;
    const SpanDrag columns(dragged, Qt::Horizontal, mapping);
    const SpanDrag rows(dragged, Qt::Vertical, mapping);
    QRect result = withSpan(stored, Qt::Horizontal, columns.converted());
    result = withSpan(result, Qt::Vertical, rows.converted());
    for (const ShownRegion& other : regions) {
        for (const Qt::Orientation axis : {Qt::Horizontal, Qt::Vertical}) {
            const SpanDrag& drag = axis == Qt::Horizontal ? columns : rows;
            if (touchesOnlyOnSensor(result, dragged, other))
                result = withSpan(result, axis, drag.keptOff(spanOf(result, axis), other));
        }
    }
    const bool overlapsAnew = std::any_of(
        regions.begin(), regions.end(), [&](const ShownRegion& other) {
            return touchesOnlyOnSensor(result, dragged, other) && !overlap(stored, other.rectangle);
        });
    const bool sensorFits = QRect(QPoint(0, 0), mapping.sensor).contains(result);
    return overlapsAnew || !sensorFits ? stored : result;
}

bool inLine(const Regions& regions, const ConstraintGroup& group, int a, int b)
{
    return spanOf(regionIn(regions, a).rectangle, group.axis())
        == spanOf(regionIn(regions, b).rectangle, group.axis());
}

QRect rectangleAfter(const Changes& changes, const ShownRegion& region)
{
    return changes.value(region.number, region.rectangle);
}

/// Whether @p rectangle overlaps a region that @p region does not overlap now.
bool overlapsAnew(const Regions& regions, const Changes& changes, const ShownRegion& region,
                  const QRect& rectangle)
{
    return std::any_of(regions.begin(), regions.end(), [&](const ShownRegion& other) {
        return other.number != region.number && overlap(rectangle, rectangleAfter(changes, other))
            && !overlap(region.rectangle, other.rectangle);
    });
}

/// The shared span apart from regions outside the group, so that all members can take it.
Span<int> keptOffOutsiders(Span<int> span, const SpanDrag& drag, const Regions& regions,
                           const ConstraintGroup& group)
{
    for (const ShownRegion& other : regions) {
        if (!group.members.contains(other.number))
            span = drag.keptOff(span, other);
    }
    return span;
}

/// Gives the members the span, where none comes to overlap another region by it.
void alignMembers(const Regions& regions, const ConstraintGroup& group, const Span<int>& span,
                  Changes& changes)
{
    for (const int member : group.members) {
        const QRect present = rectangleAfter(changes, regionIn(regions, member));
        const QRect aligned = withSpan(present, group.axis(), span);
        if (aligned != present
            && !overlapsAnew(regions, changes, regionIn(regions, member), aligned))
            changes.insert(member, aligned);
    }
}

} // namespace

QVector<RegionChange> changesAfterBandDrag(const Regions& regions,
                                           const QVector<ConstraintGroup>& groups,
                                           const SensorMapping& mapping, int region)
{
    const ShownRegion& dragged = regionIn(regions, region);
    const QRect converted = convertedRegion(dragged, regions, mapping);
    if (converted == dragged.rectangle)
        return {{region, converted}};

    Changes changes{{region, converted}};
    for (const ConstraintGroup& group : groups) {
        if (!group.members.contains(region))
            continue;
        const SpanDrag drag(dragged, group.axis(), mapping);
        const Span<int> own = spanOf(changes[region], group.axis());
        const Span<int> shared = inLine(regions, group, region, group.master())
            ? keptOffOutsiders(own, drag, regions, group)
            : spanOf(regionIn(regions, group.master()).rectangle, group.axis());
        const QRect aligned = withSpan(changes[region], group.axis(), shared);
        if (overlapsAnew(regions, changes, dragged, aligned))
            continue;
        changes[region] = aligned;
        alignMembers(regions, group, shared, changes);
    }

    QVector<RegionChange> result{{region, changes.take(region)}};
    for (auto it = changes.cbegin(); it != changes.cend(); ++it)
        result << RegionChange{it.key(), it.value()};
    return result;
}

QVector<RegionChange> changesAfterLineDrag(const Regions& regions, const ConstraintGroup& group,
                                           const SensorMapping& mapping)
{
    const SpanDrag drag(regionIn(regions, group.master()), group.axis(), mapping);
    if (!drag.isMoved())
        return {};
    Changes changes;
    alignMembers(regions, group, keptOffOutsiders(drag.converted(), drag, regions, group), changes);
    QVector<RegionChange> result;
    for (const int member : group.members)
        result << RegionChange{member, rectangleAfter(changes, regionIn(regions, member))};
    return result;
}

bool membersCanFollow(const Regions& regions, const QVector<ConstraintGroup>& groups, int region,
                      const QRect& band)
{
    for (const ConstraintGroup& group : groups) {
        if (!group.members.contains(region) || !inLine(regions, group, region, group.master()))
            continue;
        for (const int member : group.members) {
            if (member == region || !inLine(regions, group, member, region))
                continue;
            const QRect present = regionIn(regions, member).band;
            const QRect follower = withSpan(present, group.axis(), spanOf(band, group.axis()));
            const auto isInTheWay = [&](const ShownRegion& other) {
                const QRect obstacle = other.number == region ? band : other.band;
                const bool isMember
                    = other.number != region && group.members.contains(other.number);
                return !isMember && overlap(follower, obstacle) && !overlap(present, obstacle);
            };
            if (follower != present && std::any_of(regions.begin(), regions.end(), isInTheWay))
                return false;
        }
    }
    return true;
}
