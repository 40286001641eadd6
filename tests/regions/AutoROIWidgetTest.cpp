#include "DataTable.h"
#include "imageformat/ImageFormatWidget.h"
#include "regions/RegionPage.h"

#include "simulator/State.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QTabWidget>

namespace {

using Numbers = QVector<int>;

Numbers region(const AutoROIPage& p)
{
    Numbers numbers;
    for (const auto& field : regionFields(*p.camera, true))
        numbers << p.value(field.second);
    return numbers;
}

void setRegion(sim::Camera& camera, const Numbers& numbers)
{
    for (int i = 0; i < 4; ++i)
        camera.force(regionFields(camera, true).at(i).second.toStdString(), numbers[i]);
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

class AutoROIWidgetTest : public QObject
{
    Q_OBJECT

private slots:
    void adaptsToTheFamily_data()
    {
        const DataTable row([](const QString& title, const QString& group, const QString& caption,
                               const QString& captions, bool hasSwitch) {
            const AutoROIPage p(QTest::currentDataTag());
            QCOMPARE(p.page->accessibleName(), title);
            QCOMPARE(p.find<QGroupBox>("gb_AutoROI")->title(), group);
            QCOMPARE(p.find<QGroupBox>("gb_Region")->title(), caption);
            QStringList visible;
            const QStringList names{"Left", "Top", "Right", "Bottom", "Width", "Height"};
            for (const QString& name : names) {
                const auto* const label = p.find<QLabel>("label" + name);
                if (label->isVisible())
                    visible << label->text();
                QCOMPARE(p.field("spin" + name)->isVisible(), label->isVisible());
            }
            QCOMPARE(visible.join(' '), captions);
            QCOMPARE(p.find<QCheckBox>("cbEnable")->isVisible(), hasSwitch);
            QVERIFY(p.constructionWrites.isEmpty());
            QVERIFY(p.message()->isHidden());

            const ImageFormatWidget host(featureList(*p.camera), nullptr);
            const auto* const tabs = host.findChild<QTabWidget*>("tabWidget");
            QCOMPARE(tabs->tabText(1), title);
            QVERIFY(tabs->widget(1)->inherits("AutoROIWidget"));
        });
        const QString sizes = "OffsetX: OffsetY: Width: Height:";
        const QString edges = "Left: Top: Right: Bottom:";
        const QString aoi = "Autofunction AOI";
        const QString roi = "Autofunction ROI";
        row("aoi", aoi, aoi, aoi, sizes, true);
        row("automode-fixed", roi, "AutoMode ROI", "AutoMode Region", sizes, false);
        row("dsp", roi, roi, "DSPSubregion", edges, false);
        row("mixed-aoi-dsp", aoi, aoi, aoi, edges, false);
    }
    void adaptsToTheFamily() { runRow(); }

    void switches()
    {
        const AutoROIPage p("aoi");
        p.click("cbEnable");
        p.click("cbShowArea");
        p.find<QComboBox>("comboIntensityControllerRegion")->setCurrentIndex(1);
        QCOMPARE(p.writes(),
                 (QStringList{"AutofunctionAOIEnable false", "AutofunctionAOIShowArea true",
                              "IntensityControllerRegion AutoModeRegion"}));
        p.camera->writeAsOtherClient("AutofunctionAOIEnable", true);
        p.settle();
        const auto* const enable = p.find<QCheckBox>("cbEnable");
        QVERIFY(enable->isChecked());
        QCOMPARE(p.writes().size(), 3);

        p.camera->failures().add("AutofunctionAOIEnable", sim::Operation::SetValue,
                                 sim::Failure::refuse());
        for (const int writes : {4, 5}) {
            p.click("cbEnable");
            QVERIFY(enable->isChecked());
            QCOMPARE(p.writes().size(), writes);
        }
    }

    void writesExposureLimitsOnce()
    {
        const AutoROIPage p("aoi", [&](sim::Camera& camera) {
            camera.setRounding(true);
            camera.modify("ExposureAutoMax",
                          [](auto& limit) { limit.between(sim::FloatRange(1.0, 65535.0, 0.01)); });
        });
        p.field("spinExpAutoMax")->setValue(10);
        p.settle();
        const auto writes = p.camera->journal().writes();
        QCOMPARE(int(writes.size()), 1); // what is read back is not written again
        QCOMPARE(writes[0].value.toNumber(), double(float(100 * 10.0 + 0.5) / 100.0F));
    }

    void followsTheTimebase()
    {
        const AutoROIPage p("aoi-plain");
        QCOMPARE(p.field("spinExpAutoMin")->decimals(), 0);
        p.find<QComboBox>("comboExpAutoTimeBase")->setCurrentText("100us");
        QCOMPARE(p.writes(), QStringList("ExposureAutoTimebase 100us"));
        QCOMPARE(p.field("spinExpAutoMax")->maximum(), 6553500.0);
        p.field("spinExpAutoMin")->setValue(300);
        p.camera->failures().add("ExposureTimeAbs", sim::Operation::GetValue,
                                 sim::Failure::refuse());
        p.click("btnExpAutoMinCurrent");
        QCOMPARE(p.writes().constLast(), QString("ExposureAutoMin 300"));
        p.camera->failures().clear();
        p.camera->force("ExposureTimeAbs", 7000.0);
        p.click("btnExpAutoMinCurrent");
        QCOMPARE(p.writes().constLast(), QString("ExposureAutoMin 7000"));
        p.camera->writeAsOtherClient("ExposureAutoTimebase", "1us");
        p.settle();
        QCOMPARE(p.field("spinExpAutoMax")->maximum(), 65535.0);
    }

    void lagsBehindTheStream()
    {
        const AutoROIPage p("automode-fixed");
        const auto* const group = p.find<QGroupBox>("gb_Region");
        for (const bool isStreaming : {true, false}) {
            p.page->camIsStreaming(isStreaming);
            QCOMPARE(group->isEnabled(), isStreaming);
            p.page->updateTimer();
            QCOMPARE(group->isEnabled(), !isStreaming);
            QCOMPARE(p.label->isEnabled(), !isStreaming);
        }
    }

    void showsTheFirstRegionsPart()
    {
        const AutoROIPage p("current", [](sim::Camera& camera) {
            camera.writeAsOtherClient("SubRegionSelector", "Region2");
        });
        const auto picture = std::make_shared<QPixmap>(8, 8);
        p.page->setBackgroundImage(picture);
        p.camera->writeAsOtherClient("MultipleRegionEnable", true);
        p.page->setBackgroundImage(nullptr);
        QVERIFY(p.writes().isEmpty());
        p.page->setBackgroundImage(picture);
        const QStringList selection("SubRegionSelector Region0");
        QCOMPARE(p.writes(), selection);

        p.camera->journal().clear();
        const QPoint middle = p.band().center();
        press(p.label, middle);
        p.page->setBackgroundImage(picture);
        QVERIFY(p.writes().isEmpty());
        release(p.label, middle);
        QCOMPARE(p.writes().filter("Selector"), selection);
    }

    /// The camera tells nothing, also not of what the page itself moves.
    void drawsWhereTheRegionIsByNow()
    {
        const AutoROIPage p("aoi");
        p.camera->setNotifications(sim::NotificationSettings::off());
        p.click("cbEnable");
        p.field("spinLeft")->setValue(64);
        p.camera->writeAsOtherClient("AutofunctionAOIOffsetY", std::int64_t{32});
        p.settle();
        p.settle();
        p.click("cbEnable");
        QTRY_COMPARE_WITH_TIMEOUT(p.label->region(), QRect(64, 32, 1296, 972), 500);
    }

    void writesDrawnRegions_data()
    {
        const DataTable row(
            [](const QByteArray& model, const QRect& drawn, const QString& expected) {
                const AutoROIPage p(model, [](sim::Camera& camera) {
                    if (camera.has("DSPSubregionLeft"))
                        setRegion(camera, {648, 486, 1944, 1458});
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
        const DataTable row([](const Numbers& before, const Numbers& half, const Numbers& quarter) {
            const AutoROIPage p(QTest::currentDataTag(), [&](sim::Camera& camera) {
                setRegion(camera, before);
                if (!camera.has("DSPSubregionLeft"))
                    return;
                boundEdges(camera, "DSPSubregionLeft", "DSPSubregionRight", "Width");
                boundEdges(camera, "DSPSubregionTop", "DSPSubregionBottom", "Height");
            });
            p.click("btnHalf");
            QCOMPARE(region(p), half);
            p.click("btnQuarter");
            QCOMPARE(region(p), quarter);
            p.click("btnFull");
            QCOMPARE(region(p), (Numbers{0, 0, 2592, 1944}));
            QVERIFY(!p.anyRefused());
            QVERIFY(p.message()->isHidden());
        });
        const Numbers full{0, 0, 2592, 1944};
        const Numbers quarter{972, 729, 1620, 1215};
        row("aoi", full, {648, 486, 1296, 972}, {972, 728, 648, 484});
        row("dsp", {0, 0, 100, 80}, {648, 486, 1944, 1458}, quarter);
        row("dsp", {2500, 1900, 2592, 1944}, {648, 486, 1944, 1458}, quarter);
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
            QCOMPARE(region(p).mid(2), (Numbers{1296, 972}));
        }
        p.click("btnFull");
        p.settle();
        QCOMPARE(region(p), (Numbers{0, 0, 2592, 1944}));
        QVERIFY(!p.anyRefused());
        p.camera->writeAsOtherClient("Width", std::int64_t{1296});
        p.settle();
        QCOMPARE(p.label->sensorSize(), QSize(1296, 1944));
    }

    /// What is not told is no invalid region, and none of width 0.
    void waitsUntilTheRegionIsTold()
    {
        for (const char* model : {"aoi", "dsp"}) {
            const AutoROIPage p(model, [](sim::Camera& camera) {
                const std::string name = regionFields(camera, true).at(2).second.toStdString();
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
                setRegion(camera, {100, 100, 400, 400});
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

QTEST_MAIN(AutoROIWidgetTest)

#include "AutoROIWidgetTest.moc"
