#pragma once

#include "multiregion/label/HandleDrag.h"
#include "multiregion/rules/ConstraintGroups.h"
#include "sensor/Span.h"

#include <QVector>

#include <optional>

// A constraint line marks an edge that the members of a group share. It lies inside the group, at
// the leading (left, top) or trailing (right, bottom) edge of its master. Label pixels throughout;
// a line's position is that of its first pixel.

constexpr int constraintLineThickness = 2;

enum class LineEdge {
    Leading,
    Trailing,
};

/// Where the line of an edge lies.
int linePosition(LineEdge edge, const RegionSpan& master);

/// The span of which a line at @p position marks the edge; its other edge stays.
RegionSpan spanForLine(LineEdge edge, int position, const RegionSpan& span);

/// How far a line can be dragged; the upper bound is not below the lower one.
struct LineBounds
{
    int lower = 0;
    int upper = 0;
};

/// What the bounds of a line depend on, all along the axis of the edge.
struct LineSurroundings
{
    RegionSpan group;
    QVector<RegionSpan> others; ///< bands of shown regions that are no members
    int image = 0;              ///< length of the image
    int minimum = 1;            ///< of the group's length
    int maximum = 1;
};

/// The edge moves between the band next to the group (or the image's border) and the minimum, and
/// no farther than the maximum.
LineBounds lineBounds(LineEdge edge, const LineSurroundings& surroundings);

/// The distance of a point from a line along the axis, when it is near enough to grab the line.
std::optional<int> grabDistance(int position, int point);

/// Whether a point is beside a line of @p length, which begins at 0, or as near to one of its ends
/// as a grab allows.
bool isAlongLine(int length, int point);

/// Whether a point of a band, in the zone of one of the lines at @p positions, is theirs. Where
/// their zones leave nothing of the band they reach a third into it, so that there is something to
/// take hold of.
bool isForLines(const RegionSpan& band, int point, const QVector<int>& positions);

/// How a line of @p group at @p position holds the band of @p region that is being moved. A line of
/// the band's own group blocks the way across it once the band is aligned, the master excepted.
/// Behind another group's trailing line a band does not go back over it.
MoveConstraints constraintsFromLine(const ConstraintGroup& group, LineEdge edge, int position,
                                    int region, const QRect& band);

/// What several lines allow together.
MoveConstraints combined(MoveConstraints a, const MoveConstraints& b);
