#include "DataTable.h"
#include "MessageHandlerGuard.h"
#include "RegionPage.h"
#include "WheelEvent.h"
#include "imageformat/ImageFormatWidget.h"

#include "simulator/State.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QTabWidget>

namespace {

using Numbers = QVector<int>;

/// The region as the family's features tell it: left, top, right, bottom, or left, top, width,
/// height.
Numbers region(const AutoROIPage& p, const QString& family)
{
    Numbers numbers;
    const QStringList sizes{"OffsetX", "OffsetY", "Width", "Height"};
    const QStringList edges{"Left", "Top", "Right", "Bottom"};
    for (const QString& name : family == "DSPSubregion" ? edges : sizes)
        numbers << p.value(family + name);
    return numbers;
}

void setDsp(sim::Camera& camera, const Numbers& edges)
{
    camera.force("DSPSubregionLeft", edges[0]);
    camera.force("DSPSubregionTop", edges[1]);
    camera.force("DSPSubregionRight", edges[2]);
    camera.force("DSPSubregionBottom", edges[3]);
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
        const DataTable<QString, QString, QString, QString, bool> table{"title", "group", "region",
                                                                        "captions", "hasSwitch"};
        const QString sizes = "OffsetX: OffsetY: Width: Height:";
        const QString edges = "Left: Top: Right: Bottom:";
        const QString aoi = "Autofunction AOI";
        const QString roi = "Autofunction ROI";
        table.row("aoi", aoi, aoi, aoi, sizes, true);
        table.row("aoi-plain", aoi, aoi, aoi, sizes, false);
        table.row("automode-fixed", roi, "AutoMode ROI", "AutoMode Region", sizes, false);
        table.row("dsp", roi, roi, "DSPSubregion", edges, false);
        table.row("mixed-aoi-dsp", aoi, aoi, aoi, edges, false);
    }

    void adaptsToTheFamily()
    {
        QFETCH(QString, title);
        QFETCH(bool, hasSwitch);
        const AutoROIPage p(QTest::currentDataTag());
        QCOMPARE(p.page->accessibleName(), title);
        QTEST(p.find<QGroupBox>("gb_AutoROI")->title(), "group");
        QTEST(p.find<QGroupBox>("gb_Region")->title(), "region");
        QStringList captions;
        for (const QString name : {"Left", "Top", "Right", "Bottom", "Width", "Height"}) {
            const auto* const caption = p.find<QLabel>("label" + name);
            if (caption->isVisible())
                captions << caption->text();
            QCOMPARE(p.field("spin" + name)->isVisible(), caption->isVisible());
        }
        QTEST(captions.join(' '), "captions");
        QCOMPARE(p.find<QCheckBox>("cbEnable")->isVisible(), hasSwitch);
        QVERIFY(p.constructionWrites.isEmpty());
        QVERIFY(p.message()->isHidden());

        const ImageFormatWidget host(featureList(*p.camera), nullptr);
        const auto* const tabs = host.findChild<QTabWidget*>("tabWidget");
        QCOMPARE(tabs->tabText(1), title);
        QVERIFY(tabs->widget(1)->inherits("AutoROIWidget"));
    }

    void doesNotApply()
    {
        const auto camera = sim::createCamera("plain");
        AutoROIWidget page(featureList(*camera), nullptr);
        QVERIFY(page.accessibleName().isEmpty());
        QVERIFY(page.findChildren<QWidget*>().isEmpty());
        useAll(page);
        QVERIFY(camera->journal().writes().empty());
    }

    /// Each begins with the region in the middle.
    void writesDrags_data()
    {
        const DataTable<QString, QPoint, QString> table{"family", "by", "order"};
        const QString sizes("OffsetX OffsetY Height Width");
        table.row("aoi", "AutofunctionAOI", {400, 300}, sizes);
        table.row("automode-fixed", "AutoModeRegion", {400, 300}, sizes);
        table.row("dsp", "DSPSubregion", {400, 300}, "Right Left Bottom Top");
        table.row("dsp", "DSPSubregion", {-400, -300}, "Left Right Top Bottom");
        table.row("dsp", "DSPSubregion", {400, -300}, "Right Left Top Bottom");
    }

