#pragma once

#include "multiregion/label/HandleDrag.h"
#include "multiregion/rules/ConstraintGroups.h"
#include "sensor/Span.h"

#include <QVector>

#include <optional>

// A constraint line marks an edge that the members of a group share. It lies inside the group, at
// the edge of its master. Label pixels throughout; a line's position is that of its first pixel.

constexpr int constraintLineThickness = 2;
constexpr int lineGrabZone = 4; ///< to either side

/// How far a line can be dragged; the upper bound is not below the lower one.
struct LineBounds
{
    int lower = 0;
    int upper = 0;
};

/// Where the line of an edge lies.
int linePosition(BandEdge edge, const Span<int>& master);

/// The span of which a line at @p position marks the edge; its other edge stays.
Span<int> spanForLine(BandEdge edge, int position, const Span<int>& span);

/// The distance of a point from a line along the axis, when it is near enough to grab the line.
std::optional<int> grabDistance(int position, int point);

/// Whether a point of a band, in the zone of one of the lines at @p positions, is theirs. Where
/// their zones leave nothing of the band they reach a third into it.
bool isForLines(const Span<int>& band, int point, const QVector<int>& positions);

/// How a line of @p group at @p position holds the band of @p region that is being moved. A line of
/// the band's own group blocks the way across it once the band is aligned, the master excepted.
/// Behind another group's trailing line a band does not go back over it.
MoveConstraints constraintsFromLine(const ConstraintGroup& group, BandEdge edge, int position,
                                    int region, const QRect& band);

/// What several lines allow together.
MoveConstraints combined(MoveConstraints a, const MoveConstraints& b);
