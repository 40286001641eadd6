#pragma once

#include "multiregion/label/HandleDrag.h"
#include "multiregion/label/KnownRegions.h"

/// The sizes that a region's band may have on the label. A camera reports the greatest size for the
/// present offset; with the offset given up the region could be so much larger.
BandSizeLimits regionBandLimits(const KnownRegions& regions, int region,
                                const SensorMapping& mapping);

/// What all members of a group allow.
BandSizeLimits regionBandLimits(const KnownRegions& regions, const QVector<int>& members,
                                const SensorMapping& mapping);
