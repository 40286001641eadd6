#pragma once

#include <QColor>
#include <QOperatingSystemVersion>
#include <QPixmap>
#include <QRect>
#include <QSize>

#include <memory>

class QEvent;
class QLabel;

/// Windows 7 and its predecessors paint no translucent placeholder well.
bool needsOpaquePlaceholder(const QOperatingSystemVersion& system);

/// A region's colour as the tint of an empty sensor area: hue and lightness kept, less saturated,
/// translucent.
QColor placeholderTint(const QColor& color);

/// The part @p crop (all of it when empty; sensor pixels) of a black sensor area that has @p image
/// in its top left corner, fitted into the top left corner of a black pixmap of size @p target.
///
/// An image smaller than the sensor leaves black margins, a larger one is cut; its device pixel
/// ratio does not count. The image is averaged straight into its place, without a copy of it; with
/// margins there, by way of a picture of at most four times the target's width and height.
QPixmap composeBackground(const QPixmap& image, const QSize& sensor, const QRect& crop,
                          const QSize& target);

/// A picture in the top left corner of a sensor, of which a part shows: all of it when the part is
/// empty.
struct SensorPicture
{
    std::shared_ptr<const QPixmap> image;
    QSize sensor;
    QRect crop;
};

/// The same stretched to @p size, whatever its aspect ratio.
QPixmap stretchedBackground(const SensorPicture& picture, const QSize& size);

/// Spares Qt the painting of what lies beneath @p label, as long as its @p picture hides all of it.
/// To be called when either changes, and on what isCoverChange() tells.
void coverWithPicture(QLabel* label, const QPixmap& picture);
bool isCoverChange(const QEvent* event);

/// What a region label shows below its bands: the placeholder of the sensor area, which is no more
/// than a colour and a size and needs no memory, or a picture.
class SensorBackground
{
public:
    /// @param size in sensor pixels, of which pixmaps take the aspect ratio
    void setPlaceholder(const QColor& color, const QSize& size);
    /// The size stays as it is.
    void setColor(const QColor& color);
    /// The picture is composed at @p size when it is first asked for, and kept like that.
    void setPicture(const SensorPicture& picture, const QSize& size);

    QSize size() const { return m_size; }

    /// The background fitted into @p bounds, aspect ratio kept; a null pixmap when either is empty.
    QPixmap fitted(const QSize& bounds);
    /// Its size; an empty one when either is empty.
    QSize fittedSize(const QSize& bounds) const;

    /// The background before a layout has given its label a size: as large as the sensor, but not
    /// larger than a label can be on a screen.
    QPixmap beforeLayout();

private:
    QSize m_size;
    QColor m_color;
    SensorPicture m_source; ///< not composed yet
    QPixmap m_picture;      ///< null for the placeholder
};