    void writesDrags()
    {
        QFETCH(QString, family);
        QFETCH(QPoint, by);
        const AutoROIPage p(QTest::currentDataTag(), [&](sim::Camera& camera) {
            if (family == "DSPSubregion")
                setDsp(camera, {648, 486, 1944, 1458});
        });
        const Numbers before = region(p, family);
        // Cameras with an origin of their own draw the region in the corner.
        const QPoint middle = p.band().center();
        const QPoint target = middle + p.at(by.x(), by.y());
        press(p.label, middle);
        sendMouse(p.label, QEvent::MouseMove, target);
        p.camera->writeAsOtherClient("ExposureAutoMin", 200.0);
        p.settle();
        QVERIFY(p.writes().isEmpty());
        QVERIFY(qAbs(p.field("spinLeft")->value() - before[0] - by.x()) < 12);
        QCOMPARE(p.camera->observerCount(), std::size_t{0});
        release(p.label, target);

        QStringList written = p.writes().mid(0, 4);
        for (QString& text : written)
            text = text.section(' ', 0, 0).mid(family.size());
        QTEST(written.join(' '), "order");
        QVERIFY(!p.anyRefused());
        const Numbers after = region(p, family);
        QVERIFY(qAbs(after[0] - before[0] - by.x()) < 12);
        QVERIFY(qAbs(after[1] - before[1] - by.y()) < 12);
        QVERIFY(p.camera->observerCount() > 0);
        QCOMPARE(int(p.field("spinLeft")->value()), after[0]);
        p.settle();
        QCOMPARE(p.field("spinExpAutoMin")->value(), 200.0);
    }

    /// Being hidden ends a drag and confirms what was typed.
    void isDeletedInMidAction()
    {
        AutoROIPage dragged("aoi");
        press(dragged.label, dragged.at(1296, 972));
        dragged.page.reset();
        QVERIFY(dragged.writes().isEmpty());
        AutoROIPage p("aoi");
        QVERIFY(QTest::qWaitForWindowActive(p.page.get()));
        p.field("spinWidth")->setFocus();
        QTest::keyClicks(p.field("spinWidth"), "1");
        p.page.reset();
        QVERIFY(p.writes().isEmpty());
    }

    void dropsDrags()
    {
        const AutoROIPage p("aoi");
        const SensorRegion before = p.label->region();
        press(p.label, p.at(1296, 972));
        sendMouse(p.label, QEvent::MouseMove, p.at(1400, 1000));
        QVERIFY(p.field("spinLeft")->value() > 700);
        p.label->setEnabled(false);
        QTRY_COMPARE_WITH_TIMEOUT(p.field("spinLeft")->value(), 648.0, 500);
        QVERIFY(p.label->region() == before);
        QVERIFY(p.label->isEnabled());
        QVERIFY(p.camera->observerCount() > 0);
        QVERIFY(p.writes().isEmpty());
    }

    void keepsNoDropThatTheCameraRefuses()
    {
        const AutoROIPage p("aoi-gated");
        const SensorRegion before = p.label->region();
        p.click("cbEnable");
        drag(p.label, p.at(1296, 972), p.at(1500, 1100));
        QVERIFY(p.label->region() == before);
    }

    void drawsWithinTheRanges()
    {
        const AutoROIPage p("aoi");
        p.page->OnUpdateGeometry(0, 0, 8, 5000);
        QCOMPARE(p.field("spinWidth")->minimum(), 32.0);
        QCOMPARE(p.field("spinWidth")->value(), 32.0);
        QCOMPARE(p.field("spinHeight")->value(), p.field("spinHeight")->maximum());
        QVERIFY(p.writes().isEmpty());
    }

    /// An edge must not pass its opposite on the way, wherever the region was.
    void presetsKeepEdgesApart_data()
    {
        const DataTable<Numbers, bool> table{"before", "isBounded"};
        for (const bool isBounded : {false, true}) {
            table.row("top left", {0, 0, 100, 80}, isBounded);
            table.row("bottom right", {2500, 1900, 2592, 1944}, isBounded);
            table.row("full", {0, 0, 2592, 1944}, isBounded);
        }
    }

    void presetsKeepEdgesApart()
    {
        QFETCH(Numbers, before);
        QFETCH(bool, isBounded);
        const AutoROIPage p("dsp", [&](sim::Camera& camera) {
            setDsp(camera, before);
            if (!isBounded)
                return;
            boundEdges(camera, "DSPSubregionLeft", "DSPSubregionRight", "Width");
            boundEdges(camera, "DSPSubregionTop", "DSPSubregionBottom", "Height");
        });
        p.click("btnQuarter");
        QCOMPARE(region(p, "DSPSubregion"), (Numbers{972, 729, 1620, 1215}));
        p.click("btnHalf");
        QCOMPARE(region(p, "DSPSubregion"), (Numbers{648, 486, 1944, 1458}));
        QCOMPARE(p.field("spinRight")->value(), 1944.0);
        p.click("btnFull");
        QCOMPARE(region(p, "DSPSubregion"), (Numbers{0, 0, 2592, 1944}));
        QVERIFY(!p.anyRefused());
        QVERIFY(p.message()->isHidden());
        QVERIFY((p.label->region() == SensorRegion{0, 0, 2592, 1944}));
    }

