#include "multiregion/label/HandleDrag.h"

#include "sensor/Span.h"

#include <algorithm>

namespace {

constexpr int zone = 4; ///< pixels

bool isLeading(const Span<int>& span, int place)
{
    return place >= span.start && place < span.start + zone;
}

bool isTrailing(const Span<int>& span, int place)
{
    const int last = span.end() - 1;
    return place >= last - zone && place < last;
}

} // namespace

/// On a band thinner than both zones the right edge wins over the left, the top over the bottom.
HandleGrab handleGrabAt(const QRect& band, const QPoint& point)
{
    const Span<int> columns = spanOf(band, Qt::Horizontal);
    const Span<int> rows = spanOf(band, Qt::Vertical);
    HandleGrab grab;
    if (isTrailing(columns, point.x()))
        grab.horizontal = BandEdge::Trailing;
    else if (isLeading(columns, point.x()))
        grab.horizontal = BandEdge::Leading;
    if (isLeading(rows, point.y()))
        grab.vertical = BandEdge::Leading;
    else if (isTrailing(rows, point.y()))
        grab.vertical = BandEdge::Trailing;
    return grab;
}

Qt::CursorShape cursorForGrab(const HandleGrab& grab)
{
    if (!grab.horizontal)
        return grab.vertical ? Qt::SizeVerCursor : Qt::SizeAllCursor;
    if (!grab.vertical)
        return Qt::SizeHorCursor;
    return grab.horizontal == grab.vertical ? Qt::SizeFDiagCursor : Qt::SizeBDiagCursor;
}

QRect movedRegionBand(const QRect& band, const QPoint& delta, const QSize& image,
                      const MoveConstraints& constraints)
{
    const QPoint wanted = band.topLeft() + delta;
    int x
        = std::max(constraints.lowerBound.x(), std::min(image.width() - band.width(), wanted.x()));
    int y = std::max(constraints.lowerBound.y(),
                     std::min(image.height() - band.height(), wanted.y()));
    if (constraints.blocked.count(x < band.x() ? MoveDirection::Left : MoveDirection::Right) > 0)
        x = band.x();
    if (constraints.blocked.count(y < band.y() ? MoveDirection::Up : MoveDirection::Down) > 0)
        y = band.y();
    return {x, y, band.width(), band.height()};
}

QRect resizedRegionBand(const QRect& band, const HandleGrab& grab, const QPoint& point,
                        const BandSizeLimits& limits)
{
    const QSize& least = limits.minimum;
    const QSize& most = limits.maximum;
    int left = band.x();
    int top = band.y();
    int right = band.x() + band.width() - 1;
    int bottom = band.y() + band.height() - 1;

    const bool isTopRight
        = grab.horizontal == BandEdge::Trailing && grab.vertical == BandEdge::Leading;
    if (grab.horizontal == BandEdge::Leading)
        left = std::max(0, std::min(right - least.width(), point.x()));
    else if (grab.horizontal == BandEdge::Trailing)
        right = std::max(isTopRight ? 0 : left + least.width(),
                         std::min(left + most.width(), point.x()));
    if (grab.vertical == BandEdge::Leading)
        top = std::max(isTopRight ? bottom - most.height() : 0,
                       std::min(bottom - least.height(), point.y()));
    else if (grab.vertical == BandEdge::Trailing)
        bottom = std::max(top + least.height(), std::min(top + most.height(), point.y()));
    return {left, top, right - left + 1, bottom - top + 1};
}
