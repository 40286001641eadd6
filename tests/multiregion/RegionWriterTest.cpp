#include "multiregion/RegionWriter.h"
#include "DataTable.h"
#include "TestEvents.h"
#include "multiregion/MultiROIPage.h"

#include <QCheckBox>

class RegionWriterTest : public QObject
{
    Q_OBJECT

private slots:
    /// In the order that the region selected before gives, and again in its own where that has cut
    /// something off.
    void writesInOrder()
    {
        const MultiROIPage open("multi-region", "Free");
        open.page->saveNewRegionGeometry(0, {0, 0, 640, 480});
        written(open);
        open.page->saveNewRegionGeometry(0, {8, 8, 320, 240});
        QCOMPARE(written(open), QString("Width OffsetX Height OffsetY Mode"));
        open.page->saveNewRegionGeometry(0, {16, 16, 640, 480});
        QCOMPARE(written(open), QString("OffsetX Width OffsetY Height Mode"));
        open.page->saveNewRegionGeometry(1, {2432, 1784, 160, 160});
        open.page->saveNewRegionGeometry(0, {0, 0, 2592, 1944});
        open.page->saveNewRegionGeometry(1, {8, 8, 640, 480});
        QCOMPARE(open.label->regionRectangle(1), QRect(8, 8, 640, 480));
        written(open);
        open.page->saveNewRegionGeometry(1, {});
        QVERIFY(!written(open).contains("Mode"));
        QCOMPARE(open.label->regionRectangle(1), QRect(0, 0, 16, 8));
        QCOMPARE(open.active(), QString("01"));
    }

    /// By then all is done: a receiver may select another region.
    void signalsComeLast()
    {
        const MultiROIPage open("multi-region", "Free");
        QStringList told;
        const auto note = [&](const QString& what) {
            told << what;
            QVERIFY(open.isOn(2) && !open.label->signalsBlocked());
            open.writeAsOther("SubRegionSelector", "Region3");
        };
        connect(open.page.get(), &MultiROIWidget::regionActivated, this,
                [&](int region, bool on) { note(QString("%1 %2").arg(region).arg(on)); });
        connect(open.page.get(), &MultiROIWidget::currentRegionChanged, this,
                [&](int region) { note(QString("current %1").arg(region)); });
        const QSignalSpy colors(open.page.get(), &MultiROIWidget::regionColorChanged);
        open.page->saveNewRegionGeometry(2, {0, 0, 640, 480});
        QCOMPARE(told, QStringList({"2 1", "current 2"}));
        QCOMPARE(colors.size(), 4);
        open.page->setFeatureValue(2, -1, "SubRegionHeight", 200);
        QCOMPARE(open.onCamera(2).height(), 200);
    }

    void refusals()
    {
        MultiROIPage open("multi-region", "Free");
        open.camera->failures().add("SubRegionSelector", sim::Operation::SetValue,
                                    sim::Failure::refuse());
        open.page->saveNewRegionGeometry(1, {0, 0, 640, 480});
        open.page->setFeatureValue(1, -1, "SubRegionMode", "On");
        open.button(1)->click();
        QCOMPARE(written(open), QString());
        QVERIFY(open.log.contains("Set 'SubRegionSelector' = 'Region1' failed!"));
        QCOMPARE(open.log.filter("SubRegion: 1, Saving feature 'SubRegionMode' to value=On failed.")
                     .size(),
                 1);
        open.camera->failures().clear();
        for (const char* feature : {"SubRegionMode", "MultipleRegionEnable"})
            open.camera->failures().add(feature, sim::Operation::SetValue, sim::Failure::refuse());
        open.button(1)->click();
        QCOMPARE(open.contradiction(), QString());
        auto* const enable = open.page->findChild<QCheckBox*>("chkMultipleRegionEnable");
        QSignalSpy told(open.page.get(), &MultiROIWidget::multipleRegionsEnabled);
        const bool isOn = enable->isChecked();
        enable->setChecked(!isOn);
        QCOMPARE(told.value(0), QVariantList{isOn});
    }

    /// A region that the camera does not have is not asked for, where that would be another one.
    void noSuchRegion()
    {
        for (const char* model : {"multi-region", "multi-region-integer"}) {
            const MultiROIPage open(model, "Free");
            open.page->setSubRegionSelector(1);
            open.page->setSubRegionSelector(4711);
            QCOMPARE(open.log.filter("4711").size(), 1);
            QCOMPARE(open.camera->feature("SubRegionSelector").text().back(), '1');
        }
    }