    void presetsCentre()
    {
        for (const char* model : {"aoi", "aoi-plain", "automode-fixed", "automode-dynamic"}) {
            const bool isAoi = QByteArray(model).startsWith("aoi");
            const std::string family = isAoi ? "AutofunctionAOI" : "AutoModeRegion";
            const AutoROIPage p(model, [&](sim::Camera& camera) {
                // Full size beforehand: the offsets are taken only beside the new size.
                camera.force(family + "OffsetX", 0);
                camera.force(family + "OffsetY", 0);
                camera.force(family + "Width", 2592);
                camera.force(family + "Height", 1944);
            });
            const auto now = [&] { return region(p, family.c_str()); };
            p.click("btnHalf");
            QCOMPARE(now(), (Numbers{648, 486, 1296, 972}));
            QVERIFY(!p.anyRefused());
            QTRY_COMPARE_WITH_TIMEOUT(p.field("spinWidth")->value(), 1296.0, 500);
            QCOMPARE(p.field("spinLeft")->value(), 648.0);
            if (isAoi) {
                p.click("btnQuarter");
                QCOMPARE(now(), (Numbers{972, 728, 648, 484}));
                p.click("btnFull");
                QCOMPARE(now(), (Numbers{0, 0, 2592, 1944}));
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
        for (const int left : {400, 800}) {
            p.field("spinLeft")->setValue(left);
            p.settle();
            QCOMPARE(p.value("AutoModeRegionOffsetX"), left);
            QCOMPARE(p.label->sensorSize(), image);
        }
        p.comeBack();
        p.settle();
        drag(p.label, p.at(100, 100), p.at(300, 200));
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
            setDsp(camera, {100, 500, 400, 500});
        });
        QCOMPARE(region(p, "DSPSubregion"), (Numbers{0, 0, 2592, 1944}));
        QVERIFY(!p.constructionWrites.isEmpty());
    }

