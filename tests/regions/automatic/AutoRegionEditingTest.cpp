#include "DataTable.h"
#include "regions/RegionPage.h"

#include "simulator/State.h"

#include <QCheckBox>

namespace {

using Numbers = QVector<int>;

const char* const dsp = "DSPSubregion";

/// The features that tell the region: left, top, right, bottom, or left, top, width, height.
QStringList features(const QString& family)
{
    QStringList names = family == dsp ? QStringList{"Left", "Top", "Right", "Bottom"}
                                      : QStringList{"OffsetX", "OffsetY", "Width", "Height"};
    return names.replaceInStrings(QRegularExpression("^"), family);
}

Numbers region(const AutoROIPage& p, const QString& family)
{
    Numbers numbers;
    for (const QString& feature : features(family))
        numbers << p.value(feature);
    return numbers;
}

void setRegion(sim::Camera& camera, const QString& family, const Numbers& numbers)
{
    for (int i = 0; i < 4; ++i)
        camera.force(features(family).at(i).toStdString(), numbers[i]);
}

/// The edges of an axis bound each other.
void boundEdges(sim::Camera& camera, const std::string& nearEdge, const std::string& farEdge,
                const std::string& picture)
{
    camera.modify(nearEdge, [=](auto& edge) {
        edge.within([=](const sim::State& state) {
            return sim::IntegerRange(0, state.integer(farEdge) - 1);
        });
    });
    camera.modify(farEdge, [=](auto& edge) {
        edge.within([=](const sim::State& state) {
            return sim::IntegerRange(state.integer(nearEdge) + 1, state.integer(picture));
        });
    });
}

} // namespace

/// Drags, presets and typed numbers of the region of the automatic functions, and its limits.
class AutoRegionEditingTest : public QObject
{
    Q_OBJECT

private slots:
    void writesDrawnRegions_data()
    {
        const DataTable row(
            [](const QByteArray& model, const QRect& drawn, const QString& expected) {
                const AutoROIPage p(model, [](sim::Camera& camera) {
                    if (camera.has("DSPSubregionLeft"))
                        setRegion(camera, dsp, {648, 486, 1944, 1458});
                });
                p.page->OnSendGeometry(drawn.y(), drawn.x(), drawn.width(), drawn.height());
                QVERIFY(!p.anyRefused());
                static const QRegularExpression family("AutofunctionAOI|DSPSubregion");
                QCOMPARE(p.writes().join(", ").remove(family), expected);
            });
        row("offsets, then sizes", "aoi", QRect(201, 101, 640, 480),
            "OffsetX 204, OffsetY 102, Height 480, Width 640");
        row("taken only beside the new size", "aoi", QRect(2500, 1900, 640, 480),
            "OffsetX 1296, OffsetY 972, Height 44, Width 88, OffsetX 2500, OffsetY 1900");
        row("down and right", "dsp", QRect(800, 600, 1296, 972),
            "Right 2096, Left 800, Bottom 1572, Top 600");
        row("up and left", "dsp", QRect(200, 100, 1296, 972),
            "Left 200, Right 1496, Top 100, Bottom 1072");
        row("without extent", "dsp", QRect(200, 100, 0, 0),
            "Left 200, Right 201, Top 100, Bottom 101");
    }
    void writesDrawnRegions() { runRow(); }

    /// Offsets are taken only beside the new size; an edge must not pass its opposite on the way.
    void presets_data()
    {
        const DataTable row([](const QString& family, const Numbers& before, const Numbers& half,
                               const Numbers& quarter) {
            const AutoROIPage p(QTest::currentDataTag(), [&](sim::Camera& camera) {
                setRegion(camera, family, before);
                if (family != dsp)
                    return;
                boundEdges(camera, "DSPSubregionLeft", "DSPSubregionRight", "Width");
                boundEdges(camera, "DSPSubregionTop", "DSPSubregionBottom", "Height");
            });
            p.click("btnHalf");
            QCOMPARE(region(p, family), half);
            p.click("btnQuarter");
            QCOMPARE(region(p, family), quarter);
            p.click("btnFull");
            QCOMPARE(region(p, family), (Numbers{0, 0, 2592, 1944}));
            QVERIFY(!p.anyRefused());
            QVERIFY(p.message()->isHidden());
        });
        const Numbers full{0, 0, 2592, 1944};
        const Numbers half{648, 486, 1296, 972};
        const Numbers quarter{972, 729, 1620, 1215};
        row("aoi", "AutofunctionAOI", full, half, {972, 728, 648, 484});
        row("aoi-plain", "AutofunctionAOI", full, half, {972, 728, 648, 484});
        row("dsp", dsp, {0, 0, 100, 80}, {648, 486, 1944, 1458}, quarter);
        row("dsp", dsp, {2500, 1900, 2592, 1944}, {648, 486, 1944, 1458}, quarter);
    }
    void presets() { runRow(); }

