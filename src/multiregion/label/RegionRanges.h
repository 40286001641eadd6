#pragma once

#include "multiregion/label/RegionConversion.h"
#include "multiregion/rules/ConstraintGroups.h"

/// The area between a region and its shown neighbours, sensor pixels: as far as it may move and
/// grow without overlapping. Along an axis on which it shares its edges, the members of its group
/// do not bound it, for they follow. A free region may go everywhere.
QRect rangeBetweenNeighbours(const ShownRegion& region, const QVector<ShownRegion>& shown,
                             ArrangementMode mode, const QVector<ConstraintGroup>& groups,
                             const QSize& sensor);
