#include "multiregion/label/HandleGrab.h"

namespace {

constexpr int zone = 4; ///< pixels

bool inNearZone(int first, int position)
{
    return position >= first && position < first + zone;
}

bool inFarZone(int last, int position)
{
    return position >= last - zone && position < last;
}

} // namespace

GrabbedEdges grabbedEdges(HandleGrab grab)
{
    constexpr GrabbedEdges edges[]
        = {{0, 0}, {-1, 0}, {1, 0}, {0, -1}, {0, 1}, {-1, -1}, {1, -1}, {-1, 1}, {1, 1}};
    return edges[static_cast<int>(grab)];
}

HandleGrab handleGrabAt(const QRect& band, const QPoint& point)
{
    const int lastColumn = band.x() + band.width() - 1;
    const int lastRow = band.y() + band.height() - 1;

    // On a band thinner than both zones the right edge wins over the left, the top over the bottom.
    int column = 1;
    if (inFarZone(lastColumn, point.x()))
        column = 2;
    else if (inNearZone(band.x(), point.x()))
        column = 0;
    int row = 1;
    if (inNearZone(band.y(), point.y()))
        row = 0;
    else if (inFarZone(lastRow, point.y()))
        row = 2;

    constexpr HandleGrab grabs[3][3] = {
        {HandleGrab::TopLeft, HandleGrab::Top, HandleGrab::TopRight},
        {HandleGrab::Left, HandleGrab::Move, HandleGrab::Right},
        {HandleGrab::BottomLeft, HandleGrab::Bottom, HandleGrab::BottomRight},
    };
    return grabs[row][column];
}

Qt::CursorShape cursorForGrab(HandleGrab grab)
{
    const GrabbedEdges edges = grabbedEdges(grab);
    if (edges.horizontal == 0)
        return edges.vertical == 0 ? Qt::SizeAllCursor : Qt::SizeVerCursor;
    if (edges.vertical == 0)
        return Qt::SizeHorCursor;
    return edges.horizontal == edges.vertical ? Qt::SizeFDiagCursor : Qt::SizeBDiagCursor;
}
