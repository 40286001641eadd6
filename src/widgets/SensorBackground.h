#pragma once

#include <QColor>
#include <QOperatingSystemVersion>
#include <QPixmap>
#include <QRect>
#include <QSize>

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

/// What a region label shows below its bands: the placeholder of the sensor area, which is no more
/// than a colour and a size and needs no memory, or a picture.
class SensorBackground
{
public:
    /// @param size in sensor pixels, of which pixmaps take the aspect ratio
    void setPlaceholder(const QColor& color, const QSize& size);
    /// The size stays as it is.
    void setColor(const QColor& color);
    void setPicture(const QPixmap& picture);

    QSize size() const { return m_size; }

    /// The background fitted into @p bounds, aspect ratio kept; a null pixmap when either is empty.
    QPixmap fitted(const QSize& bounds) const;

    /// The background before a layout has given its label a size: as large as the sensor, but not
    /// larger than a label can be on a screen.
    QPixmap beforeLayout() const;

private:
    QSize m_size;
    QColor m_color;
    QPixmap m_picture; ///< null for the placeholder
};
