#include "multiregion/label/SensorMapping.h"

#include "features/NumberConversion.h"
#include "sensor/PixelRect.h"
#include "sensor/Span.h"

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
    QRect result;
    for (const Qt::Orientation axis : {Qt::Horizontal, Qt::Vertical}) {
        const auto span = spanOf<double>(region, axis);
        const int shown = lengthOf(mapping.shown, axis);
        const int sensor = lengthOf(mapping.sensor, axis);
        const int start = scaled(span.start, shown, sensor);
        const int length = scaled(span.end(), shown, sensor) - start;
        result = withSpan(result, axis, {start, std::max(1, length)});
    }
    return result;
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
