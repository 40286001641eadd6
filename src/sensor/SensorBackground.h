#pragma once

#include <QColor>
#include <QOperatingSystemVersion>
#include <QPixmap>
#include <QRect>

#include <memory>

/// Windows 7 and its predecessors paint no translucent placeholder well.
bool needsOpaquePlaceholder(const QOperatingSystemVersion& system);

/// The tint of an empty sensor area: hue and lightness kept, less saturated, translucent.
QColor placeholderTint(const QColor& color);

/// A picture in the top left corner of a sensor, of which all shows or the part that is not empty.
/// A smaller image leaves black margins, a larger one is cut; its pixel ratio does not count.
struct SensorPicture
{
    std::shared_ptr<const QPixmap> image;
    QSize sensor;
    QRect crop;
};

/// What a label shows of the sensor below its bands: the placeholder, which is no more than a
/// colour and a size, or a picture. A picture is composed when it is first asked for, and kept no
/// larger than a label can show: most labels are never resized, so a smaller first size comes
/// straight from the image where the copy would lose pixels.
class SensorBackground
{
public:
    /// As much as a label can show.
    static constexpr QSize largestLabel{2048, 2048};

    SensorBackground(const QColor& placeholder, const QSize& sensor);
    /// @param keptSize of all of it, of which pixmaps take the aspect ratio
    SensorBackground(const SensorPicture& picture, const QSize& keptSize);

    bool isPicture() const { return m_source.image || !m_kept.isNull(); }
    QSize size() const { return m_size; }

    /// The size fitted into @p bounds, aspect ratio kept; an empty one when either is empty.
    QSize fittedSize(const QSize& bounds) const;
    /// All of it spread over @p size.
    QPixmap scaled(const QSize& size);

private:
    QSize m_size;
    QColor m_color;
    SensorPicture m_source; ///< until there is the copy
    QSize m_firstSize;      ///< scaled straight from the image
    QPixmap m_kept;         ///< null for the placeholder
};
