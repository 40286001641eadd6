#pragma once

#include "multiregion/label/RegionConversion.h"

#include <QColor>
#include <QVector>

#include <map>
#include <optional>

/// What the region label knows of the camera's regions, by region number. Regions never mentioned
/// are empty, not shown and of the default colour.
class KnownRegions
{
public:
    explicit KnownRegions(const QColor& defaultColor);

    /// In sensor pixels, as the camera reported it or a drag left it.
    QRect rectangle(int region) const { return find(region).rectangle; }
    void setRectangle(int region, const QRect& rectangle);

    /// The region's own colour, which a conflict does not change.
    QColor color(int region) const;
    void setColor(int region, const QColor& color);

    bool isShown(int region) const { return find(region).shown; }
    void setShown(int region, bool shown);
    QVector<int> shown() const;

    const RegionSizeLimits& limits(int region) const { return find(region).limits; }
    void setLimits(int region, const RegionSizeLimits& limits);

    /// Where the region's band is, label pixels.
    QRect band(int region) const { return find(region).band; }
    void setBand(int region, const QRect& band);

    /// The shown region with the lowest number, other than @p asker, whose band overlaps @p band;
    /// -1 for none.
    int intersecting(int asker, const QRect& band) const;

    /// The shown region whose band contains @p point: @p preferred, else the highest number; -1 for
    /// none.
    int regionAt(const QPoint& point, int preferred) const;

    /// The shown regions other than @p region.
    QVector<int> others(int region) const;

private:
    struct Region
    {
        QRect rectangle;
        QRect band;
        std::optional<QColor> color;
        RegionSizeLimits limits;
        bool shown = false;
    };

    const Region& find(int region) const;

    QColor m_defaultColor;
    std::map<int, Region> m_regions;
};
