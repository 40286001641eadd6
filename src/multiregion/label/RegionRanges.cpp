#include "multiregion/label/RegionRanges.h"

#include <algorithm>

namespace {

/// The members of the group that shares the region's edges along an axis, ascending; none without
/// such a group.
QVector<int> sharers(const QVector<ConstraintGroup>& groups, Qt::Orientation axis, int region)
{
    for (const ConstraintGroup& group : groups) {
        if (group.axis() == axis && group.members.contains(region))
            return group.members;
    }
    return {};
}

} // namespace

QRect rangeBetweenNeighbours(const KnownRegions& regions, ArrangementMode mode,
                             const QVector<ConstraintGroup>& groups, const QSize& sensor,
                             int region)
{
    QRect range(QPoint(0, 0), sensor);
    if (mode == ArrangementMode::Free)
        return range;
    for (const Qt::Orientation axis : {Qt::Horizontal, Qt::Vertical}) {
        const RegionSpan own = spanOf(regions.rectangle(region), axis);
        const QVector<int> followers = sharers(groups, axis, region);
        int start = 0;
        int end = lengthOf(sensor, axis);
        for (const int other : regions.others(region)) {
            if (std::binary_search(followers.begin(), followers.end(), other))
                continue;
            const RegionSpan bound = spanOf(regions.rectangle(other), axis);
            if (bound.end() <= own.start)
                start = std::max(start, bound.end());
            else if (bound.start >= own.end())
                end = std::min(end, bound.start);
        }
        range = withSpan(range, axis, {start, end - start});
    }
    return range;
}
