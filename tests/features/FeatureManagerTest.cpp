#include "features/FeatureManager.h"
#include "DataTable.h"
#include "SimulatedCamera.h"
#include "features/NumberConversion.h"
#include "features/SdkValues.h"

#include <cmath>
#include <limits>

using sim::Failure;
using sim::FloatRange;
using sim::IntegerRange;
using sim::Operation;

namespace {

sim::FeatureDescriptions someNumbers()
{
    return {sim::integerFeature("Width", 640).between(IntegerRange{16, 1023, 16}),
            sim::floatFeature("Gain", 1.5).between(FloatRange(0.0, 2.0)),
            sim::booleanFeature("ReverseX", true), sim::stringFeature("Name", "x")};
}

struct Fixture
{
    explicit Fixture(sim::FeatureDescriptions features = someNumbers())
        : camera(std::move(features))
        , manager(wrappers(camera))
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
    /// Rounding takes what the page asks for, so that the stored value is the one that was written.
    void alignsAndClampsIntegers_data()
    {
        const DataTable row(
            [](qint64 minimum, qint64 maximum, qint64 increment, double value, qint64 expected) {
                Fixture f({sim::integerFeature("Width", minimum)
                               .between(IntegerRange(minimum, maximum, increment))});
                // The written value may be off the camera's own grid; what the camera makes of it
                // is not the point.
                f.manager.SetValue("Width", value);
                const auto writes = f.camera.journal().writes();
                QCOMPARE(int(writes.size()), 1);
                QCOMPARE(qint64{writes.front().value.toInteger()}, expected);
            });
        row("down to the grid", 0, 1023, 16, 1000.0, 992);
        row("maximum on the grid", 0, 1023, 16, 1020.0, 1008);
        row("lifted to the minimum", 8, 64, 4, 7.0, 8);
        row("grid counted from 0", 6, 100, 4, 13.9, 12);
        row("negative, toward zero", -100, 100, 8, -13.0, -8);
        row("no increment", 0, 1023, noIncrement, 1021.7, 1021);
        row("beyond 64 bits", 0, 1000, 1, 1e300, 1000);
        row("not a number", 5, 1000, 1, std::nan(""), 5);
    }
    void alignsAndClampsIntegers() { runRow(); }

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

    void answersWhatIsInEffect_data()
    {
        const DataTable row([](const QString& name, double value, double expected, int writes) {
            Fixture f({sim::floatFeature("Gain", 3.3).between(FloatRange(0.0, 24.0, 0.5)),
                       sim::booleanFeature("ReverseX", true),
                       sim::integerFeature("WidthMax", 640).readOnly(),
                       sim::stringFeature("DeviceUserID", "left").readOnly()});
            if (value == 5.0)
                f.camera.failures().add("Gain", Operation::SetValue, Failure::refuse(),
                                        sim::Occurrence::nth(1));
            QCOMPARE(f.manager.SetValue(name, value), expected);
            QCOMPARE(int(f.camera.journal().writes().size()), writes);
            QCOMPARE(f.manager.GetWritableStringValue("DeviceUserID"), QString());
        });
        row("clamped", "Gain", 30.0, 24.0, 1);
        row("refused: what it has once more, on its increment", "Gain", 5.0, 3.0, 2);
        row("little", "ReverseX", 0.2, 1.0, 1);
        row("negative", "ReverseX", -0.5, 0.0, 1);
        row("read-only", "WidthMax", 320.0, 640.0, 0);
        row("missing", "NoSuch", 12.5, 12.5, 0);
    }
    void answersWhatIsInEffect() { runRow(); }

    /// The numbers are those of GetValueState() and, where they differ, of GetValueRange().
    void fillsStateAndFieldRange_data()
    {
        using Numbers = QVector<double>; // value, minimum, maximum, increment
        const DataTable row([](const QString& name, const Numbers& state, const Numbers& range) {
            Fixture f;
            bool writable = false;
            Numbers n{7.0, 7.0, 7.0, 7.0};
            n[0] = f.manager.GetValueState(name, writable, n[1], n[2], n[3]);
            QCOMPARE(n, state);
            QCOMPARE(writable, name != "NoSuch");
            n[0] = f.manager.GetValueRange(name, n[1], n[2], n[3]);
            QCOMPARE(n, range);
        });
        const Numbers none{-1.0, -1.0, -1.0, -1.0};
        const Numbers untouched{-1.0, 7.0, 7.0, 7.0};
        row("integer", "Width", {640.0, 16.0, 1023.0, 16.0}, {640.0, 16.0, 1008.0, 16.0});
        row("float", "Gain", {1.5, 0.0, 2.0, -1.0}, {1.5, 0.0, 2.0, 0.01});
        row("text", "Name", none, none);
        row("missing", "NoSuch", untouched, untouched);
    }
    void fillsStateAndFieldRange() { runRow(); }

