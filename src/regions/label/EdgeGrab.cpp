#include "regions/label/EdgeGrab.h"

#include <cstdlib>

namespace {

/// The last four pixels before a right or bottom edge.
bool isBeforeEdge(qint64 distance)
{
    return 0 < distance && distance < 5;
}

/// A left or top edge and the three pixels after it.
bool isFromEdge(qint64 distance)
{
    return -4 < distance && distance < 1;
}

/// From the pointer, which may be anywhere, to an edge.
qint64 distance(int edge, int pointer)
{
    return qint64{edge} - pointer;
}

} // namespace

EdgeGrab flagsForPress(const QRect& band, const QPoint& pointer)
{
    EdgeGrab flags;
    flags.right = std::abs(distance(band.right(), pointer.x())) <= 4;
    flags.left = !flags.right && std::abs(distance(band.left(), pointer.x())) < 5;
    flags.top = std::abs(distance(band.top(), pointer.y())) <= 4;
    flags.bottom = !flags.top && std::abs(distance(band.bottom(), pointer.y())) < 5;
    flags.moving = !flags.any() && band.contains(pointer);
    return flags;
}

Qt::CursorShape cursorForHover(const QRect& band, const QPoint& clampedPointer,
                               const QPoint& rawPointer)
{
    const qint64 toTop = distance(band.top(), clampedPointer.y());
    const qint64 toBottom = distance(band.bottom(), clampedPointer.y());

    if (isBeforeEdge(distance(band.right(), clampedPointer.x()))) {
        if (isFromEdge(toTop))
            return Qt::SizeBDiagCursor;
        return toBottom > 0 ? Qt::SizeHorCursor : Qt::SizeFDiagCursor;
    }
    if (isFromEdge(distance(band.left(), clampedPointer.x()))) {
        if (isFromEdge(toTop))
            return Qt::SizeFDiagCursor;
        return toBottom > 0 ? Qt::SizeHorCursor : Qt::SizeBDiagCursor;
    }
    if (isFromEdge(toTop) || isBeforeEdge(toBottom))
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
