#include "page/InnerPage.h"

#include "regions/RegionPage.h"

namespace {

/// Reads nothing, and tells what it was to read.
class Probe : public InnerPage
{
public:
    using InnerPage::InnerPage;
    using InnerPage::readAgain;
    using InnerPage::readAllSoon;
    using InnerPage::readSoon;

    QList<Changes> refreshes;
    QStringList untold;
    bool isDragging = false;

protected:
    bool isAtWork() const override { return isDragging; }
    QStringList refresh(const Changes& changes) override
    {
        refreshes << changes;
        return untold;
    }
};

struct ProbePage : CameraPage<Probe>
{
    ProbePage()
        : CameraPage("aoi")
    {
        page->show();
        page->updateTimer();
        page->refreshes.clear();
    }
};

/// Runs a check on each region page.
template <typename Check> void forBothPages(const Check& check)
{
    AOIPage image("aoi");
    check(image, QString());
    AutoROIPage automatic("aoi");
    check(automatic, QString("AutofunctionAOI"));
}

template <typename Page> void typeWidth(const RegionPage<Page>& p, const QString& keys)
{
    QVERIFY(QTest::qWaitForWindowActive(p.page.get()));
    p.field("spinWidth")->setFocus();
    p.field("spinWidth")->selectAll();
    QTest::keyClicks(p.field("spinWidth"), keys);
}

template <typename Page> void showWithoutFeatures(const char* model)
{
    const CameraPage<Page> p(model);
    p.page->show();
    p.page->updateTimer();
    QVERIFY(p.page->accessibleName().isEmpty());
    QVERIFY(p.writes().isEmpty());
    QVERIFY(p.page->template findChildren<QWidget*>().isEmpty());
}

} // namespace

class InnerPageTest : public QObject
{
    Q_OBJECT

private slots:
    void keepsWhatIsUntold()
    {
        ProbePage p;
        p.page->untold = QStringList{"Width"};
        p.page->OnFeatureChanged("Height", {});
        p.page->updateTimer();
        p.page->untold.clear();
        p.page->updateTimer();
        p.page->updateTimer();
        QCOMPARE(p.page->refreshes.size(), 3);
        QCOMPARE(p.page->refreshes[0].names, QStringList("Height"));
        QVERIFY(!p.page->refreshes[0].all);
        QCOMPARE(p.page->refreshes[1].names, QStringList("Width"));
        QVERIFY(p.page->refreshes[2].isEmpty());
        p.page->readSoon({"Width"});
        p.page->readAllSoon();
        QTRY_COMPARE_WITH_TIMEOUT(p.page->refreshes.size(), 4, 400);
        QVERIFY(p.page->refreshes[3].all);
    }

    void waitsWhileAtWork()
    {
        ProbePage p;
        p.page->isDragging = true;
        p.page->OnFeatureChanged("Width", {});
        p.page->updateTimer();
        p.page->readAgain({"Height"});
        p.page->updateTimer();
        QVERIFY(p.page->refreshes.isEmpty());
        p.page->isDragging = false;
        p.page->updateTimer();
        QCOMPARE(p.page->refreshes.size(), 1);
        QCOMPARE(p.page->refreshes[0].names, (QStringList{"Width", "Height"}));
    }

    void survivesWithoutItsFeatures()
    {
        showWithoutFeatures<AOIWidget>("no-height");
        showWithoutFeatures<AutoROIWidget>("plain");
    }

    /// Another client's write waits until the user has typed.
    void leavesTypingAlone()
    {
        forBothPages([](auto& p, const QString& family) {
            typeWidth(p, "64");
            p.camera->writeAsOtherClient((family + "Width").toStdString(), std::int64_t{512});
            p.settle();
            QCOMPARE(p.field("spinWidth")->cleanText(), QString("64"));
            QCOMPARE(p.label->region().width(), 512);
            QVERIFY(p.writes().isEmpty());
            QTest::keyClick(p.field("spinWidth"), Qt::Key_Return);
            QCOMPARE(p.value(family + "Width"), 64);
        });
    }

    /// Nothing is written from the press to the release, which counts with what was typed.
    void writesTypingBeforeADrag()
    {
        forBothPages([](auto& p, const QString& family) {
            typeWidth(p, "640");
            press(p.label, p.band().topLeft() + QPoint(10, 10));
            QCOMPARE(p.writes(), QStringList(family + "Width 640"));
            QVERIFY(p.label->isDragging());
            p.page->OnSpinHeightValueChanged(64);
            QCOMPARE(p.writes().size(), 1);
            release(p.label, p.band().topLeft() + QPoint(10, 10));
            QCOMPARE(p.value(family + "Width"), 640);
        });
    }

    /// The camera tells of nothing, and the next tick is far.
    void readsSoonAfterADrag()
    {
        forBothPages([](auto& p, const QString& family) {
            p.click("btnQuarter");
            QTest::qWait(250);
            p.camera->setNotifications(sim::NotificationSettings::off());
            p.comeBack();
            const QPoint middle = p.band().center();
            drag(p.label, middle, middle + QPoint(9, 9));
            p.camera->force((family + "Width").toStdString(), std::int64_t{320});
            QTRY_COMPARE_WITH_TIMEOUT(p.field("spinWidth")->value(), 320.0, 600);
        });
    }

    void followsTheAccess()
    {
        forBothPages([](auto& p, const QString& family) {
            for (const bool isLocked : {true, false}) {
                p.camera->modify((family + "Width").toStdString(), [=](auto& width) {
                    width.writableIf([=](const sim::State&) { return !isLocked; });
                });
                p.refreshBy(qPrintable(family + "Width"));
                QCOMPARE(p.field("spinWidth")->isEnabled(), !isLocked);
                QVERIFY(p.field("spinHeight")->isEnabled());
                QCOMPARE(p.label->isEnabled(), !isLocked);
                QCOMPARE(p.template find<QPushButton>("btnFull")->isEnabled(), !isLocked);
            }
        });
    }
};

QTEST_MAIN(InnerPageTest)

#include "InnerPageTest.moc"
