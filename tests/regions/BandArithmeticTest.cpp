#include "regions/BandDrag.h"
#include "regions/BandResize.h"

#include <QtTest>

namespace {

// Four sensor pixels a label pixel; the band's last pixels are (299, 224).
const LabelGeometry geometry{{400, 300}, {1600, 1200}, {400, 300}};
const QRect band(100, 75, 200, 150);
const SensorRegion region{300, 400, 800, 600};

constexpr BandDragFlags none{};
constexpr BandDragFlags moving{true, false, false, false, false};
constexpr BandDragFlags leftEdge{false, true, false, false, false};
constexpr BandDragFlags rightEdge{false, false, true, false, false};
constexpr BandDragFlags topEdge{false, false, false, true, false};
constexpr BandDragFlags bottomEdge{false, false, false, false, true};
constexpr BandDragFlags leftTop{false, true, false, true, false};
constexpr BandDragFlags leftBottom{false, true, false, false, true};
constexpr BandDragFlags rightTop{false, false, true, true, false};
constexpr BandDragFlags rightBottom{false, false, true, false, true};

} // namespace

Q_DECLARE_METATYPE(BandDragFlags)
Q_DECLARE_METATYPE(LabelGeometry)
Q_DECLARE_METATYPE(SensorRegion)

bool operator==(const BandDragFlags& a, const BandDragFlags& b)
{
    return a.moving == b.moving && a.left == b.left && a.right == b.right && a.top == b.top
        && a.bottom == b.bottom;
}

char* toString(const SensorRegion& r)
{
    return qstrdup(qPrintable(QStringLiteral("top %1 left %2 width %3 height %4")
                                  .arg(r.top)
                                  .arg(r.left)
                                  .arg(r.width)
                                  .arg(r.height)));
}

class BandArithmeticTest : public QObject
{
    Q_OBJECT

private slots:
    void placesRegions_data()
    {
        QTest::addColumn<LabelGeometry>("where");
        QTest::addColumn<QSize>("displayed");
        QTest::addColumn<SensorRegion>("value");
        QTest::addColumn<QRect>("expected");
        QTest::newRow("exact") << geometry << QSize(400, 300) << region << band;
        QTest::newRow("high label") << LabelGeometry{{400, 900}, {1600, 1200}, {400, 300}}
                                    << QSize(400, 300) << region << band;
        QTest::newRow("wide label") << LabelGeometry{{900, 300}, {1600, 1200}, {400, 300}}
                                    << QSize(400, 300) << region << band;
        QTest::newRow("cut to the shown picture, half up")
            << LabelGeometry{{401, 300}, {1601, 1201}, {399, 299}} << QSize(400, 300)
            << SensorRegion{2, 2, 1599, 1199} << QRect(0, 0, 399, 299);
        QTest::newRow("beyond the picture")
            << geometry << QSize(400, 300) << SensorRegion{0, 2000, 100, 100}
            << QRect(500, 0, 0, 25);
        QTest::newRow("no sensor") << LabelGeometry{{400, 300}, {-1, -1}, {}} << QSize(0, 0)
                                   << region << QRect(0, 0, 0, 0);
        QTest::newRow("sliver") << LabelGeometry{{100, 100}, {1, 100000}, {1, 100}} << QSize(0, 100)
                                << region << QRect(0, 0, 0, 0);
    }

    void placesRegions()
    {
        QFETCH(LabelGeometry, where);
        QFETCH(SensorRegion, value);
        QTEST(displayedSize(where), "displayed");
        QTEST(bandForRegion(value, where), "expected");
    }

    void takesEdgesOnPress_data()
    {
        QTest::addColumn<QRect>("at");
        QTest::addColumn<QPoint>("pointer");
        QTest::addColumn<BandDragFlags>("expected");
        QTest::newRow("inside") << band << QPoint(200, 150) << moving;
        QTest::newRow("4 right of the right edge") << band << QPoint(303, 150) << rightEdge;
        QTest::newRow("5 right of the right edge") << band << QPoint(304, 150) << none;
        QTest::newRow("4 left of the left edge") << band << QPoint(96, 150) << leftEdge;
        QTest::newRow("5 left of the left edge") << band << QPoint(95, 150) << none;
        QTest::newRow("on the right edge's extension") << band << QPoint(299, 10) << rightEdge;
        QTest::newRow("top right corner") << band << QPoint(295, 79) << rightTop;
        QTest::newRow("bottom left corner") << band << QPoint(104, 228) << leftBottom;
        QTest::newRow("thin: right and top win")
            << QRect(50, 50, 3, 3) << QPoint(50, 50) << rightTop;
    }

