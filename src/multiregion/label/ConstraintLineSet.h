#pragma once

#include "multiregion/label/ConstraintLineRules.h"
#include "multiregion/label/SensorMapping.h"
#include "multiregion/rules/ConstraintGroups.h"

#include <QMap>
#include <QVector>

class KnownRegions;
class LineRubberBand;
class MultiRubberBandLabel;
class QColor;
class RectangleRubberBand;

/// The constraint lines of a region label, two for each group: it makes, places and removes them.
class ConstraintLineSet
{
public:
    explicit ConstraintLineSet(MultiRubberBandLabel* label);

    /// Has exactly the lines of the groups, placed along their masters' bands, and tells the bands.
    void update(const QVector<ConstraintGroup>& groups, const KnownRegions& regions);
    /// Places the lines of which @p region is the master.
    void follow(int region, const KnownRegions& regions);
    void setColor(int master, const QColor& color);
    void raise();

    /// Lets the lines tell the band where they are, from now on.
    void connectTo(RectangleRubberBand* band);

    /// The nearest line within grabbing distance, or null.
    LineRubberBand* lineAt(const QPoint& point) const;

    /// Lets a line be dragged as far as its surroundings allow.
    void grab(LineRubberBand* line, const KnownRegions& regions, const SensorMapping& mapping);

private:
    LineRubberBand* find(const ConstraintGroup& group, LineEdge edge) const;
    LineRubberBand* create(const ConstraintGroup& group);
    void removeAllBut(const QVector<LineRubberBand*>& kept);
    void place(LineRubberBand* line, const KnownRegions& regions);

    MultiRubberBandLabel* const m_label;
    QMap<int, QVector<LineRubberBand*>> m_lines; ///< by master
};
