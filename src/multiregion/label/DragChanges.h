#pragma once

#include "multiregion/label/KnownRegions.h"
#include "multiregion/rules/ConstraintGroups.h"

/// A region's new rectangle, in sensor pixels.
struct RegionChange
{
    int region = -1;
    QRect rectangle;
};

/// What to report after the band of @p region was dragged to @p band: the region itself, and the
/// members of its groups whose shared edges change with it, ascending. A region that was not in
/// line with its group takes the group's edges. A member that would come to overlap another region
/// stays as it is.
QVector<RegionChange> changesAfterBandDrag(const KnownRegions& regions,
                                           const QVector<ConstraintGroup>& groups,
                                           const SensorMapping& mapping, int region,
                                           const QRect& band);

/// What to report after the shared edges of @p group were dragged to @p band, label pixels along
/// the group's axis: all members with the same edges, the master first; nothing when no edge moved.
QVector<RegionChange> changesAfterLineDrag(const KnownRegions& regions,
                                           const ConstraintGroup& group,
                                           const SensorMapping& mapping, const RegionSpan& band);

/// Whether the members in line with @p region can follow its band to @p band without coming to
/// overlap another one. Label pixels.
bool membersCanFollow(const KnownRegions& regions, const QVector<ConstraintGroup>& groups,
                      int region, const QRect& band);