    void takesEdgesOnPress()
    {
        QFETCH(QRect, at);
        QFETCH(QPoint, pointer);
        QFETCH(BandDragFlags, expected);
        QVERIFY(flagsForPress(at, pointer) == expected);
    }

    void showsCursors_data()
    {
        QTest::addColumn<QPoint>("pointer");
        QTest::addColumn<Qt::CursorShape>("expected");
        QTest::newRow("before the right edge") << QPoint(298, 150) << Qt::SizeHorCursor;
        QTest::newRow("4 before it") << QPoint(295, 150) << Qt::SizeHorCursor;
        QTest::newRow("5 before it") << QPoint(294, 150) << Qt::SizeAllCursor;
        QTest::newRow("on it") << QPoint(299, 150) << Qt::SizeAllCursor;
        QTest::newRow("above the band") << QPoint(298, 74) << Qt::SizeHorCursor;
        QTest::newRow("top right") << QPoint(298, 78) << Qt::SizeBDiagCursor;
        QTest::newRow("bottom right") << QPoint(298, 224) << Qt::SizeFDiagCursor;
        QTest::newRow("left edge") << QPoint(103, 79) << Qt::SizeHorCursor;
        QTest::newRow("before the left edge") << QPoint(99, 150) << Qt::ArrowCursor;
        QTest::newRow("top left") << QPoint(100, 75) << Qt::SizeFDiagCursor;
        QTest::newRow("bottom left") << QPoint(100, 230) << Qt::SizeBDiagCursor;
        QTest::newRow("top") << QPoint(200, 78) << Qt::SizeVerCursor;
        QTest::newRow("bottom") << QPoint(200, 220) << Qt::SizeVerCursor;
        QTest::newRow("on the bottom edge") << QPoint(200, 224) << Qt::SizeAllCursor;
    }

    void showsCursors()
    {
        QFETCH(QPoint, pointer);
        QTEST(cursorForHover(band, pointer, pointer), "expected");
        QCOMPARE(cursorForHover(band, QPoint(200, 150), QPoint(900, 150)), Qt::ArrowCursor);
    }

    void drags_data()
    {
        QTest::addColumn<BandDragFlags>("flags");
        QTest::addColumn<Qt::CursorShape>("cursor");
        QTest::addColumn<QPoint>("pointer");
        QTest::addColumn<QRect>("expectedBand");
        QTest::addColumn<SensorRegion>("expected");
        const auto add
            = [](const char* name, const BandDragFlags& flags, Qt::CursorShape cursor,
                 const QPoint& pointer, const QRect& expectedBand, const SensorRegion& expected) {
                  QTest::newRow(name) << flags << cursor << pointer << expectedBand << expected;
              };
        add("right", rightEdge, Qt::SizeHorCursor, {349, 9}, {100, 75, 250, 150},
            {300, 400, 1000, 600});
        add("top right", rightTop, Qt::SizeBDiagCursor, {349, 50}, {100, 50, 250, 175},
            {199, 400, 1000, 600});
        add("bottom right", rightBottom, Qt::SizeFDiagCursor, {349, 249}, {100, 75, 250, 175},
            {300, 400, 1000, 700});
        add("top left", leftTop, Qt::SizeFDiagCursor, {50, 40}, {50, 40, 250, 185},
            {160, 200, 1000, 740});
        add("left", leftEdge, Qt::SizeHorCursor, {50, 9}, {50, 75, 250, 150},
            {300, 200, 1000, 600});
        add("bottom left", leftBottom, Qt::SizeBDiagCursor, {50, 249}, {50, 75, 250, 175},
            {300, 200, 1000, 700});
        add("left without a hover", leftEdge, Qt::ArrowCursor, {50, 9}, band, region);
        add("top keeps the height", topEdge, Qt::SizeVerCursor, {9, 40}, {100, 40, 200, 185},
            {160, 400, 800, 600});
        add("bottom", bottomEdge, Qt::SizeVerCursor, {9, 249}, {100, 75, 200, 175},
            {300, 400, 800, 700});
        add("move", moving, Qt::SizeAllCursor, {120, 20}, {110, 10, 200, 150}, {40, 440, 800, 600});
        add("move to the corner", moving, Qt::SizeAllCursor, {400, 300}, {200, 150, 200, 150},
            {600, 800, 800, 600});
        add("right to the border", rightEdge, Qt::SizeHorCursor, {400, 9}, {100, 75, 301, 150},
            {300, 400, 1200, 600});
        add("right beyond left", rightEdge, Qt::SizeHorCursor, {0, 9}, {100, 75, 1, 150},
            {300, 400, 4, 600});
        add("left beyond right", leftEdge, Qt::SizeHorCursor, {400, 9}, {299, 75, 1, 150},
            {300, 1196, 4, 600});
        add("top beyond bottom", topEdge, Qt::SizeVerCursor, {9, 300}, {100, 224, 200, 1},
            {600, 400, 800, 600});
    }

