#include "regions/label/EdgeGrab.h"

#include <cstdlib>

namespace {

/// The last four pixels before a right or bottom edge.
bool isBeforeEdge(int distance)
{
    return 0 < distance && distance < 5;
}

/// A left or top edge and the three pixels after it.
bool isFromEdge(int distance)
{
    return -4 < distance && distance < 1;
}

} // namespace

EdgeGrab grabForPress(const QRect& band, const QPoint& pointer)
{
    const auto isNear = [](int edge, int at) { return std::abs(edge - at) < 5; };
    EdgeGrab grab;
    grab.right = isNear(band.right(), pointer.x());
    grab.left = !grab.right && isNear(band.left(), pointer.x());
    grab.top = isNear(band.top(), pointer.y());
    grab.bottom = !grab.top && isNear(band.bottom(), pointer.y());
    grab.moving = !grab.any() && band.contains(pointer);
    return grab;
}

Qt::CursorShape cursorForHover(const QRect& band, const QPoint& clampedPointer,
                               const QPoint& rawPointer)
{
    const int toBottom = band.bottom() - clampedPointer.y();
    const bool top = isFromEdge(band.top() - clampedPointer.y());
    const bool right = isBeforeEdge(band.right() - clampedPointer.x());
    if (right || isFromEdge(band.left() - clampedPointer.x())) {
        if (!top && toBottom > 0)
            return Qt::SizeHorCursor;
        return top == right ? Qt::SizeBDiagCursor : Qt::SizeFDiagCursor;
    }
    if (top || isBeforeEdge(toBottom))
        return Qt::SizeVerCursor;
    return band.contains(rawPointer) ? Qt::SizeAllCursor : Qt::ArrowCursor;
}

EdgeGrab followingEdges(const EdgeGrab& held, Qt::CursorShape shown)
{
    EdgeGrab follows = held;
    if (held.right) {
        follows.top = shown == Qt::SizeBDiagCursor;
        follows.bottom = !follows.top && shown != Qt::SizeHorCursor;
    } else if (held.left) {
        follows.top = shown == Qt::SizeFDiagCursor;
        follows.bottom = shown == Qt::SizeBDiagCursor;
        follows.left = follows.top || follows.bottom || shown == Qt::SizeHorCursor;
    }
    return follows;
}
