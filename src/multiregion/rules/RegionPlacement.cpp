#include "multiregion/rules/RegionPlacement.h"

#include "sensor/PixelRect.h"

#include <algorithm>
#include <optional>

namespace {

double predecessorEnd(const PlacementRequest& request)
{
    return request.predecessor.offset + request.predecessor.size;
}

double spaceBehind(const PlacementRequest& request)
{
    return request.sensorSize - predecessorEnd(request) - incrementOf(request.size);
}

std::optional<RegionExtent> placedAlong(const PlacementRequest& request, double sizeLimit)
{
    if (sizeLimit < request.size.minimum)
        return std::nullopt;
    const double end = predecessorEnd(request);
    const double offset
        = request.current.offset > end ? request.current.offset : end + incrementOf(request.size);
    const double size = std::max(std::min(request.current.size, sizeLimit), request.size.minimum);
    return RegionExtent{offset, size};
}

} // namespace

QRect placedInRow(const PlacementRequest& request)
{
    double limit = spaceBehind(request);
    if (request.size.maximum > 0.0)
        limit = std::min(limit, request.size.maximum);
    const auto along = placedAlong(request, limit);
    if (!along)
        return {};
    return truncatedRect(along->offset, request.first.offset, along->size, request.first.size);
}

QRect placedInColumn(const PlacementRequest& request)
{
    const auto along = placedAlong(request, spaceBehind(request));
    if (!along)
        return {};
    return truncatedRect(request.first.offset, along->offset, request.first.size, along->size);
}
