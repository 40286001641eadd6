#include "FakeCamera.h"

#include <QElapsedTimer>
#include <QtTest>

#include <atomic>

using genicam::GenicamCamera;

namespace {

std::optional<genicam::Frame> nextFrame(GenicamCamera& camera, int width)
{
    std::optional<genicam::Frame> frame;
    QElapsedTimer timer;
    for (timer.start(); timer.elapsed() < 3000 && !(frame && frame->width == width);) {
        QTest::qWait(10);
        if (auto newer = camera.takeFrame())
            frame = std::move(newer);
    }
    return frame;
}

} // namespace

/// Over sockets, on the loopback interface alone.
class TransportTest : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { QCOMPARE(genicam::criticalCount(), 0); }

    void streams()
    {
        HostedCamera hosted;
        SKIP_WITHOUT(hosted);
        GenicamCamera camera(HostedCamera::open(), {});
        ZebCPP::Feature& width = *camera.feature("Width");
        QCOMPARE(width.SetValue(std::int64_t{320}), ZebErrorSuccess);
        QCOMPARE(camera.feature("OffsetX")->SetValue(std::int64_t{64}), ZebErrorSuccess);
        std::atomic<int> announced{0};
        QCOMPARE(camera.startStream([&] { ++announced; }), std::string());
        const auto frame = nextFrame(camera, 320);
        QVERIFY(frame && announced > 0);
        QCOMPARE(QRect(frame->x, frame->y, frame->width, frame->height), QRect(64, 0, 320, 512));
        QCOMPARE(frame->pixels.size(), std::size_t{320 * 512});
        QVERIFY(!frame->isColour);

        QTRY_VERIFY(nextFrame(camera, 320)->framesPerSecond > 10.0);
        camera.stopStream();
        QVERIFY(!camera.takeFrame());
        QCOMPARE(camera.startStream([] {}), std::string());
    }

    void losesTheCamera()
    {
        HostedCamera hosted;
        SKIP_WITHOUT(hosted);
        std::atomic<bool> isGone{false};
        GenicamCamera::Options options;
        options.onGone = [&](bool is) { isGone = is; };
        auto camera = std::make_unique<GenicamCamera>(HostedCamera::open(), options);
        QCOMPARE(camera->startStream([] {}), std::string());
        hosted.fake.reset();
        QElapsedTimer timer;
        timer.start();
        std::int64_t value = 0;
        for (int i = 0; i < 20; ++i)
            QCOMPARE(camera->feature("Width")->SetValue(std::int64_t{320}), ZebErrorTimeout);
        QVERIFY2(timer.elapsed() < 3500, qPrintable(QString::number(timer.elapsed())));
        QTRY_VERIFY(isGone);
        timer.start();
        camera.reset();
        QVERIFY2(timer.elapsed() < 2000, qPrintable(QString::number(timer.elapsed())));

        QTRY_VERIFY(hosted.isRunning());
        camera = std::make_unique<GenicamCamera>(HostedCamera::open(), options);
        QCOMPARE(camera->feature("Width")->GetValue(value), ZebErrorSuccess);
        QCOMPARE(value, 512);
    }
};

QTEST_GUILESS_MAIN(TransportTest)
#include "TransportTest.moc"
