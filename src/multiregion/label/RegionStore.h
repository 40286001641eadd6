#pragma once

#include "multiregion/label/HandleDrag.h"
#include "multiregion/label/RegionConversion.h"
#include "multiregion/rules/ConstraintGroups.h"

#include <QColor>

#include <map>
#include <optional>

/// What the region label knows of the camera's regions, by region number, and where it shows them.
/// Regions never mentioned are empty, not shown and of the default colour.
class RegionStore
{
public:
    explicit RegionStore(const QColor& defaultColor);

    const SensorMapping& mapping() const { return m_mapping; }
    void setMapping(const SensorMapping& mapping) { m_mapping = mapping; }

    ArrangementMode mode() const { return m_mode; }
    void setMode(ArrangementMode mode) { m_mode = mode; }
    /// Of the shown regions when they were last grouped.
    const QVector<ConstraintGroup>& groups() const { return m_groups; }
    void group();

    /// In sensor pixels, as the camera reported it or a drag left it.
    QRect rectangle(int region) const { return find(region).rectangle; }
    /// What was told of the region before does not count any more.
    void setRectangle(int region, const QRect& rectangle);
    /// The rectangle waits until it is applied.
    void tell(int region, const QRect& rectangle) { m_regions[region].waiting = rectangle; }
    /// Whether a shown region has changed by it.
    bool applyWaiting();

    void setLimits(int region, const RegionSizeLimits& limits)
    {
        m_regions[region].limits = limits;
    }
    /// The sizes that the region's band may have. A camera reports the greatest size for the
    /// present offset; with the offset given up the region could be so much larger.
    BandSizeLimits bandLimits(int region) const;
    /// What all of them allow.
    BandSizeLimits bandLimits(const QVector<int>& regions) const;

    /// The region's own colour, which a conflict does not change.
    QColor color(int region) const { return find(region).color.value_or(m_defaultColor); }
    void setColor(int region, const QColor& color) { m_regions[region].color = color; }

    /// Where the region's band is, label pixels; null for a region that is not shown.
    QRect band(int region) const { return find(region).band.value_or(QRect()); }
    void setBand(int region, const QRect& band) { m_regions[region].band = band; }
    /// Its rectangle on the label.
    QRect placed(int region) const { return labelRect(rectangle(region), m_mapping); }
    void hide(int region) { m_regions[region].band.reset(); }
    /// Ascending.
    QVector<ShownRegion> shown() const;

    /// All that were ever mentioned.
    QVector<int> numbers() const;

    /// The shown region with the lowest number, other than @p asker, whose band overlaps @p band.
    std::optional<int> intersecting(int asker, const QRect& band) const;
    /// The shown region whose band contains @p point: @p preferred, else the highest number.
    std::optional<int> regionAt(const QPoint& point, int preferred) const;

    /// The shown region's range, once it is another one.
    std::optional<QRect> newRange(int region);
    /// The features that it takes from its groups' masters, once they are others; no features first
    /// to withdraw those before.
    QVector<QStringList> newConstraints(int region);

private:
    struct Region
    {
        QRect rectangle;
        std::optional<QRect> waiting;
        std::optional<QRect> band;
        std::optional<QColor> color;
        RegionSizeLimits limits;
        QRect range;
        QStringList constraints;
    };

    const Region& find(int region) const;

    const QColor m_defaultColor;
    SensorMapping m_mapping;
    ArrangementMode m_mode = ArrangementMode::Free;
    QVector<ConstraintGroup> m_groups;
    std::map<int, Region> m_regions;
};
