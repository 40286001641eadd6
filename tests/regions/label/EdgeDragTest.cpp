#include "regions/label/EdgeDrag.h"
#include "DataTable.h"

namespace {

// Four sensor pixels a label pixel; the band's last pixels are (299, 224).
const LabelGeometry geometry{{400, 300}, {1600, 1200}, {400, 300}};
const QRect band(100, 75, 200, 150);
const QRect region(400, 300, 800, 600);

/// What a drag changes, as in "left top".
EdgeGrab flags(const QString& text)
{
    return {text == "move", text.contains("left"), text.contains("right"), text.contains("top"),
            text.contains("bottom")};
}

bool operator==(const EdgeGrab& a, const EdgeGrab& b)
{
    return a.moving == b.moving && a.left == b.left && a.right == b.right && a.top == b.top
        && a.bottom == b.bottom;
}

} // namespace

class EdgeDragTest : public QObject
{
    Q_OBJECT

private slots:
    void placesRegions_data()
    {
        const DataTable row([](const LabelGeometry& where, const QSize& displayed,
                               const QRect& value, const QRect& expected) {
            QCOMPARE(displayedSize(where), displayed);
            QCOMPARE(bandForRegion(value, where), expected);
        });
        row("high label", {{400, 900}, {1600, 1200}, {400, 300}}, {400, 300}, region, band);
        row("cut to the shown picture, half up", {{401, 300}, {1601, 1201}, {399, 299}}, {400, 300},
            {2, 2, 1599, 1199}, {0, 0, 399, 299});
        row("beyond the picture", geometry, {400, 300}, {2000, 0, 100, 100}, {500, 0, 0, 25});
        row("before it", geometry, {400, 300}, {-40, -30, 800, 600}, {-9, -7, 200, 150});
        row("no sensor", {{400, 300}, {-1, -1}, {}}, {0, 0}, region, {0, 0, 0, 0});
        row("sliver", {{100, 100}, {1, 100000}, {1, 100}}, {0, 100}, region, {0, 0, 0, 0});
    }
    void placesRegions() { runRow(); }

    /// What a press takes and what hovering shows there.
    void findsEdges_data()
    {
        const DataTable row([](const QPoint& pointer, const QString& taken, Qt::CursorShape shown) {
            QVERIFY(grabForPress(band, pointer) == flags(taken));
            QCOMPARE(cursorForHover(band, pointer, pointer), shown);
        });
        row("inside", {200, 150}, "move", Qt::SizeAllCursor);
        row("5 before the right edge", {294, 150}, "move", Qt::SizeAllCursor);
        row("4 before the right edge", {295, 150}, "right", Qt::SizeHorCursor);
        row("4 behind the right edge", {303, 150}, "right", Qt::ArrowCursor);
        row("5 behind the right edge", {304, 150}, "", Qt::ArrowCursor);
        row("4 before the left edge", {96, 150}, "left", Qt::ArrowCursor);
        row("5 before the left edge", {95, 150}, "", Qt::ArrowCursor);
        row("behind the top left", {103, 79}, "left top", Qt::SizeHorCursor);
        row("top left", {100, 75}, "left top", Qt::SizeFDiagCursor);
        row("above the top right", {298, 74}, "right top", Qt::SizeHorCursor);
        row("top right", {298, 78}, "right top", Qt::SizeBDiagCursor);
        row("bottom right", {298, 224}, "right bottom", Qt::SizeFDiagCursor);
        row("bottom", {200, 220}, "bottom", Qt::SizeVerCursor);
        row("on the bottom edge", {200, 224}, "bottom", Qt::SizeAllCursor);
        row("below the bottom left", {100, 230}, "left", Qt::SizeBDiagCursor);
    }
    void findsEdges() { runRow(); }

