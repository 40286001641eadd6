#pragma once

#include "regions/label/EdgeGrab.h"
#include "regions/label/LabelGeometry.h"

#include <Qt>

/// One step of a drag: the band in label pixels and the region it stands for.
struct EdgeDragStep
{
    QRect band;
    SensorRegion region;
};

/// What a drag knows while the button is held.
struct EdgeDrag
{
    EdgeGrab flags;
    Qt::CursorShape cursor = Qt::ArrowCursor; ///< tells the corners and the edges apart
    QPoint grabOffset;                        ///< from the band's position to the press, for a move
    SensorRegion region;                      ///< the region at the press
};

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

/// The region that a band stands for in the middle of a drag: what a release within the label would
/// end on.
SensorRegion heldRegion(const EdgeDrag& drag, const QRect& band, const LabelGeometry& geometry);
