#include "features/FeatureManager.h"
#include "DataTable.h"
#include "SimulatedCamera.h"
#include "features/NumberConversion.h"

#include <cmath>
#include <limits>

using sim::Failure;
using sim::FloatRange;
using sim::IntegerRange;
using sim::Operation;

namespace {

FeatureManager::Wrappers wrap(const sim::Camera& camera)
{
    auto wrappers = FeatureManager::Wrappers::create();
    for (const ZebCPP::FeaturePtr& feature : camera.features())
        wrappers->append(std::make_shared<ZebFeatureWrapper>(feature));
    return wrappers;
}

struct Fixture
{
    explicit Fixture(sim::FeatureDescriptions features)
        : camera(std::move(features))
        , manager(wrap(camera))
    {
    }
    sim::Camera camera;
    FeatureManager manager;
};

constexpr qint64 noIncrement = -1;

} // namespace

class FeatureManagerTest : public QObject
{
    Q_OBJECT

private slots:
    void alignsAndClampsIntegers_data()
    {
        const DataTable<qint64, qint64, qint64, double, qint64> table{
            "minimum", "maximum", "increment", "value", "expected"};

        table.row("down to the grid", 0, 1023, 16, 1000.0, 992);
        table.row("maximum on the grid", 0, 1023, 16, 1020.0, 1008);
        table.row("lifted to the minimum", 8, 64, 4, 7.0, 8);
        table.row("grid counted from 0", 6, 100, 4, 13.9, 12);
        table.row("negative, toward zero", -100, 100, 8, -13.0, -8);
        table.row("no increment", 0, 1023, noIncrement, 1021.7, 1021);
        table.row("beyond 64 bits", 0, 1000, 1, 1e300, 1000);
        table.row("not a number", 5, 1000, 1, std::nan(""), 5);
    }

    /// Rounding takes what the page asks for, so that the stored value is the one that was written.
    void alignsAndClampsIntegers()
    {
        QFETCH(qint64, minimum);
        QFETCH(qint64, maximum);
        QFETCH(qint64, increment);
        QFETCH(double, value);
        QFETCH(qint64, expected);

        Fixture f({sim::integerFeature("Width", minimum)
                       .between(IntegerRange(minimum, maximum, increment))});
        // The written value may be off the camera's own grid; what the camera makes of it is not
        // the point.
        f.manager.SetValue("Width", value);
        const auto writes = f.camera.journal().writes();
        QCOMPARE(int(writes.size()), 1);
        QCOMPARE(qint64{writes.front().value.toInteger()}, expected);
    }

    void convertsSaturating()
    {
        constexpr double twoTo63 = 9223372036854775808.0;
        QCOMPARE(qint64{toInt64(twoTo63)}, std::numeric_limits<qint64>::max());
        QCOMPARE(qint64{toInt64(-twoTo63 * 2)}, std::numeric_limits<qint64>::min());
        QCOMPARE(toInt(-std::numeric_limits<double>::infinity()), std::numeric_limits<int>::min());
        QCOMPARE(toInt(2147483647.5), std::numeric_limits<int>::max());
        QCOMPARE(toInt(-2.9), -2);
        QCOMPARE(toInt(std::nan("")), 0);
        QCOMPARE(quint64{toUInt64(-2.5)}, quint64{0});
    }

    void writesFloats()
    {
        Fixture f({sim::floatFeature("Gain", 3.3).between(FloatRange(0.0, 24.0, 0.5))});
        const QString gain = "Gain";

        QCOMPARE(f.manager.SetValue(gain, 30.0), 24.0);
        QCOMPARE(f.manager.SetValue(gain, 7.5), 7.5);

        // Refused: the present value is written once more, on its increment.
        f.camera.force("Gain", 3.3);
        f.camera.journal().clear();
        f.camera.failures().add("Gain", Operation::SetValue, Failure::refuse(),
                                sim::Occurrence::nth(1));
        QCOMPARE(f.manager.SetValue(gain, 5.0), 3.0);
        const auto writes = f.camera.journal().writes();
        QCOMPARE(int(writes.size()), 2);
        QCOMPARE(writes.back().value.toNumber(), 3.0);
    }

