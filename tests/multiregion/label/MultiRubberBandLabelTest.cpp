#include "multiregion/label/MultiRubberBandLabel.h"
#include "DataTable.h"
#include "RectText.h"
#include "TestEvents.h"
#include "multiregion/label/LineRubberBand.h"
#include "multiregion/label/RectangleRubberBand.h"

#include <QScreen>

#include <functional>
#include <memory>

using Label = MultiRubberBandLabel;

class MultiRubberBandLabelTest : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { m_label.reset(); }

    /// A drag: the picture is 400 x 300 of a sensor of 1600 x 1200, bands at (25, 25) and (225, 25)
    /// of size 100 x 100.
    void drags_data()
    {
        const DataTable row([this](const QString& mode, const QPoint& from, const QPoint& to,
                                   const QStringList& expected) {
            const int height = mode.endsWith("thin") ? 44 : 400;
            makeLabel(mode.section(' ', 0, 0), {{100, 100, 400, height}, {900, 100, 400, height}});
            drag(m_label.get(), from, to);
            QCOMPARE(m_events, (QStringList{"start", "finish"} + expected));
            QVERIFY(!m_label->isDragging());
        });
        row("move", "Free", {75, 75}, {85, 95}, {"0: 140,180 400x400"});
        row("move over the border", "Free", {75, 75}, {-300, 75}, {"0: 0,100 400x400"});
        row("click inside", "Free", {75, 75}, {75, 75}, {});
        row("click on an edge", "Free", {25, 75}, {25, 75}, {"0: 100,100 400x400"});
        row("not over the neighbour", "Free", {122, 75}, {300, 75}, {"0: 100,100 400x400"});
        row("a member stays in the row", "Horizontal", {275, 75}, {285, 95},
            {"1: 940,100 400x400"});
        row("line", "Horizontal", {350, 124}, {350, 155},
            {"0: 100,100 400x528", "1: 900,100 400x528"});
        row("a thin band between its lines", "Horizontal thin", {75, 30}, {75, 40},
            {"0: 100,140 400x44", "1: 900,140 400x44"});
        row("the line of a thin band", "Horizontal thin", {75, 34}, {75, 40},
            {"0: 100,100 400x68", "1: 900,100 400x68"});
    }
    void drags() { runRow(); }

    /// What happens in the midst of a drag from (75, 75), which takes region 0, or of the line
    /// below a row, both by (10, 20).
    void disturbedDrags_data()
    {
        const DataTable row([this](const QString& mode, const QPoint& from,
                                   const QStringList& reports, const QRect& band,
                                   const std::function<void(Label*)>& disturb) {
            makeLabel(mode);
            const QPoint to = from + QPoint(10, 20);
            press(m_label.get(), from);
            sendMouse(m_label.get(), QEvent::MouseMove, to);
            QVERIFY(bandOf(0)->geometry() != QRect(25, 25, 100, 100));
            m_events.clear();
            m_sawRed = false;
            disturb(m_label.get());
            QVERIFY(!m_sawRed);
            const QPoint end = to * m_label->width() / 400;
            sendMouse(m_label.get(), QEvent::MouseMove, end);
            release(m_label.get(), end);
            QCoreApplication::processEvents();
            m_events.removeAll("finish");
            QCOMPARE(m_events, reports);
            QCOMPARE(bandOf(0)->geometry(), band);
            if (bandOf(2))
                QCOMPARE(bandOf(2)->geometry(), QRect(300, 200, 100, 100));
        });
        const QPoint inside(75, 75);
        const QPoint line(150, 124);
        const QString moved = "0: 140,180 400x400";
        const QRect movedBand(35, 45, 100, 100);
        const auto frame = [](Label* label) {
            auto image = std::make_shared<QPixmap>(1600, 1200);
            image->fill(Qt::gray);
            label->setBackgroundImage(image, image->size(), {});
        };
        row("what is told waits for the end", "Free", inside, {moved}, movedBand, [](Label* label) {
            label->onRegionGeometryChanged(0, {200, 100, 200, 400});
            label->onRegionGeometryChanged(2, {1200, 800, 400, 400});
            label->onRegionActivated(2, true);
        });
        row("dropped when disabled", "Free", inside, {"drop"}, {50, 25, 100, 100},
            [](Label* label) {
                label->onRegionGeometryChanged(0, {200, 100, 400, 400});
                label->setEnabled(false);
                label->setEnabled(true);
            });
        row("comes near no other in a smaller label", "Free", {75, 75}, {"0: 144,184 400x400"},
            {18, 23, 50, 50}, [](Label* label) { label->resize(200, 150); });
        const QStringList grown{"0: 100,100 400x484", "1: 900,100 400x484"};
        row("line, frame", "Horizontal", line, grown, {25, 25, 100, 121}, frame);
        row("line, another scale", "Horizontal", line, {"0: 100,100 400x480", "1: 900,100 400x480"},
            {50, 50, 200, 240}, [](Label* label) { label->resize(800, 600); });
        row("line, what is told", "Horizontal", line, grown, {25, 25, 100, 121}, [](Label* label) {
            label->onRegionGeometryChanged(1, {800, 100, 400, 400});
        });
        row("line, a member goes", "Horizontal", line, {"drop"}, {25, 25, 100, 100},
            [](Label* label) { label->onRegionActivated(1, false); });
    }
    void disturbedDrags() { runRow(); }

    void pressTellsInOrder()
    {
        makeLabel("Free");
        connect(m_label.get(), &Label::highlightSelectedRegion, this,
                [this](int region) { m_events << QString("highlight %1").arg(region); });
        connect(m_label.get(), &Label::regionSelected, this, [this](int region) {
            m_events << QString("selected %1").arg(region);
            m_label->selectRegion(region);
            QVERIFY(m_label->isDragging());
        });
        // What is written before the drag, the drag starts from.
        connect(m_label.get(), &Label::aboutToDrag, this, [this] {
            m_events << "about";
            const QSignalBlocker blocker(m_label.get());
            m_label->onRegionGeometryChanged(1, {920, 100, 400, 400});
        });
        press(m_label.get(), {275, 75});
        QCOMPARE(m_events, (QStringList{"about", "highlight 1", "selected 1", "start"}));
        sendMouse(m_label.get(), QEvent::MouseMove, {285, 75});
        QCOMPARE(bandOf(1)->geometry(), QRect(240, 25, 100, 100));
    }

    void tellsItsScale()
    {
        makeLabel("Free");
        QSignalSpy spy(m_label.get(), &Label::labelGeometryChanged);
        m_label->resize(800, 300);
        QCOMPARE(spy.value(0), (QVariantList{1.0, 1.0, QSize(400, 300)}));
        m_label->resize(800, 600);
        QCOMPARE(spy.value(1), (QVariantList{2.0, 2.0, QSize(800, 600)}));
    }

    void higherNumberIsRed()
    {
        makeLabel("Free");
        const QColor own(0, 100, 255);
        m_label->onRegionGeometryChanged(0, {700, 100, 400, 400});
        QCOMPARE(m_label->shownColor(0), own);
        QCOMPARE(m_label->shownColor(1), QColor("red"));
        QCOMPARE(m_label->regionColor(1), own);
        // The lower one is held by the overlap, the red one can be pulled free.
        drag(m_label.get(), {185, 75}, {195, 75});
        QCOMPARE(m_events, (QStringList{"start", "finish"}));
        // Where they overlap the selected one is on top, else the higher number.
        QVERIFY(topAt({250, 75}) == 0);
        m_label->selectRegion(-1);
        QVERIFY(topAt({250, 75}) == 1);
        press(m_label.get(), {310, 75});
        sendMouse(m_label.get(), QEvent::MouseMove, {320, 75});
        QCOMPARE(bandOf(1)->x(), 235);
        sendMouse(m_label.get(), QEvent::MouseMove, {370, 75});
        release(m_label.get(), {370, 75});
        QCOMPARE(m_events.last(), QString("1: 1140,100 400x400"));
        QCOMPARE(m_label->shownColor(1), own);
        // A neighbour that goes solves a conflict, which the band reports.
        m_label->onRegionGeometryChanged(0, {900, 100, 400, 400});
        m_events.clear();
        m_label->onRegionActivated(0, false);
        QCOMPARE(m_events, QStringList("1: 1140,100 400x400"));
        QCOMPARE(m_label->shownColor(1), own);
    }

    void linesComeAndGo()
    {
        makeLabel("Horizontal");
        QCOMPARE(m_label->findChildren<LineRubberBand*>().size(), 2);
        // They end with the picture.
        m_label->resize(500, 300);
        drag(m_label.get(), {404, 123}, {404, 123});
        QVERIFY(m_events.isEmpty());
        drag(m_label.get(), {403, 123}, {403, 123});
        QCOMPARE(m_events, (QStringList{"start", "finish"}));
        // Alone again, the other one is free.
        m_label->onRegionActivated(0, false);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(m_label->findChildren<LineRubberBand*>().isEmpty());
        drag(m_label.get(), {285, 95}, {285, 85});
        QCOMPARE(m_events.last(), QString("1: 900,60 400x400"));
    }

    void tileLines()
    {
        m_constraints.clear();
        makeLabel("Tile",
                  {{0, 0, 800, 600}, {800, 0, 800, 600}, {0, 600, 800, 600}, {800, 600, 800, 600}});
        QCOMPARE(m_label->findChildren<LineRubberBand*>().size(), 8);
        // The first row's lower line stops at the second row and the minimum.
        m_label->setRegionLimits(1, {{}, {400, 1200, 1, 1}});
        drag(m_label.get(), {100, 146}, {100, 200});
        QCOMPARE(m_events, (QStringList{"start", "finish"}));
        m_events.clear();
        drag(m_label.get(), {100, 146}, {100, 20});
        QCOMPARE(m_events, (QStringList{"start", "finish", "0: 0,0 800x400", "1: 800,0 800x400"}));
        QCOMPARE(m_constraints.value(0).size(), 0);
        QCOMPARE(m_constraints.value(2).first(), QString("SubRegionOffsetX"));
        QCOMPARE(m_constraints.value(3).size(), 4);
        // The first row bounds the second: it cannot go back over the line.
        QCOMPARE(m_ranges.value(2), QRect(0, 400, 800, 800));
        drag(m_label.get(), {100, 225}, {100, 60});
        QCOMPARE(m_label->regionRectangle(3), QRect(800, 400, 800, 600));
        m_label->setArrangementMode("Free");
        QVERIFY(m_constraints.value(3).isEmpty());
        QCOMPARE(m_ranges.value(2), QRect(0, 0, 1600, 1200));
    }

    /// The page may take a region away in answer to its selection.
    void removalEndsTheDrag()
    {
        makeLabel("Horizontal");
        connect(m_label.get(), &Label::regionSelected, this,
                [this] { m_label->removeRectangle(1); });
        press(m_label.get(), {275, 75});
        QVERIFY(!m_label->isDragging());
        QCoreApplication::processEvents();
        QCOMPARE(m_events, QStringList("drop"));
    }

    void showsCursors()
    {
        makeLabel("Horizontal");
        const auto cursorAt = [this](const QPoint& point) {
            sendMouse(m_label.get(), QEvent::MouseMove, point, Qt::NoButton);
            return m_label->cursor().shape();
        };
        QCOMPARE(cursorAt({75, 75}), Qt::SizeAllCursor);
        QCOMPARE(cursorAt({122, 75}), Qt::SizeHorCursor);
        QCOMPARE(cursorAt({75, 122}), Qt::SizeHorCursor); // a line leaves it as it is
        QCOMPARE(cursorAt({150, 75}), Qt::ArrowCursor);
    }

    /// Lines of a sensor are one pixel on the label, and still there to be dragged along them.
    void flatSensors()
    {
        makeLabel("Free", {});
        m_label->setSensorSize({4096, 2});
        m_label->onRegionGeometryChanged(0, {1024, 0, 1024, 2});
        m_label->onRegionActivated(0, true);
        QCOMPARE(m_label->shownSize(), QSize(400, 1));
        QCOMPARE(bandOf(0)->geometry(), QRect(100, 0, 100, 1));
        drag(m_label.get(), {197, 0}, {299, 0});
        QCOMPARE(m_events.last(), QString("0: 1024,0 2048x2"));
        drag(m_label.get(), {101, 0}, {50, 0});
        QCOMPARE(m_events.last(), QString("0: 512,0 2560x2"));
        drag(m_label.get(), {200, 0}, {150, 0});
        QCOMPARE(m_events.last(), QString("0: 0,0 2560x2"));
    }

