#include "sensor/KeptPicture.h"

namespace {

constexpr QSize largestCopy(2048, 2048); ///< as much as a label can show

QSize sizeOfCopy(const QSize& area)
{
    const bool fits = area.boundedTo(largestCopy) == area;
    return fits ? area : area.scaled(largestCopy, Qt::KeepAspectRatio);
}

} // namespace

KeptPicture::KeptPicture(const SensorPicture& picture, const QSize& area)
    : m_source(picture)
    , m_fillsArea(picture.crop.isEmpty() && picture.sensor == area)
    , m_keptSize(sizeOfCopy(area))
{
}

QPixmap KeptPicture::scaled(const QSize& size)
{
    if (isScaledDirectly(size)) {
        m_firstSize = size;
        return stretchedBackground(m_source, size);
    }
    if (m_kept.isNull()) {
        // Another aspect ratio than the area's leaves black beside the picture.
        m_kept = m_fillsArea
            ? stretchedBackground(m_source, m_keptSize)
            : composeBackground(*m_source.image, m_source.sensor, m_source.crop, m_keptSize);
        m_source.image.reset();
    }
    return m_kept.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

// A sensor that is kept whole loses nothing by the copy.
bool KeptPicture::isScaledDirectly(const QSize& size) const
{
    return m_kept.isNull() && m_fillsArea && m_keptSize != m_source.sensor
        && (m_firstSize.isEmpty() || size == m_firstSize);
}
