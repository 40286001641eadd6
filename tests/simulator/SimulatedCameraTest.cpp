#include "simulator/Camera.h"

#include <QtTest>

#include <cmath>
#include <limits>

using sim::Camera;
using sim::createCamera;
using sim::FloatRange;
using sim::IntegerRange;
using sim::Operation;

// What a camera makes of its clients' writes, and what it tells of itself.
class SimulatedCameraTest : public QObject
{
    Q_OBJECT

private slots:
    void integerWrites_data();
    void integerWrites();
    void floatWrites_data();
    void floatWrites();
    void wrongKindsOfWrites();
    void binningMovesTheRegionInside();
    void offsetAndSizeBoundEachOther();
    void streamingLocks();
    void entriesComeAndGo();
    void selectorsKeepValues();
    void autoFunctionRegionsFollowThePicture();
    void dspEdgesStayOrdered();
    void exposureLimitsFollowTheTimebase();
    void regionStatus_data();
    void regionStatus();
    void regionsUnderOlderNames();
    void journalTellsWhatClientsDid();
    void commands();
    void everyModelIsSound();
    void largeCamerasAreCheap();
};

namespace {

constexpr std::int64_t lowest = std::numeric_limits<std::int64_t>::min();
constexpr std::int64_t highest = std::numeric_limits<std::int64_t>::max();

ZebErrorType set(const Camera& camera, const char* name, std::int64_t value)
{
    return camera.feature(name).pointer()->SetValue(value);
}

ZebErrorType set(const Camera& camera, const char* name, const char* value)
{
    return camera.feature(name).pointer()->SetValue(value);
}

} // namespace

void SimulatedCameraTest::integerWrites_data()
{
    QTest::addColumn<qint64>("minimum");
    QTest::addColumn<qint64>("maximum");
    QTest::addColumn<qint64>("increment");
    QTest::addColumn<qint64>("value");
    QTest::addColumn<bool>("isTaken");
    QTest::addColumn<qint64>("rounded");

    QTest::newRow("on the grid") << 16ll << 100ll << 8ll << 32ll << true << 32ll;
    QTest::newRow("grid counts from the minimum") << 3ll << 100ll << 8ll << 19ll << true << 19ll;
    QTest::newRow("multiple, but off the grid") << 3ll << 100ll << 8ll << 16ll << false << 19ll;
    QTest::newRow("nearer below") << 0ll << 100ll << 8ll << 11ll << false << 8ll;
    QTest::newRow("half way goes up") << 0ll << 100ll << 8ll << 12ll << false << 16ll;
    QTest::newRow("below") << 16ll << 100ll << 8ll << 15ll << false << 16ll;
    QTest::newRow("above, maximum off the grid") << 16ll << 100ll << 8ll << 200ll << false << 96ll;
    QTest::newRow("maximum off the grid") << 16ll << 100ll << 8ll << 100ll << false << 96ll;
    QTest::newRow("no increment") << 0ll << 9ll << 0ll << 7ll << true << 7ll;
    QTest::newRow("negative minimum") << -5ll << 5ll << 2ll << -1ll << true << -1ll;
    QTest::newRow("whole 64 bits")
        << qint64(lowest) << qint64(highest) << 1ll << qint64(highest) << true << qint64(highest);
    QTest::newRow("minimum over maximum") << 10ll << 5ll << 1ll << 7ll << false << 7ll;
}

void SimulatedCameraTest::integerWrites()
{
    QFETCH(qint64, minimum);
    QFETCH(qint64, maximum);
    QFETCH(qint64, increment);
    QFETCH(qint64, value);
    QFETCH(bool, isTaken);
    QFETCH(qint64, rounded);

    Camera camera(
        {sim::integerFeature("Number", -99).between(IntegerRange(minimum, maximum, increment))});
    QCOMPARE(set(camera, "Number", value), isTaken ? ZebErrorSuccess : ZebErrorInvalidValue);
    QCOMPARE(camera.feature("Number").integer(), isTaken ? value : -99);

    camera.setRounding(true);
    const bool hasLegalValue = minimum <= maximum;
    QCOMPARE(set(camera, "Number", value) == ZebErrorSuccess, hasLegalValue);
    if (hasLegalValue)
        QCOMPARE(camera.feature("Number").integer(), rounded);
}

