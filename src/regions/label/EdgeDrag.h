#pragma once

#include "regions/label/EdgeGrab.h"
#include "regions/label/LabelGeometry.h"

struct EdgeDrag
{
    EdgeGrab held;     ///< what the press took
    EdgeGrab follows;  ///< what goes with the pointer until the release
    QPoint grabOffset; ///< from the band's position to the press, for a move
    QRect band;        ///< label pixels
    QRect region;      ///< sensor pixels
};

/// The opposite edges hold still, for which the band stays at least one pixel thin.
/// @param pointer clamped to the picture
QRect draggedBand(const EdgeDrag& drag, const QPoint& pointer, const LabelGeometry& geometry);

/// The region during a drag: what the drag does not change keeps its value from the press, the rest
/// is read off the band and clamped to the sensor.
QRect provisionalRegion(const EdgeDrag& drag, const QRect& band, const LabelGeometry& geometry);

/// Dragging out beyond the label's right or bottom border ends at the sensor's.
/// @param pointer where it really is
QRect releasedRegion(const EdgeDrag& drag, const QRect& band, const QPoint& pointer,
                     const LabelGeometry& geometry);
