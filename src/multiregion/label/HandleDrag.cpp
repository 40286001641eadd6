#include "multiregion/label/HandleDrag.h"

#include <algorithm>

QRect movedRegionBand(const QRect& band, const QPoint& delta, const QSize& image,
                      const MoveConstraints& constraints)
{
    int x = std::max(constraints.lowerBound.x(),
                     std::min(image.width() - band.width(), band.x() + delta.x()));
    int y = std::max(constraints.lowerBound.y(),
                     std::min(image.height() - band.height(), band.y() + delta.y()));
    const auto blocks = [&constraints](MoveDirection direction) {
        return constraints.blocked.count(direction) > 0;
    };
    if ((y < band.y() && blocks(MoveDirection::Up))
        || (y > band.y() && blocks(MoveDirection::Down)))
        y = band.y();
    if ((x < band.x() && blocks(MoveDirection::Left))
        || (x > band.x() && blocks(MoveDirection::Right)))
        x = band.x();
    return {x, y, band.width(), band.height()};
}

QRect resizedRegionBand(const QRect& band, HandleGrab grab, const QPoint& point,
                        const BandSizeLimits& limits)
{
    const QSize& least = limits.minimum;
    const QSize& most = limits.maximum;
    int left = band.x();
    int top = band.y();
    int right = band.x() + band.width() - 1;
    int bottom = band.y() + band.height() - 1;

    const GrabbedEdges edges = grabbedEdges(grab);
    const bool isTopRight = grab == HandleGrab::TopRight;
    if (edges.horizontal < 0)
        left = std::max(0, std::min(right - least.width(), point.x()));
    else if (edges.horizontal > 0)
        right = std::max(isTopRight ? 0 : left + least.width(),
                         std::min(left + most.width(), point.x()));
    if (edges.vertical < 0)
        top = std::max(isTopRight ? bottom - most.height() : 0,
                       std::min(bottom - least.height(), point.y()));
    else if (edges.vertical > 0)
        bottom = std::max(top + least.height(), std::min(top + most.height(), point.y()));
    return {left, top, right - left + 1, bottom - top + 1};
}
