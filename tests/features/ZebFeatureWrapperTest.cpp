#include "features/ZebFeatureWrapper.h"
#include "DataTable.h"
#include "SimulatedCamera.h"
#include "features/PluginFeatureObserver.h"

#include <QSignalSpy>

using sim::Failure;
using sim::Operation;

namespace {

std::shared_ptr<ZebFeatureWrapper> wrap(const sim::Camera& camera)
{
    return std::make_shared<ZebFeatureWrapper>(camera.features().front());
}

} // namespace

/// The wrapper and the observer against what cameras answer.
class ZebFeatureWrapperTest : public QObject
{
    Q_OBJECT

private slots:
    void readsTexts_data()
    {
        const DataTable row([](const Failure& failure, int result, const QByteArray& value,
                               const QByteArray& name) {
            sim::Camera camera({sim::stringFeature("DeviceUserID", "left")});
            camera.failures().add("*", sim::Operations::all(), failure);
            const auto feature = wrap(camera);
            std::string readValue = "kept";
            QCOMPARE(int(feature->GetValue(readValue)), result);
            QCOMPARE(QByteArray::fromStdString(readValue), value);
            std::string readName = "kept";
            QCOMPARE(int(feature->GetName(readName)), result);
            QCOMPARE(QByteArray::fromStdString(readName), name);
        });
        const QByteArray kept = "kept";
        row("honest", Failure{}, 0, "left", "DeviceUserID");
        row("refused", Failure::refuse(ZebErrorTimeout), int(ZebErrorTimeout), {}, kept);
        row("empty", Failure::of(Failure::Kind::EmptyLength), 0, {}, {});
        row("4 GiB", Failure::of(Failure::Kind::HugeLength), int(ZebErrorResources), {}, kept);
        row("grows", Failure::of(Failure::Kind::Grow), 0, "left?", "DeviceUserID?");
        row("unterminated", Failure::of(Failure::Kind::Unterminated), 0, "left?", "DeviceUserID?");
        row("exception", Failure::of(Failure::Kind::Throw), int(ZebErrorResources), {}, kept);
    }
    void readsTexts() { runRow(); }

    void readsLists_data()
    {
        using Texts = std::vector<std::string>;
        const DataTable row([](const Failure& failure, int result, const Texts& expected) {
            sim::Camera camera({sim::enumFeature("Mode", {"Off", "On"})});
            camera.failures().add("Mode", Operation::GetValues, failure);
            Texts entries{"kept"};
            QCOMPARE(int(wrap(camera)->GetValues(entries)), result);
            QCOMPARE(entries, expected);
            std::vector<ZebCPP::EnumEntry> records;
            QCOMPARE(int(wrap(camera)->GetEntries(records)), 0);
            QCOMPARE(int(records.size()), 2);
        });
        row("honest", {}, 0, {"Off", "On"});
        row("null", Failure::of(Failure::Kind::NullEntries), 0, {"", ""});
        row("4 GiB", Failure::of(Failure::Kind::HugeLength), int(ZebErrorResources), {"kept"});
        row("grows", Failure::of(Failure::Kind::Grow), 0, {"Off", "On"});
        row("empty", Failure::of(Failure::Kind::EmptyLength), 0, {});
    }
    void readsLists() { runRow(); }

    void writesBytes()
    {
        sim::Camera camera({sim::rawFeature("Table", {1, 2, 3})});
        const auto feature = wrap(camera);
        QCOMPARE(int(feature->SetValue(std::vector<uint8_t>())), int(ZebErrorBadParameter));
        QVERIFY(camera.journal().writes().empty());
        std::vector<uint8_t> bytes;
        QCOMPARE(int(feature->SetValue(std::vector<uint8_t>{9, 8})), 0);
        QCOMPARE(feature->GetValue(bytes), ZebErrorSuccess);
        QCOMPARE(bytes, std::vector<uint8_t>({9, 8}));
    }

    void survivesWhatIsMissing()
    {
        ZebFeatureWrapper nothing(nullptr);
        std::string text;
        double number = 4.0;
        QCOMPARE(nothing.GetName(text), ZebErrorBadHandle);
        QCOMPARE(nothing.GetValue(number), ZebErrorBadHandle);
        QCOMPARE(number, 4.0);

        auto camera = std::make_unique<sim::Camera>(
            sim::FeatureDescriptions{sim::integerFeature("Width", 640)});
        const auto feature = wrap(*camera);
        camera->failures().add("Width", Operation::SetValue, Failure::of(Failure::Kind::Throw));
        QCOMPARE(feature->SetValue(std::int64_t{5}), ZebErrorResources);
        camera.reset();
        QVERIFY(feature->GetName(text) != ZebErrorSuccess);
    }

    void sendsValuesAsText()
    {
        sim::Camera camera(
            {sim::integerFeature("Integer", -12), sim::floatFeature("Float", 1234567.0),
             sim::enumFeature("Entry", {"Off", "On"}), sim::stringFeature("String", "left"),
             sim::booleanFeature("Boolean", true), sim::commandFeature("Command"),
             sim::rawFeature("Raw", {1})});
        PluginFeatureObserver observer;
        QSignalSpy changed(&observer, &PluginFeatureObserver::setChangedFeature);
        observer.FeatureChanged(nullptr);
        QVERIFY(changed.isEmpty());
        const auto sent = [&] {
            QStringList texts;
            for (const auto& feature : camera.features()) {
                observer.FeatureChanged(feature);
                texts << changed.takeFirst().at(1).toString();
            }
            return texts.join(", ");
        };
        QCOMPARE(sent(),
                 QString("-12, 1.23457e+06, Off, left, true, [COMMAND], Click here to open"));
        observer.FeatureChanged(camera.features().front());
        QCOMPARE(changed.takeFirst().at(0).toString(), QString("Integer"));
        for (const auto& failure : {Failure::refuse(), Failure::of(Failure::Kind::Throw)}) {
            camera.failures().clear();
            camera.failures().add("*", Operation::GetValue, failure);
            QCOMPARE(sent(), QString(", , , , , [COMMAND], Click here to open"));
        }
    }
};

QTEST_GUILESS_MAIN(ZebFeatureWrapperTest)
#include "ZebFeatureWrapperTest.moc"
