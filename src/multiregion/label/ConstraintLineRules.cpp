#include "multiregion/label/ConstraintLineRules.h"

#include <algorithm>
#include <cstdlib>

namespace {

constexpr int grabZone = 4;           ///< pixels to either side
constexpr int alignmentTolerance = 1; ///< pixels, for rounding

/// The edge itself: the first pixel of the span, or the one behind its last.
int markedEdge(LineEdge edge, int position)
{
    return edge == LineEdge::Leading ? position : position + constraintLineThickness;
}

} // namespace

int linePosition(LineEdge edge, const RegionSpan& master)
{
    return edge == LineEdge::Leading ? master.start : master.end() - constraintLineThickness;
}

RegionSpan spanForLine(LineEdge edge, int position, const RegionSpan& span)
{
    const int marked = markedEdge(edge, position);
    return edge == LineEdge::Leading ? RegionSpan{marked, span.end() - marked}
                                     : RegionSpan{span.start, marked - span.start};
}

LineBounds lineBounds(LineEdge edge, const LineSurroundings& surroundings)
{
    const RegionSpan& group = surroundings.group;
    LineBounds bounds;
    if (edge == LineEdge::Leading) {
        int lowest = std::max(0, group.end() - surroundings.maximum);
        for (const RegionSpan& other : surroundings.others) {
            if (other.end() <= group.start)
                lowest = std::max(lowest, other.end());
        }
        bounds = {lowest, group.end() - surroundings.minimum};
    } else {
        int highest = std::min(surroundings.image, group.start + surroundings.maximum);
        for (const RegionSpan& other : surroundings.others) {
            if (other.start >= group.end())
                highest = std::min(highest, other.start);
        }
        bounds = {group.start + surroundings.minimum - constraintLineThickness,
                  highest - constraintLineThickness};
    }
    bounds.upper = std::max(bounds.lower, bounds.upper);
    return bounds;
}

std::optional<int> grabDistance(int position, int point)
{
    const int distance
        = std::max({position - point, point - (position + constraintLineThickness - 1), 0});
    return distance <= grabZone ? std::optional(distance) : std::nullopt;
}

bool isAlongLine(int length, int point)
{
    return point >= -grabZone && point < length + grabZone;
}

bool isForLines(const RegionSpan& band, int point, const QVector<int>& positions)
{
    const int third = band.length / 3;
    if (point < band.start + third || point >= band.end() - third)
        return true;
    const auto isInAZone = [&positions](int pixel) {
        return std::any_of(positions.begin(), positions.end(),
                           [pixel](int position) { return grabDistance(position, pixel); });
    };
    for (int pixel = band.start; pixel < band.end(); ++pixel) {
        if (!isInAZone(pixel))
            return true;
    }
    return false;
}

MoveConstraints constraintsFromLine(const ConstraintGroup& group, LineEdge edge, int position,
                                    int region, const QRect& band)
{
    MoveConstraints constraints;
    const bool isRow = group.kind == ConstraintGroup::Row;
    const RegionSpan span = spanOf(band, group.axis());
    const int marked = markedEdge(edge, position);
    if (group.members.contains(region)) {
        const int own = edge == LineEdge::Leading ? span.start : span.end();
        if (group.master() != region && std::abs(own - marked) <= alignmentTolerance)
            constraints.blocked = isRow ? std::set{MoveDirection::Up, MoveDirection::Down}
                                        : std::set{MoveDirection::Left, MoveDirection::Right};
    } else if (edge == LineEdge::Trailing && marked <= span.start) {
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