    void writesBooleans()
    {
        Fixture f({sim::booleanFeature("ReverseX")});
        QCOMPARE(f.manager.SetValue("ReverseX", 0.2), 1.0);
        QCOMPARE(f.manager.SetValue("ReverseX", -0.5), 0.0);
        QCOMPARE(f.manager.SetValue("ReverseX", 2), 1.0);
    }

    void leavesReadOnlyFeaturesAlone()
    {
        Fixture f(
            {sim::integerFeature("WidthMax", 640).between(IntegerRange{0, 4096, 1}).readOnly(),
             sim::stringFeature("DeviceUserID", "left").readOnly()});
        QCOMPARE(f.manager.SetValue("WidthMax", 320), 640.0);
        QVERIFY(f.camera.journal().writes().empty());
        QCOMPARE(f.manager.GetWritableStringValue("DeviceUserID"), QString());
        QCOMPARE(f.manager.SetValue("NoSuch", 12.5), 12.5);
    }

    void triesAlternativesInOrder()
    {
        Fixture f({sim::integerFeature("Second", 2), sim::integerFeature("Third", 3),
                   sim::integerFeature("", 9)});
        const QString missing = "First";
        const QString second = "Second";
        const QString third = "Third";

        QCOMPARE(f.manager.GetValue(missing, second, third), 2.0);
        QCOMPARE(f.manager.GetValue(missing, "second", third), 3.0);
        QVERIFY(!f.manager.HasFeature(missing, QString(), QString()));
        QCOMPARE(f.manager.GetExistingName({missing, third, second}), third);
        QCOMPARE(f.manager.SetValue(missing, QString(), third, 7), 7.0);
        QCOMPARE(qint64{f.camera.feature("Third").integer()}, qint64{7});
    }

    void readsBackUnderThePrimaryName()
    {
        Fixture f({sim::enumFeature("Mode", {"Off", "On"})});
        const QString mode = "Mode";
        QCOMPARE(f.manager.SetStringValue(mode, "On"), QString("On"));
        QCOMPARE(f.manager.SetStringValue(mode, "Auto"), QString("On"));
        QCOMPARE(f.manager.SetStringValue("OldMode", mode, "Off"), QString());
        QCOMPARE(f.camera.feature("Mode").text(), std::string("Off"));
        QVERIFY(f.manager.IsValueAvailable(mode, "On"));
        QVERIFY(!f.manager.IsValueAvailable(mode, "Auto"));
    }

    void fillsStateAndFieldRange()
    {
        Fixture f({sim::integerFeature("Width", 640).between(IntegerRange{16, 1023, 16}),
                   sim::floatFeature("Gain", 1.5).between(FloatRange(0.0, 2.0)),
                   sim::stringFeature("Name", "x")});
        bool writable = false;
        double minimum = 0;
        double maximum = 0;
        double increment = 0;

        QCOMPARE(f.manager.GetValueState("Width", writable, minimum, maximum, increment), 640.0);
        QVERIFY(writable);
        QCOMPARE(maximum, 1023.0);
        QCOMPARE(f.manager.GetValueRange("Width", minimum, maximum, increment), 640.0);
        QCOMPARE(minimum, 16.0);
        QCOMPARE(maximum, 1008.0);
        QCOMPARE(increment, 16.0);

        f.manager.GetValueState("Gain", writable, minimum, maximum, increment);
        QVERIFY(increment <= 0.0);
        f.manager.GetValueRange("Gain", minimum, maximum, increment);
        QCOMPARE(increment, 0.01);

        QCOMPARE(f.manager.GetValueRange("Name", minimum, maximum, increment), -1.0);
        QCOMPARE(maximum, -1.0);
        maximum = 77.0;
        QCOMPARE(f.manager.GetValueLimits("NoSuch", minimum, maximum), -1.0);
        QCOMPARE(maximum, 77.0);
    }

