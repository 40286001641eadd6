#include "ByteArrayDevice.h"
#include "CameraSession.h"
#include "DataTable.h"
#include "GenicamSource.h"
#include "MessageHandlerGuard.h"
#include "TestEvents.h"
#include "genicam/Discovery.h"
#include "genicam/GenicamCamera.h"
#include "imageformat/ImageFormatWidget.h"
#include "imageformat/ImageReaderWidget.h"
#include "page/TENotSupported.h"
#include "regions/AOIWidget.h"
#include "regions/label/RubberBandLabel.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QDoubleSpinBox>
#include <QElapsedTimer>
#include <QRubberBand>
#include <QTabWidget>
#include <QtTest>

namespace {

/// The library's GigE Vision camera on the loopback interface, for one process at a time: its port
/// is the standard's.
struct HostedCamera
{
    HostedCamera()
    {
        if (lock.tryLock(60000))
            fake = genicam::hostFakeCamera();
    }

    QLockFile lock{QDir::temp().filePath("genicam-port-3956.lock")};
    std::shared_ptr<void> fake;
};

/// The whole page over one of the two cameras, in the viewer's session, shown.
struct Page
{
    explicit Page(bool isHosted, const std::string& vendor = "Brontax")
    {
        std::string reason;
        if (isHosted)
            hosted.emplace();
        if (isHosted && !hosted->fake)
            return;
        ArvDevice* const opened = isHosted ? genicam::openDevice(genicam::fakeCameraAddress, reason)
                                           : ByteArrayDevice::open(device);
        source = std::make_shared<GenicamSource>(opened, vendor);
        session = std::make_unique<CameraSession>(QString(), source);
        page = std::make_unique<ImageFormatWidget>(session->features(), nullptr);
        QObject::connect(session.get(), &CameraSession::streamingChanged, page.get(),
                         &ImageFormatWidget::acquisitionRunning);
        QObject::connect(page.get(), &ImageFormatWidget::requestFrameSignal, page.get(),
                         [this] { emit page->receiveFrameSignal(session->lastFrame()); });
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString& text) {
            refusals += text.contains("FeatureManager::SetValue") ? 1 : 0;
        });
        page->resize(600, 900);
        page->show();
        QTest::qWait(50);
    }

    AOIWidget& region() const { return *page->findChild<AOIWidget*>(); }
    RubberBandLabel& label() const { return *region().findChild<RubberBandLabel*>(); }
    QDoubleSpinBox* field(const char* name) const
    {
        return region().findChild<QDoubleSpinBox*>(name);
    }
    int held(const char* name) const { return source->readValueText(name).toInt(); }
    static void type(QAbstractSpinBox* box, const char* text)
    {
        box->selectAll();
        QTest::keyClicks(box, text);
        QTest::keyClick(box, Qt::Key_Return);
    }

    /// Where the fields differ from the camera.
    QString contradiction() const
    {
        QString wrong;
        const std::pair<const char*, const char*> fields[] = {{"spinLeft", "OffsetX"},
                                                              {"spinTop", "OffsetY"},
                                                              {"spinWidth", "Width"},
                                                              {"spinHeight", "Height"}};
        for (const auto& [name, feature] : fields) {
            if (qRound(field(name)->value()) != held(feature))
                wrong += QString("%1 %2; ").arg(name).arg(field(name)->value());
        }
        return wrong;
    }

    static int refusals; ///< writes of pages that their cameras did not take

    const MessageHandlerGuard guard;
    std::optional<HostedCamera> hosted;
    const std::shared_ptr<ByteArrayDevice> device = std::make_shared<ByteArrayDevice>();
    std::shared_ptr<GenicamSource> source;
    std::unique_ptr<CameraSession> session;
    std::unique_ptr<ImageFormatWidget> page;
};

int Page::refusals = 0;

#define SKIP_WITHOUT(hosted)                                                                       \
    if (!(hosted) || !(hosted)->fake)                                                              \
    QSKIP("No camera can be hosted on the loopback interface here.")

} // namespace

