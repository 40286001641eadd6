#include "AOIPage.h"
#include "MessageHandlerGuard.h"

#include <QGroupBox>
#include <QTimer>

class AOIWidgetTest : public QObject
{
    Q_OBJECT

private slots:
    void writesSizesFirstWhereOffsetsDoNotFit()
    {
        AOIPage p("plain");
        p.page->OnSendGeometry(400, 0, p.value("Width"), 800);
        QStringList writes;
        for (const sim::JournalEntry& write : p.camera->journal().writes())
            writes << QString::fromStdString(write.feature);
        QCOMPARE(writes, (QStringList{"Height", "OffsetY", "OffsetX", "Width"}));
        const auto calls = p.camera->journal().entries();
        const auto firstOf = [&](const char* feature, sim::Operation operation) {
            return std::find_if(calls.begin(), calls.end(), [&](const sim::JournalEntry& call) {
                return call.feature == feature && call.operation == operation;
            });
        };
        QVERIFY(firstOf("OffsetX", sim::Operation::GetRange)
                < firstOf("Height", sim::Operation::SetValue));
    }

    /// The height field's step vertically, the left field's horizontally.
    void movesBackByOneStep()
    {
        AOIPage p("coarse");
        p.page->OnSendGeometry(160, 320, p.value("WidthMax"), p.value("HeightMax"));
        QCOMPARE(text(p.onCamera()), QString("128 288 2304 1792"));
    }

    /// The text about invalid settings comes up during the drag.
    void dragsAtAnyHeight_data()
    {
        QTest::addColumn<QByteArray>("model");
        QTest::addColumn<int>("height");
        QTest::addColumn<QString>("expected");
        const QByteArray current("current");
        const QByteArray coarse("coarse");
        QTest::newRow("current, low") << current << 420 << QString("0 2560 16 1944");
        QTest::newRow("current") << current << 560 << QString("0 2576 16 1944");
        QTest::newRow("current, high") << current << 900 << QString("0 2576 16 1944");
        QTest::newRow("coarse, low") << coarse << 420 << QString("0 2464 128 1920");
        QTest::newRow("coarse") << coarse << 560 << QString("0 2464 128 1920");
    }

    void dragsAtAnyHeight()
    {
        QFETCH(QByteArray, model);
        QFETCH(int, height);
        AOIPage p(model);
        p.click("btnFull");
        p.resize(500, height);
        const QPoint right(p.label->width() - 1, p.band().center().y());
        press(p.label, {p.band().left() + 1, right.y()});
        for (int x = 1; x <= 8; ++x) {
            sendMouse(p.label, QEvent::MouseMove, {right.x() * x / 8, right.y()});
            p.settle();
        }
        release(p.label, right);
        QTEST(text(p.onCamera()), "expected");
    }

    void raisesToEven()
    {
        AOIPage p("bayer");
        p.click("btnQuarter");
        p.settle();
        p.page->OnSpinHeightValueChanged(101);
        QCOMPARE(p.value("Height"), 102);
        QCOMPARE(p.field("spinHeight")->value(), 102.0);
    }

    /// A second click finds the stored maximum gone.
    void presetsTwiceAsOnce()
    {
        AOIPage p("current");
        p.click("btnHalf");
        const SensorRegion once = p.onCamera();
        QVERIFY(!p.label->isEnabled());
        p.click("btnHalf");
        QCOMPARE(text(p.onCamera()), text(once));
        p.click("btnQuarter");
        p.click("btnHalf");
        QCOMPARE(text(p.onCamera()), text(once));
        QTRY_VERIFY_WITH_TIMEOUT(p.label->isEnabled(), 500);
        const int writes = int(p.camera->journal().writes().size());
        QTest::qWait(300);
        QCOMPARE(int(p.camera->journal().writes().size()), writes);
    }

