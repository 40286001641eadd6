#include "sensor/SensorBackground.h"

#include <QImage>
#include <QPainter>
#include <QtMath>

#include <cstddef>
#include <tuple>

namespace {

constexpr int placeholderSaturation = 65;
constexpr int placeholderAlpha = 185;

constexpr int marginFineness = 4;

/// Aspect ratio kept and at least one pixel, as QPixmap::scaled() does it.
QSize fittedSize(const QSize& size, const QSize& bounds)
{
    return size.scaled(bounds, Qt::KeepAspectRatio).expandedTo({1, 1});
}

/// A part of an image that shares the image's pixels, which must outlive it.
QImage viewOf(const QImage& image, const QRect& part)
{
    const std::ptrdiff_t before = image.depth() / 8 * std::ptrdiff_t{part.x()};
    const uchar* firstPixel = image.constScanLine(part.y()) + before;
    return QImage(firstPixel, part.width(), part.height(), image.bytesPerLine(), image.format());
}

/// A size several times @p size, from which the pixels are averaged, or that of the original when
/// that is no larger.
QSize finerSize(const QSize& original, const QSize& size)
{
    return original.boundedTo(size * marginFineness);
}

/// The area @p source, scaled, with black around the image's @p part of it. An image border may lie
/// within a pixel.
QImage withMargins(const QImage& image, const QRect& source, const QRect& part, const QSize& size)
{
    QImage area(size, QImage::Format_ARGB32_Premultiplied);
    area.fill(Qt::black);
    const double xScale = static_cast<double>(size.width()) / source.width();
    const double yScale = static_cast<double>(size.height()) / source.height();
    const QRectF place((part.x() - source.x()) * xScale, (part.y() - source.y()) * yScale,
                       part.width() * xScale, part.height() * yScale);
    const QSize wholePixels(qCeil(place.width()), qCeil(place.height()));
    QPainter painter(&area);
    painter.setRenderHints(QPainter::SmoothPixmapTransform | QPainter::Antialiasing);
    painter.drawImage(
        place,
        viewOf(image, part).scaled(wholePixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
    return area;
}

/// The sensor pixels that are shown.
QRect shownArea(const QSize& sensor, const QRect& crop)
{
    const QRect sensorArea(QPoint(0, 0), sensor);
    return crop.isEmpty() ? sensorArea : crop.intersected(sensorArea);
}

/// The pixels of a pixmap without a copy, in a format that needs no colour table.
QImage pixelsOf(const QPixmap& pixmap)
{
    const QImage image = pixmap.toImage();
    return image.depth() > 8 ? image : image.convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

/// The area @p source at @p size, over which it is spread; null when nothing of it is in the image.
QImage scaledArea(const QPixmap& image, const QRect& source, const QSize& size)
{
    const QRect part = source.intersected(QRect(QPoint(0, 0), image.size()));
    if (part.isEmpty())
        return {};
    const QImage pixels = pixelsOf(image);
    const QImage picture = part == source
        ? viewOf(pixels, part)
        : withMargins(pixels, source, part, finerSize(source.size(), size));
    return picture.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

/// @p area in the top left corner.
QPixmap onBlack(const QImage& area, const QSize& size)
{
    QPixmap result(size);
    result.fill(Qt::black);
    QPainter(&result).drawImage(0, 0, area);
    return result;
}

/// The picture spread over @p size, whatever its aspect ratio.
QPixmap stretchedBackground(const SensorPicture& picture, const QSize& size)
{
    return onBlack(scaledArea(*picture.image, shownArea(picture.sensor, picture.crop), size), size);
}

} // namespace

bool needsOpaquePlaceholder(const QOperatingSystemVersion& system)
{
    // The predefined version has no build number and would count as older than any real Windows 7.
    const QOperatingSystemVersion& last = QOperatingSystemVersion::Windows7;
    return system.type() == QOperatingSystemVersion::Windows
        && std::make_tuple(system.majorVersion(), system.minorVersion())
        <= std::make_tuple(last.majorVersion(), last.minorVersion());
}

QColor placeholderTint(const QColor& color)
{
    return QColor::fromHsl(color.hslHue(), placeholderSaturation, color.lightness(),
                           placeholderAlpha);
}

QPixmap composeBackground(const QPixmap& image, const QSize& sensor, const QRect& crop,
                          const QSize& target)
{
    if (target.isEmpty())
        return {};
    const QRect source = shownArea(sensor, crop);
    return onBlack(scaledArea(image, source, ::fittedSize(source.size(), target)), target);
}

void SensorBackground::showPlaceholder(const QColor& color, const QSize& sensor)
{
    *this = {};
    m_color = color;
    m_size = sensor;
}

void SensorBackground::showPicture(const SensorPicture& picture, const QSize& keptSize)
{
    *this = {};
    m_source = picture;
    m_size = keptSize;
}

QSize SensorBackground::fittedSize(const QSize& bounds) const
{
    return m_size.isEmpty() || bounds.isEmpty() ? QSize() : ::fittedSize(m_size, bounds);
}

QPixmap SensorBackground::scaled(const QSize& size)
{
    if (size.isEmpty())
        return {};
    if (!isPicture()) {
        QPixmap placeholder(size);
        placeholder.fill(m_color);
        return placeholder;
    }
    if (isScaledDirectly(size)) {
        m_firstSize = size;
        return stretchedBackground(m_source, size);
    }
    if (m_source.image)
        compose(size);
    return m_kept.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

bool SensorBackground::isScaledDirectly(const QSize& size) const
{
    return m_source.image && m_source.fills(m_size) && size != m_size
        && m_size.boundedTo(largestLabel) != m_size
        && (m_firstSize.isEmpty() || size == m_firstSize);
}

/// @param size asked for; what is asked for whole is kept whole
void SensorBackground::compose(const QSize& size)
{
    const bool isKeptWhole = size == m_size || m_size.boundedTo(largestLabel) == m_size;
    const QSize kept = isKeptWhole ? m_size : m_size.scaled(largestLabel, Qt::KeepAspectRatio);
    // Another aspect ratio than the sensor's leaves black beside the picture.
    m_kept = m_source.fills(m_size)
        ? stretchedBackground(m_source, kept)
        : composeBackground(*m_source.image, m_source.sensor, m_source.crop, kept);
    m_source = {};
}
