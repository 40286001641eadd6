#include "DataTable.h"
#include "imageformat/ImageFormatWidget.h"
#include "regions/RegionPage.h"

#include "simulator/State.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QTabWidget>

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
};

QTEST_MAIN(AutoROIWidgetTest)

#include "AutoROIWidgetTest.moc"
