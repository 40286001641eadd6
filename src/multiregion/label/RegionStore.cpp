#include "multiregion/label/RegionStore.h"

#include "multiregion/label/RegionRanges.h"

#include <algorithm>
#include <utility>

RegionStore::RegionStore(const QColor& defaultColor)
    : m_defaultColor(defaultColor)
{
}

void RegionStore::group()
{
    QVector<int> numbers;
    for (const auto& [number, region] : m_regions) {
        if (region.band)
            numbers << number;
    }
    m_groups = constraintGroups(m_mode, numbers);
}

void RegionStore::setRectangle(int region, const QRect& rectangle)
{
    m_regions[region].rectangle = rectangle;
    m_regions[region].waiting.reset();
}

bool RegionStore::applyWaiting()
{
    bool isChanged = false;
    for (auto& [number, region] : m_regions) {
        const QRect before = region.rectangle;
        region.rectangle = std::exchange(region.waiting, std::nullopt).value_or(before);
        isChanged = isChanged || (region.band && region.rectangle != before);
    }
    return isChanged;
}

BandSizeLimits RegionStore::bandLimits(int region) const
{
    const Region& known = find(region);
    const auto greatest = [&](Qt::Orientation axis) {
        const qint64 offset = spanOf(known.rectangle, axis).start;
        return static_cast<int>(std::min<qint64>(offset + known.limits.along(axis).maximum,
                                                 lengthOf(m_mapping.sensor, axis)));
    };
    const QSize least(known.limits.horizontal.minimum, known.limits.vertical.minimum);
    return {labelSize(least, m_mapping),
            labelSize({greatest(Qt::Horizontal), greatest(Qt::Vertical)}, m_mapping)};
}

BandSizeLimits RegionStore::bandLimits(const QVector<int>& regions) const
{
    BandSizeLimits result{{1, 1}, m_mapping.shown};
    for (const int region : regions) {
        const BandSizeLimits limits = bandLimits(region);
        result.minimum = result.minimum.expandedTo(limits.minimum);
        result.maximum = result.maximum.boundedTo(limits.maximum);
    }
    return result;
}

QVector<ShownRegion> RegionStore::shown() const
{
    QVector<ShownRegion> result;
    for (const auto& [number, region] : m_regions) {
        if (region.band)
            result << ShownRegion{number, region.rectangle, *region.band, region.limits};
    }
    return result;
}

QVector<int> RegionStore::numbers() const
{
    QVector<int> result;
    for (const auto& [number, region] : m_regions)
        result << number;
    return result;
}

std::optional<int> RegionStore::intersecting(int asker, const QRect& band) const
{
    for (const auto& [number, region] : m_regions) {
        if (number != asker && region.band && overlap(*region.band, band))
            return number;
    }
    return std::nullopt;
}

std::optional<int> RegionStore::regionAt(const QPoint& point, int preferred) const
{
    if (band(preferred).contains(point))
        return preferred;
    const auto it = std::find_if(m_regions.rbegin(), m_regions.rend(), [&point](const auto& entry) {
        return entry.second.band && entry.second.band->contains(point);
    });
    return it == m_regions.rend() ? std::nullopt : std::optional(it->first);
}

std::optional<QRect> RegionStore::newRange(int region)
{
    if (!find(region).band)
        return std::nullopt;
    const QRect range = rangeBetweenNeighbours(shown(), m_mode, m_groups, m_mapping.sensor, region);
    const QRect before = std::exchange(m_regions[region].range, range);
    return range == before ? std::nullopt : std::optional(range);
}

QVector<QStringList> RegionStore::newConstraints(int region)
{
    const QStringList features = sharedFeatures(region, m_groups);
    const QStringList before = std::exchange(m_regions[region].constraints, features);
    if (features == before)
        return {};
    if (before.isEmpty())
        return {features};
    return features.isEmpty() ? QVector{features} : QVector{QStringList(), features};
}

const RegionStore::Region& RegionStore::find(int region) const
{
    static const Region unknown;
    const auto it = m_regions.find(region);
    return it == m_regions.end() ? unknown : it->second;
}
