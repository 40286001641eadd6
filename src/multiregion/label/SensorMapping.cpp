#include "multiregion/label/SensorMapping.h"

#include "features/NumberConversion.h"
#include "sensor/PixelRect.h"

#include <algorithm>

namespace {

int rounded(double value)
{
    return std::clamp(toInt(value < 0.0 ? value - 0.5 : value + 0.5), -largestCoordinate,
                      largestCoordinate);
}

int scaled(double value, int to, int from)
{
    return from > 0 ? rounded(value * to / from) : 0;
}

} // namespace

QRect labelRect(const QRect& region, const SensorMapping& mapping)
{
    const auto x = [&mapping](double edge) {
        return scaled(edge, mapping.shown.width(), mapping.sensor.width());
    };
    const auto y = [&mapping](double edge) {
        return scaled(edge, mapping.shown.height(), mapping.sensor.height());
    };
    const int left = x(region.x());
    const int top = y(region.y());
    const int right = x(static_cast<double>(region.x()) + region.width());
    const int bottom = y(static_cast<double>(region.y()) + region.height());
    return {left, top, std::max(1, right - left), std::max(1, bottom - top)};
}

QSize labelSize(const QSize& size, const SensorMapping& mapping)
{
    return {std::max(1, scaled(size.width(), mapping.shown.width(), mapping.sensor.width())),
            std::max(1, scaled(size.height(), mapping.shown.height(), mapping.sensor.height()))};
}

int sensorEdge(int edge, int shown, int sensor)
{
    if (edge <= 0)
        return 0;
    if (edge >= shown)
        return sensor;
    return scaled(edge, sensor, shown);
}
