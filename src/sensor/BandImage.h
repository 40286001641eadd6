#pragma once

#include <QImage>
#include <QRegion>

class QPainter;
class QStyleOptionRubberBand;
class QWidget;

/// A style's rubber band, drawn once and small. Any band consists of its corners, of its edges
/// drawn out and of an inside of one colour: the style's own way to draw it, by antialiased paths,
/// takes longer the larger the band is, however little of it is painted. Where the style lays one
/// translucent colour over another the result may differ from its own by two in 255.
class BandImage
{
public:
    /// As the band's style, palette and screen demand.
    BandImage(const QStyleOptionRubberBand& option, const QWidget& band);

    /// False for a style that gives the inside more than one colour, and on screens whose pixels
    /// are no whole fraction of the logical ones. Then there is nothing to draw out.
    bool isUsable() const { return m_frame >= 0; }

    /// Whether a band is large enough to have both borders of each axis whole.
    bool fits(const QSize& band) const;

    /// Paints the part of @p band that is in @p region.
    void paint(QPainter& painter, const QRect& band, const QRegion& region) const;

    /// What has to be painted anew when a band goes from one place to another: not what is inside
    /// before and after.
    QRegion changed(const QRect& before, const QRect& after) const;

private:
    QImage m_image;
    int m_scale = 1;  ///< pixels of the image for one of the band's, each way
    int m_frame = -1; ///< how far the border reaches in
};
