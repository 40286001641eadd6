#include "ByteArrayDevice.h"
#include "DataTable.h"
#include "FakeCamera.h"
#include "MessageHandlerGuard.h"
#include "TestEvents.h"
#include "host/TabExtensionInterface.h"
#include "imageformat/ImageFormatWidget.h"
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

using genicam::GenicamCamera;

namespace {

/// The whole page over one of the two cameras, shown.
struct Page
{
    explicit Page(bool isHosted, const std::string& vendor = "Brontax")
    {
        const GenicamCamera::Options options{vendor, [](bool) {}};
        if (isHosted && !hosted.isRunning())
            return;
        camera = std::make_unique<GenicamCamera>(
            isHosted ? HostedCamera::open() : ByteArrayDevice::open(device), options);
        const auto list = camera->features();
        page = std::make_unique<ImageFormatWidget>(
            TabExtensionInterface::FeatureList::create(list.begin(), list.end()), nullptr);
        page->resize(600, 900);
        page->show();
        QTest::qWait(50);
    }

    AOIWidget& region() const { return *page->findChild<AOIWidget*>(); }
    QDoubleSpinBox* field(const char* name) const
    {
        return region().findChild<QDoubleSpinBox*>(name);
    }
    std::int64_t integer(const char* name) const
    {
        return QString::fromStdString(camera->readText(name)).toLongLong();
    }
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
            if (qRound64(field(name)->value()) != integer(feature))
                wrong += QString("%1 %2; ").arg(name).arg(field(name)->value());
        }
        return wrong;
    }

    const MessageHandlerGuard guard;
    HostedCamera hosted;
    const std::shared_ptr<ByteArrayDevice> device = std::make_shared<ByteArrayDevice>();
    std::unique_ptr<GenicamCamera> camera;
    std::unique_ptr<ImageFormatWidget> page;
};

} // namespace

/// The page on cameras that nobody here simulated.
class GenicamPageTest : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { QCOMPARE(genicam::criticalCount(), 0); }

    /// The library remembers registers: opening asks the camera for each about once.
    void opensQuickly()
    {
        const Page p(false);
        QVERIFY(p.device->reads < 40);
        QCOMPARE(int(p.device->writes), 0);
    }

    void refusesAnotherMaker() { QVERIFY_EXCEPTION_THROWN(Page(false, ""), TENotSupported); }

    void editsTheCamera_data()
    {
        const DataTable row([](bool isHosted) {
            Page p(isHosted);
            if (!p.camera)
                QSKIP("No camera can be hosted on the loopback interface here.");
            QTRY_COMPARE(p.contradiction(), QString());

            auto* const binning = p.page->findChild<QSpinBox*>("spbBinningHorizontal");
            p.type(binning, "2");
            QCOMPARE(p.integer("BinningHorizontal"), 2);
            p.type(binning, "1");

            p.type(p.field("spinWidth"), "641");
            p.type(p.field("spinHeight"), "480");
            p.type(p.field("spinLeft"), "99");
            QTRY_COMPARE(p.contradiction(), QString());
            QCOMPARE(p.integer("Width"), isHosted ? 641 : 648);

            auto* const label = p.region().findChild<RubberBandLabel*>();
            const QRect band = label->findChild<QRubberBand*>()->geometry();
            drag(label, band.center(), band.center() + QPoint(9, 7));
            QTRY_VERIFY(p.integer("OffsetY") > 0);
            QTRY_COMPARE(p.contradiction(), QString());

            p.region().findChild<QAbstractButton*>("btnHalf")->click();
            QTRY_COMPARE(p.contradiction(), QString());
            QCOMPARE(p.integer("Width"), isHosted ? 1024 : 1296);

            QCOMPARE(p.camera->writeAsOtherClient("Width", "256"), ZebErrorSuccess);
            QTRY_COMPARE(p.field("spinWidth")->value(), 256.0);
            QTRY_COMPARE(p.contradiction(), QString());

            emit p.page->acquisitionRunning(true);
            QVERIFY(!p.field("spinWidth")->isEnabled());
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
        for (int region = 1; region < 4; ++region) {
            auto* const button
                = p.page->findChild<QAbstractButton*>(QString("btnRegion%1").arg(region));
            button->click();
            QVERIFY(button->isChecked());
        }
        for (std::uint32_t region = 0; region < 4; ++region) {
            QCOMPARE(p.device->read(0x200 + 0x20 * region), 1U);
            QCOMPARE(p.device->read(0x20c + 0x20 * region), 486U * region);
        }
    }

    void survivesTheLossInMidEdit()
    {
        Page p(false);
        p.field("spinWidth")->setFocus();
        QTest::keyClicks(p.field("spinWidth"), "8");
        p.device->fail(ByteArrayDevice::Timeout, std::chrono::milliseconds(800));
        QElapsedTimer timer;
        timer.start();
        QTest::keyClick(p.field("spinWidth"), Qt::Key_Return);
        p.page->hide();
        p.page.reset();
        p.camera.reset();
        QVERIFY2(timer.elapsed() < 2000, qPrintable(QString::number(timer.elapsed())));
    }
};

QTEST_MAIN(GenicamPageTest)
#include "GenicamPageTest.moc"
