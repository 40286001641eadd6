#pragma once

#include "sensor/SensorBackground.h"

/// A picture for a label that may be resized often: most are not, so the first size is scaled
/// straight from the image, and only other ones from a copy that is no larger than a label can be.
class KeptPicture
{
public:
    KeptPicture() = default;
    /// @param area the sensor that the label shows
    KeptPicture(const SensorPicture& picture, const QSize& area);

    bool isNull() const { return !m_source.image && m_kept.isNull(); }

    /// All of the sensor, or of the part that shows, spread over @p size.
    QPixmap scaled(const QSize& size);

private:
    bool isScaledDirectly(const QSize& size) const;

    SensorPicture m_source; ///< until there is the copy
    bool m_fillsArea = false;
    QSize m_keptSize;
    QSize m_firstSize;
    QPixmap m_kept;
};
