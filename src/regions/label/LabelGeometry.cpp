#include "regions/label/LabelGeometry.h"

#include "features/NumberConversion.h"

#include <algorithm>
#include <cstdlib>

namespace {

constexpr int largestExtent = (1 << 24) - 1;

constexpr double smallestScale = 0.00001;

/// Unlike lround() it takes -0.7 to 0.
int roundHalfUp(double value)
{
    return toInt(value + 0.5);
}

/// Whether a band filled the picture before a change that altered it by up to @p slack.
bool wasFull(int bandSize, int slack, int displayedSize)
{
    return bandSize + slack >= displayedSize && bandSize - slack <= displayedSize;
}

} // namespace

QSize displayedSize(const LabelGeometry& geometry)
{
    if (geometry.label.isEmpty() || geometry.sensor.isEmpty())
        return {0, 0};
    const double sensorWidth = geometry.sensor.width();
    const int width = roundHalfUp(geometry.label.height() * sensorWidth / geometry.sensor.height());
    const int height = std::max(1, heightForWidth(geometry.label.width(), geometry.sensor));
    return {std::min(geometry.label.width(), width), std::min(geometry.label.height(), height)};
}

int heightForWidth(int width, const QSize& sensor)
{
    if (sensor.isEmpty())
        return 0;
    return roundHalfUp(static_cast<double>(width) * sensor.height() / sensor.width());
}

bool isFlat(const LabelGeometry& geometry)
{
    return !displayedSize(geometry).isEmpty()
        && heightForWidth(geometry.label.width(), geometry.sensor) < 1;
}

double sensorPerLabel(const LabelGeometry& geometry)
{
    return static_cast<double>(geometry.sensor.width()) / displayedSize(geometry).width();
}

double labelPerSensor(const LabelGeometry& geometry)
{
    const double displayed = displayedSize(geometry).width();
    return displayed > 0.0 ? displayed / geometry.sensor.width() : 0.0;
}

bool canPlaceBand(const LabelGeometry& geometry)
{
    return labelPerSensor(geometry) >= smallestScale;
}

QRect bandForRegion(const QRect& region, const LabelGeometry& geometry)
{
    const auto scaled = [scale = labelPerSensor(geometry)](int value) {
        return std::clamp(roundHalfUp(value * scale), -largestExtent, largestExtent);
    };
    const QPoint position(scaled(region.x()), scaled(region.y()));
    const QSize rest(geometry.shown.width() - position.x(), geometry.shown.height() - position.y());
    const QSize size(scaled(region.width()), scaled(region.height()));
    return {position, size.boundedTo(rest).expandedTo({0, isFlat(geometry) ? 1 : 0})};
}

QRect bandWithoutRegion(const LabelGeometry& geometry)
{
    const int width = geometry.label.width();
    return {0, 0, width, std::max(0, heightForWidth(width - 2, geometry.sensor))};
}

QRect atLeastOnePixel(const QRect& band)
{
    return {band.topLeft(), band.size().expandedTo({1, 1})};
}

QRect bandForMouse(const QRect& band, const LabelGeometry& geometry)
{
    return isFlat(geometry) ? QRect(band.x(), -largestExtent, band.width(), 2 * largestExtent)
                            : band;
}

QRect bandForResize(const QRect& band, const QSize& formerSize, const LabelGeometry& geometry)
{
    const QSize& size = geometry.label;
    const QSize displayed = displayedSize(geometry);
    const int dh = std::abs(size.height() - formerSize.height());
    const int dw = std::abs(size.width() - formerSize.width());
    // The width counts twice for the width: a full band is recognised rather too often.
    const bool fullHeight = wasFull(band.height(), dw + dh, displayed.height());
    const bool fullWidth = wasFull(band.width(), 2 * dw + dh, displayed.width());

    // An axis with an empty margin behind the picture does not scale.
    double ry = static_cast<double>(formerSize.height()) / size.height();
    double rx = static_cast<double>(formerSize.width()) / size.width();
    if (size.width() > displayed.width())
        rx = 1.0;
    else
        ry = rx;
    if (size.height() <= displayed.height())
        rx = ry;

    double width = fullWidth ? displayed.width() : band.width() / rx + 0.5;
    double height = fullHeight ? displayed.height() : band.height() / ry + 0.5;
    if (band.left() + width >= displayed.width())
        width = displayed.width() - band.left();
    if (band.top() + height >= displayed.height())
        height = displayed.height() - band.top();
    return {toInt(band.x() / rx + 0.5), toInt(band.y() / ry + 0.5), std::max(0, toInt(width)),
            std::max(0, toInt(height))};
}
