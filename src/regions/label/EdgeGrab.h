#pragma once

#include <QPoint>
#include <QRect>
#include <Qt>

/// What of a band a drag moves. Right excludes left and top excludes bottom; a move excludes all
/// edges.
struct EdgeGrab
{
    bool moving = false;
    bool left = false;
    bool right = false;
    bool top = false;
    bool bottom = false;

    constexpr bool any() const { return moving || left || right || top || bottom; }
};

// The zones in which a press takes an edge reach up to four pixels to either side of it; those in
// which hovering shows an edge's cursor lie inside the band. A user is told less than a press
// forgives, and the two must not be merged. Edges are the band's last pixels. Label pixels
// throughout.

/// What a press at the pointer takes hold of. An edge is also taken on its extension beyond the
/// band's corners.
EdgeGrab flagsForPress(const QRect& band, const QPoint& pointer);

/// The cursor over a band that is not being dragged. The edges look at the pointer clamped to the
/// picture, the inside at where it really is.
Qt::CursorShape cursorForHover(const QRect& band, const QPoint& clampedPointer,
                               const QPoint& rawPointer);

/// What follows the pointer until the release: the corner or the one edge that @p shown, the cursor
/// at the press, has told. Nothing for a left edge of which no hover has told.
EdgeGrab followingEdges(const EdgeGrab& held, Qt::CursorShape shown);
