#pragma once

#include <QPoint>
#include <QRect>
#include <Qt>

/// What of a region's band a press takes hold of.
enum class HandleGrab {
    Move = 0,
    Left = 1,
    Right = 2,
    Top = 3,
    Bottom = 4,
    TopLeft = 5,
    TopRight = 6,
    BottomLeft = 7,
    BottomRight = 8,
};

/// The edges that a grab moves: -1 for the left or top one, 1 for the right or bottom one, 0 for
/// none.
struct GrabbedEdges
{
    int horizontal = 0;
    int vertical = 0;
};

GrabbedEdges grabbedEdges(HandleGrab grab);

/// What a press at @p point takes hold of, label pixels. The zones are four pixels wide inside the
/// band; its last column and row do not belong to them. The caller knows the point on the band.
HandleGrab handleGrabAt(const QRect& band, const QPoint& point);

Qt::CursorShape cursorForGrab(HandleGrab grab);
