#include "multiregion/label/RegionRanges.h"

#include <algorithm>

QRect rangeBetweenNeighbours(const QVector<ShownRegion>& regions, ArrangementMode mode,
                             const QVector<ConstraintGroup>& groups, const QSize& sensor,
                             int region)
{
    QRect range(QPoint(0, 0), sensor);
    if (mode == ArrangementMode::Free)
        return range;
    for (const Qt::Orientation axis : {Qt::Horizontal, Qt::Vertical}) {
        const RegionSpan own = spanOf(regionIn(regions, region).rectangle, axis);
        const QVector<int> followers = sharingRegions(groups, region, axis);
        int start = 0;
        int end = lengthOf(sensor, axis);
        for (const ShownRegion& other : regions) {
            if (other.number == region
                || std::binary_search(followers.begin(), followers.end(), other.number))
                continue;
            const RegionSpan bound = spanOf(other.rectangle, axis);
            if (bound.end() <= own.start)
                start = std::max(start, bound.end());
            else if (bound.start >= own.end())
                end = std::min(end, bound.start);
        }
        range = withSpan(range, axis, {start, end - start});
    }
    return range;
}
