#include "DataTable.h"
#include "regions/automatic/AutoRegionRules.h"
#include "regions/automatic/ExposureLimits.h"
#include "regions/image/AxisRules.h"
#include "regions/label/EdgeDrag.h"

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

class RegionRulesTest : public QObject
{
    Q_OBJECT

private slots:
    void limitsAoi()
    {
        QCOMPARE(aoiHeightLimit(1080.0, 4.0, 16.0, 2.0), 1082.0);
        QCOMPARE(aoiHeightLimit(1081.0, 4.0, 16.0, 2.0), 1067.0);
        QCOMPARE(aoiHeightLimit(1081.0, 0.0, 16.0, 0.0), 1081.0);
        QCOMPARE(aoiWidthLimit(1081.0, 4.0, 3.0), 1084.0);
    }

    void namesProblems()
    {
        const auto edges = [](double left, double top, double right, double bottom) {
            return AutoRegion{spanBetween(left, right), spanBetween(top, bottom)};
        };
        QCOMPARE(edgeProblems(edges(10, 10, 10, 10), {10, 10}), QString());
        QCOMPARE(edgeProblems(edges(5, 0, 4, 10), {10, 10}), QString("Left > Right! "));
        QCOMPARE(edgeProblems(edges(13, 13, 12, 12), {10, 11}),
                 QString("\nTop > Bottom! \nTop > ROI Height! \nBottom > ROI Height! "
                         "Left > Right! Left > ROI Width! Right > ROI Width! "));
        const AutoRegion sized{{8.0, 95.0}, {0.0, 10.0}};
        QCOMPARE(sizeProblem(sized, {3.0, 0.0}, {100, 10}, "AOI"), QString());
        QCOMPARE(sizeProblem(sized, {2.0, 0.0}, {100, 10}, "AOI"),
                 QString("Invalid settings:\nWidth + OffsetX > AOI Width"));
        QCOMPARE(sizeProblem(sized, {3.0, 0.0}, {100, 9}, "ROI"),
                 QString("Invalid settings:\nHeight + OffsetY > ROI Height"));
    }

    void roundsExposureLimits()
    {
        QCOMPARE(exposureLimitToWrite(10.0, 0.01, 2, 2), double(10.005F));
        QCOMPARE(exposureLimitToWrite(10.0, 1.0, 2, 0), 10.5);
        QCOMPARE(exposureLimitToWrite(10.0, 1.0, 0, 2), 10.0);
        QCOMPARE(exposureLimitToWrite(10.0, 0.0, 2, 2), 10.0);
        QVERIFY(qIsFinite(exposureLimitToWrite(1e300, 1.0, 2, 2)));
    }

    void judgesEdges()
    {
        const auto isJudged = [](double top, double bottom, const Span<int>& drawn) {
            const AutoRegion area{{0.0, 10.0}, spanBetween(top, bottom)};
            const bool isDrawnSo = spanOf(drawnByEdges(area, {10, 20}), Qt::Vertical) == drawn;
            return isDrawnSo && hasValidEdges(area, {10, 20}) == (drawn.length > 0);
        };
        QVERIFY(isJudged(0, 20, {0, 20}));
        QVERIFY(isJudged(5, 5, {5, 0}));
        QVERIFY(isJudged(9, 5, {5, 0}));
        QVERIFY(isJudged(30, 40, {20, 0}));
    }

    /// The camera takes what is as thin as its grid; nothing else is moved.
    void keepsEdgesApart()
    {
        const auto kept = [](double start, double length) {
            return keptApart({start, length}, 100, 8);
        };
        QVERIFY((kept(13, 20) == Span<double>{13, 20}));
        QVERIFY((kept(14, 4) == Span<double>{14, 4})); // across a grid point
        QVERIFY((kept(17, 4) == Span<double>{17, 8})); // between grid points
        QVERIFY((kept(100, 0) == Span<double>{92, 8}));
        QVERIFY(writesFarEdgeFirst({1.0, 4.0}, {4.0, 4.0}));
        QVERIFY(!writesFarEdgeFirst({1.0, 4.0}, {4.0, 1.0}));
    }

    void drawsWithoutTheOrigin()
    {
        const QPointF origin(8.0, 4.0);
        const AutoRegion area = fromLabel({20, 10, 70, 50}, origin);
        QCOMPARE(area.horizontal.end(), 98.0);
        QCOMPARE(area.vertical.end(), 64.0);
        QVERIFY((drawnBySize(area, origin, {60, 100}) == QRect(20, 10, 60, 50)));
        QVERIFY((drawnBySize(area, origin, {15, 100}) == QRect(15, 10, 15, 50)));
    }

    void snaps()
    {
        QCOMPARE(snappedUp(13.0, {8.0, 4.0}), 16.0);
        QCOMPARE(snappedUp(16.0, {8.0, 4.0}), 16.0);
        QCOMPARE(snappedUp(3.0, {8.0, 4.0}), 4.0); // up, below the minimum too
        QCOMPARE(snappedUp(-5.0, {-8.0, 4.0}), -4.0);
        QCOMPARE(snappedUp(13.0, {8.0, 0.9}), 13.0); // the step truncates to 0
        QCOMPARE(snappedUp(13.0, {8.9, 4.9}), 16.0);
        QCOMPARE(snappedUp(1e300, {0.0, 1.0}), 1e300);
    }

    /// What the camera does not tell stays unknown.
    void evensOffsets()
    {
        Reading<double> told;
        told.minimum = 1.0;
        told.maximum = 99.0;
        told.increment = 1.0;
        const Reading<double> even = evenOffsets(told);
        QCOMPARE(*even.minimum, 2.0);
        QCOMPARE(*even.maximum, 100.0);
        QCOMPARE(*even.increment, 2.0);
        told.minimum = 3.0;
        told.increment = 4.0;
        QCOMPARE(*evenOffsets(told).minimum, 3.0);
        QCOMPARE(*evenOffsets(told).increment, 4.0);
        QVERIFY(needsEvenSize("/ImageFormat", "YUV422"));
        QVERIFY(!needsEvenSize("/ImageFormat/AOI", "BayerRG8"));
        QVERIFY(!evenOffsets({}).minimum && !evenOffsets({}).maximum && !evenOffsets({}).increment);
    }

    void staysOnTheSensor()
    {
        QVERIFY((onSensor({8.0, 100.0}, 64.0) == Span<double>{8.0, 56.0}));
        QVERIFY((onSensor({512.0, 1008.0}, 512.0) == Span<double>{512.0, 0.0}));
        QCOMPARE(cutToMaximum(80.0, 8.0, 64.0), 56.0);
        QVERIFY(
            (overflowCorrected({40.0, 32.0}, 64.0, {8.0, 8.0}, 4.0) == Span<double>{36.0, 24.0}));
        QVERIFY(
            (overflowCorrected({32.0, 32.0}, 64.0, {8.0, 8.0}, 4.0) == Span<double>{32.0, 32.0}));
        QVERIFY((centredSpan(1001.0, 0.25) == Span<double>{375.5, 250.0}));
    }

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

QTEST_APPLESS_MAIN(RegionRulesTest)
#include "RegionRulesTest.moc"
