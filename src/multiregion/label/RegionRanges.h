#pragma once

#include "multiregion/label/RegionConversion.h"
#include "multiregion/rules/ConstraintGroups.h"

/// The area between @p region and its neighbours among the shown @p regions, sensor pixels: as far
/// as it may move and grow without overlapping. Along an axis on which it shares its edges, the
/// members of its group do not bound it, for they follow. A free region may go everywhere.
QRect rangeBetweenNeighbours(const QVector<ShownRegion>& regions, ArrangementMode mode,
                             const QVector<ConstraintGroup>& groups, const QSize& sensor,
                             int region);
