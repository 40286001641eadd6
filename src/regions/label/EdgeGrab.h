#pragma once

#include <QRect>
#include <Qt>

/// Right excludes left and top excludes bottom; a move excludes all edges.
struct EdgeGrab
{
    bool moving = false;
    bool left = false;
    bool right = false;
    bool top = false;
    bool bottom = false;

    constexpr bool any() const { return moving || left || right || top || bottom; }
};

// A press takes an edge up to four pixels to either side of it, and on its extension beyond the
// corners; hovering shows the edge's cursor inside the band only. A user is told less than a press
// forgives, and the two must not be merged. Edges are the band's last pixels.

EdgeGrab grabForPress(const QRect& band, const QPoint& pointer);

/// The edges look at the pointer clamped to the picture, the inside at where it really is.
Qt::CursorShape cursorForHover(const QRect& band, const QPoint& clampedPointer,
                               const QPoint& rawPointer);

/// What follows the pointer until the release: the corner or the one edge that @p shown, the cursor
/// at the press, has told. Nothing for a left edge of which no hover has told.
EdgeGrab followingEdges(const EdgeGrab& held, Qt::CursorShape shown);
