#include "features/ZebFeatureWrapper.h"
#include "SimulatedCamera.h"
#include "features/PluginFeatureObserver.h"

#include <QSignalSpy>
#include <QtTest>

using sim::Failure;
using sim::Operation;

Q_DECLARE_METATYPE(sim::Failure)

namespace {

std::shared_ptr<ZebFeatureWrapper> wrap(const sim::Camera& camera, std::size_t index = 0)
{
    return std::make_shared<ZebFeatureWrapper>(camera.features().at(index));
}

} // namespace

/// The wrapper and the observer against what cameras answer.
class ZebFeatureWrapperTest : public QObject
{
    Q_OBJECT

private slots:
    void readsTexts_data();
    void readsTexts();
    void readsLists();
    void writesBytes();
    void survivesWhatIsMissing();
    void sendsValuesAsText_data();
    void sendsValuesAsText();
    void sendsNothingWithoutAName();
};

void ZebFeatureWrapperTest::readsTexts_data()
{
    QTest::addColumn<sim::Failure>("failure");
    QTest::addColumn<int>("result");
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<QByteArray>("name");

    const QByteArray kept = "kept";
    QTest::newRow("honest") << Failure{} << 0 << QByteArray("left") << QByteArray("DeviceUserID");
    QTest::newRow("refused") << Failure::refuse(ZebErrorTimeout) << int(ZebErrorTimeout)
                             << QByteArray() << kept;
    QTest::newRow("empty") << Failure::of(Failure::Kind::EmptyLength) << 0 << QByteArray()
                           << QByteArray();
    QTest::newRow("4 GiB") << Failure::of(Failure::Kind::HugeLength) << int(ZebErrorResources)
                           << QByteArray() << kept;
    QTest::newRow("exception") << Failure::of(Failure::Kind::Throw) << int(ZebErrorResources)
                               << QByteArray() << kept;
}

void ZebFeatureWrapperTest::readsTexts()
{
    QFETCH(sim::Failure, failure);
    QFETCH(int, result);
    QFETCH(QByteArray, value);
    QFETCH(QByteArray, name);

    const sim::Camera camera({sim::stringFeature("DeviceUserID", "left")});
    const auto feature = wrap(camera);
    auto& failures = const_cast<sim::Camera&>(camera).failures();
    failures.add("DeviceUserID", sim::Operations(Operation::GetValue) | Operation::GetName,
                 failure);

    std::string readValue = "kept";
    QCOMPARE(int(feature->GetValue(readValue)), result);
    QCOMPARE(QByteArray::fromStdString(readValue), value);
    std::string readName = "kept";
    QCOMPARE(int(feature->GetName(readName)), result);
    QCOMPARE(QByteArray::fromStdString(readName), name);
}

void ZebFeatureWrapperTest::readsLists()
{
    sim::Camera camera({sim::enumFeature("Mode", {"Off", "On"})});
    const auto feature = wrap(camera);
    std::vector<std::string> entries;
    std::vector<ZebCPP::EnumEntry> records;

    QCOMPARE(int(feature->GetValues(entries)), 0);
    QCOMPARE(entries, std::vector<std::string>({"Off", "On"}));
    QCOMPARE(int(feature->GetEntries(records)), 0);
    QCOMPARE(int(records.size()), 2);

    camera.failures().add("Mode", Operation::GetValues, Failure::of(Failure::Kind::NullEntries),
                          sim::Occurrence::nth(2));
    QCOMPARE(int(feature->GetValues(entries)), 0);
    QCOMPARE(entries, std::vector<std::string>({"", ""}));

    camera.failures().clear();
    camera.failures().add("Mode", Operation::GetValues, Failure::of(Failure::Kind::HugeLength));
    QCOMPARE(int(feature->GetValues(entries)), int(ZebErrorResources));
    camera.failures().clear();
    camera.failures().add("Mode", Operation::GetValues, Failure::of(Failure::Kind::Grow));
    feature->GetValues(entries);
    QVERIFY(entries.size() <= 2);
}

void ZebFeatureWrapperTest::writesBytes()
{
    sim::Camera camera({sim::rawFeature("Table", {1, 2, 3})});
    const auto feature = wrap(camera);
    std::vector<uint8_t> bytes;
    uint32_t filled = 0;
    QCOMPARE(int(feature->GetValue(bytes, filled)), 0);
    QCOMPARE(bytes, std::vector<uint8_t>({1, 2, 3}));
    QCOMPARE(filled, 3u);

    QCOMPARE(int(feature->SetValue(std::vector<uint8_t>())), int(ZebErrorBadParameter));
    QVERIFY(camera.journal().writes().empty());
    QCOMPARE(int(feature->SetValue(std::vector<uint8_t>{9, 8})), 0);
    QCOMPARE(feature->GetValue(bytes), ZebErrorSuccess);
    QCOMPARE(bytes, std::vector<uint8_t>({9, 8}));
}

void ZebFeatureWrapperTest::survivesWhatIsMissing()
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

void ZebFeatureWrapperTest::sendsValuesAsText_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("text");

    QTest::newRow("integer") << 0 << "-12";
    QTest::newRow("large float") << 1 << "1.23457e+06";
    QTest::newRow("small float") << 2 << "0.5";
    QTest::newRow("entry") << 3 << "Off";
    QTest::newRow("string") << 4 << "left";
    QTest::newRow("boolean") << 5 << "true";
    QTest::newRow("command") << 6 << "[COMMAND]";
    QTest::newRow("raw") << 7 << "Click here to open";
    QTest::newRow("unreadable integer") << 8 << "";
}

void ZebFeatureWrapperTest::sendsValuesAsText()
{
    QFETCH(int, index);
    sim::Camera camera({sim::integerFeature("F0", -12), sim::floatFeature("F1", 1234567.0),
                        sim::floatFeature("F2", 0.5), sim::enumFeature("F3", {"Off", "On"}),
                        sim::stringFeature("F4", "left"), sim::booleanFeature("F5", true),
                        sim::commandFeature("F6"), sim::rawFeature("F7", {1}),
                        sim::integerFeature("F8", 3)});
    camera.failures().add("F8", Operation::GetValue, Failure::refuse());
    PluginFeatureObserver observer;
    QSignalSpy changed(&observer, &PluginFeatureObserver::setChangedFeature);

    observer.FeatureChanged(camera.features().at(std::size_t(index)));

    QCOMPARE(changed.size(), 1);
    QCOMPARE(changed.first().at(0).toString(), QStringLiteral("F%1").arg(index));
    QTEST(changed.first().at(1).toString(), "text");
}

void ZebFeatureWrapperTest::sendsNothingWithoutAName()
{
    sim::Camera camera({sim::integerFeature("Width", 1)});
    PluginFeatureObserver observer;
    QSignalSpy changed(&observer, &PluginFeatureObserver::setChangedFeature);

    observer.FeatureChanged(nullptr);
    camera.failures().add("Width", Operation::GetDataType, Failure::refuse());
    observer.FeatureChanged(camera.features().front());
    camera.failures().clear();
    camera.failures().add("Width", Operation::GetName, Failure::refuse());
    observer.FeatureChanged(camera.features().front());

    QCOMPARE(changed.size(), 0);
}

QTEST_GUILESS_MAIN(ZebFeatureWrapperTest)
#include "ZebFeatureWrapperTest.moc"