    void tellsOfCrossingEdges()
    {
        for (const bool isStrict : {true, false}) {
            const AutoROIPage p("dsp", [&](sim::Camera& camera) {
                setDsp(camera, {100, 100, 400, 400});
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

    void switchesOffWhatExceedsTheImage_data()
    {
        const DataTable<QString, QString> table{"feature", "text"};
        const QString tooHigh = "Invalid settings:\nHeight + OffsetY > AOI Height";
        table.row("height", "AutofunctionAOIHeight", tooHigh);
        table.row("top", "AutofunctionAOIOffsetY", tooHigh);
        table.row("width", "AutofunctionAOIWidth",
                  "Invalid settings:\nWidth + OffsetX > AOI Width");
    }

    void switchesOffWhatExceedsTheImage()
    {
        QFETCH(QString, feature);
        const AutoROIPage p("aoi");
        const auto isOn = [&] { return p.camera->feature("AutofunctionAOIEnable").isOn(); };
        const SensorRegion r = p.label->region();
        p.page->OnSendGeometry(r.top, r.left, r.width, r.height);
        p.camera->force(feature.toStdString(), 2400);
        p.settle();
        QVERIFY(isOn()); // still counts as part of the drag
        QVERIFY(p.message()->isHidden());
        QTest::qWait(300);
        p.camera->force(feature.toStdString(), 2500);
        p.settle();
        QVERIFY(!isOn());
        QTEST(p.message()->text(), "text");
        QVERIFY(p.message()->isVisible());
        QVERIFY(!p.find<QCheckBox>("cbEnable")->isChecked());
        if (feature != "AutofunctionAOIWidth")
            return;
        // From then on the switch is the user's.
        p.settle();
        p.camera->journal().clear();
        QTest::qWait(1000);
        QVERIFY2(p.writes().isEmpty(), qPrintable(p.writes().join(", ")));
        p.field("spinLeft")->setFocus();
        p.page->OnSpinEditingFinished(); // the focus leaves a field
        p.click("cbEnable");
        QTest::qWait(1000);
        QCOMPARE(p.writes(), QStringList("AutofunctionAOIEnable true"));
        QVERIFY(isOn());
    }

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
        for (int tries = 1; tries <= 2; ++tries) {
            p.click("cbEnable");
            QVERIFY(enable->isChecked());
            QCOMPARE(p.writes().size(), 3 + tries);
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
        p.camera->force("ExposureTimeAbs", 7000.0);
        p.click("btnExpAutoMinCurrent");
        QCOMPARE(p.writes().last(), QString("ExposureAutoMin 7000"));
        p.camera->writeAsOtherClient("ExposureAutoTimebase", "1us");
        p.settle();
        QCOMPARE(p.field("spinExpAutoMax")->maximum(), 65535.0);
        QVERIFY(!AutoROIPage("dsp").find<QPushButton>("btnExpAutoMinCurrent")->isEnabled());
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
        const AutoROIPage other("aoi");
        other.page->camIsStreaming(true);
        other.page->updateTimer();
        QVERIFY(other.label->isEnabled());
    }

    void showsTheFirstRegionsPart()
    {
        const AutoROIPage p("current", [](sim::Camera& camera) {
            camera.writeAsOtherClient("SubRegionSelector", "Region2");
        });
        p.page->setBackgroundImage(picture(Qt::red));
        p.camera->writeAsOtherClient("MultipleRegionEnable", true);
        p.page->setBackgroundImage(nullptr);
        QVERIFY(p.writes().isEmpty());
        p.page->setBackgroundImage(picture(Qt::red));
        const QStringList selection("SubRegionSelector Region0");
        QCOMPARE(p.writes(), selection);

        p.camera->journal().clear();
        const QPoint middle = p.band().center();
        press(p.label, middle);
        p.page->setBackgroundImage(picture(Qt::red));
        QVERIFY(p.writes().isEmpty());
        release(p.label, middle);
        QCOMPARE(p.writes().filter("Selector"), selection);
    }

    void followsTheImageSize()
    {
        const AutoROIPage p("aoi");
        p.page->setBackgroundImage(picture(Qt::red));
        QApplication::setOverrideCursor(Qt::BusyCursor); // somebody's own
        p.camera->writeAsOtherClient("Width", std::int64_t{1296});
        p.settle();
        QVERIFY(QApplication::overrideCursor());
        QCOMPARE(QApplication::overrideCursor()->shape(), Qt::BusyCursor);
        QApplication::restoreOverrideCursor();
        QCOMPARE(p.label->sensorSize(), QSize(1296, 1944));
        QCOMPARE(p.pictureColor(), QColor(Qt::red));
        QCOMPARE(p.field("spinWidth")->value(), double(p.value("AutofunctionAOIWidth")));
    }

    void leavesTypingAlone()
    {
        const AutoROIPage p("aoi");
        QVERIFY(QTest::qWaitForWindowActive(p.page.get()));
        QDoubleSpinBox* const width = p.field("spinWidth");
        width->setFocus();
        width->selectAll();
        QTest::keyClicks(width, "64");
        p.camera->writeAsOtherClient("AutofunctionAOIWidth", std::int64_t{512});
        p.settle();
        QCOMPARE(width->cleanText(), QString("64"));
        QCOMPARE(p.label->region().width, 512);
        QVERIFY(p.writes().isEmpty());
        QTest::keyClick(width, Qt::Key_Return);
        QCOMPARE(p.writes(), QStringList("AutofunctionAOIWidth 64"));
    }

    void guardsFieldsAgainstTheWheel()
    {
        const AutoROIPage p("aoi");
        QVERIFY(QTest::qWaitForWindowActive(p.page.get()));
        int fields = 0;
        for (auto* const field : p.page->findChildren<QWidget*>(QRegularExpression("spin|combo")))
            if (field->isVisible()) {
                sendWheel(field);
                QVERIFY2(!field->hasFocus(), qPrintable(field->objectName()));
                ++fields;
            }
        QVERIFY(fields >= 8);
        QVERIFY(p.writes().isEmpty());
        p.field("spinWidth")->setFocus();
        sendWheel(p.field("spinWidth"));
        QCOMPARE(p.writes(), QStringList("AutofunctionAOIWidth 1288"));
    }

private:
    MessageHandlerGuard m_guard;
};

QTEST_MAIN(AutoROIWidgetTest)

#include "AutoROIWidgetTest.moc"
