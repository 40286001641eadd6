#pragma once

#include "multiregion/label/ShownRegion.h"
#include "multiregion/rules/ConstraintGroups.h"

/// A region's new rectangle, in sensor pixels.
struct RegionChange
{
    int region = 0;
    QRect rectangle;
};

// The regions are the shown ones, ascending.

/// What to report after the band of @p region was dragged: the region itself and, ascending, the
/// members of its groups whose shared edges change with it; one that was not in line takes the
/// group's edges. A member that would come to overlap another region stays.
QVector<RegionChange> changesAfterBandDrag(const QVector<ShownRegion>& regions,
                                           const QVector<ConstraintGroup>& groups,
                                           const SensorMapping& mapping, int region);

/// What to report after the shared edges of @p group were dragged to where its master's band has
/// them: all members with the same edges, the master first; nothing when no edge moved.
QVector<RegionChange> changesAfterLineDrag(const QVector<ShownRegion>& regions,
                                           const ConstraintGroup& group,
                                           const SensorMapping& mapping);

/// Whether the members in line with @p region can follow it without an overlap. Label pixels.
bool membersCanFollow(const QVector<ShownRegion>& regions, const QVector<ConstraintGroup>& groups,
                      int region, const QRect& band);
