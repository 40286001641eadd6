#include "multiregion/label/RegionBandLimits.h"

#include <algorithm>

namespace {

int greatestSize(const KnownRegions& regions, int region, const SensorMapping& mapping,
                 Qt::Orientation axis)
{
    const qint64 offset = spanOf(regions.rectangle(region), axis).start;
    const qint64 maximum = regions.limits(region).along(axis).maximum;
    return static_cast<int>(std::min<qint64>(offset + maximum, lengthOf(mapping.sensor, axis)));
}

} // namespace

BandSizeLimits regionBandLimits(const KnownRegions& regions, int region,
                                const SensorMapping& mapping)
{
    const RegionSizeLimits& limits = regions.limits(region);
    const QSize least(limits.horizontal.minimum, limits.vertical.minimum);
    const QSize most(greatestSize(regions, region, mapping, Qt::Horizontal),
                     greatestSize(regions, region, mapping, Qt::Vertical));
    return {labelSize(least, mapping), labelSize(most, mapping)};
}

BandSizeLimits regionBandLimits(const KnownRegions& regions, const QVector<int>& members,
                                const SensorMapping& mapping)
{
    BandSizeLimits result{{1, 1}, mapping.shown};
    for (const int member : members) {
        const BandSizeLimits limits = regionBandLimits(regions, member, mapping);
        result.minimum = result.minimum.expandedTo(limits.minimum);
        result.maximum = result.maximum.boundedTo(limits.maximum);
    }
    return result;
}
