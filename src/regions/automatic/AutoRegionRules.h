#pragma once

#include "sensor/Span.h"

#include <QCoreApplication>
#include <QPointF>
#include <QRect>
#include <QSizeF>
#include <QString>

// The region that the automatic functions evaluate, in image pixels; some cameras count it from an
// offset of their own, the origin. They tell it by offset and size, or by its edges, of which the
// far one lies behind it. The limits are its largest size, in whole pixels.

struct AutoRegionText
{
    Q_DECLARE_TR_FUNCTIONS(AutoROIWidget)
};

struct AutoRegion
{
    Span<double> horizontal;
    Span<double> vertical; ///< of a negative length where edges cross
};

// Cameras with "AutofunctionAOI..." features agree with all of this: the quotient is not truncated;
// each axis adds the minimum of the other's offset; only the height subtracts the image's minimum.

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

/// Whether right or bottom is written before left or top, so that they never cross.
bool writesFarEdgeFirst(const Span<double>& current, const Span<double>& wanted);

/// A span that would collapse on the grid becomes one increment thick, moved only at @p limit.
Span<double> keptApart(const Span<double>& drawn, double limit, double increment);
