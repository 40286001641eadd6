#pragma once

#include "multiregion/label/ConstraintLineRules.h"
#include "multiregion/label/ShownRegion.h"

/// The sizes that a region's band may have, label pixels. A camera reports the greatest size for
/// the present offset; with the offset given up the region could be so much larger.
BandSizeLimits bandLimits(const QRect& rectangle, const RegionSizeLimits& limits,
                          const SensorMapping& mapping);

/// The area between @p region and its neighbours among the shown @p regions, sensor pixels: as far
/// as it may move and grow without overlapping. Along an axis on which it shares its edges, the
/// members of its group do not bound it, for they follow. A free region may go everywhere.
QRect rangeBetweenNeighbours(const QVector<ShownRegion>& regions, ArrangementMode mode,
                             const QVector<ConstraintGroup>& groups, const QSize& sensor,
                             int region);

/// How far a line goes from where the regions are at rest: to the band next to its group (or the
/// image's border), no farther than every member's size allows.
LineBounds lineBounds(const QVector<ShownRegion>& regions, const ConstraintGroup& group,
                      BandEdge edge, const SensorMapping& mapping);