/// The page and the viewer's session on cameras that nobody here simulated: one in memory, and the
/// library's over the loopback interface.
class GenicamPageTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { Page::refusals = 0; }
    void cleanup() { QCOMPARE(genicam::criticalCount(), 0); }

    /// The library remembers registers: opening asks the camera for each about once.
    void opensQuickly()
    {
        const Page p(false);
        QVERIFY2(p.device->reads < 40, qPrintable(QString::number(p.device->reads)));
        QVERIFY(p.device->takeWrites().empty());
    }

    void refusesAnotherMaker() { QVERIFY_EXCEPTION_THROWN(Page(false, ""), TENotSupported); }

    void editsTheCamera_data()
    {
        const DataTable row([](bool isHosted) {
            Page p(isHosted);
            if (isHosted)
                SKIP_WITHOUT(p.hosted);
            QTRY_COMPARE(p.contradiction(), QString());

            auto* const binning = p.page->findChild<QSpinBox*>("spbBinningHorizontal");
            p.type(binning, "2");
            QCOMPARE(p.held("BinningHorizontal"), 2);
            p.type(binning, "1");

            p.type(p.field("spinWidth"), "641");
            p.type(p.field("spinHeight"), "480");
            p.type(p.field("spinLeft"), "99");
            QTRY_COMPARE(p.contradiction(), QString());
            QCOMPARE(p.held("Width"), isHosted ? 641 : 648);

            const QRect band = p.label().findChild<QRubberBand*>()->geometry();
            drag(&p.label(), band.center(), band.center() + QPoint(9, 7));
            QTRY_VERIFY(p.held("OffsetY") > 0);
            QTRY_COMPARE(p.contradiction(), QString());

            p.region().findChild<QAbstractButton*>("btnHalf")->click();
            QTRY_COMPARE(p.contradiction(), QString());
            QCOMPARE(p.held("Width"), isHosted ? 1024 : 1296);

            QCOMPARE(p.source->writeAsOtherClient("Width", "256"), ZebErrorSuccess);
            QTRY_COMPARE(p.field("spinWidth")->value(), 256.0);
            QTRY_COMPARE(p.contradiction(), QString());
            QCOMPARE(Page::refusals, 0);
        });
        row("in memory", false);
        row("over the loopback interface", true);
    }
    void editsTheCamera() { runRow(); }

    void editsRegions()
    {
        const Page p(false);
        auto* const tabs = p.page->findChild<QTabWidget*>("tabWidget");
        tabs->setCurrentIndex(tabs->count() - 1);
        QTest::qWait(50);
        p.page->findChild<QCheckBox*>("chkMultipleRegionEnable")->click();
        for (int region = 1; region < ByteArrayDevice::regionCount; ++region) {
            auto* const button
                = p.page->findChild<QAbstractButton*>(QString("btnRegion%1").arg(region));
            button->click();
            QVERIFY(button->isChecked());
            QCOMPARE(p.device->read("SubRegionMode", region), 1U);
            QCOMPARE(p.device->read("SubRegionOffsetY", region), 486U * unsigned(region));
        }
        QCOMPARE(Page::refusals, 0);
    }

    void survivesTheLossInMidEdit()
    {
        auto p = std::make_unique<Page>(false);
        p->field("spinWidth")->setFocus();
        QTest::keyClicks(p->field("spinWidth"), "8");
        p->device->fail(ByteArrayDevice::Timeout, std::chrono::milliseconds(800));
        QElapsedTimer timer;
        timer.start();
        QTest::keyClick(p->field("spinWidth"), Qt::Key_Return);
        p->page->hide();
        p.reset();
        QVERIFY2(timer.elapsed() < 2000, qPrintable(QString::number(timer.elapsed())));
    }

    /// A frame of a region lies at its place in the picture that the page gets.
    void streamsIntoThePage()
    {
        Page p(true);
        SKIP_WITHOUT(p.hosted);
        const auto take = [&](const char* feature, std::int64_t value) {
            return p.source->writeAsOtherClient(feature, QString::number(value));
        };
        QCOMPARE(take("Width", 320), ZebErrorSuccess);
        QCOMPARE(take("OffsetX", 64), ZebErrorSuccess);
        QTRY_COMPARE(p.field("spinLeft")->value(), 64.0);
        for (int i = 0; i < 2; ++i) {
            p.session->setStreaming(true);
            QVERIFY(!p.field("spinWidth")->isEnabled());
            QTRY_VERIFY(!p.source->streamText().startsWith("0.0"));
            QCOMPARE(p.source->state().regions, QVector<QRect>({QRect(64, 0, 320, 512)}));
            p.session->setStreaming(false);
            QVERIFY(p.field("spinWidth")->isEnabled());
        }
        const QImage frame = p.session->lastFrame().toImage();
        QCOMPARE(frame.size(), QSize(2048, 2048));
        QCOMPARE(frame.copy(64, 0, 320, 512).convertToFormat(QImage::Format_Grayscale8),
                 p.source->frame({}));
        QCOMPARE(frame.pixelColor(63, 0), QColor(Qt::black));

        QImage shown = p.label().pixmap(Qt::ReturnByValue).toImage();
        auto* const list = p.page->findChild<ImageReaderWidget*>();
        QTest::keyClick(list, Qt::Key_Down);
        QTRY_VERIFY(p.label().pixmap(Qt::ReturnByValue).toImage() != shown);

        // It is lost while it streams.
        bool isGone = false;
        QObject::connect(p.source.get(), &CameraSource::goneChanged, p.source.get(),
                         [&](bool is) { isGone = is; });
        p.session->setStreaming(true);
        p.hosted->fake.reset();
        QElapsedTimer timer;
        timer.start();
        QTRY_VERIFY_WITH_TIMEOUT(isGone, 8000);
        QVERIFY2(timer.elapsed() < 6500, qPrintable(QString::number(timer.elapsed())));
        QVERIFY(!p.session->isStreaming());
        timer.start();
        p.page.reset();
        p.session.reset();
        p.source.reset();
        QVERIFY2(timer.elapsed() < 2000, qPrintable(QString::number(timer.elapsed())));

        p.hosted.reset();
        Page again(true);
        QVERIFY(again.page);
        QCOMPARE(again.held("Width"), 512);
        again.session->setStreaming(true);
        QTRY_VERIFY(!again.source->frame({}).isNull());
    }
};

QTEST_MAIN(GenicamPageTest)
#include "GenicamPageTest.moc"
