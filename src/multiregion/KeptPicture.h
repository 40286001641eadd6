#pragma once

#include "widgets/SensorBackground.h"

/// A picture for a label that may be resized often: most are not, so the first size is scaled
/// straight from the image, and only other ones from a copy that is no larger than a label can be.
class KeptPicture
{
public:
    KeptPicture() = default;
    /// @param keptSize that of the copy; the sensor's when nothing is lost by it
    KeptPicture(const SensorPicture& picture, const QSize& keptSize);

    bool isNull() const { return !m_source.image && m_kept.isNull(); }

    /// All of the sensor, or of the part that shows, spread over @p size.
    QPixmap scaled(const QSize& size);

private:
    bool isScaledDirectly(const QSize& size) const;

    SensorPicture m_source; ///< until there is the copy
    QSize m_keptSize;
    QSize m_firstSize;
    QPixmap m_kept;
};