    void leavesTypingAlone()
    {
        AOIPage p("current");
        QVERIFY(QTest::qWaitForWindowActive(p.page.get()));
        QDoubleSpinBox* const width = p.field("spinWidth");
        width->setFocus();
        width->selectAll();
        QTest::keyClicks(width, "64");
        p.camera->writeAsOtherClient("Width", std::int64_t{512});
        p.settle();
        QCOMPARE(width->cleanText(), QString("64"));
        QVERIFY(p.camera->journal().writes().empty());
        QTest::keyClick(width, Qt::Key_Return);
        QCOMPARE(p.value("Width"), 64);
    }

    /// The vertical increment becomes the step of the horizontal field.
    void refreshesByName()
    {
        AOIPage p("bayer", [](sim::Camera& camera) {
            camera.modify("OffsetY",
                          [](auto& offset) { offset.between(sim::IntegerRange(0, 600, 6)); });
        });
        const auto step = [&p](const char* field) { return int(p.field(field)->singleStep()); };
        p.refreshBy("Height");
        QCOMPARE(step("spinLeft"), 6);
        QVERIFY(p.camera->journal().entries("Width", sim::Operation::GetRange).empty());
        p.refreshBy("WidthMax");
        QCOMPARE(step("spinLeft"), 2);
        QCOMPARE(step("spinTop"), 6);
    }

    void findsTheMaximum_data()
    {
        QTest::addColumn<QStringList>("missing");
        QTest::addColumn<QStringList>("unreadable");
        QTest::addColumn<int>("expected");
        const QStringList one("WidthMax");
        const QStringList both{"WidthMax", "SensorWidth"};
        QTest::newRow("missing") << one << QStringList() << 2592;
        QTest::newRow("unreadable") << QStringList() << one << 2592;
        QTest::newRow("no sensor size either") << both << QStringList() << 1296;
        QTest::newRow("both unreadable") << QStringList() << both << 1296;
    }

    void findsTheMaximum()
    {
        QFETCH(QStringList, missing);
        QFETCH(QStringList, unreadable);
        const auto prepare = [&](sim::Camera& camera) {
            camera.writeAsOtherClient("BinningHorizontal", std::int64_t{2});
            camera.writeAsOtherClient("Width", std::int64_t{640});
            camera.writeAsOtherClient("OffsetX", std::int64_t{64});
            for (const QString& name : unreadable)
                camera.failures().add(name.toStdString(), sim::Operation::GetValue,
                                      sim::Failure::refuse());
        };
        const AOIPage p("older-names", prepare, missing);
        QTEST(p.label->sensorSize().width(), "expected");
        p.page->setBackgroundImage(std::make_shared<QPixmap>(8, 8));
        QVERIFY(!p.label->pixmap(Qt::ReturnByValue).isNull());
    }

    /// -1 is neither a region nor a minimum of a field.
    void keepsWhatCannotBeRead()
    {
        AOIPage p("current");
        p.click("btnHalf");
        p.settle();
        const QString before = text(p.onCamera());
        p.camera->failures().add("*", sim::Operation::GetValue, sim::Failure::refuse());
        p.camera->failures().add("*", sim::Operation::GetRange, sim::Failure::refuse());
        p.page->OnSpinTopValueChanged(8);
        p.refreshBy("OffsetY");
        p.refreshBy("Width");
        QCOMPARE(text(p.label->region()), before);
        QCOMPARE(text(p.inFields()), before);
        QCOMPARE(p.field("spinTop")->minimum(), 0.0);
        QCOMPARE(p.field("spinWidth")->minimum(), 16.0);
        QCOMPARE(p.label->sensorSize(), QSize(2592, 1944));
    }

    void endsDuringADrag()
    {
        AOIPage p("current");
        press(p.label, p.band().center());
        QVERIFY(p.label->isDragging());
        QPointer<QTimer> timer;
        for (QTimer* candidate :
             p.page->findChildren<QTimer*>(QString(), Qt::FindDirectChildrenOnly))
            if (candidate->isSingleShot())
                timer = candidate;
        bool isAborted = false;
        connect(p.label, &RubberBandLabel::GeometryChangeAborted, this, [&] {
            isAborted = true;
            QVERIFY(!timer->isActive());
        });
        p.page.reset();
        QVERIFY(isAborted);
    }

