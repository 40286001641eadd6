#include "multiregion/rules/DefaultLayouts.h"

#include "features/NumberConversion.h"
#include "multiregion/rules/ArrangementMode.h"
#include "multiregion/rules/RegionText.h"
#include "sensor/PixelRect.h"
#include "sensor/Span.h"

#include <algorithm>

namespace {

using Regions = QMap<int, QRect>;

constexpr int mostRegions = 4;
constexpr double marginSteps = 5.0; ///< increments between a region and the sensor's border

/// The minimum wins over the maximum.
double withinRange(double size, const SizeRange& range)
{
    if (range.maximum > 0.0)
        size = std::min(size, range.maximum);
    return std::max(size, range.minimum);
}

/// Whether @p count regions of minimum size fit side by side.
bool fits(int count, double sensorSize, double minimum)
{
    return minimum <= 0.0 || count <= sensorSize / minimum;
}

int lastPixel(const QRect& rect, Qt::Orientation axis)
{
    return spanOf(rect, axis).end() - 1;
}

Regions freeLayout(const LayoutRequest& request, int count)
{
    const double w = request.sensor.width();
    const double h = request.sensor.height();
    const QRect places[mostRegions] = {
        truncatedRect(0.0, 0.2 * h, w / 3.0, h / 3.0),
        truncatedRect(0.85 * w, 0.0, 0.15 * w, h),
        truncatedRect(0.125 * w, 0.8 * h, 0.5 * w, 0.15 * h),
        truncatedRect(0.4 * w, 0.15 * h, 0.15 * w, 0.5 * h),
    };
    Regions regions;
    for (int region = 0; region < count; ++region) {
        if (!places[region].isNull())
            regions.insert(region, places[region]);
    }
    return regions;
}

/// Regions one behind the other, evenly spaced.
Regions stripLayout(const LayoutRequest& request, int count, Qt::Orientation axis)
{
    const bool horizontal = axis == Qt::Horizontal;
    const double along = lengthOf(request.sensor, axis);
    const double across = lengthOf(request.sensor.transposed(), axis);
    const SizeRange& alongRange = horizontal ? request.width : request.height;
    const SizeRange& acrossRange = horizontal ? request.height : request.width;

    if (!fits(count, along, alongRange.minimum))
        --count;
    if (count < 1)
        return {};

    const double margin = marginSteps * acrossRange.increment;
    const double thickness = withinRange(across - 2.0 * margin, acrossRange);
    const double share = withinRange(along / count, alongRange);
    const double gap = std::max(share / 5.0, alongRange.increment);
    const double length = withinRange(share - gap, alongRange);
    const double spacing = (along - count * length) / (count + 1);

    Regions regions;
    double start = spacing;
    for (int region = 0; region < count; ++region) {
        const QRect rect = horizontal ? truncatedRect(start, margin, length, thickness)
                                      : truncatedRect(margin, start, thickness, length);
        regions.insert(region, rect);
        start = lastPixel(rect, axis) + spacing;
    }
    return regions;
}

/// Two columns. The rows are counted by the regions, though it takes half as many.
Regions tileLayout(const LayoutRequest& request, int count)
{
    const double w = request.sensor.width();
    const double h = request.sensor.height();
    const int rows = fits(count, h, request.height.minimum) ? count / 2 : count / 2 - 1;
    if (rows < 1)
        return {};

    const double marginX
        = std::min(marginSteps * request.width.increment, (w - 2.0 * request.width.minimum) / 2.0);
    const double marginY = std::min(marginSteps * request.height.increment,
                                    (h - rows * request.height.minimum) / rows);
    const double width = w / 2.0 - 2.0 * marginX;
    const double height = h / rows - 2.0 * marginY;

    Regions regions;
    double y = marginY;
    for (int region = 0; region < count; region += 2) {
        const QRect left = truncatedRect(marginX, y, width, height);
        const double x = lastPixel(left, Qt::Horizontal) + 2.0 * marginX;
        const QRect right = truncatedRect(x, y, width, height);
        regions.insert(region, left);
        regions.insert(region + 1, right);
        y = lastPixel(right, Qt::Vertical) + 2.0 * marginY;
    }
    return regions;
}

} // namespace

DefaultLayout defaultLayout(const QString& mode, const LayoutRequest& request)
{
    const int count
        = !request.sensor.isEmpty() ? std::clamp(request.regionCount, 0, mostRegions) : 0;
    switch (arrangementMode(mode)) {
    case ArrangementMode::Vertical:
        return {stripLayout(request, count, Qt::Vertical), {}};
    case ArrangementMode::Horizontal:
        return {stripLayout(request, count, Qt::Horizontal), {}};
    case ArrangementMode::Tile:
        if (request.regionCount % 2 == 0)
            return {tileLayout(request, count), {}};
        return {{},
                RegionText::tr("Unknown Arrangement Mode '%1', no default settings for %2 regions "
                               "available.")
                    .arg(mode, QString::number(request.regionCount))};
    case ArrangementMode::Free:
        break;
    }
    if (mode == QLatin1String("Free"))
        return {freeLayout(request, count), {}};
    return {
        {},
        RegionText::tr("Unknown Arrangement Mode '%1', no default settings available.").arg(mode)};
}
