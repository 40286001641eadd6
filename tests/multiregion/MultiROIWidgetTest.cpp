#include "multiregion/MultiROIWidget.h"
#include "DataTable.h"
#include "TestEvents.h"
#include "multiregion/MultiROIPage.h"

#include <QCheckBox>
#include <QComboBox>
#include <QSpinBox>

class MultiROIWidgetTest : public QObject
{
    Q_OBJECT

private slots:
    void loadsDefaults_data()
    {
        const DataTable row(
            [](const QByteArray& mode, const QByteArray& model, const QString& active) {
                const MultiROIPage open(model, mode);
                open.loadDefaults();
                QCOMPARE(open.active(), active);
                for (int region = 0; region < open.tabs->count(); ++region) {
                    if (open.isOn(region))
                        QCOMPARE(open.camera->feature("SubRegionStatus").textAt(region),
                                 std::string("Valid"));
                }
                QCOMPARE(open.contradiction(), QString());
                QCOMPARE(open.log.size(), open.active().isEmpty() ? 1 : 0);
            });
        const QByteArrayList modes{"Vertical", "Horizontal", "Tile", "Free"};
        for (const QByteArray& mode : modes) {
            for (const char* model :
                 {"multi-region", "multi-region-6", "multi-region-integer", "multi-region-older"})
                row(mode + ' ' + model, mode, model, "0123");
            row(mode + " two", mode, "multi-region-2", "01");
            row(mode + " three", mode, "multi-region-3", mode == "Tile" ? "" : "012");
        }
        row("many", "Free", "multi-region-256", "0123");
    }
    void loadsDefaults() { runRow(); }

    /// With regions 0 to 3 active, a button is clicked, or the defaults are loaded for -1.
    void asks_data()
    {
        const DataTable row([](const QByteArray& mode, int region, const QString& answer,
                               const QString& active, const QString& question) {
            MultiROIPage open("multi-region", mode);
            open.loadDefaults();
            const QRect corner = open.onCamera(3);
            const auto act = [&] {
                region < 0 ? open.page->loadDefaultConfiguration() : open.button(region)->click();
            };
            {
                Answers answers({answer});
                act();
                QCOMPARE(open.active(), active);
                QCOMPARE(answers.texts.size(), 1);
                QVERIFY2(answers.texts[0].contains(question), qPrintable(answers.texts[0]));
            }
            open.settle();
            QCOMPARE(open.contradiction(), QString());
            QVERIFY(!open.isOn(3) || open.onCamera(3) == corner);
            // The viewer may close the page while the question is open.
            open.loadDefaults();
            Answers closing({answer}, [&open] { open.page.reset(); });
            act();
            QVERIFY(!open.page);
            QCOMPARE(open.active(4), QString("0123"));
        });
        row("Tile 3 Column", "Tile", 3, "Column", "02",
            "deactivation of either a row or a column.\nWhat");
        row("Tile 2 Cancel", "Tile", 2, "Cancel", "0123",
            "'Tile' requires deactivation of the whole row.");
        row("Horizontal 1 OK", "Horizontal", 1, "OK", "0",
            "'Horizontal' requires deactivation of all subsequent");
        row("Free -1 No", "Free", -1, "No", "0123", "Overwrite the current region settings?");
    }
    void asks() { runRow(); }

    void activatesInARow()
    {
        MultiROIPage open("multi-region", "Horizontal");
        open.page->saveNewRegionGeometry(0, {0, 0, 640, 480});
        open.page->saveNewRegionGeometry(1, {100, 600, 640, 480});
        open.switchOff(1);
        open.settle();
        QSignalSpy activated(open.page.get(), &MultiROIWidget::regionActivated);
        // The region is told before anything is written, and after each write of it.
        QVector<bool> wasOn;
        const auto told = connect(open.page.get(), &MultiROIWidget::currentRegionChanged, this,
                                  [&] { wasOn << open.isOn(1); });
        open.button(1)->click();
        disconnect(told);
        QVERIFY(!wasOn.value(0, true));
        // Shrunk first, it is placed one increment behind region 0 at the minimum.
        QCOMPARE(open.onCamera(1).x(), 640 + 8);
        QCOMPARE(activated.last(), (QVariantList{1, true}));
        QVERIFY(open.button(2)->isEnabled());
        QCOMPARE(open.tabs->currentIndex(), 1);
        const auto* const shown = open.page->findChildren<RegionLabelWidget*>().at(1);
        QCOMPARE(shown->findChild<QLabel*>("lbl_ID")->text(), QString(">  1"));
        open.button(1)->click();
        QCOMPARE(open.active(), QString("0"));
        QCOMPARE(open.contradiction(), QString());
        QVERIFY(open.log.isEmpty());
        // Without room the button stays and the reason is logged.
        open.page->saveNewRegionGeometry(0, {0, 0, 2592, 480});
        open.button(1)->click();
        QCOMPARE(open.active(), QString("0"));
        QVERIFY(open.button(1)->isChecked());
        QCOMPARE(open.log,
                 QStringList("Region1 cannot be activated into a valid configuration due to the "
                             "minimum size."));
    }

