#pragma once

#include "regions/label/EdgeGrab.h"
#include "regions/label/LabelGeometry.h"

/// What a drag knows while the button is held.
struct EdgeDrag
{
    EdgeGrab held;       ///< what the press took
    EdgeGrab follows;    ///< what goes with the pointer until the release
    QPoint grabOffset;   ///< from the band's position to the press, for a move
    SensorRegion region; ///< at the press
};

/// One step of a drag: the band in label pixels and the provisional region.
struct EdgeDragStep
{
    QRect band;
    SensorRegion region;
};

/// @param shown the cursor at the press
/// @param region at rest
EdgeDrag dragFromPress(const QPoint& point, const QRect& band, Qt::CursorShape shown,
                       const SensorRegion& region, const LabelGeometry& geometry);

/// Moves the band to the pointer and derives the provisional region: what the drag does not change
/// keeps its value from the press, the rest is read off the band and clamped to the sensor.
///
/// The opposite edges hold still, for which the band stays at least one pixel thin.
/// @param band the band as it stands now
/// @param pointer clamped to the picture
EdgeDragStep dragBand(const EdgeDrag& drag, const QRect& band, const QPoint& pointer,
                      const LabelGeometry& geometry);

/// The region at the end of a drag. Dragging out beyond the label's right or bottom border ends at
/// the sensor's.
/// @param pointer where it really is
SensorRegion regionForRelease(const EdgeDrag& drag, const QRect& band, const QPoint& pointer,
                              const LabelGeometry& geometry);
