#include "multiregion/label/DragChanges.h"

#include <QMap>

#include <algorithm>

namespace {

using Regions = QVector<ShownRegion>;
using Changes = QMap<int, QRect>;

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

/// Keeps the shared span apart from regions outside the group, so that all members can take it.
Span<int> keptOffOutsiders(Span<int> span, const ShownRegion& dragged, const Regions& regions,
                           const ConstraintGroup& group, const SensorMapping& mapping)
{
    for (const ShownRegion& other : regions) {
        if (!group.members.contains(other.number))
            span = keptOffNeighbour(span, dragged, group.axis(), other, mapping);
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
        const Span<int> own = spanOf(changes[region], group.axis());
        const Span<int> shared = inLine(regions, group, region, group.master())
            ? keptOffOutsiders(own, dragged, regions, group, mapping)
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
    const ShownRegion& master = regionIn(regions, group.master());
    if (spanOf(master.band, group.axis())
        == spanOf(labelRect(master.rectangle, mapping), group.axis()))
        return {};
    const Span<int> shared = keptOffOutsiders(convertedSpan(master, group.axis(), mapping), master,
                                              regions, group, mapping);

    Changes changes;
    alignMembers(regions, group, shared, changes);
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