    /// What is being typed is written before a drag begins, which then has the new shape to go by.
    void commitsBeforeADrag()
    {
        const MultiROIPage open("multi-region", "Horizontal");
        open.loadDefaults();
        auto* const field = open.edit<QSpinBox>("SubRegionHeight", "editorField");
        QVERIFY(field);
        field->selectAll();
        QTest::keyClicks(field, "600");
        const QPoint band = open.onLabel({open.onCamera(0).center().x(), 300});
        press(open.label, band);
        QCOMPARE(open.onCamera(3).height(), 600);
        open.camera->journal().clear();
        sendMouse(open.label, QEvent::MouseMove, band + QPoint(0, 10));
        QCOMPARE(open.camera->journal().writes().size(), 0u);
        release(open.label, band + QPoint(0, 10));
        open.settle();
        for (int region = 0; region < 4; ++region)
            QCOMPARE(open.onCamera(region).height(), 600);
        QVERIFY(open.onCamera(3).y() > 10);
        QCOMPARE(open.contradiction(), QString());
    }

    /// The bounds that an editor offers follow the neighbours.
    void boundsTables()
    {
        const MultiROIPage open("multi-region", "Tile");
        open.loadDefaults();
        const auto boundsOf = [&open](int region, const QString& name) {
            open.tabs->setCurrentIndex(region);
            const FeatureInfo info = open.record(region, name);
            return QString("%1 to %2").arg(*toInteger(info.minimum)).arg(*toInteger(info.maximum));
        };
        // Region 1 shares its row with region 0 and must not grow into region 3's.
        QCOMPARE(boundsOf(1, "SubRegionHeight"), QString("8 to 970"));
        QCOMPARE(boundsOf(2, "SubRegionWidth"), QString("16 to 1288"));
        QCOMPARE(boundsOf(3, "SubRegionOffsetX"), QString("1256 to 1376"));
        open.choose("Free");
        QCOMPARE(boundsOf(1, "SubRegionHeight"), QString("8 to 1934"));
        QCOMPARE(boundsOf(3, "SubRegionOffsetX"), QString("0 to 1376"));
    }

    void followsOthers()
    {
        MultiROIPage open("multi-region", "Free");
        QSignalSpy enabled(open.page.get(), &MultiROIWidget::multipleRegionsEnabled);
        open.camera->writeAsOtherClient("MultipleRegionEnable", true);
        open.switchAsOther(2, "On");
        open.settle();
        QCOMPARE(enabled.size(), 1);
        QVERIFY(open.page->findChild<QCheckBox*>()->isChecked());
        QCOMPARE(open.tabs->currentIndex(), 2);
        QVERIFY(open.label->isRegionShown(2));
        QCOMPARE(open.cell(2, "MultipleRegionEnable")->text(), QString("true"));
        open.writeAsOther("MultipleRegionArrangement", "Horizontal");
        open.settle();
        QCOMPARE(open.cell(2, "MultipleRegionArrangement")->text(), QString("Horizontal"));
        // Typed into the table, while nobody observes the camera.
        open.page->setFeatureValue(2, -1, "MultipleRegionArrangement", "Free");
        open.settle();
        QVERIFY(open.button(3)->isEnabled());
        // Elsewhere than where the page looks.
        open.switchAsOther(1, "On");
        open.writeAsOther("SubRegionSelector", "Region2");
        open.settle();
        open.settle();
        QVERIFY(open.label->isRegionShown(1));
        QCOMPARE(open.contradiction(), QString());
        open.page->camIsStreaming(true);
        QVERIFY(!open.button(0)->isEnabled() && !open.button(1)->isEnabled());
        open.camera->writeAsOtherClient("BinningHorizontal", 2);
        open.settle();
        QVERIFY(open.page->findChild<QWidget*>("frameWarning")->isVisible());
        QVERIFY(!open.tabs->isVisible());
    }

