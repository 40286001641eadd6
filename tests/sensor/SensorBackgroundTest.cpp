#include "sensor/SensorBackground.h"
#include "DataTable.h"
#include "Pictures.h"

#include <QPainter>

namespace {

/// Stripes and a gradient, so that a shift or a wrong scale shows.
QPixmap picture(const QSize& size, double devicePixelRatio = 1.0)
{
    QImage image(size, QImage::Format_RGB32);
    for (int y = 0; y < size.height(); ++y)
        for (int x = 0; x < size.width(); ++x)
            image.setPixel(
                x, y,
                qRgb(x * 255 / size.width(), y * 255 / size.height(), (x / 16) % 2 ? 200 : 0));
    QPixmap pixmap = QPixmap::fromImage(image);
    pixmap.setDevicePixelRatio(devicePixelRatio);
    return pixmap;
}

/// The plain way, by full-size copies.
QPixmap composedByCopies(QPixmap image, const QSize& sensor, const QRect& crop, const QSize& target)
{
    image.setDevicePixelRatio(1.0);
    QPixmap area(sensor);
    area.fill(Qt::black);
    QPainter(&area).drawPixmap(0, 0, image);
    if (!crop.isEmpty())
        area = area.copy(crop);
    QPixmap result(target);
    result.fill(Qt::black);
    QPainter(&result).drawPixmap(
        0, 0, area.scaled(target, Qt::KeepAspectRatio, Qt::SmoothTransformation));
    return result;
}

} // namespace

class SensorBackgroundTest : public QObject
{
    Q_OBJECT

private slots:
    void composesAsByCopies_data()
    {
        const DataTable row(
            [](const QSize& imageSize, double ratio, const QRect& crop, const QSize& target) {
                const QSize sensor(640, 480);
                const QPixmap image = picture(imageSize, ratio);
                const auto shared = std::make_shared<QPixmap>(image);
                const QPixmap composed
                    = SensorBackground({shared, sensor, crop}, target).scaled(target);
                QCOMPARE(composed.size(), target);
                const int difference = largestDifference(
                    composed.toImage(), composedByCopies(image, sensor, crop, target).toImage());
                // Only then are the margins averaged from less than all pixels.
                const bool isApproximate = imageSize.width() < 640 && target.width() * 4 < 640;
                QVERIFY2(difference <= (isApproximate ? 16 : 0),
                         qPrintable(QString::number(difference)));
            });
        const QSize sensor(640, 480);
        row("device pixel ratio", sensor, 2.0, {}, {200, 150});
        row("cut", {900, 700}, 1.0, {}, {200, 150});
        row("black margins", {320, 240}, 1.0, {}, {160, 120});
        row("margins within pixels of a large sensor", {331, 247}, 1.0, {}, {50, 38});
        row("margins within pixels, enlarged", {331, 247}, 1.0, {300, 200, 55, 67}, {200, 150});
        row("crop beyond the sensor", sensor, 1.0, {320, 240, 640, 480}, {160, 120});
        row("crop of another aspect ratio", sensor, 1.0, {0, 0, 480, 120}, {160, 120});
        row("enlarged", sensor, 1.0, {0, 0, 64, 48}, {640, 480});
    }
    void composesAsByCopies() { runRow(); }

    void placeholderIsAPlainTint()
    {
        const QColor tint = placeholderTint(QColor(0, 100, 255));
        QCOMPARE(tint.rgba(), qRgba(0x60, 0x7a, 0xa0, 185));
        SensorBackground background(tint, {640, 481});
        QCOMPARE(background.fittedSize({300, 150}), QSize(199, 150));
        QCOMPARE(background.fittedSize({2000, 1}), QSize(1, 1));
        QImage plain(100, 75, QImage::Format_ARGB32_Premultiplied);
        plain.fill(tint);
        QCOMPARE(background.scaled({100, 75}).toImage(), plain);
    }

    /// The first size comes from the image, others from a copy as large as a label can show.
    void keepsLargePictures()
    {
        const QSize sensor(4096, 3070);
        const auto image = std::make_shared<QPixmap>(picture(sensor));
        SensorBackground background({image, sensor, {}}, sensor);
        for (const int width : {400, 200, 400}) {
            const QSize size = background.fittedSize({width, width});
            const QPixmap plain
                = image->scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
            const int difference
                = largestDifference(background.scaled(size).toImage(), plain.toImage());
            QVERIFY2(difference <= 8, qPrintable(QString::number(difference)));
        }
        QCOMPARE(background.fittedSize(SensorBackground::largestLabel), QSize(2048, 1535));
        QCOMPARE(image.use_count(), 1);
    }
};

QTEST_MAIN(SensorBackgroundTest)

#include "SensorBackgroundTest.moc"