    /// What is never told stays as it is shown, and one region a second is asked for it.
    void asksOnceASecond_data()
    {
        const DataTable row([](const std::string& untold, const std::string& changed) {
            const MultiROIPage open("multi-region", "Free");
            open.loadDefaults();
            const QRect before = open.onCamera(2);
            open.camera->failures().add(untold, sim::Operation::GetValue, sim::Failure::refuse());
            const bool isMode = changed == "SubRegionMode";
            open.camera->forceAt(changed, 2, isMode ? sim::Value("Off") : 320);
            open.comeBack();
            open.page->updateTimer();
            for (int second = 0; second < 9; ++second) {
                open.camera->journal().clear();
                open.page->updateTimer();
                QVERIFY(open.camera->journal().writes().size() <= 2);
                QCOMPARE(open.label->regionRectangle(2), before);
                QVERIFY(open.label->isRegionShown(2));
            }
            open.camera->failures().clear();
            open.settle();
            QCOMPARE(open.contradiction(), QString());
            open.camera->journal().clear();
            open.page->updateTimer();
            QVERIFY(open.camera->journal().writes().empty());
        });
        row("selector", "SubRegionSelector", "SubRegionWidth");
        row("mode", "SubRegionMode", "SubRegionMode");
        row("width", "SubRegionWidth", "SubRegionWidth");
    }
    void asksOnceASecond() { runRow(); }

    /// Each question takes a real camera a millisecond. What is asked is enough, also where the
    /// camera tells of nothing by itself.
    void asksLittle_data()
    {
        using Action = std::function<void(const MultiROIPage&)>;
        const DataTable row([](const QByteArray& mode, std::size_t most, const Action& action) {
            for (const bool isSilent : {false, true}) {
                const MultiROIPage open("multi-region", mode);
                open.loadDefaults();
                open.tabs->setCurrentIndex(3);
                open.settle();
                if (isSilent)
                    open.camera->setNotifications(sim::NotificationSettings::off());
                open.camera->journal().clear();
                action(open);
                QCOMPARE(open.contradiction(), QString());
                open.settle();
                const std::size_t questions = open.camera->journal().questions();
                QVERIFY2(questions <= most, qPrintable(QString::number(questions)));
                for (int region = 0; region < 4; ++region) {
                    open.tabs->setCurrentIndex(region);
                    QCOMPARE(open.cell(region, "SubRegionStatus")->text().toStdString(),
                             open.camera->feature("SubRegionStatus").text());
                    QCOMPARE(open.record(region, "SubRegionWidth").cameraMaximum,
                             FeatureValue(2592 - std::int64_t{open.onCamera(region).x()}));
                }
            }
        });
        const auto save = [](const MultiROIPage& open) {
            open.page->saveNewRegionGeometry(3, {1200, 300, 400, 600});
        };
        const auto switchOn = [](const MultiROIPage& open) {
            open.camera->forceAt("SubRegionMode", 3, "Off");
            open.comeBack();
            open.settle();
            open.tabs->setCurrentIndex(0);
            open.camera->journal().clear();
            open.button(3)->click();
        };
        row("nothing", "Free", 0, [](const MultiROIPage&) {});
        row("another tab", "Free", 28,
            [](const MultiROIPage& open) { open.tabs->setCurrentIndex(1); });
        row("the same tab", "Free", 1,
            [](const MultiROIPage& open) { open.page->selectRegionTab(3); });
        row("a release", "Free", 66, save);
        row("a region on", "Vertical", 118, switchOn);
        row("a shared width", "Vertical", 82, [](const MultiROIPage& open) {
            open.page->setFeatureValue(1, 0, "SubRegionWidth", 640);
        });
        row("defaults", "Tile", 265, [](const MultiROIPage& open) { open.loadDefaults(); });
    }
    void asksLittle() { runRow(); }

    /// Whoever waits for many questions sees how far it is.
    void paintsBetweenRegions()
    {
        struct PaintWatch : QObject
        {
            bool eventFilter(QObject*, QEvent* event) override
            {
                isPainted = isPainted || event->type() == QEvent::Paint;
                return false;
            }
            bool isPainted = false;
        };
        for (const char* model : {"multi-region-2", "multi-region-256"}) {
            const MultiROIPage open(model, "Free");
            PaintWatch watch;
            open.label->installEventFilter(&watch);
            Answers yes({"Yes"});
            open.page->loadDefaultConfiguration();
            QCOMPARE(watch.isPainted, open.tabs->count() > 2);
        }
    }