    /// The row's name tells what is dragged.
    void drags_data()
    {
        const DataTable row([](Qt::CursorShape cursor, const QPoint& pointer,
                               const QRect& expectedBand, const QRect& expected) {
            const auto dragged = flags(QString(QTest::currentDataTag()).section(',', 0, 0));
            const EdgeDrag drag{dragged, followingEdges(dragged, cursor), {10, 10}, band, region};
            QCOMPARE(draggedBand(drag, pointer, geometry), expectedBand);
            QCOMPARE(provisionalRegion(drag, expectedBand, geometry), expected);
        });
        const auto across = Qt::SizeHorCursor;
        const auto upright = Qt::SizeVerCursor;
        const auto falling = Qt::SizeFDiagCursor;
        const auto rising = Qt::SizeBDiagCursor;
        row("right", across, {349, 9}, {100, 75, 250, 150}, {400, 300, 1000, 600});
        row("right top", rising, {349, 50}, {100, 50, 250, 175}, {400, 199, 1000, 600});
        row("right bottom", falling, {349, 249}, {100, 75, 250, 175}, {400, 300, 1000, 700});
        row("left top", falling, {50, 40}, {50, 40, 250, 185}, {200, 160, 1000, 740});
        row("left", across, {50, 9}, {50, 75, 250, 150}, {200, 300, 1000, 600});
        row("left bottom", rising, {50, 249}, {50, 75, 250, 175}, {200, 300, 1000, 700});
        row("left, without a hover", Qt::ArrowCursor, {50, 9}, band, region);
        row("top, keeps the height", upright, {9, 40}, {100, 40, 200, 185}, {400, 160, 800, 600});
        row("bottom", upright, {9, 249}, {100, 75, 200, 175}, {400, 300, 800, 700});
        row("move", upright, {120, 20}, {110, 10, 200, 150}, {440, 40, 800, 600});
        row("move, to the border", upright, {400, 300}, {200, 150, 200, 150}, {800, 600, 800, 600});
        row("right, onto the other edge", across, {0, 9}, {100, 75, 1, 150}, {400, 300, 4, 600});
        row("left, onto the other edge", across, {400, 9}, {299, 75, 1, 150}, {1196, 300, 4, 600});
    }
    void drags() { runRow(); }

    void releases_data()
    {
        const DataTable row([](const QRect& at, const QPoint& pointer, const QRect& expected) {
            const auto dragged = flags(QString(QTest::currentDataTag()).section(',', 0, 0));
            const LabelGeometry wideLabel{{500, 300}, geometry.sensor, geometry.shown};
            QCOMPARE(releasedRegion({dragged, dragged, {}, band, region}, at, pointer, wideLabel),
                     expected);
        });
        row("right, out of the label", {100, 75, 301, 150}, {500, 0}, {400, 300, 1200, 600});
        row("top, sets the height", {100, 40, 200, 185}, {0, 40}, {400, 160, 800, 740});
        row("bottom, out of the label", {100, 75, 200, 226}, {0, 300}, {400, 300, 800, 900});
        row("left, out of the picture", {299, 75, 1, 150}, {450, 0}, {1196, 300, 4, 600});
        row("left, out of the label", {299, 75, 1, 150}, {500, 0}, {1196, 300, 404, 600});
        row("right bottom, clamped", {100, 75, 301, 226}, {399, 299}, {400, 300, 1200, 900});
    }
    void releases() { runRow(); }

    void resizes_data()
    {
        const DataTable row([](const QRect& before, const QSize& oldSize, const QSize& newSize,
                               const QRect& expected) {
            const LabelGeometry resized{newSize, geometry.sensor, newSize};
            QCOMPARE(bandForResize(before, oldSize, resized), expected);
        });
        const QSize small(380, 285);
        const QSize large(400, 300);
        row("scaled", {50, 30, 60, 40}, small, large, {53, 32, 63, 42});
        row("full stays full", {0, 0, 380, 285}, small, large, {0, 0, 400, 300});
        row("full in width only", {0, 0, 350, 264}, small, large, {0, 0, 400, 278});
        row("cut behind the old left", {300, 30, 79, 40}, small, large, {316, 32, 83, 42});
        row("wider margin", {50, 30, 60, 40}, {500, 300}, {520, 300}, {50, 30, 60, 40});
    }
    void resizes() { runRow(); }
};

QTEST_APPLESS_MAIN(EdgeDragTest)

#include "EdgeDragTest.moc"
