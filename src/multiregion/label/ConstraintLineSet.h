#pragma once

#include "multiregion/label/ConstraintLineRules.h"

class LineRubberBand;
class QColor;
class RectangleRubberBand;
class RegionStore;
class SensorLabel;

/// The constraint lines of a region label, two for each group: it makes, places and removes them.
class ConstraintLineSet
{
public:
    ConstraintLineSet(SensorLabel* label, const RegionStore* regions);

    /// Has exactly the lines of the groups, placed along their masters' bands, and tells the bands.
    void update();
    /// Places the lines of which @p region is the master.
    void follow(int region);
    void setColor(int master, const QColor& color);
    void raise();
    /// Lets the lines tell the band where they are, from now on.
    void connectTo(RectangleRubberBand* band);

    /// The nearest line within grabbing distance of a point on @p band, which may be none, or null.
    LineRubberBand* lineAt(const QPoint& point, const QRect& band) const;

private:
    LineRubberBand* create(const ConstraintGroup& group);
    void place(LineRubberBand* line);

    SensorLabel* const m_label;
    const RegionStore* const m_regions;
    QVector<LineRubberBand*> m_lines;
};
