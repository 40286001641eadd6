#include "multiregion/label/ConstraintLineRules.h"

#include <algorithm>
#include <cstdlib>

namespace {

constexpr int alignmentTolerance = 1; ///< pixels, for rounding

/// The edge itself: the first pixel of the span, or the one behind its last.
int markedEdge(BandEdge edge, int position)
{
    return edge == BandEdge::Leading ? position : position + constraintLineThickness;
}

} // namespace

int linePosition(BandEdge edge, const Span<int>& master)
{
    return edge == BandEdge::Leading ? master.start : master.end() - constraintLineThickness;
}

Span<int> spanForLine(BandEdge edge, int position, const Span<int>& span)
{
    const int marked = markedEdge(edge, position);
    return edge == BandEdge::Leading ? Span<int>{marked, span.end() - marked}
                                     : Span<int>{span.start, marked - span.start};
}

std::optional<int> grabDistance(int position, int point)
{
    const int distance
        = std::max({position - point, point - (position + constraintLineThickness - 1), 0});
    return distance <= lineGrabZone ? std::optional(distance) : std::nullopt;
}

bool isForLines(const Span<int>& band, int point, const QVector<int>& positions)
{
    const int third = band.length / 3;
    if (point < band.start + third || point >= band.end() - third)
        return true;
    for (int pixel = band.start; pixel < band.end(); ++pixel) {
        if (std::none_of(positions.begin(), positions.end(),
                         [pixel](int position) { return grabDistance(position, pixel); }))
            return true;
    }
    return false;
}

MoveConstraints constraintsFromLine(const ConstraintGroup& group, BandEdge edge, int position,
                                    int region, const QRect& band)
{
    MoveConstraints constraints;
    const bool isRow = group.kind == ConstraintGroup::Row;
    const Span<int> span = spanOf(band, group.axis());
    const int marked = markedEdge(edge, position);
    if (group.members.contains(region)) {
        const int own = edge == BandEdge::Leading ? span.start : span.end();
        if (group.master() != region && std::abs(own - marked) <= alignmentTolerance)
            constraints.blocked = isRow ? std::set{MoveDirection::Up, MoveDirection::Down}
                                        : std::set{MoveDirection::Left, MoveDirection::Right};
    } else if (edge == BandEdge::Trailing && marked <= span.start) {
        constraints.lowerBound = isRow ? QPoint(-1, marked) : QPoint(marked, -1);
    }
    return constraints;
}

MoveConstraints combined(MoveConstraints a, const MoveConstraints& b)
{
    a.blocked.insert(b.blocked.begin(), b.blocked.end());
    a.lowerBound = {std::max(a.lowerBound.x(), b.lowerBound.x()),
                    std::max(a.lowerBound.y(), b.lowerBound.y())};
    return a;
}