private:
    void makeLabel(const QString& mode,
                   const QVector<QRect>& regions = {{100, 100, 400, 400}, {900, 100, 400, 400}})
    {
        m_label = std::make_unique<Label>(1600, 1200, QColor(0, 100, 255), mode, nullptr);
        Label* label = m_label.get();
        const auto note
            = [this](const char* event) { return [this, event] { m_events << event; }; };
        connect(label, &Label::rubberChangeStarted, this, note("start"));
        connect(label, &Label::rubberChangeFinished, this, note("finish"));
        connect(label, &Label::dragDropped, this, note("drop"));
        connect(label, &Label::regionColorChanged, this, [this](int, const QColor& color) {
            m_sawRed = m_sawRed || color == QColor("red");
        });
        connect(label, &Label::constraintsActivated, this,
                [this](int region, const QStringList& f) { m_constraints.insert(region, f); });
        connect(label, &Label::regionRangeChanged, this,
                [this](int region, const QRect& range) { m_ranges.insert(region, range); });
        label->resize(400, 300);
        label->show();
        QVERIFY(QTest::qWaitForWindowActive(label));
        for (int i = 0; i < regions.size(); ++i) {
            label->onRegionGeometryChanged(i, regions[i]);
            label->onRegionActivated(i, true);
        }
        m_events.clear();
        connect(label, &Label::regionGeometryChanged, this, [this](int region, const QRect& rect) {
            m_events << QString("%1: %2").arg(region).arg(text(rect));
        });
    }

    /// The region whose band lies on top there, -1 for none.
    int topAt(const QPoint& point) const
    {
        int top = -1;
        for (const auto* band : m_label->findChildren<RectangleRubberBand*>())
            top = !band->isHidden() && band->geometry().contains(point) ? band->regionNo() : top;
        return top;
    }

    RectangleRubberBand* bandOf(int region) const
    {
        for (auto* band : m_label->findChildren<RectangleRubberBand*>()) {
            if (band->regionNo() == region)
                return band;
        }
        return nullptr;
    }

    std::unique_ptr<Label> m_label;
    bool m_sawRed = false;
    QStringList m_events;
    QMap<int, QStringList> m_constraints;
    QMap<int, QRect> m_ranges;
};

QTEST_MAIN(MultiRubberBandLabelTest)
#include "MultiRubberBandLabelTest.moc"