void SimulatedCameraTest::floatWrites_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<bool>("isTaken");
    QTest::addColumn<double>("rounded");

    QTest::newRow("on the grid") << 0.7 << true << 0.7;
    QTest::newRow("off the grid") << 0.74 << false << 0.7;
    QTest::newRow("above") << 3.0 << false << 2.0;
    QTest::newRow("not a number") << double(NAN) << false << 0.1;
    QTest::newRow("infinite") << double(INFINITY) << false << 2.0;
}

void SimulatedCameraTest::floatWrites()
{
    QFETCH(double, value);
    QFETCH(bool, isTaken);
    QFETCH(double, rounded);

    Camera camera({sim::floatFeature("Number", 0.1).between(FloatRange(0.1, 2.0, 0.1))});
    const ZebCPP::FeaturePtr feature = camera.feature("Number").pointer();
    QCOMPARE(feature->SetValue(value), isTaken ? ZebErrorSuccess : ZebErrorInvalidValue);
    camera.setRounding(true);
    feature->SetValue(value);
    QVERIFY(std::abs(camera.feature("Number").number() - rounded) < 1e-9);
}

void SimulatedCameraTest::wrongKindsOfWrites()
{
    const auto camera = createCamera("current");
    const auto width = camera->feature("Width").pointer();
    QCOMPARE(width->SetValue(640.0), ZebErrorBadParameter);
    QCOMPARE(width->SetValue("640"), ZebErrorBadParameter);
    QCOMPARE(width->SetValue(static_cast<const char*>(nullptr)), ZebErrorBadParameter);
    QCOMPARE(width->RunCommand(), ZebErrorBadParameter);
    QCOMPARE(set(*camera, "SensorWidth", std::int64_t{8}), ZebErrorInvalidAccess);
    QCOMPARE(set(*camera, "PixelFormat", "Unheard of"), ZebErrorInvalidValue);
    QCOMPARE(camera->writeAsOtherClient("Gain", 3), ZebErrorSuccess);
    QCOMPARE(camera->feature("Gain").number(), 3.0);
    QVERIFY_EXCEPTION_THROWN(camera->feature("Unheard of"), std::out_of_range);
}

void SimulatedCameraTest::binningMovesTheRegionInside()
{
    const auto camera = createCamera("older-names");
    QCOMPARE(set(*camera, "Width", std::int64_t{1000}), ZebErrorSuccess);
    QCOMPARE(set(*camera, "OffsetX", std::int64_t{1592}), ZebErrorSuccess);
    QCOMPARE(set(*camera, "BinningHorizontal", std::int64_t{2}), ZebErrorSuccess);
    QCOMPARE(camera->feature("WidthMax").integer(), 1296);
    QCOMPARE(camera->feature("OffsetX").integer(), 296);
    QCOMPARE(camera->feature("Width").integer(), 1000);
    QCOMPARE(set(*camera, "BinningHorizontal", std::int64_t{4}), ZebErrorSuccess);
    QCOMPARE(camera->feature("OffsetX").integer(), 0);
    QCOMPARE(camera->feature("Width").integer(), 648);
    QCOMPARE(camera->feature("HeightMax").integer(), 1944);
}

void SimulatedCameraTest::offsetAndSizeBoundEachOther()
{
    const auto camera = createCamera("plain");
    QCOMPARE(set(*camera, "OffsetX", std::int64_t{4}), ZebErrorInvalidValue);
    QCOMPARE(set(*camera, "Width", std::int64_t{2584}), ZebErrorSuccess);
    QCOMPARE(camera->feature("OffsetX").range().maximum, 8);
    QCOMPARE(set(*camera, "OffsetX", std::int64_t{8}), ZebErrorSuccess);
    QCOMPARE(camera->feature("Width").range().maximum, 2584);
}

void SimulatedCameraTest::streamingLocks()
{
    const auto camera = createCamera("current");
    camera->setStreaming(true);
    QVERIFY(!camera->feature("Width").isWritable());
    QVERIFY(camera->feature("OffsetX").isWritable());
    QCOMPARE(set(*camera, "Width", std::int64_t{640}), ZebErrorInvalidAccess);
    camera->setStreaming(false);
    QCOMPARE(set(*camera, "Width", std::int64_t{640}), ZebErrorSuccess);
}