    void drags()
    {
        QFETCH(BandDragFlags, flags);
        QFETCH(Qt::CursorShape, cursor);
        QFETCH(QPoint, pointer);
        const auto step
            = dragBand({flags, cursor, QPoint(10, 10), region}, band, pointer, geometry);
        QTEST(step.band, "expectedBand");
        QTEST(step.region, "expected");
    }

    void releases_data()
    {
        QTest::addColumn<BandDragFlags>("flags");
        QTest::addColumn<QRect>("at");
        QTest::addColumn<QPoint>("pointer");
        QTest::addColumn<SensorRegion>("expected");
        const auto add = [](const char* name, const BandDragFlags& flags, const QRect& at,
                            const QPoint& pointer, const SensorRegion& expected) {
            QTest::newRow(name) << flags << at << pointer << expected;
        };
        add("right", rightEdge, {100, 75, 250, 150}, {349, 0}, {300, 400, 1000, 600});
        add("right, out of the label", rightEdge, {100, 75, 301, 150}, {500, 0},
            {300, 400, 1200, 600});
        add("top sets the height", topEdge, {100, 40, 200, 185}, {0, 40}, {160, 400, 800, 740});
        add("bottom, out of the label", bottomEdge, {100, 75, 200, 226}, {0, 300},
            {300, 400, 800, 900});
        add("left, out of the picture at the right", leftEdge, {299, 75, 1, 150}, {450, 0},
            {300, 1196, 4, 600});
        add("left, out of the label at the right", leftEdge, {299, 75, 1, 150}, {500, 0},
            {300, 1196, 404, 600});
        add("right bottom clamped", rightBottom, {100, 75, 301, 226}, {399, 299},
            {300, 400, 1200, 900});
        add("move", moving, {110, 10, 200, 150}, {999, 999}, {40, 440, 800, 600});
    }

    void releases()
    {
        QFETCH(BandDragFlags, flags);
        QFETCH(QRect, at);
        QFETCH(QPoint, pointer);
        const BandDragState state{flags, Qt::ArrowCursor, {}, region};
        const LabelGeometry wideLabel{{500, 300}, geometry.sensor, geometry.shown};
        QTEST(regionForRelease(state, at, pointer, wideLabel), "expected");
    }

    /// 150 of 300 label pixels stand for 501 of 1000 sensor pixels.
    void moveEndsOnTheSensor()
    {
        const LabelGeometry where{{300, 225}, {1000, 750}, {300, 225}};
        const BandDragState state{moving, Qt::SizeAllCursor, {}, {0, 0, 501, 376}};
        const QRect start = bandForRegion(state.region, where);
        const BandDragStep step = dragBand(state, start, {300, 225}, where);
        const SensorRegion expected{373, 499, 501, 376};
        QCOMPARE(step.region, expected);
        QCOMPARE(regionForRelease(state, step.band, {300, 225}, where), expected);
    }

    void resizes_data()
    {
        QTest::addColumn<QRect>("before");
        QTest::addColumn<QSize>("oldSize");
        QTest::addColumn<QSize>("newSize");
        QTest::addColumn<QRect>("expected");
        const QSize smaller(380, 285);
        QTest::newRow("scaled") << QRect(50, 30, 60, 40) << smaller << QSize(400, 300)
                                << QRect(53, 32, 63, 42);
        QTest::newRow("full stays full")
            << QRect(0, 0, 380, 285) << smaller << QSize(400, 300) << QRect(0, 0, 400, 300);
        QTest::newRow("full enough in width, not in height")
            << QRect(0, 0, 350, 264) << smaller << QSize(400, 300) << QRect(0, 0, 400, 278);
        QTest::newRow("cut behind the old left")
            << QRect(300, 30, 79, 40) << smaller << QSize(400, 300) << QRect(316, 32, 83, 42);
        QTest::newRow("margin at the right, width alone")
            << QRect(50, 30, 60, 40) << QSize(500, 300) << QSize(520, 300) << QRect(50, 30, 60, 40);
    }

    void resizes()
    {
        QFETCH(QRect, before);
        QFETCH(QSize, oldSize);
        QFETCH(QSize, newSize);
        const QSize displayed = displayedSize({newSize, geometry.sensor, newSize});
        QTEST(bandForResize(before, newSize, oldSize, displayed), "expected");
    }
};

QTEST_APPLESS_MAIN(BandArithmeticTest)

#include "BandArithmeticTest.moc"
