#include "multiregion/label/RegionStore.h"

#include "multiregion/label/RectangleRubberBand.h"

#include <algorithm>
#include <utility>

const KnownRegion& RegionStore::at(int region) const
{
    const auto it = m_regions.find(region);
    return it == m_regions.end() ? m_unknown : it->second;
}

void RegionStore::group()
{
    QVector<int> numbers;
    for (const RectangleRubberBand* band : bands())
        numbers << band->regionNo();
    m_groups = constraintGroups(m_mode, numbers);
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

BandSizeLimits RegionStore::limitsOfBand(int region) const
{
    const KnownRegion& known = at(region);
    return bandLimits(known.rectangle, known.limits, m_mapping);
}

std::vector<int> RegionStore::numbers() const
{
    std::vector<int> result;
    for (const auto& [number, region] : m_regions)
        result.push_back(number);
    return result;
}

std::vector<RectangleRubberBand*> RegionStore::bands() const
{
    std::vector<RectangleRubberBand*> result;
    for (const auto& [number, region] : m_regions) {
        if (region.band)
            result.push_back(region.band);
    }
    return result;
}

QVector<ShownRegion> RegionStore::shown() const
{
    QVector<ShownRegion> result;
    for (const auto& [number, region] : m_regions) {
        if (region.band)
            result << ShownRegion{number, region.rectangle, region.band->geometry(), region.limits};
    }
    return result;
}

std::optional<int> RegionStore::intersecting(int asker, const QRect& band) const
{
    for (const auto& [number, region] : m_regions) {
        if (number != asker && region.band && overlap(region.band->geometry(), band))
            return number;
    }
    return std::nullopt;
}

std::optional<int> RegionStore::regionAt(const QPoint& point, int preferred) const
{
    const auto isUnder = [&point](const KnownRegion& region) {
        return region.band && region.band->geometry().contains(point);
    };
    if (isUnder(at(preferred)))
        return preferred;
    const auto it = std::find_if(m_regions.rbegin(), m_regions.rend(),
                                 [&](const auto& entry) { return isUnder(entry.second); });
    return it == m_regions.rend() ? std::nullopt : std::optional(it->first);
}

std::optional<QRect> RegionStore::newRange(int region)
{
    if (!at(region).band)
        return std::nullopt;
    const QRect range = rangeBetweenNeighbours(shown(), m_mode, m_groups, m_mapping.sensor, region);
    const QRect before = std::exchange((*this)[region].toldRange, range);
    return range == before ? std::nullopt : std::optional(range);
}

QVector<QStringList> RegionStore::newConstraints(int region)
{
    const QStringList features = sharedFeatures(region, m_groups);
    const QStringList before = std::exchange((*this)[region].toldConstraints, features);
    if (features == before)
        return {};
    if (before.isEmpty())
        return {features};
    return features.isEmpty() ? QVector{features} : QVector{QStringList(), features};
}