void SimulatedCameraTest::entriesComeAndGo()
{
    const auto camera = createCamera("older-names");
    QCOMPARE(set(*camera, "PixelFormat", "BayerRG8"), ZebErrorSuccess);
    QCOMPARE(set(*camera, "BinningVertical", std::int64_t{2}), ZebErrorSuccess);
    QCOMPARE(camera->feature("PixelFormat").text(), std::string("Mono8"));
    QCOMPARE(set(*camera, "PixelFormat", "BayerRG8"), ZebErrorInvalidValue);
    bool available = true;
    QCOMPARE(camera->feature("PixelFormat").pointer()->IsValueAvailable("BayerRG8", available),
             ZebErrorSuccess);
    QVERIFY(!available);
}

void SimulatedCameraTest::selectorsKeepValues()
{
    const auto camera = createCamera("current");
    QCOMPARE(set(*camera, "BinningHorizontal", std::int64_t{2}), ZebErrorSuccess);
    QCOMPARE(set(*camera, "BinningSelector", "Digital"), ZebErrorSuccess);
    QCOMPARE(camera->feature("BinningHorizontal").integer(), 1);
    QCOMPARE(set(*camera, "BinningHorizontal", std::int64_t{3}), ZebErrorSuccess);
    QCOMPARE(set(*camera, "BinningSelector", "Sensor"), ZebErrorSuccess);
    QCOMPARE(camera->feature("BinningHorizontal").integer(), 2);
    QCOMPARE(camera->feature("BinningHorizontal").integerAt(1), 3);
    QCOMPARE(camera->feature("WidthMax").integer(), 2592 / 6);
    QCOMPARE(camera->snapshot().binningHorizontal, 6);

    std::uint32_t count = 0;
    const auto selector = camera->feature("BinningSelector").pointer();
    QCOMPARE(selector->GetSelectedFeatures(nullptr, count), ZebErrorSuccess);
    QCOMPARE(count, 4u);
    std::vector<ZebCPP::FeaturePtr> selected(count);
    QCOMPARE(selector->GetSelectedFeatures(selected.data(), count), ZebErrorSuccess);
    QCOMPARE(selected[1], camera->feature("BinningHorizontal").pointer());
}

void SimulatedCameraTest::autoFunctionRegionsFollowThePicture()
{
    const auto camera = createCamera("mixed-aoi-dsp");
    QCOMPARE(set(*camera, "Width", std::int64_t{640}), ZebErrorSuccess);
    for (const char* name : {"AutofunctionAOIOffsetX", "AutofunctionAOIWidth"})
        QVERIFY(camera->feature(name).integer() <= camera->feature(name).range().maximum);
    QCOMPARE(camera->feature("AutofunctionAOIOffsetX").integer()
                 + camera->feature("AutofunctionAOIWidth").integer(),
             640);
    QCOMPARE(camera->feature("DSPSubregionRight").integer(), 640);

    const auto gated = createCamera("aoi-gated");
    gated->writeAsOtherClient("AutofunctionAOIEnable", false);
    QVERIFY(!gated->feature("AutofunctionAOIWidth").isWritable());
    QVERIFY(!gated->snapshot().autoFunctionRegion);
}

void SimulatedCameraTest::dspEdgesStayOrdered()
{
    const auto camera = createCamera("dsp");
    QCOMPARE(set(*camera, "DSPSubregionRight", std::int64_t{100}), ZebErrorSuccess);
    QCOMPARE(set(*camera, "DSPSubregionLeft", std::int64_t{100}), ZebErrorInvalidValue);
    QCOMPARE(set(*camera, "DSPSubregionLeft", std::int64_t{99}), ZebErrorSuccess);
    QCOMPARE(set(*camera, "DSPSubregionRight", std::int64_t{99}), ZebErrorInvalidValue);
}

void SimulatedCameraTest::exposureLimitsFollowTheTimebase()
{
    const auto camera = createCamera("aoi-plain");
    QCOMPARE(set(*camera, "ExposureAutoTimebase", "1ms"), ZebErrorSuccess);
    QCOMPARE(camera->feature("ExposureAutoMin").range().increment, 1000);
    QCOMPARE(camera->feature("ExposureAutoMin").integer(), 1000);
    QCOMPARE(createCamera("aoi")->feature("ExposureAutoMin").realRange().increment, 0.01);
}