    void keepsTheLimitsOfTheImage()
    {
        const AutoROIPage p("automode-dynamic", [](sim::Camera& camera) {
            camera.force("AutoModeRegionOffsetX", 0);
            camera.force("AutoModeRegionOffsetY", 0);
        });
        const QSize image(2592, 1944);
        p.field("spinLeft")->setValue(400);
        p.settle();
        p.comeBack();
        p.settle();
        QCOMPARE(p.label->sensorSize(), image);
        for (int times = 1; times <= 2; ++times) { // counted from where the region is
            p.click("btnHalf");
            p.settle();
            QCOMPARE(region(p, "AutoModeRegion").mid(2), (Numbers{1296, 972}));
        }
        p.click("btnFull");
        p.settle();
        QCOMPARE(region(p, "AutoModeRegion"), (Numbers{0, 0, 2592, 1944}));
        QVERIFY(!p.anyRefused());
        p.camera->writeAsOtherClient("Width", std::int64_t{1296});
        p.settle();
        QCOMPARE(p.label->sensorSize(), QSize(1296, 1944));
    }

    /// What is not told is no invalid region, and none of width 0.
    void waitsUntilTheRegionIsTold()
    {
        for (const QString& family : {QString("AutofunctionAOI"), QString(dsp)}) {
            const std::string name = features(family).at(2).toStdString();
            const AutoROIPage p(family == dsp ? "dsp" : "aoi", [&](sim::Camera& camera) {
                camera.failures().add(name, sim::Operation::GetValue, sim::Failure::refuse());
            });
            QCOMPARE(p.constructionWrites.join(", "), QString());
            QVERIFY(p.label->region() == QRect());
            p.camera->failures().clear();
            p.page->updateTimer();
            QVERIFY(p.label->region().width() > 0);
        }
    }

    void tellsOfCrossingEdges()
    {
        for (const bool isStrict : {true, false}) {
            const AutoROIPage p("dsp", [&](sim::Camera& camera) {
                setRegion(camera, dsp, {100, 100, 400, 400});
                if (!isStrict)
                    camera.modify("DSPSubregionLeft", [](auto& left) { left.accepts = nullptr; });
            });
            p.field("spinLeft")->setValue(500);
            QVERIFY(p.message()->isVisible());
            QCOMPARE(p.message()->text(), QString("Invalid settings: Left > Right! "));
            QCOMPARE(p.field("spinLeft")->value(), isStrict ? 100.0 : 500.0);
            p.settle();
            QCOMPARE(p.message()->isVisible(), !isStrict);
            p.field("spinRight")->setValue(600);
            QVERIFY(p.message()->isHidden());
        }
    }

    void switchesOffWhatExceedsTheImage()
    {
        const AutoROIPage p("aoi");
        const auto isOn = [&] { return p.camera->feature("AutofunctionAOIEnable").isOn(); };
        const QRect r = p.label->region();
        p.page->OnSendGeometry(r.y(), r.x(), r.width(), r.height());
        p.camera->force("AutofunctionAOIWidth", 2400);
        p.settle();
        QVERIFY(isOn()); // still counts as part of the drag
        QVERIFY(p.message()->isHidden());
        QTest::qWait(300);
        p.camera->force("AutofunctionAOIWidth", 2500);
        p.settle();
        QVERIFY(!isOn());
        QCOMPARE(p.message()->text(), QString("Invalid settings:\nWidth + OffsetX > AOI Width"));
        QVERIFY(p.message()->isVisible());
        QVERIFY(!p.find<QCheckBox>("cbEnable")->isChecked());

        // From then on the switch is the user's.
        p.settle();
        p.camera->journal().clear();
        p.field("spinLeft")->setFocus();
        p.page->OnSpinEditingFinished(); // the focus leaves a field
        p.click("cbEnable");
        QTest::qWait(1000);
        QCOMPARE(p.writes(), QStringList("AutofunctionAOIEnable true"));
        QVERIFY(isOn());
    }
};

QTEST_MAIN(AutoRegionEditingTest)

#include "AutoRegionEditingTest.moc"
