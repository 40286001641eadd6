#include "regions/label/LabelGeometry.h"

#include <algorithm>

namespace {

/// The largest size that Qt gives a widget.
constexpr int largestExtent = (1 << 24) - 1;

} // namespace

QSize displayedSize(const LabelGeometry& geometry)
{
    if (geometry.label.isEmpty() || geometry.sensor.isEmpty())
        return {0, 0};
    const double labelWidth = geometry.label.width();
    const double labelHeight = geometry.label.height();
    const double sensorWidth = geometry.sensor.width();
    const double sensorHeight = geometry.sensor.height();
    return {
        std::min(geometry.label.width(), roundHalfUp(labelHeight * sensorWidth / sensorHeight)),
        std::min(geometry.label.height(), roundHalfUp(labelWidth * sensorHeight / sensorWidth))};
}

int heightForWidth(int width, const QSize& sensor)
{
    if (sensor.isEmpty())
        return 0;
    return roundHalfUp(static_cast<double>(width) * sensor.height() / sensor.width());
}

double sensorPerLabel(const LabelGeometry& geometry)
{
    const QSize displayed = displayedSize(geometry);
    if (displayed.isEmpty())
        return 0.0;
    return static_cast<double>(geometry.sensor.width()) / displayed.width();
}

double labelPerSensor(const LabelGeometry& geometry)
{
    const QSize displayed = displayedSize(geometry);
    if (displayed.isEmpty())
        return 0.0;
    return static_cast<double>(displayed.width()) / geometry.sensor.width();
}

QRect bandForRegion(const SensorRegion& region, const LabelGeometry& geometry)
{
    const double scale = labelPerSensor(geometry);
    const auto scaled
        = [scale](int value) { return std::clamp(roundHalfUp(value * scale), 0, largestExtent); };
    const int x = scaled(region.left);
    const int y = scaled(region.top);
    return {x, y, std::max(0, std::min(geometry.shown.width() - x, scaled(region.width))),
            std::max(0, std::min(geometry.shown.height() - y, scaled(region.height)))};
}

QRect bandWithoutRegion(const LabelGeometry& geometry)
{
    const int width = geometry.label.width();
    return {0, 0, width, std::max(0, heightForWidth(width - 2, geometry.sensor))};
}

QRect atLeastOnePixel(const QRect& band)
{
    return {band.x(), band.y(), std::max(1, band.width()), std::max(1, band.height())};
}

QPoint clampedToPicture(const QPoint& point, const LabelGeometry& geometry)
{
    return {std::clamp(point.x(), 0, std::max(0, geometry.shown.width())),
            std::clamp(point.y(), 0, std::max(0, geometry.shown.height()))};
}
