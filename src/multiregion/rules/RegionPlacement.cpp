#include "multiregion/rules/RegionPlacement.h"

#include "sensor/PixelRect.h"
#include "sensor/Span.h"

#include <algorithm>

QRect placedRegion(Qt::Orientation axis, const PlacementRequest& request)
{
    const SizeRange& size = request.size;
    const auto current = spanOf<double>(request.current, axis);
    const double end = spanOf<double>(request.predecessor, axis).end();
    double limit = request.sensorSize - end - size.increment;
    if (axis == Qt::Horizontal && size.maximum > 0.0)
        limit = std::min(limit, size.maximum);
    if (limit < size.minimum)
        return {};
    const double start = current.start > end ? current.start : end + size.increment;
    const double length = std::max(std::min(current.length, limit), size.minimum);
    const QRect& first = request.first;
    return axis == Qt::Horizontal ? truncatedRect(start, first.y(), length, first.height())
                                  : truncatedRect(first.x(), start, first.width(), length);
}
