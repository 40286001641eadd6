#pragma once

#include <QImage>
#include <QRegion>

#include <optional>

class QPainter;
class QStyleOptionRubberBand;
class QWidget;

/// A style's rubber band, drawn once and small: a band is its corners, its edges drawn out and an
/// inside of one colour. The style's own way takes longer the larger the band is.
///
/// There is nothing to draw out for a style that gives the inside more than one colour, and on
/// screens whose pixels are no whole fraction of the logical ones.
class BandImage
{
public:
    BandImage(const QStyleOptionRubberBand& option, const QWidget& band);

    /// Whether a band can be drawn out: it is large enough to have both borders of each axis whole.
    bool fits(const QSize& band) const;

    void paint(QPainter& painter, const QRect& band, const QRegion& region) const;

    /// What to paint anew when a band moves: not what is inside before and after.
    QRegion changed(const QRect& before, const QRect& after) const;

private:
    QImage m_image;
    int m_scale = 1;            ///< pixels of the image for one of the band's, each way
    std::optional<int> m_frame; ///< how far the border reaches in
};
