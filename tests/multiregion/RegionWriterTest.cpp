#include "multiregion/RegionWriter.h"
#include "MessageHandlerGuard.h"
#include "SimulatedCamera.h"
#include "features/CameraLink.h"
#include "multiregion/RegionDisplay.h"

#include "simulator/Model.h"

#include <QtTest>

namespace {

class Display : public RegionDisplay
{
public:
    int count() const override { return 4; }
    int current() const override { return 0; }
    void open(int) override { }
    QString mode() const override { return "Free"; }
    bool isActive(int region) const override { return m_active[region]; }
    void setActive(int region, bool active) override { m_active[region] = active; }
    void setChecked(int region, bool checked) override { m_checked[region] = checked; }
    QColor color(int) const override { return Qt::blue; }
    void setColor(int, const QColor&) override { }
    bool show(int region, const RegionState& state) override
    {
        m_shown[region] = state.geometry;
        return true;
    }
    bool refreshTable(int) override { return true; }
    void silence(bool silent) override { m_isSilent = silent; }
    void announce() override { ++m_announced; }

    bool m_active[4] = {};
    bool m_checked[4] = {};
    QRect m_shown[4];
    bool m_isSilent = false;
    int m_announced = 0;
};

struct Regions
{
    Regions()
        : camera(sim::createCamera("multi-region"))
        , link(std::make_shared<CameraLink>())
        , manager(wrappers(*camera), link)
        , regions(&manager)
        , writer(std::make_unique<RegionWriter>(regions, display, *link,
                                                [] { return std::make_shared<int>(); }))
    {
        QObject::connect(writer.get(), &RegionWriter::loggingMessage, writer.get(),
                         [this](ZebViewerLogCategory, const QString& text) { log << text; });
        writer->readAll();
        display.m_announced = 0;
        camera->journal().clear();
    }

    QString written(const char* without = "SubRegionSelector") const
    {
        QStringList names;
        for (const sim::JournalEntry& entry : camera->journal().writes()) {
            if (entry.feature != without)
                names << QString::fromStdString(entry.feature).remove("SubRegion");
        }
        camera->journal().clear();
        return names.join(' ');
    }

    bool isOn(int region) const { return camera->feature("SubRegionMode").textAt(region) == "On"; }

    std::unique_ptr<sim::Camera> camera;
    std::shared_ptr<CameraLink> link;
    FeatureManager manager;
    RegionCamera regions;
    Display display;
    std::unique_ptr<RegionWriter> writer;
    QStringList log;
};

} // namespace

class RegionWriterTest : public QObject
{
    Q_OBJECT

private slots:
    /// In the order that the region selected before gives, and again in its own where that has cut
    /// something off.
    void writesInOrder()
    {
        Regions test;
        test.writer->save(0, {0, 0, 640, 480});
        test.written();
        test.writer->save(0, {8, 8, 320, 240});
        QCOMPARE(test.written(), QString("Width OffsetX Height OffsetY Mode"));
        test.writer->save(0, {16, 16, 640, 480});
        QCOMPARE(test.written(), QString("OffsetX Width OffsetY Height Mode"));
        test.writer->save(1, {2432, 1784, 160, 160});
        test.writer->save(0, {0, 0, 2592, 1944});
        test.writer->save(1, {8, 8, 640, 480});
        QCOMPARE(test.display.m_shown[1], QRect(8, 8, 640, 480));
        test.writer->save(1, {});
        QCOMPARE(test.written("SubRegionMode").count("Mode"), 0);
        QCOMPARE(test.display.m_shown[1], QRect(0, 0, 16, 8));
        QVERIFY(test.display.m_active[1]);
    }

