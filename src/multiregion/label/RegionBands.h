#pragma once

#include "multiregion/label/ConstraintLineRules.h"

#include <QMap>

#include <tuple>

class BandSurroundings;
class LineRubberBand;
class QColor;
class RectangleRubberBand;
class RegionDrag;
class RegionStore;

/// The bands of the shown regions and two lines for each group.
class RegionBands
{
public:
    RegionBands(BandSurroundings* label, RegionStore* regions);

    RectangleRubberBand* show(int region);
    void hide(int region);
    int selected() const { return m_selected; }
    void select(int region);

    /// Brings all in line with the regions but what is being dragged, and tests for conflicts.
    void arrange(const RegionDrag& drag);
    /// Places the lines whose masters are dragged.
    void follow(const RegionDrag& drag);
    void setLineColor(int master, const QColor& color);

    /// The band that contains a point: the selected one, else that with the highest number.
    RectangleRubberBand* bandAt(const QPoint& point) const;
    /// The nearest line within grabbing distance of a point that is not left to the band there.
    LineRubberBand* lineAt(const QPoint& point) const;

private:
    using LineKey = std::tuple<ConstraintGroup::Kind, int, BandEdge>; ///< with the master
    void updateLines();
    LineRubberBand* makeLine(const ConstraintGroup& group);
    void placeLine(LineRubberBand* line);
    void restack();

    BandSurroundings* const m_label;
    RegionStore* const m_regions;
    QMap<LineKey, LineRubberBand*> m_lines;
    int m_selected = -1;
};
