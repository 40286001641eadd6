#include "multiregion/label/HandleGrab.h"

namespace {

constexpr int zone = 4; ///< pixels

enum class Edge {
    None,
    Near,
    Far,
};

bool inNearZone(int first, int position)
{
    return position >= first && position < first + zone;
}

bool inFarZone(int last, int position)
{
    return position >= last - zone && position < last;
}

} // namespace

HandleGrab handleGrabAt(const QRect& band, const QPoint& point)
{
    const int lastColumn = band.x() + band.width() - 1;
    const int lastRow = band.y() + band.height() - 1;

    // On a band thinner than both zones the right edge wins over the left, the top over the bottom.
    Edge horizontal = Edge::None;
    if (inFarZone(lastColumn, point.x()))
        horizontal = Edge::Far;
    else if (inNearZone(band.x(), point.x()))
        horizontal = Edge::Near;

    Edge vertical = Edge::None;
    if (inNearZone(band.y(), point.y()))
        vertical = Edge::Near;
    else if (inFarZone(lastRow, point.y()))
        vertical = Edge::Far;

    constexpr HandleGrab grabs[3][3] = {
        {HandleGrab::Move, HandleGrab::Top, HandleGrab::Bottom},
        {HandleGrab::Left, HandleGrab::TopLeft, HandleGrab::BottomLeft},
        {HandleGrab::Right, HandleGrab::TopRight, HandleGrab::BottomRight},
    };
    return grabs[static_cast<int>(horizontal)][static_cast<int>(vertical)];
}

Qt::CursorShape cursorForGrab(HandleGrab grab)
{
    switch (grab) {
    case HandleGrab::Left:
    case HandleGrab::Right:
        return Qt::SizeHorCursor;
    case HandleGrab::Top:
    case HandleGrab::Bottom:
        return Qt::SizeVerCursor;
    case HandleGrab::TopLeft:
    case HandleGrab::BottomRight:
        return Qt::SizeFDiagCursor;
    case HandleGrab::TopRight:
    case HandleGrab::BottomLeft:
        return Qt::SizeBDiagCursor;
    case HandleGrab::Move:
        break;
    }
    return Qt::SizeAllCursor;
}
