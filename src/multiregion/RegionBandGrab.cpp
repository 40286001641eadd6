#include "RegionBandGrab.h"

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

RegionBandGrab regionBandGrabAt(const QRect& band, const QPoint& point)
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

    constexpr RegionBandGrab grabs[3][3] = {
        {RegionBandGrab::Move, RegionBandGrab::Top, RegionBandGrab::Bottom},
        {RegionBandGrab::Left, RegionBandGrab::TopLeft, RegionBandGrab::BottomLeft},
        {RegionBandGrab::Right, RegionBandGrab::TopRight, RegionBandGrab::BottomRight},
    };
    return grabs[static_cast<int>(horizontal)][static_cast<int>(vertical)];
}

Qt::CursorShape cursorForGrab(RegionBandGrab grab)
{
    switch (grab) {
    case RegionBandGrab::Left:
    case RegionBandGrab::Right:
        return Qt::SizeHorCursor;
    case RegionBandGrab::Top:
    case RegionBandGrab::Bottom:
        return Qt::SizeVerCursor;
    case RegionBandGrab::TopLeft:
    case RegionBandGrab::BottomRight:
        return Qt::SizeFDiagCursor;
    case RegionBandGrab::TopRight:
    case RegionBandGrab::BottomLeft:
        return Qt::SizeBDiagCursor;
    case RegionBandGrab::Move:
        break;
    }
    return Qt::SizeAllCursor;
}
