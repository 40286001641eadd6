#include "AutoROIPage.h"
#include "MessageHandlerGuard.h"
#include "imageformat/ImageFormatWidget.h"
#include "regions/EdgeSpan.h"

#include "simulator/State.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QTabWidget>

namespace {

/// The region as the family's features tell it: left, top, right, bottom, or left, top, width,
/// height.
QVector<int> region(const AutoROIPage& p, const QString& family)
{
    if (family == "DSPSubregion")
        return {p.value("DSPSubregionLeft"), p.value("DSPSubregionTop"),
                p.value("DSPSubregionRight"), p.value("DSPSubregionBottom")};
    return {p.value(family + "OffsetX"), p.value(family + "OffsetY"), p.value(family + "Width"),
            p.value(family + "Height")};
}

void setDsp(sim::Camera& camera, int left, int top, int right, int bottom)
{
    camera.force("DSPSubregionLeft", left);
    camera.force("DSPSubregionTop", top);
    camera.force("DSPSubregionRight", right);
    camera.force("DSPSubregionBottom", bottom);
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

/// As the window system sends it, which makes Qt look at the focus policy.
void sendWheel(QWidget* target)
{
    const QPointF position = target->rect().center();
    QWheelEvent event(position, target->mapToGlobal(position.toPoint()), QPoint(), QPoint(0, -120),
                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QSpontaneKeyEvent::setSpontaneous(&event);
    QApplication::instance()->notify(target, &event);
}

} // namespace

class AutoROIWidgetTest : public QObject
{
    Q_OBJECT

private slots:
    void adaptsToTheFamily_data()
    {
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("group");
        QTest::addColumn<QString>("region");
        QTest::addColumn<QString>("captions");
        QTest::addColumn<bool>("hasSwitch");
        const char* const sizes = "OffsetX: OffsetY: Width: Height:";
        const char* const edges = "Left: Top: Right: Bottom:";
        QTest::newRow("aoi") << "Autofunction AOI"
                             << "Autofunction AOI"
                             << "Autofunction AOI" << sizes << true;
        QTest::newRow("aoi-plain") << "Autofunction AOI"
                                   << "Autofunction AOI"
                                   << "Autofunction AOI" << sizes << false;
        QTest::newRow("automode-fixed") << "Autofunction ROI"
                                        << "AutoMode ROI"
                                        << "AutoMode Region" << sizes << false;
        QTest::newRow("dsp") << "Autofunction ROI"
                             << "Autofunction ROI"
                             << "DSPSubregion" << edges << false;
        QTest::newRow("mixed-aoi-dsp") << "Autofunction AOI"
                                       << "Autofunction AOI"
                                       << "Autofunction AOI" << edges << false;
    }

    void adaptsToTheFamily()
    {
        QFETCH(QString, title);
        QFETCH(bool, hasSwitch);
        const AutoROIPage p(QTest::currentDataTag());
        QCOMPARE(p.page->accessibleName(), title);
        QTEST(p.page->findChild<QGroupBox*>("gb_AutoROI")->title(), "group");
        QTEST(p.page->findChild<QGroupBox*>("gb_Region")->title(), "region");
        QStringList captions;
        for (const char* name : {"Left", "Top", "Right", "Bottom", "Width", "Height"}) {
            const auto* const caption = p.page->findChild<QLabel*>(QString("label") + name);
            if (caption->isVisible())
                captions << caption->text();
            QCOMPARE(p.field(qPrintable(QString("spin") + name))->isVisible(),
                     caption->isVisible());
        }
        QTEST(captions.join(' '), "captions");
        QCOMPARE(p.page->findChild<QCheckBox*>("cbEnable")->isVisible(), hasSwitch);
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
        page.show();
        page.OnSendGeometry(0, 0, 10, 10);
        page.OnUpdateGeometry(0, 0, 10, 10);
        page.OnROIFull();
        page.OnROIHalf();
        page.OnSpinTopValueChanged(1.0);
        page.OnEnableStateChanged(1);
        page.OnSpinExpAutoMinChanged(1.0);
        page.OnExpAutoTimebaseChanged("1us");
        page.camIsStreaming(true);
        page.setBackgroundImage(nullptr);
        QVERIFY(camera->journal().writes().empty());
    }

    /// Each begins with the region in the middle.
    void writesDrags_data()
    {
        QTest::addColumn<QString>("family");
        QTest::addColumn<QPoint>("by");
        QTest::addColumn<QString>("order");
        const QString sizes("OffsetX OffsetY Height Width");
        QTest::newRow("aoi") << "AutofunctionAOI" << QPoint(400, 300) << sizes;
        QTest::newRow("automode-fixed") << "AutoModeRegion" << QPoint(400, 300) << sizes;
        QTest::newRow("dsp") << "DSPSubregion" << QPoint(400, 300) << "Right Left Bottom Top";
        QTest::newRow("dsp") << "DSPSubregion" << QPoint(-400, -300) << "Left Right Top Bottom";
        QTest::newRow("dsp") << "DSPSubregion" << QPoint(400, -300) << "Right Left Top Bottom";
    }

    void writesDrags()
    {
        QFETCH(QString, family);
        QFETCH(QPoint, by);
        QFETCH(QString, order);
        AutoROIPage p(QTest::currentDataTag(), [&](sim::Camera& camera) {
            if (family == "DSPSubregion")
                setDsp(camera, 648, 486, 1944, 1458);
        });
        const QVector<int> before = region(p, family);
        // Cameras with an origin of their own draw the region in the corner.
        const QPoint middle = p.label->findChild<QRubberBand*>()->geometry().center();
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
        QCOMPARE(written.join(' '), order);
        QVERIFY(!p.anyRefused());
        QVERIFY(qAbs(region(p, family)[0] - before[0] - by.x()) < 12);
        QVERIFY(qAbs(region(p, family)[1] - before[1] - by.y()) < 12);
        QVERIFY(p.camera->observerCount() > 0);
        QCOMPARE(int(p.field("spinLeft")->value()), region(p, family)[0]);
        p.settle();
        QCOMPARE(p.field("spinExpAutoMin")->value(), 200.0);
    }

    /// Being hidden ends a drag and confirms what was typed.
    void isDeletedInMidAction()
    {
        const auto camera = [] {
            AutoROIPage p("aoi");
            press(p.label, p.at(1296, 972));
            return std::move(p.camera);
        }();
        QVERIFY(camera->journal().writes().empty());
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
        p.page->findChild<QCheckBox*>("cbEnable")->click();
        drag(p.label, p.at(1296, 972), p.at(1500, 1100));
        QVERIFY(p.label->region() == before);
    }

    /// The camera takes what is as thin as its grid; nothing else is moved.
    void keepsEdgesApart_data()
    {
        QTest::addColumn<QVector<double>>("drawn");
        QTest::addColumn<QVector<double>>("edges");
        const auto row
            = [](const char* name, double offset, double extent, double nearEdge, double farEdge) {
                  QTest::newRow(name)
                      << QVector<double>{offset, extent} << QVector<double>{nearEdge, farEdge};
              };
        row("wide", 13, 20, 13, 33);
        row("across a grid point", 14, 4, 14, 18);
        row("between grid points", 17, 4, 17, 25);
        row("empty at the border", 100, 0, 92, 100);
    }

    void keepsEdgesApart()
    {
        QFETCH(QVector<double>, drawn);
        const EdgeSpan span = edgesForExtent(drawn[0], drawn[1], 100, 8);
        QTEST((QVector<double>{span.nearEdge, span.farEdge}), "edges");
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
        QTest::addColumn<QVector<int>>("before");
        QTest::addColumn<bool>("isBounded");
        for (const bool isBounded : {false, true}) {
            QTest::newRow("top left") << QVector<int>{0, 0, 100, 80} << isBounded;
            QTest::newRow("bottom right") << QVector<int>{2500, 1900, 2592, 1944} << isBounded;
            QTest::newRow("full") << QVector<int>{0, 0, 2592, 1944} << isBounded;
        }
    }

    void presetsKeepEdgesApart()
    {
        QFETCH(QVector<int>, before);
        QFETCH(bool, isBounded);
        const AutoROIPage p("dsp", [&](sim::Camera& camera) {
            setDsp(camera, before[0], before[1], before[2], before[3]);
            if (!isBounded)
                return;
            boundEdges(camera, "DSPSubregionLeft", "DSPSubregionRight", "Width");
            boundEdges(camera, "DSPSubregionTop", "DSPSubregionBottom", "Height");
        });
        p.click("btnQuarter");
        QCOMPARE(region(p, "DSPSubregion"), (QVector<int>{972, 729, 1620, 1215}));
        p.click("btnHalf");
        QCOMPARE(region(p, "DSPSubregion"), (QVector<int>{648, 486, 1944, 1458}));
        QCOMPARE(p.field("spinRight")->value(), 1944.0);
        p.click("btnFull");
        QCOMPARE(region(p, "DSPSubregion"), (QVector<int>{0, 0, 2592, 1944}));
        QVERIFY(!p.anyRefused());
        QVERIFY(p.message()->isHidden());
        QVERIFY((p.label->region() == SensorRegion{0, 0, 2592, 1944}));
    }

    void presetsCentre_data()
    {
        QTest::addColumn<QString>("family");
        QTest::newRow("aoi") << "AutofunctionAOI";
        QTest::newRow("aoi-plain") << "AutofunctionAOI";
        QTest::newRow("automode-fixed") << "AutoModeRegion";
        QTest::newRow("automode-dynamic") << "AutoModeRegion";
    }

    void presetsCentre()
    {
        QFETCH(QString, family);
        const AutoROIPage p(QTest::currentDataTag(), [&](sim::Camera& camera) {
            const std::string name = family.toStdString();
            // Full size beforehand: the offsets are taken only beside the new size.
            camera.force(name + "OffsetX", 0);
            camera.force(name + "OffsetY", 0);
            camera.force(name + "Width", 2592);
            camera.force(name + "Height", 1944);
        });
        p.click("btnHalf");
        QCOMPARE(region(p, family), (QVector<int>{648, 486, 1296, 972}));
        QVERIFY(!p.anyRefused());
        QTRY_COMPARE_WITH_TIMEOUT(p.field("spinWidth")->value(), 1296.0, 500);
        QCOMPARE(p.field("spinLeft")->value(), 648.0);
        if (family == "AutofunctionAOI") {
            p.click("btnQuarter");
            QCOMPARE(region(p, family), (QVector<int>{972, 728, 648, 484}));
            p.click("btnFull");
            QCOMPARE(region(p, family), (QVector<int>{0, 0, 2592, 1944}));
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
        QCOMPARE(region(p, "AutofunctionAOI"), (QVector<int>{0, 0, 1296, 1944}));
    }

    void drawsBesideAnotherRegion()
    {
        const AutoROIPage p("mixed-aoi-automode");
        p.click("btnFull");
        p.settle();
        QVERIFY(p.value("AutoModeRegionOffsetX") > 0);
        QVERIFY((p.label->region() == SensorRegion{0, 0, 2592, 1944}));
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
        p.page->hide();
        p.page->show();
        p.settle();
        drag(p.label, p.at(100, 100), p.at(300, 200));
        p.settle();
        QCOMPARE(p.label->sensorSize(), image);
        for (int times = 1; times <= 2; ++times) { // counted from where the region is
            p.click("btnHalf");
            p.settle();
            QCOMPARE(region(p, "AutoModeRegion").mid(2), (QVector<int>{1296, 972}));
        }
        p.click("btnFull");
        p.settle();
        QCOMPARE(region(p, "AutoModeRegion"), (QVector<int>{0, 0, 2592, 1944}));
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
        const AutoROIPage p("dsp", [](sim::Camera& camera) { setDsp(camera, 100, 500, 400, 500); });
        QCOMPARE(region(p, "DSPSubregion"), (QVector<int>{0, 0, 2592, 1944}));
        QVERIFY(!p.constructionWrites.isEmpty());
    }

    void tellsOfCrossingEdges_data()
    {
        QTest::addColumn<bool>("isStrict");
        QTest::newRow("strict") << true;
        QTest::newRow("lenient") << false;
    }

    void tellsOfCrossingEdges()
    {
        QFETCH(bool, isStrict);
        const AutoROIPage p("dsp", [&](sim::Camera& camera) {
            setDsp(camera, 100, 100, 400, 400);
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

    void switchesOffWhatExceedsTheImage_data()
    {
        QTest::addColumn<QString>("feature");
        QTest::addColumn<QString>("text");
        QTest::newRow("height") << "AutofunctionAOIHeight"
                                << "Invalid settings:\nHeight + OffsetY > AOI Height";
        QTest::newRow("top") << "AutofunctionAOIOffsetY"
                             << "Invalid settings:\nHeight + OffsetY > AOI Height";
        QTest::newRow("width") << "AutofunctionAOIWidth"
                               << "Invalid settings:\nWidth + OffsetX > AOI Width";
    }

    void switchesOffWhatExceedsTheImage()
    {
        QFETCH(QString, feature);
        const AutoROIPage p("aoi");
        const SensorRegion r = p.label->region();
        p.page->OnSendGeometry(r.top, r.left, r.width, r.height);
        p.camera->force(feature.toStdString(), 2400);
        p.settle();
        QVERIFY(p.isOn()); // still counts as part of the drag
        QVERIFY(p.message()->isHidden());
        QTest::qWait(300);
        p.camera->force(feature.toStdString(), 2500);
        p.settle();
        QVERIFY(!p.isOn());
        QTEST(p.message()->text(), "text");
        QVERIFY(p.message()->isVisible());
        QVERIFY(!p.page->findChild<QCheckBox*>("cbEnable")->isChecked());
    }

    void leavesTheSwitchToTheUser()
    {
        const AutoROIPage p("aoi");
        p.camera->force("AutofunctionAOIWidth", 2500);
        QTRY_VERIFY_WITH_TIMEOUT(!p.isOn(), 2000);
        p.settle();
        p.camera->journal().clear();
        QTest::qWait(1000);
        QVERIFY2(p.writes().isEmpty(), qPrintable(p.writes().join(", ")));
        p.field("spinLeft")->setFocus();
        p.page->OnSpinEditingFinished(); // the focus leaves a field
        p.page->findChild<QCheckBox*>("cbEnable")->click();
        QTest::qWait(1000);
        QCOMPARE(p.writes(), QStringList("AutofunctionAOIEnable true"));
        QVERIFY(p.isOn());
    }

    void switches()
    {
        const AutoROIPage p("aoi");
        p.page->findChild<QCheckBox*>("cbEnable")->click();
        p.page->findChild<QCheckBox*>("cbShowArea")->click();
        p.page->findChild<QComboBox*>("comboIntensityControllerRegion")->setCurrentIndex(1);
        QCOMPARE(p.writes(),
                 (QStringList{"AutofunctionAOIEnable false", "AutofunctionAOIShowArea true",
                              "IntensityControllerRegion AutoModeRegion"}));
        p.camera->writeAsOtherClient("AutofunctionAOIEnable", true);
        p.settle();
        auto* const enable = p.page->findChild<QCheckBox*>("cbEnable");
        QVERIFY(enable->isChecked());
        QCOMPARE(p.writes().size(), 3);

        p.camera->failures().add("AutofunctionAOIEnable", sim::Operation::SetValue,
                                 sim::Failure::refuse());
        for (int tries = 1; tries <= 2; ++tries) {
            enable->click();
            QVERIFY(enable->isChecked());
            QCOMPARE(p.writes().size(), 3 + tries);
        }
    }

    void writesExposureLimits_data()
    {
        QTest::addColumn<double>("increment");
        QTest::addColumn<double>("written");
        QTest::newRow("on a grid") << 0.01 << double(float(100 * 10.0 + 0.5) / 100.0F);
        QTest::newRow("free") << 0.0 << 10.0;
    }

    void writesExposureLimits()
    {
        QFETCH(double, increment);
        QFETCH(double, written);
        const AutoROIPage p("aoi", [&](sim::Camera& camera) {
            camera.setRounding(true);
            camera.modify("ExposureAutoMax", [&](auto& limit) {
                limit.between(sim::FloatRange(1.0, 65535.0, increment));
            });
        });
        p.field("spinExpAutoMax")->setValue(10);
        const auto writes = p.camera->journal().writes();
        QCOMPARE(int(writes.size()), 1); // what is read back is not written again
        QCOMPARE(writes[0].value.toNumber(), written);
        p.settle();
        QCOMPARE(int(p.camera->journal().writes().size()), 1);
    }

    void followsTheTimebase()
    {
        const AutoROIPage p("aoi-plain");
        QCOMPARE(p.field("spinExpAutoMin")->decimals(), 0);
        p.page->findChild<QComboBox*>("comboExpAutoTimeBase")->setCurrentText("100us");
        QCOMPARE(p.writes(), QStringList("ExposureAutoTimebase 100us"));
        QCOMPARE(p.field("spinExpAutoMax")->maximum(), 6553500.0);
        p.camera->force("ExposureTimeAbs", 7000.0);
        p.click("btnExpAutoMinCurrent");
        QCOMPARE(p.writes().last(), QString("ExposureAutoMin 7000"));
        p.camera->writeAsOtherClient("ExposureAutoTimebase", "1us");
        p.settle();
        QCOMPARE(p.field("spinExpAutoMax")->maximum(), 65535.0);
        QVERIFY(
            !AutoROIPage("dsp").page->findChild<QPushButton*>("btnExpAutoMinCurrent")->isEnabled());
    }

    void lagsBehindTheStream()
    {
        const AutoROIPage p("automode-fixed");
        const auto* const group = p.page->findChild<QGroupBox*>("gb_Region");
        p.page->camIsStreaming(true);
        QVERIFY(group->isEnabled());
        p.page->updateTimer();
        QVERIFY(!group->isEnabled() && !p.label->isEnabled());
        p.page->camIsStreaming(false);
        QVERIFY(!group->isEnabled());
        p.page->updateTimer();
        QVERIFY(group->isEnabled() && p.label->isEnabled());

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
        auto image = std::make_shared<QPixmap>(2592, 1944);
        image->fill(Qt::red);
        p.page->setBackgroundImage(image);
        QVERIFY(p.writes().isEmpty());
        p.camera->writeAsOtherClient("MultipleRegionEnable", true);
        p.page->setBackgroundImage(nullptr);
        QVERIFY(p.writes().isEmpty());
        p.page->setBackgroundImage(image);
        const QStringList selection("SubRegionSelector Region0");
        QCOMPARE(p.writes(), selection);

        p.camera->journal().clear();
        const QPoint middle = p.label->findChild<QRubberBand*>()->geometry().center();
        press(p.label, middle);
        p.page->setBackgroundImage(image);
        QVERIFY(p.writes().isEmpty());
        release(p.label, middle);
        QCOMPARE(p.writes().filter("Selector"), selection);
    }

    void followsTheImageSize()
    {
        const AutoROIPage p("aoi");
        auto image = std::make_shared<QPixmap>(2592, 1944);
        image->fill(Qt::red);
        p.page->setBackgroundImage(image);
        QApplication::setOverrideCursor(Qt::BusyCursor); // somebody's own
        p.camera->writeAsOtherClient("Width", std::int64_t{1296});
        p.settle();
        QVERIFY(QApplication::overrideCursor());
        QCOMPARE(QApplication::overrideCursor()->shape(), Qt::BusyCursor);
        QApplication::restoreOverrideCursor();
        QCOMPARE(p.label->sensorSize(), QSize(1296, 1944));
        QCOMPARE(p.label->pixmap(Qt::ReturnByValue).toImage().pixelColor(20, 20), QColor(Qt::red));
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
        QList<QWidget*> fields;
        for (auto* field : p.page->findChildren<QDoubleSpinBox*>())
            fields << field;
        for (auto* field : p.page->findChildren<QComboBox*>())
            fields << field;
        QCOMPARE(fields.size(), 10);
        for (QWidget* field : fields) {
            sendWheel(field);
            QVERIFY2(!field->hasFocus(), qPrintable(field->objectName()));
        }
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
