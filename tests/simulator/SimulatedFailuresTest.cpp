#include "simulator/Camera.h"

#include "features/ZebFeatureWrapper.h"

#include <QtTest>

#include <cmath>

using namespace std::chrono_literals;
using sim::createCamera;
using sim::Failure;
using sim::Occurrence;
using sim::Operation;
using sim::Operations;
using Kind = Failure::Kind;

// That a camera fails as it was told to: where, when and how.
class SimulatedFailuresTest : public QObject
{
    Q_OBJECT

private slots:
    void occurrences();
    void seedsRepeat();
    void valuesOtherThanWritten();
    void lengths_data();
    void lengths();
    void nullEntries();
    void exceptions();
    void overrides();
    void losingTheCamera();
};

namespace {

ZebErrorType writeWidth(const sim::Camera& camera, std::int64_t value)
{
    return camera.feature("Width").pointer()->SetValue(value);
}

std::vector<bool> strikes(std::uint64_t seed)
{
    const auto camera = createCamera("plain");
    camera->failures().add("Width", Operation::SetValue, Failure::refuse(),
                           Occurrence::randomly(0.3, seed));
    std::vector<bool> results;
    for (int i = 0; i < 100; ++i)
        results.push_back(writeWidth(*camera, 640) != ZebErrorSuccess);
    return results;
}

} // namespace

void SimulatedFailuresTest::occurrences()
{
    const auto camera = createCamera("plain");
    camera->failures().add("Width", Operation::SetValue, Failure::refuse(ZebErrorTimeout),
                           Occurrence::nth(2));
    camera->failures().add("Width", Operation::SetValue, Failure::report(ZebErrorResources),
                           Occurrence::from(3));
    QCOMPARE(writeWidth(*camera, 640), ZebErrorSuccess);
    QCOMPARE(writeWidth(*camera, 800), ZebErrorTimeout);
    QCOMPARE(camera->feature("Width").integer(), 640);
    QCOMPARE(writeWidth(*camera, 800), ZebErrorResources);
    QCOMPARE(camera->feature("Width").integer(), 800);
    QCOMPARE(camera->failures().injected(Kind::Refuse), std::uint64_t{1});
    QCOMPARE(camera->writeAsOtherClient("Width", 640), ZebErrorSuccess);
    camera->failures().clear();
    QCOMPARE(writeWidth(*camera, 800), ZebErrorSuccess);
}

void SimulatedFailuresTest::seedsRepeat()
{
    const std::vector<bool> first = strikes(1);
    QCOMPARE(first, strikes(1));
    QVERIFY(first != strikes(2));
    const auto count = std::count(first.begin(), first.end(), true);
    QVERIFY(count > 15 && count < 45);
}

void SimulatedFailuresTest::valuesOtherThanWritten()
{
    const auto camera = createCamera("plain");
    camera->failures().add("Width", Operation::SetValue, Failure::value([](const sim::Value& v) {
                               return sim::Value(v.toInteger() - 8);
                           }));
    camera->failures().add("Height", Operation::IsWritable, Failure::value(false));
    QCOMPARE(writeWidth(*camera, 640), ZebErrorSuccess);
    QCOMPARE(camera->feature("Width").integer(), 632);
    bool writable = true;
    QCOMPARE(camera->feature("Height").pointer()->IsWritable(writable), ZebErrorSuccess);
    QVERIFY(!writable);
}

void SimulatedFailuresTest::lengths_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<int>("result");
    QTest::addColumn<QString>("text");

    QTest::newRow("none") << int(Kind::None) << int(ZebErrorSuccess) << "Mono8";
    QTest::newRow("zero") << int(Kind::EmptyLength) << int(ZebErrorSuccess) << "";
    QTest::newRow("grows") << int(Kind::Grow) << int(ZebErrorSuccess) << "Mono8?";
    QTest::newRow("unterminated") << int(Kind::Unterminated) << int(ZebErrorSuccess) << "Mono8?";
    QTest::newRow("4 GiB") << int(Kind::HugeLength) << int(ZebErrorResources) << "";
}

