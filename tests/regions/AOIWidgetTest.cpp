#include "DataTable.h"
#include "regions/RegionPage.h"

#include <QGroupBox>
#include <QTimer>

class AOIWidgetTest : public QObject
{
    Q_OBJECT

private slots:
    void writesSizesFirstWhereOffsetsDoNotFit()
    {
        const AOIPage p("plain");
        p.page->OnSendGeometry(400, 0, p.value("Width"), 800);
        QCOMPARE(p.writes(), (QStringList{"Height 800", "OffsetY 400", "OffsetX 0", "Width 2592"}));
        p.camera->modify("OffsetX",
                         [](auto& offset) { offset.between(sim::IntegerRange(0, 64, 2)); });
        p.page->OnSendGeometry(400, 0, 640, 800);
        p.camera->journal().clear();
        p.page->OnSendGeometry(400, 96, 320, 800);
        QCOMPARE(p.writes().mid(2), (QStringList{"Width 320", "OffsetX 64"}));
    }

    /// The vertical increment becomes the step of the horizontal field; sizes follow their own.
    void refreshesByName()
    {
        const AOIPage p("bayer", [](sim::Camera& camera) {
            camera.modify("OffsetY",
                          [](auto& offset) { offset.between(sim::IntegerRange(0, 600, 6)); });
        });
        p.refreshBy("Height");
        QCOMPARE(p.field("spinLeft")->singleStep(), 6.0);
        QVERIFY(p.camera->journal().entries("Width", sim::Operation::GetRange).empty());
        p.refreshBy("WidthMax");
        QCOMPARE(p.field("spinLeft")->singleStep(), 2.0);
        QCOMPARE(p.field("spinTop")->singleStep(), 6.0);
        p.camera->modify("Width",
                         [](auto& width) { width.between(sim::IntegerRange(32, 2592, 32)); });
        p.refreshBy("Width");
        QCOMPARE(p.field("spinWidth")->singleStep(), 32.0);
    }

    /// A feature whose name cannot be read is not there for the page.
    void findsTheMaximum_data()
    {
        const DataTable row([](const QStringList& features, bool areMissing, int expected) {
            const AOIPage p("older-names", [&](sim::Camera& camera) {
                camera.writeAsOtherClient("BinningHorizontal", std::int64_t{2});
                camera.writeAsOtherClient("Width", std::int64_t{640});
                camera.writeAsOtherClient("OffsetX", std::int64_t{64});
                for (const QString& name : features)
                    camera.failures().add(name.toStdString(),
                                          areMissing ? sim::Operation::GetName
                                                     : sim::Operation::GetValue,
                                          sim::Failure::refuse());
            });
            QCOMPARE(p.label->sensorSize().width(), expected);
        });
        row("missing", {"WidthMax"}, true, 2592);
        row("unreadable", {"WidthMax"}, false, 2592);
        row("no sensor size either", {"WidthMax", "SensorWidth"}, true, 1296);
    }
    void findsTheMaximum() { runRow(); }

    /// The fields cannot show a region such as the second.
    void tellsOfARegionBeyondTheSensor()
    {
        const AOIPage p("plain");
        p.page->OnRubberLabelClicked();
        p.page->OnUpdateGeometry(0, 8, p.value("WidthMax"), 64);
        QCOMPARE(p.message()->text(),
                 QString("Invalid settings: \n\tOffsetX + Width > Maximum Width! "));
        p.settle();
        QVERIFY(p.message()->isHidden());
        p.camera->force("OffsetX", 2048);
        p.camera->force("Width", 1008);
        p.camera->modify("OffsetX",
                         [](auto& offset) { offset.between(sim::IntegerRange(0, 1024, 2)); });
        p.settle();
        QVERIFY(p.message()->isVisible());
        QCOMPARE(p.label->region(), QRect(2048, 0, 544, 1944));
        p.camera->force("OffsetX", 512);
        p.refreshBy("OffsetX");
        QVERIFY(p.message()->isHidden());
    }

    /// A camera that notifies has its own reads for that. One that is silent is looked at as a
    /// whole.
    void asksLittle_data()
    {
        using Action = std::function<void(const AOIPage&)>;
        const DataTable row([](bool isSilent, std::size_t most, const Action& action) {
            const AOIPage p("current");
            p.camera->setNotifications(sim::NotificationSettings::off());
            p.camera->modify("Height",
                             [](auto& height) { height.between(sim::IntegerRange(24, 1944, 24)); });
            if (!isSilent)
                p.camera->setNotifications(sim::NotificationSettings::synchronous());
            p.camera->journal().clear();
            action(p);
            QTest::qWait(250);
            p.page->updateTimer();
            const std::size_t questions = p.camera->journal().questions();
            QVERIFY2(questions <= most, qPrintable(QString::number(questions)));
            QCOMPARE(p.field("spinHeight")->singleStep() == 24.0, isSilent);
            QCOMPARE(p.field("spinTop")->maximum(),
                     double(p.camera->feature("OffsetY").range().maximum));
            QCOMPARE(p.field("spinLeft")->maximum(),
                     double(p.camera->feature("OffsetX").range().maximum));
        });
        const Action type = [](const AOIPage& p) {
            p.field("spinWidth")->setValue(640);
            p.page->OnSpinEditingFinished();
        };
        const Action release = [](const AOIPage& p) {
            const QPoint corner = p.band().bottomRight();
            drag(p.label, corner, corner - QPoint(90, 70));
        };
        const Action preset = [](const AOIPage& p) { p.click("btnHalf"); };
        row("typed width", false, 13, type);
        row("release", false, 25, release);
        row("preset", false, 26, preset);
        row("typed width, silent", true, 24, type);
        row("release, silent", true, 32, release);
        row("preset, silent", true, 34, preset);
    }
    void asksLittle() { runRow(); }

    void gatesItsControls()
    {
        QCOMPARE(AOIPage("plain").page->accessibleName(), QString("ROI"));
        for (const char* model : {"current", "older-names"}) {
            const AOIPage p(model);
            const char* const feature = p.camera->has("MultipleRegionEnable")
                ? "MultipleRegionEnable"
                : "MultipleRegionsEnable";
            const auto* const region = p.find<QGroupBox>("gb_Region");
            const auto* const warning = p.find<QLabel>("lblWarning");
            p.page->camIsStreaming(true);
            p.camera->writeAsOtherClient(feature, true);
            p.refreshBy(feature);
            QCOMPARE(warning->text(),
                     QString("'AOI' widget cannot be used if 'MultipleRegionsEnabled' is on."));
            p.camera->writeAsOtherClient(feature, false);
            p.comeBack();
            QVERIFY(warning->text().isEmpty());
            QVERIFY(!region->isEnabled());
            p.page->camIsStreaming(false);
            QVERIFY(region->isEnabled());
        }
    }
};

QTEST_MAIN(AOIWidgetTest)

#include "AOIWidgetTest.moc"
