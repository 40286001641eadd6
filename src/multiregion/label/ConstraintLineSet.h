#pragma once

#include "multiregion/label/ConstraintLineRules.h"
#include "multiregion/rules/ConstraintGroups.h"

#include <QMap>
#include <QVector>

class LineRubberBand;
class QColor;
class RectangleRubberBand;
class RegionStore;
class SensorLabel;

/// The constraint lines of a region label, two for each group: it makes, places and removes them.
class ConstraintLineSet
{
public:
    using Bands = QMap<int, RectangleRubberBand*>;

    explicit ConstraintLineSet(SensorLabel* label);

    /// Has exactly the lines of the groups, placed along their masters' bands, and tells the bands.
    void update(const RegionStore& regions, const Bands& bands);
    /// Places the lines of which @p region is the master.
    void follow(int region, const RegionStore& regions);
    void setColor(int master, const QColor& color);
    void raise();
    /// Lets the lines tell the band where they are, from now on.
    void connectTo(RectangleRubberBand* band);

    /// The nearest line within grabbing distance of a point on @p band, which may be none, or null.
    LineRubberBand* lineAt(const QPoint& point, const QRect& band) const;

private:
    LineRubberBand* create(const ConstraintGroup& group, const Bands& bands);
    void place(LineRubberBand* line, const RegionStore& regions);

    SensorLabel* const m_label;
    QVector<LineRubberBand*> m_lines;
};
