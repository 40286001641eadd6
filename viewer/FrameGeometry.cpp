#include "FrameGeometry.h"

QSize binnedSize(const SensorState& state)
{
    if (state.sensor.isEmpty())
        return {};
    const int horizontal = qMax(1, state.binning.width());
    const int vertical = qMax(1, state.binning.height());
    return QSize(state.sensor.width() / horizontal, state.sensor.height() / vertical)
        .expandedTo({1, 1});
}

QRect frameRect(const SensorState& state)
{
    const QRect area({0, 0}, binnedSize(state));
    if (state.multipleRegions)
        return state.regions.isEmpty() ? QRect() : area;
    return state.regions.isEmpty() ? area : state.regions.first().intersected(area);
}

QTransform sensorToBinned(const SensorState& state)
{
    const QSize area = binnedSize(state);
    QTransform mirror;
    if (state.reverseX)
        mirror *= QTransform(-1, 0, 0, 1, area.width(), 0);
    if (state.reverseY)
        mirror *= QTransform(1, 0, 0, -1, 0, area.height());
    return QTransform::fromScale(1.0 / qMax(1, state.binning.width()),
                                 1.0 / qMax(1, state.binning.height()))
        * mirror;
}

FramePlacement placeFrame(const SensorState& state, const QRectF& view)
{
    if (state.sensor.isEmpty() || view.isEmpty())
        return {};
    const double scale
        = qMin(view.width() / state.sensor.width(), view.height() / state.sensor.height());
    const auto centred = [&](const QSize& size) {
        QRectF rect(0, 0, size.width() * scale, size.height() * scale);
        rect.moveCenter(view.center());
        return rect;
    };

    FramePlacement placement;
    placement.sensor = centred(state.sensor);
    placement.binnedArea = centred(binnedSize(state));
    const QRect frame = frameRect(state);
    placement.frame = QRectF(placement.binnedArea.x() + frame.x() * scale,
                             placement.binnedArea.y() + frame.y() * scale, frame.width() * scale,
                             frame.height() * scale);
    return placement;
}

QSize renderSize(const QSize& frame, const QSize& available)
{
    if (frame.isEmpty() || available.isEmpty())
        return {};
    if (frame.width() <= available.width() && frame.height() <= available.height())
        return frame;
    return frame.scaled(available, Qt::KeepAspectRatio).expandedTo({1, 1});
}
