#include "features/CameraLink.h"
#include "DataTable.h"
#include "SimulatedCamera.h"
#include "features/FeatureManager.h"

#include <QStringList>

using sim::Failure;
using sim::Operation;

namespace {

constexpr std::chrono::milliseconds slow{100};
constexpr std::chrono::milliseconds quick{99};

} // namespace

class CameraLinkTest : public QObject
{
    Q_OBJECT

private slots:
    /// Each word is a feature, read slowly and in vain; "=" before it: with success, "~": refused
    /// at once.
    void countsAsLost_data()
    {
        const DataTable row([](const QString& reads, bool isLost) {
            CameraLink link;
            for (QString name : reads.split(' ', Qt::SkipEmptyParts)) {
                const bool isRead = name.startsWith('=');
                const bool isQuick = name.startsWith('~');
                link.told(name.remove('=').remove('~'), isRead ? Sdk::success : Sdk::notFound,
                          isQuick ? quick : slow);
            }
            QCOMPARE(link.isLost(), isLost);
            QCOMPARE(link.takeLoss(), isLost);
            QVERIFY(!link.takeLoss());
            QVERIFY(!link.isClosed());
            const auto manyReads = link.manyReads();
            QCOMPARE(link.isClosed(), isLost);
        });
        row("nothing read", "", false);
        row("one feature", "A A A", false);
        row("two features", "A A B", true);
        row("an answer between", "A =C B", false);
        row("refused at once", "~A ~B A ~C B", false);
        row("back", "A B =A", false);
        row("back with a refusal", "A B ~A", false);
        row("lost again", "A B =A B A", true);
    }
    void countsAsLost() { runRow(); }

    /// What was refused is not known; what the camera does not have is.
    void knowsWhatItRead_data()
    {
        using Operations = sim::Operations;
        const DataTable row([](const QString& name, const Operations& refused, bool isComplete,
                               const QString& text) {
            sim::Camera camera(
                {sim::integerFeature("Width", 640).between(sim::IntegerRange{16, 1023, 16}),
                 sim::floatFeature("Gain", 1.5).between(sim::FloatRange(0.0, 2.0)),
                 sim::booleanFeature("ReverseX", true)});
            FeatureManager manager(wrappers(camera));
            camera.failures().add("*", refused, Failure::refuse());
            const auto reading = manager.Read(name).number();
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
};

QTEST_GUILESS_MAIN(CameraLinkTest)
#include "CameraLinkTest.moc"
