#include "KeptPicture.h"

KeptPicture::KeptPicture(const SensorPicture& picture, const QSize& keptSize)
    : m_source(picture)
    , m_keptSize(keptSize)
{
}

QPixmap KeptPicture::scaled(const QSize& size)
{
    if (isScaledDirectly(size)) {
        m_firstSize = size;
        return stretchedBackground(m_source, size);
    }
    if (m_kept.isNull()) {
        m_kept = composeBackground(*m_source.image, m_source.sensor, m_source.crop, m_keptSize);
        m_source.image.reset();
    }
    return m_kept.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

// A part of the sensor may have another aspect ratio, and black beside it then.
bool KeptPicture::isScaledDirectly(const QSize& size) const
{
    return m_kept.isNull() && m_source.crop.isEmpty() && m_keptSize != m_source.sensor
        && (m_firstSize.isEmpty() || size == m_firstSize);
}