    /// What was refused is not known; what the camera does not have is.
    void knowsWhatItRead_data()
    {
        using Operations = sim::Operations;
        const DataTable row([](const QString& name, const Operations& refused, bool isComplete,
                               const QString& text) {
            Fixture f;
            f.camera.failures().add("*", refused, Failure::refuse());
            const auto reading = f.manager.Read(name).number();
            QCOMPARE(reading.isComplete, isComplete);
            QStringList texts;
            for (const auto& number :
                 {reading.value, reading.minimum, reading.maximum, reading.increment})
                texts.append(number ? QString::number(*number) : QString("-"));
            QCOMPARE(texts.join(' ') + (reading.isWritable == true ? " rw" : ""), text);
        });
        const Operations none;
        row("integer", "Width", none, true, "640 16 1023 16 rw");
        row("no increment", "Gain", none, true, "1.5 0 2 - rw");
        row("boolean", "ReverseX", none, true, "1 - - - rw");
        row("missing", "NoSuch", none, true, "- - - -");
        row("value", "Width", Operation::GetValue, false, "- 16 1023 16 rw");
        row("range", "Width", Operation::GetRange, false, "640 - - 16 rw");
        row("increment", "Width", Operation::GetIncrement, false, "640 16 1023 - rw");
        row("access", "Width", Operation::IsWritable, false, "640 16 1023 16");
        row("type", "Width", Operation::GetDataType, false, "- - - -");
    }
    void knowsWhatItRead() { runRow(); }

    /// Each word is a feature, read slowly and in vain; "=" before it: with success, "~": refused
    /// at once.
    void cameraIsLost_data()
    {
        const DataTable row([](const QString& reads, bool isLost) {
            CameraLink link;
            for (QString name : reads.split(' ', Qt::SkipEmptyParts)) {
                const bool isRead = name.startsWith('=');
                const bool isQuick = name.startsWith('~');
                link.told(name.remove('=').remove('~'), isRead ? Sdk::success : Sdk::notFound,
                          std::chrono::milliseconds(isQuick ? 99 : 100));
            }
            QCOMPARE(link.isLost(), isLost);
            QCOMPARE(link.takeLoss(), isLost);
            QVERIFY(!link.takeLoss());
            QVERIFY(!link.isClosed());
            const auto manyReads = link.manyReads();
            QCOMPARE(link.isClosed(), isLost);
        });
        row("one feature", "A A A", false);
        row("two features", "A A B", true);
        row("an answer between", "A =C B", false);
        row("refused at once", "~A ~B A ~C B", false);
        row("back", "A B =A", false);
        row("back with a refusal", "A B ~A", false);
        row("lost again", "A B =A B A", true);
    }
    void cameraIsLost() { runRow(); }

    void answersDefaults()
    {
        Fixture f;
        const QString width = "Width";
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

    void describesFeatures_data()
    {
        const DataTable row([](const QString& name, const QString& expected) {
            Fixture f({sim::floatFeature("Gain", 0.1234567891)
                           .between(FloatRange(0.1234567891, 0.1234567891, 1.0))
                           .in("/AnalogControl")
                           .describedBy("First. Second.")
                           .visibleTo(ZebFeatureVisibilityExpert),
                       sim::integerFeature("Width", 8)
                           .between(IntegerRange{8, 2048, 1})
                           .in("/ImageFormat"),
                       sim::commandFeature("Trigger")
                           .describedBy("100 %1 sure")
                           .visibleTo(ZebFeatureVisibilityInvisible)});
            QCOMPARE(f.manager.GetInformation(name), expected);
        });
        row("float, two precisions", "Gain",
            "<b>Feature Description:</b> <br/>First.<br/> Second.<br/><br/>"
            "<b>Feature Name:</b> Gain<br/><b>Visibility:</b> EXPERT<br/>"
            "<b>Type:</b> Float<br/><b>Minimum:</b> 0.123456789<br/>"
            "<b>Maximum:</b> 0.1234567891<br/><b>Interval:</b> 1.0000000000<br/>"
            "<b>Category:</b> /AnalogControl<br/>");
        row("integer without interval", "Width",
            "<b>Feature Description:</b> N/A<br/><br/><b>Feature Name:</b> Width<br/>"
            "<b>Visibility:</b> BEGINNER<br/><b>Type:</b> Integer<br/><b>Minimum:</b> 8<br/>"
            "<b>Maximum:</b> 2048<br/><b>Category:</b> /ImageFormat<br/>");
        row("description with a place marker", "Trigger",
            "<b>Feature Description:</b> <br/>100 %1 sure<br/><b>Feature Name:</b> Trigger<br/>"
            "<b>Visibility:</b> INVISIBLE<br/><b>Type:</b> Command<br/><b>Category:</b> /<br/>");
    }
    void describesFeatures() { runRow(); }
};

QTEST_GUILESS_MAIN(FeatureManagerTest)
#include "FeatureManagerTest.moc"
