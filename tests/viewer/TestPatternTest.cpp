#include "CameraSession.h"
#include "DataTable.h"
#include "FrameGeometry.h"
#include "Pictures.h"
#include "SimulatedSource.h"

#include <QTest>

class TestPatternTest : public QObject
{
    Q_OBJECT

private slots:
    void placesTheFrame_data()
    {
        const DataTable row([](const QSize& binning, const QRect& region, const QRectF& frame) {
            SensorState state;
            state.sensor = QSize(400, 300);
            state.binning = binning;
            if (!region.isNull())
                state.regions = {region};
            const FramePlacement placement = placeFrame(state, QRectF(0, 0, 200, 200));
            QCOMPARE(placement.sensor, QRectF(0, 25, 200, 150));
            QCOMPARE(placement.frame, frame);
        });
        row("region", {1, 1}, {100, 60, 40, 20}, {50, 55, 20, 10});
        row("binned", {2, 2}, {}, {50, 62.5, 100, 75});
        row("binned region", {2, 2}, {10, 20, 40, 20}, {55, 72.5, 20, 10});
        row("region beyond the binned area", {2, 2}, {180, 0, 40, 20}, {140, 62.5, 10, 10});
    }
    void placesTheFrame() { runRow(); }

    void sendsTheFrameInItsPlace()
    {
        CameraSession session({}, std::make_unique<SimulatedSource>(QString("current")));
        const QImage all = session.lastFrame().toImage();
        const QRect region(640, 480, 320, 240);
        CameraSource& camera = session.camera();
        camera.writeAsOtherClient(QString("Width"), QString("320"));
        camera.writeAsOtherClient(QString("Height"), QString("240"));
        camera.writeAsOtherClient(QString("OffsetX"), QString("640"));
        camera.writeAsOtherClient(QString("OffsetY"), QString("480"));
        constexpr int tolerance = 8; // of antialiased edges
        const QImage placed = session.lastFrame().toImage();
        QCOMPARE(placed.size(), all.size());
        QVERIFY(largestDifference(placed.copy(region), all.copy(region)) <= tolerance);
        QImage dark(all.width(), region.y(), QImage::Format_RGB32);
        dark.fill(Qt::black);
        QCOMPARE(largestDifference(placed.copy(dark.rect()), dark), 0);

        // Reversing mirrors the picture within its region.
        camera.writeAsOtherClient(QString("ReverseX"), QString("true"));
        QVERIFY(largestDifference(session.lastFrame().toImage().copy(region),
                                  all.mirrored(true, false).copy(region))
                <= tolerance);
    }
};

QTEST_MAIN(TestPatternTest)
#include "TestPatternTest.moc"
