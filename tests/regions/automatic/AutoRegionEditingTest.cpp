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
    void writesDrags()
    {
        const AutoROIPage p("aoi");
        const Numbers before = region(p, "AutofunctionAOI");
        const QPoint middle = p.band().center();
        const QPoint target = middle + p.at(400, 300);
        press(p.label, middle);
        sendMouse(p.label, QEvent::MouseMove, target);
        p.camera->writeAsOtherClient("ExposureAutoMin", 200.0);
        p.settle();
        QVERIFY(p.writes().isEmpty());
        QVERIFY(qAbs(p.field("spinLeft")->value() - before[0] - 400) < 12);
        QCOMPARE(p.camera->observerCount(), std::size_t{0});
        release(p.label, target);

        const Numbers after = region(p, "AutofunctionAOI");
        QVERIFY(qAbs(after[0] - before[0] - 400) < 12);
        QVERIFY(qAbs(after[1] - before[1] - 300) < 12);
        QVERIFY(p.camera->observerCount() > 0);
        p.settle();
        QCOMPARE(p.field("spinExpAutoMin")->value(), 200.0);
    }

    void dropsDrags()
    {
        const AutoROIPage p("aoi");
        press(p.label, p.at(1296, 972));
        sendMouse(p.label, QEvent::MouseMove, p.at(1400, 1000));
        QVERIFY(p.field("spinLeft")->value() > 700);
        p.label->setEnabled(false);
        QTRY_COMPARE_WITH_TIMEOUT(p.field("spinLeft")->value(), 648.0, 500);
        QVERIFY(p.label->isEnabled());
        QVERIFY(p.camera->observerCount() > 0);
        QVERIFY(p.writes().isEmpty());
    }

    void keepsNoDropThatTheCameraRefuses()
    {
        const AutoROIPage p("aoi-gated");
        const QRect before = p.label->region();
        p.click("cbEnable");
        drag(p.label, p.at(1296, 972), p.at(1500, 1100));
        QCOMPARE(text(p.label->region()), text(before));
    }

    /// An edge must not pass its opposite on the way, wherever the region was.
    void presetsKeepEdgesApart()
    {
        const Numbers topLeft{0, 0, 100, 80};
        const Numbers bottomRight{2500, 1900, 2592, 1944};
        for (const Numbers& before : {topLeft, bottomRight}) {
            const AutoROIPage p("dsp", [&](sim::Camera& camera) {
                setRegion(camera, dsp, before);
                boundEdges(camera, "DSPSubregionLeft", "DSPSubregionRight", "Width");
                boundEdges(camera, "DSPSubregionTop", "DSPSubregionBottom", "Height");
            });
            p.click("btnQuarter");
            QCOMPARE(region(p, dsp), (Numbers{972, 729, 1620, 1215}));
            p.click("btnHalf");
            QCOMPARE(region(p, dsp), (Numbers{648, 486, 1944, 1458}));
            p.click("btnFull");
            QCOMPARE(region(p, dsp), (Numbers{0, 0, 2592, 1944}));
            QVERIFY(!p.anyRefused());
            QVERIFY(p.message()->isHidden());
        }
    }

    void presetsCentre()
    {
        for (const char* model : {"aoi", "aoi-plain", "automode-fixed", "automode-dynamic"}) {
            const bool isAoi = QByteArray(model).startsWith("aoi");
            const QString family = isAoi ? "AutofunctionAOI" : "AutoModeRegion";
            const AutoROIPage p(model, [&](sim::Camera& camera) {
                // Full size beforehand: the offsets are taken only beside the new size.
                setRegion(camera, family, {0, 0, 2592, 1944});
            });
            p.click("btnHalf");
            QCOMPARE(region(p, family), (Numbers{648, 486, 1296, 972}));
            QVERIFY(!p.anyRefused());
            if (isAoi) {
                p.click("btnQuarter");
                QCOMPARE(region(p, family), (Numbers{972, 728, 648, 484}));
                p.click("btnFull");
                QCOMPARE(region(p, family), (Numbers{0, 0, 2592, 1944}));
            }
        }
    }

    void cutsWhatIsTooLarge()
    {
        const AutoROIPage p("aoi-plain", [](sim::Camera& camera) {
            camera.writeAsOtherClient("Width", std::int64_t{1296});
            camera.force("AutofunctionAOIOffsetX", 0);
            camera.force("AutofunctionAOIWidth", 2400);
        });
        QCOMPARE(p.field("spinWidth")->value(), 2400.0);
        p.click("btnFull");
        QCOMPARE(region(p, "AutofunctionAOI"), (Numbers{0, 0, 1296, 1944}));
    }

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

    void cutsNoImageToALimit()
    {
        const AutoROIPage p("automode-dynamic");
        p.field("spinLeft")->setValue(400); // leaves more room than at first
        p.settle();
        p.click("btnFull");
        QCOMPARE(p.value("Width"), 2592);
    }

    void replacesAnInvalidRegion()
    {
        const AutoROIPage p("dsp", [](sim::Camera& camera) {
            setRegion(camera, dsp, {100, 500, 400, 500});
        });
        QCOMPARE(region(p, dsp), (Numbers{0, 0, 2592, 1944}));
        QVERIFY(!p.constructionWrites.isEmpty());
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
