#include "regions/automatic/EdgeSpan.h"

#include "regions/automatic/AutoRegion.h"

#include <algorithm>

EdgeSpan edgesForExtent(double offset, double extent, double limit, double increment)
{
    if (onGrid(offset, increment) < onGrid(offset + extent, increment))
        return {offset, offset + extent};
    const double thinnest = std::max(increment, 1.0);
    const double nearEdge = offset + thinnest <= limit ? offset : std::max(0.0, limit - thinnest);
    return {nearEdge, nearEdge + thinnest};
}