void SimulatedCameraTest::regionStatus_data()
{
    QTest::addColumn<QString>("arrangement");
    QTest::addColumn<QVector<QRect>>("regions"); // an empty rectangle is switched off
    QTest::addColumn<QString>("valid");          // a digit for each region

    const QRect a(0, 0, 160, 80);
    QTest::newRow("free") << "Free" << QVector<QRect>{a, {160, 40, 80, 80}} << "11";
    QTest::newRow("overlap") << "Free" << QVector<QRect>{a, {152, 40, 80, 80}} << "00";
    QTest::newRow("out of the sensor") << "Free" << QVector<QRect>{a, {2560, 40, 80, 80}} << "10";
    QTest::newRow("shared columns") << "Vertical" << QVector<QRect>{a, {0, 80, 160, 60}} << "11";
    QTest::newRow("columns differ") << "Vertical" << QVector<QRect>{a, {4, 80, 160, 60}} << "10";
    QTest::newRow("shared rows") << "Horizontal" << QVector<QRect>{a, {160, 0, 80, 80}} << "11";
    QTest::newRow("not continuous")
        << "Horizontal" << QVector<QRect>{a, {}, {160, 0, 80, 80}} << "100";
    QTest::newRow("tile")
        << "Tile" << QVector<QRect>{a, {160, 0, 80, 80}, {0, 80, 160, 60}, {160, 80, 80, 60}}
        << "1111";
    QTest::newRow("tile without the column's second")
        << "Tile" << QVector<QRect>{a, {160, 0, 80, 80}, {}, {160, 80, 80, 60}} << "1100";
    QTest::newRow("tile, rows differ")
        << "Tile" << QVector<QRect>{a, {160, 0, 80, 80}, {0, 80, 160, 60}, {160, 80, 80, 62}}
        << "1110";
}

void SimulatedCameraTest::regionStatus()
{
    QFETCH(QString, arrangement);
    QFETCH(QVector<QRect>, regions);
    QFETCH(QString, valid);

    for (const char* model : {"multi-region", "multi-region-integer"}) {
        const auto camera = createCamera(model);
        camera->force("MultipleRegionArrangement", arrangement.toStdString());
        for (int number = 0; number < regions.size(); ++number) {
            const QRect& region = regions[number];
            camera->forceAt("SubRegionMode", number, region.isEmpty() ? "Off" : "On");
            camera->forceAt("SubRegionOffsetX", number, region.x());
            camera->forceAt("SubRegionOffsetY", number, region.y());
            camera->forceAt("SubRegionWidth", number, region.width());
            camera->forceAt("SubRegionHeight", number, region.height());
        }
        for (int number = 0; number < regions.size(); ++number)
            QCOMPARE(camera->feature("SubRegionStatus").textAt(number),
                     std::string(valid[number] == '1' ? "Valid" : "Invalid"));
    }
}

void SimulatedCameraTest::regionsUnderOlderNames()
{
    const auto camera = createCamera("multi-region-older");
    camera->writeAsOtherClient("MultipleRegionsEnable", true);
    camera->writeAsOtherClient("SubRegionSelector", "Region2");
    QCOMPARE(set(*camera, "Width", std::int64_t{640}), ZebErrorSuccess);
    QCOMPARE(set(*camera, "OffsetX", std::int64_t{400}), ZebErrorSuccess);
    QCOMPARE(set(*camera, "SubRegionMode", "On"), ZebErrorSuccess);
    camera->writeAsOtherClient("SubRegionSelector", "Region0");
    QCOMPARE(camera->feature("Width").integer(), 2592);

    const sim::Snapshot snapshot = camera->snapshot();
    QVERIFY(snapshot.hasMultipleRegions);
    QCOMPARE(snapshot.regions.size(), std::size_t{2});
    QCOMPARE(snapshot.regions[1].number, 2);
    QCOMPARE(snapshot.regions[1].x, 400);
    QVERIFY(!snapshot.regions[1].isValid); // Vertical: columns are not shared
}

