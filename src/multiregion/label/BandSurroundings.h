#pragma once

#include "sensor/SensorLabel.h"

#include <optional>

/// The label on which a band lies, as far as the band asks it. Label pixels.
class BandSurroundings : public SensorLabel
{
public:
    using SensorLabel::SensorLabel;

    /// Another shown region whose band overlaps @p band.
    virtual std::optional<int> intersecting(int region, const QRect& band) const = 0;
    /// Whether those that share edges with this one could follow it there without an overlap.
    virtual bool canBeFollowed(int region, const QRect& band) const = 0;
};
