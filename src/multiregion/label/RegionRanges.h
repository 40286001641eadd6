#pragma once

#include "multiregion/label/KnownRegions.h"
#include "multiregion/rules/ConstraintGroups.h"

/// The area between the shown neighbours of a region, sensor pixels: as far as it may move and grow
/// without overlapping. Along an axis on which it shares its edges, the members of its group do not
/// bound it, for they follow. A free region may go everywhere.
QRect rangeBetweenNeighbours(const KnownRegions& regions, ArrangementMode mode,
                             const QVector<ConstraintGroup>& groups, const QSize& sensor,
                             int region);
