#include "FrameGeometry.h"

#include <QPainter>

QSize wholePicture(const SensorState& state)
{
    if (!state.picture.isEmpty())
        return state.picture;
    if (state.sensor.isEmpty())
        return {};
    const int horizontal = qMax(1, state.binning.width());
    const int vertical = qMax(1, state.binning.height());
    return QSize(state.sensor.width() / horizontal, state.sensor.height() / vertical)
        .expandedTo({1, 1});
}

QRect frameRect(const SensorState& state)
{
    const QRect area({0, 0}, wholePicture(state));
    if (state.multipleRegions)
        return state.regions.isEmpty() ? QRect() : area;
    return state.regions.isEmpty() ? area : state.regions.first().intersected(area);
}

QTransform sensorToBinned(const SensorState& state)
{
    const QSize area = wholePicture(state);
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
    placement.binnedArea = centred(wholePicture(state));
    const QRect frame = frameRect(state);
    placement.frame = QRectF(placement.binnedArea.x() + frame.x() * scale,
                             placement.binnedArea.y() + frame.y() * scale, frame.width() * scale,
                             frame.height() * scale);
    return placement;
}

QImage placedFrame(const QImage& frame, const QRect& place, const QSize& whole)
{
    if (frame.isNull() || place == QRect({0, 0}, whole))
        return frame;
    QImage picture(whole, frame.format());
    if (picture.isNull())
        return {};
    picture.fill(Qt::black);
    QPainter painter(&picture);
    painter.drawImage(place, frame);
    return picture;
}

QSize renderSize(const QSize& frame, const QSize& available)
{
    if (frame.isEmpty() || available.isEmpty())
        return {};
    if (frame.width() <= available.width() && frame.height() <= available.height())
        return frame;
    return frame.scaled(available, Qt::KeepAspectRatio).expandedTo({1, 1});
}
