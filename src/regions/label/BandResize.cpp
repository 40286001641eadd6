#include "regions/label/BandResize.h"

#include "features/NumberConversion.h"

#include <algorithm>
#include <cstdlib>

namespace {

/// Whether a band filled the picture before a change that altered it by up to @p slack.
bool wasFull(int bandSize, int slack, int displayedSize)
{
    return bandSize + slack >= displayedSize && bandSize - slack <= displayedSize;
}

} // namespace

QRect bandForResize(const QRect& band, const QSize& newSize, const QSize& oldSize,
                    const QSize& displayed)
{
    const int dh = std::abs(newSize.height() - oldSize.height());
    const int dw = std::abs(newSize.width() - oldSize.width());
    // The width counts twice for the width: a full band is recognised rather too often.
    const bool fullHeight = wasFull(band.height(), dw + dh, displayed.height());
    const bool fullWidth = wasFull(band.width(), 2 * dw + dh, displayed.width());

    // An axis with an empty margin behind the picture does not scale.
    double ry = static_cast<double>(oldSize.height()) / newSize.height();
    double rx = static_cast<double>(oldSize.width()) / newSize.width();
    if (newSize.width() > displayed.width())
        rx = 1.0;
    else
        ry = rx;
    if (newSize.height() <= displayed.height())
        rx = ry;

    double width = fullWidth ? displayed.width() : band.width() / rx + 0.5;
    double height = fullHeight ? displayed.height() : band.height() / ry + 0.5;
    if (band.left() + width >= displayed.width())
        width = displayed.width() - band.left();
    if (band.top() + height >= displayed.height())
        height = displayed.height() - band.top();
    return {toInt(band.x() / rx + 0.5), toInt(band.y() / ry + 0.5), std::max(0, toInt(width)),
            std::max(0, toInt(height))};
}
