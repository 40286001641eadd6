#pragma once

#include "sensor/Span.h"

#include <QCoreApplication>
#include <QPointF>
#include <QRect>
#include <QSizeF>
#include <QString>

// The region that the automatic functions evaluate, in image pixels. Some cameras count it from an
// offset of their own, the origin; the label shows it without. Cameras tell it by offset and size,
// or by its edges, of which the far one lies behind the region. The limits are its largest size, in
// whole pixels.

struct AutoRegionText
{
    Q_DECLARE_TR_FUNCTIONS(AutoROIWidget)
};

struct AutoRegion
{
    Span<double> horizontal;
    Span<double> vertical; ///< of a negative length where edges cross
};

// Cameras with "AutofunctionAOI..." features agree with all of this: the division by the increment
// is not truncated; each axis adds the minimum of the other axis's offset, and only the height
// subtracts the image's minimum.

/// @param increment of "AutofunctionAOIHeight"
double aoiHeightLimit(double height, double increment, double minimumHeight, double minimumOffsetX);

/// @param increment of "AutofunctionAOIWidth"
double aoiWidthLimit(double width, double increment, double minimumOffsetY);

/// The camera's region for one drawn on the label.
AutoRegion fromLabel(const QRect& drawn, const QPointF& origin);

/// The region to draw for offset and size, cut to the limits.
QRect drawnBySize(const AutoRegion& region, const QPointF& origin, const QSizeF& limits);
/// The region to draw for edges: cut to the limits, never negative.
QRect drawnByEdges(const AutoRegion& region, const QSizeF& limits);

/// The whole multiple of @p step, both truncated, at or next below @p value, as it is written.
double onGrid(double value, double step);

/// What is wrong with offset and size, for the user; empty when they keep to the limits.
/// @param name of the region to the user, "AOI" or "ROI"
QString sizeProblem(const AutoRegion& region, const QPointF& origin, const QSizeF& limits,
                    const QString& name);
/// What is wrong with the edges.
QString edgeProblems(const AutoRegion& region, const QSizeF& limits);
/// Whether the region is not empty and lies within the limits.
bool hasValidEdges(const AutoRegion& region, const QSizeF& limits);

/// Whether the far edge of an axis (right, bottom) is written before the near one, so that the
/// camera never sees near and far edge cross.
bool writesFarEdgeFirst(const Span<double>& current, const Span<double>& wanted);

/// A drawn span that would collapse on the camera's grid becomes one increment thick, and moves
/// only where it would leave @p limit.
Span<double> keptApart(const Span<double>& drawn, double limit, double increment);
