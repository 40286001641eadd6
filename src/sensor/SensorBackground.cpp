#include "sensor/SensorBackground.h"

#include <QImage>
#include <QPainter>
#include <QVersionNumber>
#include <QtMath>

#include <cstddef>

namespace {

constexpr int placeholderSaturation = 65;
constexpr int placeholderAlpha = 185;

constexpr int marginFineness = 4;

/// Aspect ratio kept and at least one pixel, as QPixmap::scaled() does it.
QSize fittedInto(const QSize& size, const QSize& bounds)
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

QImage spread(const QImage& image, const QSize& size)
{
    return image.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

/// The area @p source with black around the image's @p part of it. An image border may lie within a
/// pixel: the pixels are averaged from several times as many, as far as there are.
QImage withMargins(const QImage& image, const QRect& source, const QRect& part, const QSize& size)
{
    const QSize finer = source.size().boundedTo(size * marginFineness);
    QImage area(finer, QImage::Format_ARGB32_Premultiplied);
    area.fill(Qt::black);
    const double xScale = static_cast<double>(finer.width()) / source.width();
    const double yScale = static_cast<double>(finer.height()) / source.height();
    const QRectF place((part.x() - source.x()) * xScale, (part.y() - source.y()) * yScale,
                       part.width() * xScale, part.height() * yScale);
    QPainter painter(&area);
    painter.setRenderHints(QPainter::SmoothPixmapTransform | QPainter::Antialiasing);
    painter.drawImage(place,
                      spread(viewOf(image, part), {qCeil(place.width()), qCeil(place.height())}));
    painter.end();
    return spread(area, size);
}

QRect shownArea(const SensorPicture& picture)
{
    const QRect sensor(QPoint(0, 0), picture.sensor);
    return picture.crop.isEmpty() ? sensor : picture.crop & sensor;
}

/// The shown area spread over @p size in the top left corner of a black pixmap, without a copy.
QPixmap composed(const SensorPicture& picture, const QSize& size, const QSize& target)
{
    QImage pixels = picture.image->toImage();
    if (pixels.depth() <= 8) // by a colour table
        pixels = pixels.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    const QRect source = shownArea(picture);
    const QRect part = source & pixels.rect();
    QPixmap result(target);
    result.fill(Qt::black);
    if (!part.isEmpty())
        QPainter(&result).drawImage(0, 0,
                                    part == source ? spread(viewOf(pixels, part), size)
                                                   : withMargins(pixels, source, part, size));
    return result;
}

} // namespace

bool needsOpaquePlaceholder(const QOperatingSystemVersion& system)
{
    // The predefined version has no build number and would count as older than any real Windows 7.
    const QOperatingSystemVersion& last = QOperatingSystemVersion::Windows7;
    return system.type() == QOperatingSystemVersion::Windows
        && QVersionNumber(system.majorVersion(), system.minorVersion())
        <= QVersionNumber(last.majorVersion(), last.minorVersion());
}

QColor placeholderTint(const QColor& color)
{
    return QColor::fromHsl(color.hslHue(), placeholderSaturation, color.lightness(),
                           placeholderAlpha);
}

SensorBackground::SensorBackground(const QColor& placeholder, const QSize& sensor)
    : m_size(sensor)
    , m_color(placeholder)
{
}

SensorBackground::SensorBackground(const SensorPicture& picture, const QSize& keptSize)
    : m_size(keptSize)
    , m_source(picture)
{
}

QSize SensorBackground::fittedSize(const QSize& bounds) const
{
    return m_size.isEmpty() || bounds.isEmpty() ? QSize(0, 0) : fittedInto(m_size, bounds);
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
    if (m_source.image) {
        const QSize shown = shownArea(m_source).size();
        const bool losesPixels = size != m_size && m_size.boundedTo(largestLabel) != m_size;
        if (losesPixels && shown == m_size && (m_firstSize.isEmpty() || size == m_firstSize)) {
            m_firstSize = size;
            return composed(m_source, size, size);
        }
        const QSize kept = losesPixels ? m_size.scaled(largestLabel, Qt::KeepAspectRatio) : m_size;
        // Another aspect ratio than the sensor's leaves black beside the picture.
        m_kept = composed(m_source, shown == m_size ? kept : fittedInto(shown, kept), kept);
        m_source = {};
    }
    return m_kept.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}
