#pragma once

#include "multiregion/label/RegionRanges.h"

#include <QColor>

#include <map>
#include <vector>

class RectangleRubberBand;

/// What the region label knows of one of the camera's regions.
struct KnownRegion
{
    QRect rectangle;              ///< sensor pixels, as the camera reported it or a drag left it
    std::optional<QRect> waiting; ///< what was told since
    RegionSizeLimits limits;
    QColor color;                        ///< its own, which a conflict does not change
    RectangleRubberBand* band = nullptr; ///< null while it is not shown
    QRect toldRange;
    QStringList toldConstraints;
};

/// The regions of the label by their numbers, and how they are shown.
class RegionStore
{
public:
    explicit RegionStore(const QColor& defaultColor) { m_unknown.color = defaultColor; }

    /// A region never mentioned is empty, not shown and of the default colour.
    const KnownRegion& at(int region) const;
    KnownRegion& operator[](int region)
    {
        return m_regions.try_emplace(region, m_unknown).first->second;
    }

    const SensorMapping& mapping() const { return m_mapping; }
    void setMapping(const SensorMapping& mapping) { m_mapping = mapping; }
    ArrangementMode mode() const { return m_mode; }
    void setMode(ArrangementMode mode) { m_mode = mode; }
    /// Of the shown regions when they were last grouped.
    const QVector<ConstraintGroup>& groups() const { return m_groups; }
    void group();

    /// Whether a shown region has changed by what was told of it.
    bool applyWaiting();

    /// The region's rectangle on the label.
    QRect placed(int region) const { return labelRect(at(region).rectangle, m_mapping); }
    BandSizeLimits limitsOfBand(int region) const;

    /// All that were ever mentioned.
    std::vector<int> numbers() const;
    /// The shown ones, ascending.
    std::vector<RectangleRubberBand*> bands() const;
    QVector<ShownRegion> shown() const;

    /// The shown region with the lowest number, other than @p asker, whose band overlaps @p band.
    std::optional<int> intersecting(int asker, const QRect& band) const;

private:
    KnownRegion m_unknown;
    SensorMapping m_mapping;
    ArrangementMode m_mode = ArrangementMode::Free;
    QVector<ConstraintGroup> m_groups;
    std::map<int, KnownRegion> m_regions;
};