    void answersDefaults()
    {
        Fixture f({sim::integerFeature("Width", 640).between(IntegerRange{16, 1023, 16}),
                   sim::booleanFeature("ReverseX", true)});
        const QString width = "Width";
        QCOMPARE(f.manager.GetDataType(width), ZebFeatureDataInt);
        f.camera.failures().add(
            sim::FailureInjector::anyFeature,
            sim::Operations::all().without(Operation::GetName).without(Operation::GetDataType),
            Failure::refuse());
        double minimum = 0;
        double maximum = 0;
        QCOMPARE(f.manager.GetValueLimits(width, minimum, maximum), -1.0);
        QCOMPARE(maximum, -1.0);
        QCOMPARE(f.manager.GetValue("ReverseX"), 0.0);
        QCOMPARE(f.manager.GetIncrement(width), -1.0);
        QVERIFY(!f.manager.IsWritable(width));
        QVERIFY(!f.manager.IsReadable(width));
        QVERIFY(!f.manager.RunCommand(width));
        QCOMPARE(f.manager.GetStringValue(width), QString());
    }

    /// What the feature table cannot ask for; the rest is tried with its editors.
    void refusesVariants()
    {
        Fixture f({sim::integerFeature("Counter", 0), sim::enumFeature("Mode", {"Off", "On"}),
                   sim::integerFeature("WidthMax", 640).readOnly()});
        QVERIFY(f.manager.SetVariantValue("Counter", 12.9));
        QCOMPARE(f.manager.GetValue("Counter"), 12.0);
        QVERIFY(!f.manager.SetVariantValue("Counter", "rubbish"));
        QVERIFY(!f.manager.SetVariantValue("Mode", "Auto"));
        QVERIFY(!f.manager.SetVariantValue("WidthMax", 320));
        QVERIFY(!f.manager.SetVariantValue("NoSuch", 1));
    }

    void describesFeatures_data()
    {
        const DataTable<QString, QString> table{"name", "expected"};

        table.row("float, two precisions", "Gain",
                  "<b>Feature Description:</b> <br/>First.<br/> Second.<br/><br/>"
                  "<b>Feature Name:</b> Gain<br/><b>Visibility:</b> EXPERT<br/>"
                  "<b>Type:</b> Float<br/><b>Minimum:</b> 0.123456789<br/>"
                  "<b>Maximum:</b> 0.1234567891<br/><b>Interval:</b> 1.0000000000<br/>"
                  "<b>Category:</b> /AnalogControl<br/>");
        table.row("integer without interval", "Width",
                  "<b>Feature Description:</b> N/A<br/><br/><b>Feature Name:</b> Width<br/>"
                  "<b>Visibility:</b> BEGINNER<br/><b>Type:</b> Integer<br/><b>Minimum:</b> 8<br/>"
                  "<b>Maximum:</b> 2048<br/><b>Category:</b> /ImageFormat<br/>");
        table.row(
            "description with a place marker", "Trigger",
            "<b>Feature Description:</b> <br/>100 %1 sure<br/><b>Feature Name:</b> Trigger<br/>"
            "<b>Visibility:</b> INVISIBLE<br/><b>Type:</b> Command<br/><b>Category:</b> /<br/>");
        table.row("missing", "NoSuch", "");
    }

    void describesFeatures()
    {
        QFETCH(QString, name);
        Fixture f(
            {sim::floatFeature("Gain", 0.1234567891)
                 .between(FloatRange(0.1234567891, 0.1234567891, 1.0))
                 .in("/AnalogControl")
                 .describedBy("First. Second.")
                 .visibleTo(ZebFeatureVisibilityExpert),
             sim::integerFeature("Width", 8).between(IntegerRange{8, 2048, 1}).in("/ImageFormat"),
             sim::commandFeature("Trigger")
                 .describedBy("100 %1 sure")
                 .visibleTo(ZebFeatureVisibilityInvisible)});
        QTEST(f.manager.GetInformation(name), "expected");
    }
};

QTEST_GUILESS_MAIN(FeatureManagerTest)
#include "FeatureManagerTest.moc"
