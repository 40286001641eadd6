#include "multiregion/label/SensorMapping.h"

#include "features/NumberConversion.h"
#include "sensor/PixelRect.h"
#include "sensor/Span.h"

#include <algorithm>

namespace {

int scaled(double value, int to, int from)
{
    if (from <= 0)
        return 0;
    const double exact = value * to / from;
    return std::clamp(toInt(exact < 0.0 ? exact - 0.5 : exact + 0.5), -largestCoordinate,
                      largestCoordinate);
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

int sensorEdge(int edge, Qt::Orientation axis, const SensorMapping& mapping)
{
    const int shown = lengthOf(mapping.shown, axis);
    const int sensor = lengthOf(mapping.sensor, axis);
    if (edge <= 0)
        return 0;
    return edge >= shown ? sensor : scaled(edge, sensor, shown);
}
