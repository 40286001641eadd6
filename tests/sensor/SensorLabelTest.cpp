#include "sensor/SensorLabel.h"
#include "DataTable.h"
#include "Pictures.h"
#include "TestEvents.h"
#include "sensor/SensorBackground.h"

#include <QDialog>
#include <QMenu>
#include <QPainter>
#include <memory>

namespace {

/// Notes what it is told; there is something to drag in the middle.
class Probe : public SensorLabel
{
public:
    Probe()
        : SensorLabel({1600, 1200}, Qt::blue, nullptr)
    {
        connect(this, &SensorLabel::aboutToDrag, this, [this] { events << "about"; });
        connect(this, &SensorLabel::dragDropped, this, [this] { events << "dropped"; });
    }

    using SensorLabel::setPicture;
    using SensorLabel::setSensor;

    QStringList events;
    QRect band{100, 75, 200, 150};

protected:
    bool grabs(const QPoint& point) const override { return band.contains(point); }
    void press(const QPoint& point) override { note("press", point); }
    void drag(const QPoint& point) override { note("drag", point); }
    void release(const QPoint& point) override { note("release", point); }
    void drop() override { events << "drop"; }
    void hover(const QPoint&) override { }

private:
    void note(const QString& name, const QPoint& point)
    {
        events << QString("%1 %2,%3").arg(name).arg(point.x()).arg(point.y());
    }
};

SensorPicture greenPicture()
{
    auto image = std::make_shared<QPixmap>(1600, 1200);
    image->fill(Qt::green);
    return {image, {1600, 1200}, {}};
}

using Act = std::function<void(Probe*)>;

} // namespace

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

class SensorLabelTest : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_label = std::make_unique<Probe>();
        m_label->resize(400, 300);
        m_label->show();
        QVERIFY(QTest::qWaitForWindowActive(m_label.get()));
    }
    void cleanup() { m_label.reset(); }

    void tellsOfDrags()
    {
        drag(m_label.get(), {20, 20}, {200, 150}); // from where there is nothing
        QCOMPARE(m_label->events, QStringList());
        press(m_label.get(), {200, 150});
        sendMouse(m_label.get(), QEvent::MouseMove, {-20, 400});
        release(m_label.get(), {-20, 400});
        QCOMPARE(m_label->events.join(", "),
                 QString("about, press 200,150, drag 0,300, release -20,400"));
    }

    /// In the midst of a drag.
    void disturbances_data()
    {
        const DataTable row([this](bool endsDrag, const Act& act) {
            QWindow* const window = m_label->windowHandle();
            QTest::mousePress(window, Qt::LeftButton, {}, {200, 150});
            m_label->events.clear();
            act(m_label.get());
            QCOMPARE(m_label->events, endsDrag ? QStringList("drop") : QStringList());
            QCoreApplication::processEvents();
            QCOMPARE(m_label->isDragging(), !endsDrag);
            QTest::mouseRelease(window, Qt::LeftButton, {}, {210, 150});
            QCOMPARE(m_label->events.last(), QString(endsDrag ? "dropped" : "release 210,150"));
        });
        row("disabled", true, [](Probe* label) { label->setEnabled(false); });
        row("hidden", true, [](Probe* label) { label->hide(); });
        row("sensor lost", true, [](Probe* label) { label->setSensor({-1, -1}); });
        row("menu", true, [](Probe* label) {
            auto* menu = new QMenu(label);
            menu->addAction("action");
            menu->popup(label->mapToGlobal({10, 10}));
            QTimer::singleShot(0, menu, &QMenu::close);
        });
        row("dialog", true, [](Probe* label) {
            auto* dialog = new QDialog(label);
            dialog->open();
            QTimer::singleShot(0, dialog, &QDialog::reject);
        });
        row("a release elsewhere", true, [](Probe*) {
            QWidget other;
            QTest::mouseRelease(&other, Qt::LeftButton);
        });
        row("a window takes the focus", false, [](Probe* label) {
            QWidget other;
            other.show();
            other.activateWindow();
            QVERIFY(QTest::qWaitForWindowActive(&other));
            QVERIFY(!label->isActiveWindow());
        });
        row("a frame", false, [](Probe* label) {
            label->setPicture(greenPicture(), {400, 300}, {400, 300});
        });
        row("a resize", false, [](Probe* label) { label->resize(420, 300); });
        row("other buttons", false, [](Probe* label) {
            const Qt::MouseButtons both = Qt::LeftButton | Qt::RightButton;
            sendMouse(label, QEvent::MouseButtonPress, {150, 150}, both, Qt::RightButton);
            sendMouse(label, QEvent::MouseButtonRelease, {20, 20}, Qt::LeftButton, Qt::RightButton);
        });
    }
    void disturbances() { runRow(); }

    void missedReleaseEndsTheDrag()
    {
        press(m_label.get(), {200, 150});
        QTest::mouseMove(m_label->windowHandle(), {230, 150});
        QCOMPARE(m_label->events.mid(1).join(", "), QString("press 200,150, drop, dropped"));
    }

    /// What the receivers of aboutToDrag() leave decides.
    void editorsCommitBeforeADrag_data()
    {
        const DataTable row([this](const QString& expected, const Act& commit) {
            connect(m_label.get(), &SensorLabel::aboutToDrag, this,
                    [=, label = m_label.get()] { commit(label); });
            const QPointer<Probe> label = m_label.get();
            press(label, {200, 150});
            if (label)
                QCOMPARE(label->events.join(", "), expected);
        });
        row("moved away", "about", [](Probe* label) { label->band.moveLeft(250); });
        row("disabled", "about", [](Probe* label) { label->setEnabled(false); });
        row("nothing", "about, press 200,150", [](Probe*) {});
        row("deleted", {}, [this](Probe*) { m_label.reset(); });
    }
    void editorsCommitBeforeADrag() { runRow(); }

    void hidesOnlyWhatItPaints_data()
    {
        const DataTable row([this](bool hides, const Act& change) {
            QVERIFY(!m_label->testAttribute(Qt::WA_OpaquePaintEvent)); // it is translucent still
            m_label->setPicture(greenPicture(), {400, 300}, {400, 300});
            change(m_label.get());
            QCOMPARE(m_label->testAttribute(Qt::WA_OpaquePaintEvent), hides);
        });
        row("as it is", true, [](Probe*) {});
        row("resized", true, [](Probe* label) { label->resize(200, 150); });
        row("wider than the picture", false, [](Probe* label) { label->resize(600, 300); });
        row("disabled", false, [](Probe* label) { label->setEnabled(false); });
        row("margins", false, [](Probe* label) { label->setContentsMargins(0, 9, 0, 0); });
    }
    void hidesOnlyWhatItPaints() { runRow(); }

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

private:
    std::unique_ptr<Probe> m_label;
};

QTEST_MAIN(SensorLabelTest)
#include "SensorLabelTest.moc"
