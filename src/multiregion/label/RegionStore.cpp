#include "multiregion/label/RegionStore.h"

#include "multiregion/label/RectangleRubberBand.h"

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
