#include "multiregion/label/KnownRegions.h"

KnownRegions::KnownRegions(const QColor& defaultColor)
    : m_defaultColor(defaultColor)
{
}

void KnownRegions::setRectangle(int region, const QRect& rectangle)
{
    m_regions[region].rectangle = rectangle;
}

QColor KnownRegions::color(int region) const
{
    return find(region).color.value_or(m_defaultColor);
}

void KnownRegions::setColor(int region, const QColor& color)
{
    m_regions[region].color = color;
}

void KnownRegions::setShown(int region, bool shown)
{
    m_regions[region].shown = shown;
}

QVector<int> KnownRegions::shown() const
{
    return others(-1);
}

void KnownRegions::setLimits(int region, const RegionSizeLimits& limits)
{
    m_regions[region].limits = limits;
}

void KnownRegions::setBand(int region, const QRect& band)
{
    m_regions[region].band = band;
}

int KnownRegions::intersecting(int asker, const QRect& band) const
{
    for (const auto& [number, region] : m_regions) {
        if (number != asker && region.shown && overlap(region.band, band))
            return number;
    }
    return -1;
}

int KnownRegions::regionAt(const QPoint& point, int preferred) const
{
    if (isShown(preferred) && band(preferred).contains(point))
        return preferred;
    for (auto it = m_regions.rbegin(); it != m_regions.rend(); ++it) {
        if (it->second.shown && it->second.band.contains(point))
            return it->first;
    }
    return -1;
}

QVector<int> KnownRegions::others(int region) const
{
    QVector<int> numbers;
    for (const auto& [number, known] : m_regions) {
        if (number != region && known.shown)
            numbers << number;
    }
    return numbers;
}

const KnownRegions::Region& KnownRegions::find(int region) const
{
    static const Region unknown;
    const auto it = m_regions.find(region);
    return it == m_regions.end() ? unknown : it->second;
}