    /// By then all is done: a receiver selects another region, or lets the writer go.
    void signalsComeLast()
    {
        Regions test;
        QStringList told;
        const auto note = [&](const QString& what) {
            told << what;
            QVERIFY(test.isOn(2));
            QVERIFY(!test.display.m_isSilent);
            QCOMPARE(test.display.m_announced, 1);
            test.camera->writeAsOtherClient("SubRegionSelector", "Region3");
        };
        connect(test.writer.get(), &RegionWriter::regionActivated, this,
                [&](int region, bool on) { note(QString("%1 %2").arg(region).arg(on)); });
        connect(test.writer.get(), &RegionWriter::currentRegionChanged, this,
                [&](int region) { note(QString("current %1").arg(region)); });
        QSignalSpy colors(test.writer.get(), &RegionWriter::regionColorChanged);
        test.writer->save(2, {0, 0, 640, 480});
        QCOMPARE(told, QStringList({"2 1", "current 2"}));
        QCOMPARE(colors.size(), 4);
        connect(test.writer.get(), &RegionWriter::regionColorChanged, this,
                [&test] { test.writer.reset(); });
        test.writer->setFeature({0, 2}, "SubRegionHeight", 200);
        QVERIFY(!test.writer);
        QCOMPARE(test.camera->feature("SubRegionHeight").integerAt(2), std::int64_t{200});
        QCOMPARE(told.size(), 2);
    }

    /// Nothing is written to another region, and the button shows what is.
    void refusedSelections()
    {
        Regions test;
        test.camera->failures().add("SubRegionSelector", sim::Operation::SetValue,
                                    sim::Failure::refuse());
        test.writer->save(1, {0, 0, 640, 480});
        test.display.m_checked[1] = true;
        test.writer->setActive(1, true);
        test.writer->setFeature({1}, "SubRegionMode", "On");
        QCOMPARE(test.written(), QString());
        QVERIFY(!test.display.m_checked[1]);
        QVERIFY(test.log.contains("Set 'SubRegionSelector' = 'Region1' failed!"));
        QCOMPARE(test.log
                     .filter("SubRegion: 1, Saving feature 'SubRegionMode' to value=On"
                             " failed.")
                     .size(),
                 1);
    }

    /// What is not told stays as it was shown; it is read later, and nothing else.
    void keepsWhatIsNotTold_data()
    {
        QTest::addColumn<QString>("untold");
        QTest::addColumn<QString>("changed");
        QTest::newRow("selector") << "SubRegionSelector"
                                  << "SubRegionWidth";
        QTest::newRow("mode") << "SubRegionMode"
                              << "SubRegionMode";
        QTest::newRow("width") << "SubRegionWidth"
                               << "SubRegionWidth";
    }
    void keepsWhatIsNotTold()
    {
        QFETCH(QString, untold);
        QFETCH(QString, changed);
        Regions test;
        test.writer->save(2, {8, 8, 640, 480});
        const bool isMode = changed == "SubRegionMode";
        test.camera->forceAt(changed.toStdString(), 2, isMode ? sim::Value("Off") : 320);
        const auto isAsBefore = [&test, isMode] {
            return isMode ? test.display.m_active[2] : test.display.m_shown[2].width() == 640;
        };
        test.camera->failures().add(untold.toStdString(), sim::Operation::GetValue,
                                    sim::Failure::refuse());
        test.writer->readAll();
        QVERIFY(isAsBefore());
        test.camera->failures().clear();
        test.writer->readUntold();
        QVERIFY(!isAsBefore());
        test.camera->journal().clear();
        test.writer->readUntold();
        QCOMPARE(test.camera->journal().count(), std::size_t{0});
    }

    /// A reading ends at the loss, and is taken up again.
    void stopsAtALoss()
    {
        Regions test;
        test.writer->save(3, {0, 0, 640, 480});
        test.camera->lose(std::chrono::milliseconds(101));
        test.camera->journal().clear();
        test.writer->readAll();
        QVERIFY(test.link->isLost());
        QVERIFY(test.camera->journal().count() < 12);
        QCOMPARE(test.log.size(), 1);
        QVERIFY(test.display.m_active[3]);
        test.camera->recover();
        test.camera->forceAt("SubRegionMode", 3, "Off");
        QVERIFY(test.regions.readOn());
        test.writer->readUntold();
        QVERIFY(!test.display.m_active[3]);
    }

private:
    const MessageHandlerGuard m_guard;
};

QTEST_MAIN(RegionWriterTest)
#include "RegionWriterTest.moc"
