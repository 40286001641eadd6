#include "regions/automatic/AutoRegion.h"

#include "features/NumberConversion.h"

#include <algorithm>

AutoRegionFields fieldsForRegion(const SensorRegion& region, const QPointF& origin)
{
    AutoRegionFields fields;
    fields.top = origin.y() + region.top;
    fields.left = origin.x() + region.left;
    fields.right = fields.left + region.width;
    fields.bottom = fields.top + region.height;
    fields.width = region.width;
    fields.height = region.height;
    return fields;
}

SensorRegion drawnAutoRegion(const AutoRegionFields& fields, const QPointF& origin,
                             const RegionLimits& limits)
{
    const auto width = static_cast<double>(limits.width);
    const auto height = static_cast<double>(limits.height);
    // A camera with two such regions may count one of them from behind the other.
    const double top = std::max(0.0, std::min(fields.top, origin.y() + height) - origin.y());
    const double left = std::max(0.0, std::min(fields.left, origin.x() + width) - origin.x());
    return {toInt(top), toInt(left), toInt(std::min(fields.width, width)),
            toInt(std::min(fields.height, height))};
}

double onGrid(double value, double step)
{
    const qint64 wholeStep = std::max<qint64>(1, toInt64(step));
    const qint64 steps = toInt64(value) / wholeStep;
    return static_cast<double>(steps * wholeStep);
}

bool exceedsLimit(double offset, double origin, double size, qint64 limit)
{
    return static_cast<double>(limit) < (offset - origin) + size;
}