    /// The older switch, while on, has regions show by their status; this one overlaps another.
    void followsValidRegions()
    {
        for (const bool isEnabled : {false, true}) {
            const MultiROIPage open("multi-region-3", "Free");
            open.camera->writeAsOtherClient("MultipleRegionsEnable", isEnabled);
            for (const char* offset : {"SubRegionOffsetX", "SubRegionOffsetY"})
                open.camera->forceAt(offset, 1, open.camera->feature(offset).valueAt(0));
            open.switchAsOther(1, "On");
            open.settle();
            QCOMPARE(open.label->isRegionShown(1), !isEnabled);
            // They overlap, which is seen in any theme.
            const QPalette light = QApplication::palette();
            QApplication::setPalette(QPalette(Qt::black));
            QApplication::setPalette(light);
            const auto bands = open.label->findChildren<QRubberBand*>();
            QCOMPARE(std::count_if(bands.begin(), bands.end(),
                                   [](const QRubberBand* band) {
                                       return band->palette().color(QPalette::Highlight).red()
                                           == 255;
                                   }),
                     isEnabled ? 0 : 1);
        }
    }

    void changedUnderABox()
    {
        MultiROIPage open("multi-region", "Horizontal");
        open.loadDefaults();
        const auto clickWhile = [&open](const std::function<void()>& change) {
            Answers box({"OK"}, change);
            open.button(1)->click();
            QCOMPARE(box.texts.size(), 1);
            open.camera->journal().clear();
            open.settle();
        };
        clickWhile([&open] { open.writeAsOther("MultipleRegionArrangement", "Free"); });
        QCOMPARE(open.active(), QString("0123"));
        QCOMPARE(open.contradiction(), QString());
        open.choose("Tile");
        clickWhile([&open] { open.page->hide(); });
        QVERIFY(open.camera->journal().writes().empty());
        QCOMPARE(open.active(), QString("0123"));
        open.page->show();
        open.settle();
        QCOMPARE(open.contradiction(), QString());
        open.switchOff(1);
        open.switchOff(3);
        clickWhile([&open] { open.switchAsOther(1, "Off"); });
        QCOMPARE(open.active(), QString("02"));
        QCOMPARE(open.contradiction(), QString());
    }

    /// A camera that does not notify may move regions as another arrangement is chosen.
    void readsAfterTheArrangement()
    {
        const MultiROIPage open("multi-region", "Free");
        open.loadDefaults();
        open.camera->setNotifications(sim::NotificationSettings::off());
        open.camera->forceAt("SubRegionOffsetX", 1, 16);
        open.choose("Vertical");
        QCOMPARE(open.contradiction(), QString());
    }

    void manyTabs()
    {
        const MultiROIPage open("multi-region-256", "Free");
        QVERIFY(open.page->sizeHint().width() <= 1000);
        QVERIFY(open.tabs->cornerWidget(Qt::TopRightCorner)->isVisible());
    }

    /// Cameras that notify of each registration, and late, keep no page busy.
    void restsWhateverTheCameraNotifies()
    {
        for (auto settings : {sim::NotificationSettings::synchronous(),
                              sim::NotificationSettings::asynchronous()}) {
            const MultiROIPage open("multi-region", "Free");
            open.loadDefaults();
            settings.onRegistration = true;
            settings.lateAfterUnregistration = true;
            open.camera->setNotifications(settings);
            open.comeBack();
            for (int i = 0; i < 4; ++i)
                open.settle();
            open.camera->journal().clear();
            for (int i = 0; i < 3; ++i)
                open.settle();
            QCOMPARE(open.camera->journal().writes().size(), 0u);
            // A region switched by another client in the second of a change of tabs is not lost.
            open.tabs->setCurrentIndex(3);
            open.switchAsOther(1, "Off");
            open.writeAsOther("SubRegionSelector", "Region3");
            for (int i = 0; i < 3; ++i)
                open.settle();
            QCOMPARE(open.contradiction(), QString());
            QCOMPARE(open.tabs->currentIndex(), 3);
            // Nor is a selection made while nobody looked.
            open.page->hide();
            open.writeAsOther("SubRegionSelector", "Region2");
            open.page->show();
            QCOMPARE(open.tabs->currentIndex(), 2);
        }
    }
};

QTEST_MAIN(MultiROIWidgetTest)
#include "MultiROIWidgetTest.moc"