    void knowsItsFamily()
    {
        QCOMPARE(AOIPage("plain").page->accessibleName(), QString("ROI"));
        QCOMPARE(AOIPage("aoi").page->findChild<QGroupBox*>("gb_AOI")->title(), QString("AOI"));
        const auto lacking = sim::createCamera("no-height");
        AOIWidget page(featureList(*lacking), nullptr);
        QVERIFY(page.accessibleName().isEmpty());
        for (const char* slot : {"OnROIFull", "OnROIHalf", "OnROIQuarter", "OnRubberLabelClicked",
                                 "OnSpinEditingFinished", "updateTimer"})
            QVERIFY(QMetaObject::invokeMethod(&page, slot));
        for (const char* slot : {"OnSpinTopValueChanged", "OnSpinLeftValueChanged",
                                 "OnSpinWidthValueChanged", "OnSpinHeightValueChanged"})
            QVERIFY(QMetaObject::invokeMethod(&page, slot, Q_ARG(double, 8.0)));
        page.OnSendGeometry(0, 0, 8, 8);
        page.OnUpdateGeometry(0, 0, 8, 8);
        page.camIsStreaming(true);
        page.onMultipleRegionsEnabled(true);
        page.setBackgroundImage(nullptr);
        page.show();
    }

    void gatesItsControls()
    {
        AOIPage p("current");
        const auto* const region = p.page->findChild<QGroupBox*>("gb_Region");
        const auto* const warning = p.page->findChild<QLabel*>("lblWarning");
        p.page->camIsStreaming(true);
        p.camera->writeAsOtherClient("MultipleRegionEnable", true);
        p.settle();
        QCOMPARE(warning->text(),
                 QString("'AOI' widget cannot be used if 'MultipleRegionsEnabled' is on."));
        p.page->onMultipleRegionsEnabled(false);
        QVERIFY(warning->text().isEmpty());
        QVERIFY(!region->isEnabled());
        p.page->camIsStreaming(false);
        QVERIFY(region->isEnabled());
    }

    void knowsTheOtherSwitch()
    {
        AOIPage p("older-names");
        p.camera->writeAsOtherClient("MultipleRegionsEnable", true);
        p.refreshBy("MultipleRegionsEnable");
        QVERIFY(!p.page->findChild<QLabel*>("lblWarning")->text().isEmpty());
        p.camera->writeAsOtherClient("MultipleRegionsEnable", false);
        p.page->hide();
        p.page->show();
        QVERIFY(p.page->findChild<QLabel*>("lblWarning")->text().isEmpty());
    }

    void tellsOfInconsistentFields()
    {
        AOIPage p("current");
        const auto* const invalid = p.page->findChild<QLabel*>("labelInvalidSettings");
        QVERIFY(invalid->isHidden());
        p.page->OnRubberLabelClicked();
        p.page->OnUpdateGeometry(0, 8, p.value("WidthMax"), 64);
        QCOMPARE(invalid->text(),
                 QString("Invalid settings: \n\tOffsetX + Width > Maximum Width! "));
        p.settle();
        QVERIFY(invalid->isHidden());
    }

    void keepsTheBackgroundUntilTheSensorChanges()
    {
        AOIPage p("current");
        auto image = std::make_shared<QPixmap>(p.value("WidthMax"), p.value("HeightMax"));
        image->fill(Qt::green);
        p.page->setBackgroundImage(image);
        const auto isGreen = [&] {
            return p.label->pixmap(Qt::ReturnByValue).toImage().pixelColor(20, 20)
                == QColor(Qt::green);
        };
        p.click("btnHalf");
        p.settle();
        QVERIFY(isGreen());
        p.camera->writeAsOtherClient("BinningHorizontal", std::int64_t{2});
        p.settle();
        QVERIFY(isGreen());
        QVERIFY(!QApplication::overrideCursor());
    }

private:
    MessageHandlerGuard m_guard;
};

QTEST_MAIN(AOIWidgetTest)

#include "AOIWidgetTest.moc"
