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
        return constraints.blocked.contains(direction);
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

    const auto leftEdge = [&] { return std::max(0, std::min(right - least.width(), point.x())); };
    const auto rightEdge
        = [&] { return std::max(left + least.width(), std::min(left + most.width(), point.x())); };
    const auto topEdge = [&] { return std::max(0, std::min(bottom - least.height(), point.y())); };
    const auto bottomEdge
        = [&] { return std::max(top + least.height(), std::min(top + most.height(), point.y())); };

    switch (grab) {
    case HandleGrab::Left:
        left = leftEdge();
        break;
    case HandleGrab::Right:
        right = rightEdge();
        break;
    case HandleGrab::Top:
        top = topEdge();
        break;
    case HandleGrab::Bottom:
        bottom = bottomEdge();
        break;
    case HandleGrab::TopLeft:
        left = leftEdge();
        top = topEdge();
        break;
    case HandleGrab::TopRight:
        right = std::max(0, std::min(left + most.width(), point.x()));
        top = std::max(bottom - most.height(), std::min(bottom - least.height(), point.y()));
        break;
    case HandleGrab::BottomLeft:
        left = leftEdge();
        bottom = bottomEdge();
        break;
    case HandleGrab::BottomRight:
        right = rightEdge();
        bottom = bottomEdge();
        break;
    case HandleGrab::Move:
        break;
    }
    return {left, top, right - left + 1, bottom - top + 1};
}
