#include "DataTable.h"
#include "simulator/Camera.h"

#include "features/ZebFeatureWrapper.h"

#include <cmath>

using namespace std::chrono_literals;
using sim::createCamera;
using sim::Failure;
using sim::Occurrence;
using sim::Operation;
using sim::Operations;
using Kind = Failure::Kind;

Q_DECLARE_METATYPE(Kind)

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

/// That a camera fails as it was told to: where, when and how.
class SimulatedFailuresTest : public QObject
{
    Q_OBJECT

private slots:
    void occurrences()
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
        QCOMPARE(camera->writeAsOtherClient("Width", 640), ZebErrorSuccess);
        camera->failures().clear();
        QCOMPARE(writeWidth(*camera, 800), ZebErrorSuccess);

        const std::vector<bool> random = strikes(1);
        QCOMPARE(random, strikes(1));
        QVERIFY(random != strikes(2));
    }

    void valuesOtherThanWritten()
    {
        const auto camera = createCamera("plain");
        camera->failures().add(
            "Width", Operation::SetValue,
            Failure::value([](const sim::Value& v) { return sim::Value(v.toInteger() - 8); }));
        camera->failures().add("Height", Operation::IsWritable, Failure::value(false));
        camera->failures().add("OffsetX", Operation::IsWritable, Failure::of(Kind::Throw));
        QCOMPARE(writeWidth(*camera, 640), ZebErrorSuccess);
        QCOMPARE(camera->feature("Width").integer(), 632);
        bool writable = true;
        QCOMPARE(camera->feature("Height").pointer()->IsWritable(writable), ZebErrorSuccess);
        QVERIFY(!writable);
        QVERIFY_EXCEPTION_THROWN(camera->feature("OffsetX").pointer()->IsWritable(writable),
                                 std::runtime_error);
    }

    void lengths_data()
    {
        const DataTable<Kind, int, QString> table{"kind", "result", "text"};
        table.row("none", Kind::None, ZebErrorSuccess, "Mono8");
        table.row("zero", Kind::EmptyLength, ZebErrorSuccess, "");
        table.row("grows", Kind::Grow, ZebErrorSuccess, "Mono8?");
        table.row("unterminated", Kind::Unterminated, ZebErrorSuccess, "Mono8?");
        table.row("4 GiB", Kind::HugeLength, ZebErrorResources, "");
    }

    void lengths()
    {
        QFETCH(Kind, kind);
        QFETCH(int, result);
        QFETCH(QString, text);
        const auto camera = createCamera("plain");
        camera->failures().add("PixelFormat", Operations::all(), Failure::of(kind));
        ZebFeatureWrapper wrapper(camera->feature("PixelFormat").pointer());
        std::string value;
        QCOMPARE(int(wrapper.GetValue(value)), result);
        QCOMPARE(QString::fromStdString(value), text);
        std::vector<std::string> names;
        QCOMPARE(int(wrapper.GetValues(names)), result);
        QCOMPARE(names.size(), std::size_t(text.isEmpty() ? 0 : 3));
    }

    void entryNamesOutliveTheirEntries()
    {
        const auto camera = createCamera("current");
        const auto format = camera->feature("PixelFormat").pointer();
        std::uint32_t count = 20;
        std::vector<const char*> names(count);
        QCOMPARE(format->GetValues(names.data(), count), ZebErrorSuccess);
        camera->modify("PixelFormat", [](auto& feature) { feature.entries.clear(); });
        QCOMPARE(std::string(names.front()), std::string("Mono8"));
        QCOMPARE(format->GetValues(names.data(), count), ZebErrorSuccess);
        QCOMPARE(count, 0u);
    }

    void losingTheCamera()
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
};

QTEST_APPLESS_MAIN(SimulatedFailuresTest)
#include "SimulatedFailuresTest.moc"