void SimulatedFailuresTest::lengths()
{
    QFETCH(int, kind);
    QFETCH(int, result);
    QFETCH(QString, text);

    const auto camera = createCamera("plain");
    camera->failures().add("PixelFormat", Operations::all(), Failure::of(static_cast<Kind>(kind)));
    ZebFeatureWrapper wrapper(camera->feature("PixelFormat").pointer());
    std::string value;
    QCOMPARE(int(wrapper.GetValue(value)), result);
    QCOMPARE(QString::fromStdString(value), text);
    std::vector<std::string> names;
    QCOMPARE(int(wrapper.GetValues(names)), result);
    QCOMPARE(names.size(), std::size_t(text.isEmpty() ? 0 : 3));
}

void SimulatedFailuresTest::nullEntries()
{
    const auto camera = createCamera("current");
    camera->failures().add("*", Operations::all(), Failure::of(Kind::NullEntries));
    std::uint32_t count = 0;
    const auto format = camera->feature("PixelFormat").pointer();
    QCOMPARE(format->GetValues(static_cast<const char**>(nullptr), count), ZebErrorSuccess);
    std::vector<const char*> names(count, "?");
    QCOMPARE(format->GetValues(names.data(), count), ZebErrorSuccess);
    QVERIFY(!names.empty() && !names.front());
}

void SimulatedFailuresTest::exceptions()
{
    const auto camera = createCamera("plain");
    camera->failures().add("*", Operation::IsWritable, Failure::of(Kind::Throw));
    bool writable = false;
    QVERIFY_EXCEPTION_THROWN(camera->feature("Width").pointer()->IsWritable(writable),
                             std::runtime_error);
    QCOMPARE(writeWidth(*camera, 640), ZebErrorSuccess);
}

void SimulatedFailuresTest::overrides()
{
    const auto camera = createCamera("current");
    camera->modify("Gain", [](sim::FeatureDescription& gain) {
        gain.between(sim::FloatRange(NAN, INFINITY, -1.0)).represented("\xff\xfe");
    });
    double minimum = 0.0;
    double maximum = 0.0;
    const auto gain = camera->feature("Gain").pointer();
    QCOMPARE(gain->GetRange(minimum, maximum), ZebErrorSuccess);
    QVERIFY(std::isnan(minimum) && std::isinf(maximum));
    QCOMPARE(gain->SetValue(1.0), ZebErrorInvalidValue);

    // Entry names that a client was given outlive a change of the entries.
    const auto format = camera->feature("PixelFormat").pointer();
    std::uint32_t count = 20;
    std::vector<const char*> names(count);
    QCOMPARE(format->GetValues(names.data(), count), ZebErrorSuccess);
    camera->modify("PixelFormat", [](auto& feature) { feature.entries.clear(); });
    QCOMPARE(std::string(names.front()), std::string("Mono8"));
    QCOMPARE(format->GetValues(names.data(), count), ZebErrorSuccess);
    QCOMPARE(count, 0u);
}

void SimulatedFailuresTest::losingTheCamera()
{
    const auto camera = createCamera("plain");
    camera->failures().add("Width", Operation::SetValue, Failure::lose(20ms, ZebErrorTimeout),
                           Occurrence::nth(2));
    QCOMPARE(writeWidth(*camera, 640), ZebErrorSuccess);
    QCOMPARE(writeWidth(*camera, 800), ZebErrorTimeout);
    QElapsedTimer timer;
    timer.start();
    std::uint32_t length = 0;
    QCOMPARE(camera->feature("Height").pointer()->GetName(nullptr, length), ZebErrorTimeout);
    QVERIFY(timer.elapsed() >= 20);
    QCOMPARE(camera->feature("Width").integer(), 640);
}

QTEST_APPLESS_MAIN(SimulatedFailuresTest)
#include "SimulatedFailuresTest.moc"
