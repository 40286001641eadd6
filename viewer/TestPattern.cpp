#include "TestPattern.h"

#include "FrameGeometry.h"

#include <QPainter>
#include <QPainterPath>

#include <cmath>

namespace {

constexpr int framesPerTurn = 100;
constexpr int largestTrueColourFrame = 32 * 1000 * 1000;

void drawText(QPainter& painter, const QRectF& box, const QString& text)
{
    QPainterPath path;
    path.addText(0, 0, QFont(QStringLiteral("DejaVu Sans")), text);
    const QRectF extent = path.boundingRect();
    if (extent.isEmpty())
        return;
    const double scale = qMin(box.width() / extent.width(), box.height() / extent.height());
    painter.save();
    painter.translate(box.center());
    painter.scale(scale, scale);
    painter.translate(-extent.center());
    painter.fillPath(path, painter.pen().color());
    painter.restore();
}

void drawGrid(QPainter& painter, const QSizeF& sensor, double unit)
{
    painter.setPen(QPen(QColor(255, 255, 255, 60), unit * 0.2));
    const double cell = 10 * unit;
    for (double x = std::fmod(sensor.width() / 2, cell); x < sensor.width(); x += cell)
        painter.drawLine(QPointF(x, 0), QPointF(x, sensor.height()));
    for (double y = std::fmod(sensor.height() / 2, cell); y < sensor.height(); y += cell)
        painter.drawLine(QPointF(0, y), QPointF(sensor.width(), y));
}

void drawBars(QPainter& painter, const QSizeF& sensor, double unit)
{
    static const QColor colours[] = {{235, 235, 235}, {225, 200, 60}, {70, 195, 205}, {80, 180, 90},
                                     {190, 90, 180},  {205, 70, 65},  {60, 85, 190},  {25, 25, 25}};
    const double width = sensor.width() * 0.5 / 8;
    double x = sensor.width() * 0.25;
    for (const QColor& colour : colours) {
        painter.fillRect(QRectF(x, sensor.height() - 18 * unit, width, 10 * unit), colour);
        x += width;
    }
}

void drawClock(QPainter& painter, const QPointF& centre, double unit, qint64 frameNumber)
{
    painter.setPen(QPen(QColor(255, 255, 255, 220), unit * 0.8));
    painter.setBrush(QColor(20, 30, 45, 90));
    painter.drawEllipse(centre, 26 * unit, 26 * unit);

    painter.save();
    painter.translate(centre);
    painter.rotate(360.0 * static_cast<double>(frameNumber % framesPerTurn) / framesPerTurn);
    painter.setPen(QPen(QColor(255, 170, 60), unit * 1.6, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(QPointF(0, 0), QPointF(0, -22 * unit));
    painter.restore();
}

/// Labels at all corners tell a mirrored picture from an upright one, and where a region lies.
void drawLabels(QPainter& painter, const QSizeF& sensor, double unit)
{
    const double width = 14 * unit;
    const double height = 10 * unit;
    const double margin = 4 * unit;
    const double right = sensor.width() - margin - width;
    const double bottom = sensor.height() - margin - height;
    painter.setPen(QColor(255, 255, 255));
    drawText(painter, {margin, margin, width, height}, QStringLiteral("A1"));
    drawText(painter, {right, margin, width, height}, QStringLiteral("B1"));
    drawText(painter, {margin, bottom, width, height}, QStringLiteral("A2"));
    drawText(painter, {right, bottom, width, height}, QStringLiteral("B2"));
    drawText(painter, {sensor.width() / 2 - 15 * unit, 8 * unit, 30 * unit, 8 * unit},
             QStringLiteral("%1 x %2").arg(sensor.width()).arg(sensor.height()));
}

void drawPattern(QPainter& painter, const QSizeF& sensor, qint64 frameNumber)
{
    const double unit = qMin(sensor.width(), sensor.height()) / 100.0;
    QLinearGradient gradient(0, 0, sensor.width(), sensor.height());
    gradient.setColorAt(0.0, QColor(38, 70, 112));
    gradient.setColorAt(0.5, QColor(84, 132, 140));
    gradient.setColorAt(1.0, QColor(186, 164, 128));
    painter.fillRect(QRectF({0, 0}, sensor), gradient);
    drawGrid(painter, sensor, unit);
    drawBars(painter, sensor, unit);
    drawClock(painter, {sensor.width() / 2, sensor.height() / 2}, unit, frameNumber);
    drawLabels(painter, sensor, unit);
}

void applyGain(QPainter& painter, const QRect& area, double gain)
{
    const auto level = [](double value) { return static_cast<int>(qBound(0.0, value, 1.0) * 255); };
    if (gain < 1.0) {
        painter.fillRect(area, QColor(0, 0, 0, level(1.0 - gain)));
    } else if (gain > 1.0) {
        const int excess = level(1.0 - 1.0 / gain);
        painter.setCompositionMode(QPainter::CompositionMode_ColorDodge);
        painter.fillRect(area, QColor(excess, excess, excess));
    }
}

} // namespace

QImage renderFrame(const SensorState& state, const QSize& size, qint64 frameNumber)
{
    const QRect frame = frameRect(state);
    if (frame.isEmpty() || size.isEmpty())
        return {};
    const bool large = qint64(size.width()) * size.height() > largestTrueColourFrame;
    QImage image(size, large ? QImage::Format_RGB16 : QImage::Format_RGB32);
    if (image.isNull())
        return {};
    image.fill(Qt::black);

    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(double(size.width()) / frame.width(), double(size.height()) / frame.height());
    painter.translate(-frame.topLeft());
    if (state.multipleRegions) {
        QRegion active;
        for (const QRect& region : state.regions)
            active += region;
        painter.setClipRegion(active);
    }
    painter.setTransform(sensorToBinned(state), true);
    drawPattern(painter, state.sensor, frameNumber);
    painter.resetTransform();
    applyGain(painter, image.rect(), exposureGain(state.exposureTime));
    painter.end();
    return isMonochrome(state.pixelFormat) ? image.convertToFormat(QImage::Format_Grayscale8)
                                           : image;
}

double exposureGain(double microseconds)
{
    constexpr double neutral = 10000.0;
    return microseconds > 0.0 ? std::pow(microseconds / neutral, 0.3) : 0.0;
}

bool isMonochrome(const QString& pixelFormat)
{
    return pixelFormat.startsWith(QLatin1String("Mono"));
}