void SimulatedCameraTest::journalTellsWhatClientsDid()
{
    const auto camera = createCamera("current");
    camera->writeAsOtherClient("Gamma", 2.0);
    camera->feature("Gamma").number();
    QCOMPARE(camera->journal().count(), std::size_t{0});

    set(*camera, "Width", std::int64_t{640});
    set(*camera, "Width", std::int64_t{641});
    double gamma = 0.0;
    camera->feature("Gamma").pointer()->GetValue(gamma);
    const auto entries = camera->journal().entries();
    QCOMPARE(entries.size(), std::size_t{3});
    QCOMPARE(entries[1].feature, std::string("Width"));
    QCOMPARE(entries[1].value.toInteger(), 641);
    QCOMPARE(entries[1].result, ZebErrorInvalidValue);
    QCOMPARE(entries[2].value.toNumber(), 2.0);
    QCOMPARE(camera->journal().writes().size(), std::size_t{2});

    camera->journal().setCapacity(1);
    QCOMPARE(camera->journal().entries().size(), std::size_t{1});
    camera->journal().record({});
    camera->journal().clear();
    set(*camera, "Width", std::int64_t{640});
    QCOMPARE(camera->journal().entries().size(), std::size_t{0});
    QCOMPARE(camera->journal().count(Operation::SetValue), std::size_t{1});
}

void SimulatedCameraTest::commands()
{
    const auto camera = createCamera("current");
    QCOMPARE(camera->feature("DeviceSelfTest").pointer()->RunCommand(), ZebErrorSuccess);
    bool done = true;
    QCOMPARE(camera->feature("DeviceSelfTest").pointer()->IsCommandDone(done), ZebErrorSuccess);
    QVERIFY(!done);
    QCOMPARE(camera->runAsOtherClient("AcquisitionStart"), ZebErrorSuccess);
    QVERIFY(camera->isStreaming());
    QCOMPARE(camera->feature("DeviceSelfTest").pointer()->RunCommand(), ZebErrorInvalidAccess);
}

void SimulatedCameraTest::everyModelIsSound()
{
    QVERIFY(!createCamera("unheard of"));
    for (const sim::Model& model : sim::models()) {
        const auto camera = createCamera(model.name);
        for (const ZebCPP::FeaturePtr& feature : camera->features()) {
            std::uint32_t length = 0;
            QCOMPARE(feature->GetName(nullptr, length), ZebErrorSuccess);
            std::string name(length, '\0');
            QCOMPARE(feature->GetName(name.data(), length), ZebErrorSuccess);
            name.pop_back();

            const auto probe = camera->feature(name); // throws for a name that occurs twice
            const sim::Value value = probe.value();
            const auto type = probe.description().type;
            const bool isLegal = type == ZebFeatureDataInt
                ? sim::isLegal(probe.range(), value.toInteger())
                : type == ZebFeatureDataFloat
                ? sim::isLegal(probe.realRange(), value.toNumber())
                : type != ZebFeatureDataEnum || probe.isAvailable(value.toText());
            QVERIFY2(isLegal, (model.name + " " + name).c_str());
            QCOMPARE(probe.pointer(), feature);
        }
        const sim::Snapshot snapshot = camera->snapshot();
        QCOMPARE(snapshot.maximum.width, model.sensor.width);
        const std::int64_t unused = model.sensor.width - snapshot.regions.front().width;
        QVERIFY(unused >= 0 && unused < 64);
    }
    QCOMPARE(createCamera("many-features")->features().size(), std::size_t{400});
    sim::CameraOptions options;
    options.sensor = sim::SensorSize::megapixels150();
    QCOMPARE(createCamera("bayer", options)->feature("WidthMax").integer(), 14192);
}

void SimulatedCameraTest::largeCamerasAreCheap()
{
    sim::CameraOptions options;
    options.extraFeatures = 20000;
    const auto camera = createCamera("current", options);
    QElapsedTimer timer;
    timer.start();
    for (int i = 0; i < 20; ++i) {
        camera->setStreaming(i % 2 == 0);
        camera->features();
    }
    for (int i = 0; i < 2000; ++i)
        QCOMPARE(camera->writeAsOtherClient("Extra19990", i), ZebErrorSuccess);
    QVERIFY2(timer.elapsed() < 2000, qPrintable(QString::number(timer.elapsed())));
}

QTEST_APPLESS_MAIN(SimulatedCameraTest)
#include "SimulatedCameraTest.moc"
