#include "DataTable.h"
#include "simulator/Camera.h"

#include <limits>

using sim::Camera;
using sim::createCamera;
using sim::IntegerRange;

namespace {

/// Writes "Feature value" as a client does.
ZebErrorType write(const Camera& camera, const QString& text)
{
    const auto feature = camera.feature(text.section(' ', 0, 0).toStdString());
    const QString value = text.section(' ', 1);
    switch (feature.description().type) {
    case ZebFeatureDataInt:
        return feature.pointer()->SetValue(std::int64_t{value.toLongLong()});
    case ZebFeatureDataBool:
        return feature.pointer()->SetValue(value == "true");
    default:
        return feature.pointer()->SetValue(qPrintable(value));
    }
}

} // namespace

/// What a camera makes of its clients' writes.
class SimulatedCameraTest : public QObject
{
    Q_OBJECT

private slots:
    void integerWrites_data()
    {
        const DataTable row([](qint64 minimum, qint64 maximum, qint64 increment, qint64 value,
                               bool isTaken, qint64 rounded) {
            Camera camera({sim::integerFeature("Number", -99)
                               .between(IntegerRange(minimum, maximum, increment))});
            const QString text = QString("Number %1").arg(value);
            QCOMPARE(write(camera, text), isTaken ? ZebErrorSuccess : ZebErrorInvalidValue);
            QCOMPARE(camera.feature("Number").integer(), isTaken ? value : -99);
            camera.setRounding(true);
            QCOMPARE(write(camera, text) == ZebErrorSuccess, minimum <= maximum);
            QCOMPARE(qint64{camera.feature("Number").integer()}, rounded);
        });
        const qint64 lowest = std::numeric_limits<qint64>::min();
        const qint64 highest = std::numeric_limits<qint64>::max();
        row("grid counts from the minimum", 3, 100, 8, 19, true, 19);
        row("multiple, but off the grid", 3, 100, 8, 16, false, 19);
        row("nearer below", 0, 100, 8, 11, false, 8);
        row("half way goes up", 0, 100, 8, 12, false, 16);
        row("above, maximum off the grid", 16, 100, 8, 200, false, 96);
        row("whole 64 bits", lowest, highest, 1, highest, true, highest);
        row("minimum over maximum", 10, 5, 1, 7, false, -99);
    }
    void integerWrites() { runRow(); }

    /// The writes follow one another; "!" marks what the camera refuses.
    void featuresFollowOneAnother_data()
    {
        const DataTable row(
            [](const QString& model, const QString& writes, const QString& expected) {
                const auto camera = createCamera(model.toStdString());
                for (QString text : writes.split(", ")) {
                    const bool isTaken = !text.startsWith('!');
                    QVERIFY2((write(*camera, text.remove('!')) == ZebErrorSuccess) == isTaken,
                             qPrintable(text));
                }
                QStringList values = expected.split(", ", Qt::SkipEmptyParts);
                for (QString& text : values) {
                    const QString name = text.section(' ', 0, 0);
                    text = name + ' ' + camera->feature(name.toStdString()).text().c_str();
                }
                QCOMPARE(values.join(", "), expected);
            });
        row("binning moves the region inside", "older-names",
            "Width 1000, OffsetX 1592, BinningHorizontal 2",
            "WidthMax 1296, OffsetX 296, Width 1000, HeightMax 1944");
        row("offset and size bound each other", "plain",
            "!OffsetX 4, Width 2584, !OffsetX 16, OffsetX 8, !Width 2592", "OffsetX 8");
        row("selectors keep values", "current",
            "BinningHorizontal 2, BinningSelector Digital, BinningHorizontal 3, "
            "BinningSelector Sensor",
            "BinningHorizontal 2, WidthMax 432");
        row("regions follow the picture", "mixed-aoi-dsp", "Width 640",
            "AutofunctionAOIWidth 640, AutofunctionAOIOffsetX 0, DSPSubregionRight 640");
        row("edges stay ordered", "dsp",
            "DSPSubregionRight 100, !DSPSubregionLeft 100, DSPSubregionLeft 99, "
            "!DSPSubregionRight 99",
            "DSPSubregionLeft 99, DSPSubregionRight 100");
        row("regions under older names", "multi-region-older",
            "MultipleRegionsEnable true, SubRegionSelector Region2, Width 640, OffsetX 400, "
            "SubRegionMode On, SubRegionSelector Region0",
            "Width 2592, OffsetX 0");
    }
    void featuresFollowOneAnother() { runRow(); }

    void regionStatus_data()
    {
        // An empty rectangle is switched off; a digit of "valid" stands for each region.
        const DataTable row(
            [](const QString& arrangement, const QVector<QRect>& regions, const QString& valid) {
                const auto camera = createCamera("multi-region");
                camera->force("MultipleRegionArrangement", arrangement.toStdString());
                for (int i = 0; i < regions.size(); ++i) {
                    camera->forceAt("SubRegionMode", i, regions[i].isEmpty() ? "Off" : "On");
                    camera->forceAt("SubRegionOffsetX", i, regions[i].x());
                    camera->forceAt("SubRegionOffsetY", i, regions[i].y());
                    camera->forceAt("SubRegionWidth", i, regions[i].width());
                    camera->forceAt("SubRegionHeight", i, regions[i].height());
                }
                QString result;
                for (int i = 0; i < regions.size(); ++i)
                    result += camera->feature("SubRegionStatus").textAt(i) == "Valid" ? '1' : '0';
                QCOMPARE(result, valid);
            });
        const QRect a(0, 0, 160, 80);
        const QRect right(160, 0, 80, 80);
        const QRect below(0, 80, 160, 60);
        row("free", "Free", {a, {160, 40, 80, 80}}, "11");
        row("overlap", "Free", {a, {152, 40, 80, 80}}, "00");
        row("out of the sensor", "Free", {a, {2560, 40, 80, 80}}, "10");
        row("shared columns", "Vertical", {a, below}, "11");
        row("not continuous", "Horizontal", {a, {}, right}, "100");
        row("tile", "Tile", {a, right, below, {160, 80, 80, 60}}, "1111");
        row("column without its second", "Tile", {a, right, {}, {160, 80, 80, 60}}, "1100");
        row("tile, rows differ", "Tile", {a, right, below, {160, 80, 80, 62}}, "1110");
    }
    void regionStatus() { runRow(); }
};

QTEST_APPLESS_MAIN(SimulatedCameraTest)
#include "SimulatedCameraTest.moc"
