#include "multiregion/label/DragChanges.h"

#include <QMap>

#include <algorithm>

namespace {

using Changes = QMap<int, QRect>;

DraggedRegion draggedRegion(const KnownRegions& regions, const SensorMapping& mapping, int region,
                            const QRect& band)
{
    const QRect stored = regions.rectangle(region);
    return {stored, labelRect(stored, mapping), band, regions.limits(region)};
}

QVector<RegionNeighbour> neighbours(const KnownRegions& regions, const SensorMapping& mapping,
                                    const QVector<int>& numbers)
{
    QVector<RegionNeighbour> result;
    for (const int number : numbers) {
        const QRect stored = regions.rectangle(number);
        result << RegionNeighbour{stored, labelRect(stored, mapping)};
    }
    return result;
}

QVector<int> outsiders(const KnownRegions& regions, const ConstraintGroup& group)
{
    QVector<int> numbers = regions.shown();
    const auto isMember = [&group](int number) { return group.members.contains(number); };
    numbers.erase(std::remove_if(numbers.begin(), numbers.end(), isMember), numbers.end());
    return numbers;
}

bool inLine(const KnownRegions& regions, const ConstraintGroup& group, int a, int b)
{
    return spanOf(regions.rectangle(a), group.axis()) == spanOf(regions.rectangle(b), group.axis());
}

QRect rectangleAfter(const KnownRegions& regions, const Changes& changes, int region)
{
    return changes.value(region, regions.rectangle(region));
}

/// Whether @p rectangle overlaps a region that @p region does not overlap now.
bool overlapsAnew(const KnownRegions& regions, const Changes& changes, int region,
                  const QRect& rectangle)
{
    const QVector<int> others = regions.others(region);
    return std::any_of(others.begin(), others.end(), [&](int other) {
        return overlap(rectangle, rectangleAfter(regions, changes, other))
            && !overlap(regions.rectangle(region), regions.rectangle(other));
    });
}

/// Keeps the shared span apart from regions outside the group, so that all members can take it.
RegionSpan keptOffOutsiders(RegionSpan span, const DraggedRegion& dragged,
                            const KnownRegions& regions, const ConstraintGroup& group,
                            const SensorMapping& mapping)
{
    for (const RegionNeighbour& outsider : neighbours(regions, mapping, outsiders(regions, group)))
        span = keptOffNeighbour(span, dragged, group.axis(), outsider);
    return span;
}

/// Gives the members the span, where none comes to overlap another region by it.
void alignMembers(const KnownRegions& regions, const ConstraintGroup& group, const RegionSpan& span,
                  Changes& changes)
{
    for (const int member : group.members) {
        const QRect aligned
            = withSpan(rectangleAfter(regions, changes, member), group.axis(), span);
        if (aligned != rectangleAfter(regions, changes, member)
            && !overlapsAnew(regions, changes, member, aligned))
            changes.insert(member, aligned);
    }
}

} // namespace

QVector<RegionChange> changesAfterBandDrag(const KnownRegions& regions,
                                           const QVector<ConstraintGroup>& groups,
                                           const SensorMapping& mapping, int region,
                                           const QRect& band)
{
    const DraggedRegion dragged = draggedRegion(regions, mapping, region, band);
    const QRect converted
        = convertedRegion(dragged, neighbours(regions, mapping, regions.others(region)), mapping);
    if (converted == dragged.stored)
        return {{region, dragged.stored}};

    Changes changes{{region, converted}};
    for (const ConstraintGroup& group : groups) {
        if (!group.members.contains(region))
            continue;
        const RegionSpan own = spanOf(changes[region], group.axis());
        const RegionSpan shared = inLine(regions, group, region, group.master())
            ? keptOffOutsiders(own, dragged, regions, group, mapping)
            : spanOf(regions.rectangle(group.master()), group.axis());
        const QRect aligned = withSpan(changes[region], group.axis(), shared);
        if (overlapsAnew(regions, changes, region, aligned))
            continue;
        changes[region] = aligned;
        alignMembers(regions, group, shared, changes);
    }

    QVector<RegionChange> result{{region, changes.take(region)}};
    for (auto it = changes.cbegin(); it != changes.cend(); ++it)
        result << RegionChange{it.key(), it.value()};
    return result;
}

QVector<RegionChange> changesAfterLineDrag(const KnownRegions& regions,
                                           const ConstraintGroup& group,
                                           const SensorMapping& mapping, const RegionSpan& band)
{
    const int master = group.master();
    const QRect placed = labelRect(regions.rectangle(master), mapping);
    if (band == spanOf(placed, group.axis()))
        return {};
    const DraggedRegion dragged
        = draggedRegion(regions, mapping, master, withSpan(placed, group.axis(), band));
    const RegionSpan shared = keptOffOutsiders(convertedSpan(dragged, group.axis(), mapping),
                                               dragged, regions, group, mapping);

    Changes changes;
    alignMembers(regions, group, shared, changes);
    QVector<RegionChange> result;
    for (const int member : group.members)
        result << RegionChange{member, rectangleAfter(regions, changes, member)};
    return result;
}

bool membersCanFollow(const KnownRegions& regions, const QVector<ConstraintGroup>& groups,
                      int region, const QRect& band)
{
    for (const ConstraintGroup& group : groups) {
        const RegionSpan span = spanOf(band, group.axis());
        if (!group.members.contains(region) || !inLine(regions, group, region, group.master()))
            continue;
        for (const int member : group.members) {
            if (member == region || !inLine(regions, group, member, region))
                continue;
            const QRect present = regions.band(member);
            const QRect follower = withSpan(present, group.axis(), span);
            if (follower == present)
                continue;
            if (overlap(follower, band) && !overlap(present, band))
                return false;
            for (const int other : regions.others(member)) {
                if (other != region && !group.members.contains(other)
                    && overlap(follower, regions.band(other))
                    && !overlap(present, regions.band(other)))
                    return false;
            }
        }
    }
    return true;
}