    /// The viewer may close the page, or take its label, in any receiver of its signals, the first
    /// or a later one.
    void endsInAnySignal_data()
    {
        using Action = std::function<void(const MultiROIPage&)>;
        const DataTable row([](const Action& action) {
            using Page = MultiROIWidget;
            using Label = MultiRubberBandLabel;
            const auto endAt = [&action](auto signalOf, bool isLabel) {
                bool isTold = true;
                for (int times = 1; isTold && times <= 2; ++times) {
                    MultiROIPage open("multi-region-2", "Horizontal");
                    open.loadDefaults();
                    int untold = times;
                    signalOf(open, [&] {
                        if (--untold > 0)
                            return;
                        if (isLabel)
                            delete open.find<Label>();
                        else
                            open.page.reset();
                    });
                    Answers answers({"OK", "OK"});
                    action(open);
                    if (isLabel)
                        open.settle();
                    QCoreApplication::processEvents();
                    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
                    isTold = untold <= 0;
                    QCOMPARE(!open.page, isTold && !isLabel);
                }
            };
            const auto ofPage = [&endAt](auto signal) {
                endAt([=](auto& open, auto end) { connect(open.page.get(), signal, qApp, end); },
                      false);
            };
            const auto ofLabel = [&endAt](auto signal) {
                for (const bool isLabel : {false, true})
                    endAt([=](auto& open, auto end) { connect(open.label, signal, qApp, end); },
                          isLabel);
            };
            ofPage(&Page::loggingMessage);
            ofPage(&Page::multipleRegionsEnabled);
            ofPage(&Page::regionColorChanged);
            ofPage(&Page::currentRegionChanged);
            ofPage(&Page::regionActivated);
            ofLabel(&Label::rubberChangeStarted);
            ofLabel(&Label::mouseMoved);
            ofLabel(&Label::rubberChangeFinished);
            ofLabel(&Label::regionSelected);
            ofLabel(&Label::highlightSelectedRegion);
            ofLabel(&Label::regionGeometryChanged);
            ofLabel(&Label::constraintsActivated);
            ofLabel(&Label::regionRangeChanged);
            ofLabel(&Label::regionColorChanged);
            ofLabel(&Label::regionActivated);
        });
        const auto dragAt = [](double part) {
            return [part](const MultiROIPage& open) {
                const QRect region = open.onCamera(0);
                const QPoint from
                    = open.onLabel({region.center().x(), region.y() + int(part * region.height())});
                const QPointer<QWidget> label = open.label;
                for (const QPoint& to : {from, from + QPoint(9, 9)}) {
                    if (label)
                        press(label, from);
                    if (label)
                        sendMouse(label, QEvent::MouseMove, to);
                    if (label)
                        release(label, to);
                }
            };
        };
        row("drag", dragAt(0.5));
        row("drag of a line", dragAt(0.0));
        row("button", [](const MultiROIPage& open) { open.button(1)->click(); });
        row("switch", [](const MultiROIPage& open) {
            open.page->findChild<QCheckBox*>("chkMultipleRegionEnable")->click();
        });
        row("arrangement", [](const MultiROIPage& open) {
            QTest::keyClick(open.page->findChild<QComboBox*>(), Qt::Key_Up);
        });
        row("refused tab", [](const MultiROIPage& open) {
            open.camera->failures().add("SubRegionSelector", sim::Operation::SetValue,
                                        sim::Failure::refuse());
            QTest::keyClick(open.tabs->tabBar(), Qt::Key_Right);
        });
        row("refused value", [](const MultiROIPage& open) {
            open.camera->failures().add("SubRegionWidth", sim::Operation::SetValue,
                                        sim::Failure::refuse());
            open.page->setFeatureValue(1, -1, "SubRegionWidth", 320);
        });
        row("defaults", [](const MultiROIPage& open) {
            Answers yes({"Yes"});
            open.page->loadDefaultConfiguration();
        });
    }
    void endsInAnySignal() { runRow(); }

private:
    /// The features written since it was asked last, but for the selector.
    static QString written(const MultiROIPage& open)
    {
        QStringList names;
        for (const sim::JournalEntry& entry : open.camera->journal().writes()) {
            if (entry.feature != "SubRegionSelector")
                names << QString::fromStdString(entry.feature).remove("SubRegion");
        }
        open.camera->journal().clear();
        return names.join(' ');
    }
};

QTEST_MAIN(RegionWriterTest)
#include "RegionWriterTest.moc"
