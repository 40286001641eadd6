#include "regions/image/RegionPresets.h"

#include "features/NumberConversion.h"

namespace {

QSize partOf(const QSize& size, double factor)
{
    return {toInt(size.width() * factor), toInt(size.height() * factor)};
}

} // namespace

SensorRegion centredRegion(const QSize& maximum, double factor)
{
    const QSize size = partOf(maximum, factor);
    return {toInt((maximum.height() - size.height()) * 0.5),
            toInt((maximum.width() - size.width()) * 0.5), size.width(), size.height()};
}

AutoRegionPreset centredAutoRegion(const QSize& limit, double factor, const QPointF& origin)
{
    const QSize size = partOf(limit, factor);
    return {
        origin
            + QPointF((limit.width() - size.width()) * 0.5, (limit.height() - size.height()) * 0.5),
        size};
}
