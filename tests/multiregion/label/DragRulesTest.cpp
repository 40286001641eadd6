#include "DataTable.h"
#include "RectText.h"
#include "multiregion/label/DragChanges.h"
#include "multiregion/label/HandleDrag.h"
#include "multiregion/label/RegionRanges.h"

#include <QRandomGenerator>

namespace {

constexpr auto leading = BandEdge::Leading;
constexpr auto trailing = BandEdge::Trailing;

/// By their numbers: inside, left, right, top, bottom, then the corners of the top and the bottom.
const HandleGrab grabs[] = {{},
                            {leading, {}},
                            {trailing, {}},
                            {{}, leading},
                            {{}, trailing},
                            {leading, leading},
                            {trailing, leading},
                            {leading, trailing},
                            {trailing, trailing}};

int numberOf(const HandleGrab& grab)
{
    int number = 0;
    while (grabs[number].horizontal != grab.horizontal || grabs[number].vertical != grab.vertical)
        ++number;
    return number;
}

} // namespace

namespace {

/// A sensor that is 6.48 and 6.4 times as large as its picture.
const SensorMapping mapping{{2592, 1920}, {400, 300}};

QVector<ShownRegion> regionsAt(const QVector<QRect>& rectangles)
{
    QVector<ShownRegion> regions;
    for (const QRect& rectangle : rectangles)
        regions << ShownRegion{regions.size(), rectangle, labelRect(rectangle, mapping), {}};
    return regions;
}

/// The band of region @p number dragged.
QVector<ShownRegion> dragged(QVector<ShownRegion> regions, int number, const QRect& band)
{
    regions[number].band = band;
    return regions;
}

QStringList texts(const QVector<RegionChange>& changes)
{
    QStringList result;
    for (const RegionChange& change : changes)
        result << QString("%1: %2").arg(change.region).arg(text(change.rectangle));
    return result;
}

} // namespace

class DragRulesTest : public QObject
{
    Q_OBJECT

private slots:
    /// The modes along a row or a column of pixels, one digit a pixel.
    void hits_data()
    {
        const DataTable row(
            [](const QRect& band, const QPoint& from, const QPoint& step, const QString& expected) {
                QString result;
                for (int i = 0; i < expected.size(); ++i)
                    result += QString::number(numberOf(handleGrabAt(band, from + i * step)));
                QCOMPARE(result, expected);
            });
        const QRect band(10, 20, 12, 14);
        const QPoint right(1, 0);
        const QPoint down(0, 1);
        row("middle row", band, {9, 26}, right, "01111000222200");
        row("top row", band, {9, 20}, right, "35555333666633");
        row("bottom zone", band, {9, 32}, right, "47777444888844");
        row("last row", band, {9, 33}, right, "01111000222200");
        row("middle column", band, {16, 19}, down, "0333300000444400");
        row("narrow", {10, 20, 5, 14}, {9, 26}, right, "0222200");
        row("flat", {10, 20, 12, 5}, {16, 19}, down, "0333300");
    }
    void hits() { runRow(); }

    /// Band (50, 60) to (149, 109); minimum 20 x 10, maximum 200 x 80.
    void resizes_data()
    {
        const DataTable row(
            [](int grab, const QPoint& point, const QPoint& topLeft, const QPoint& bottomRight) {
                QCOMPARE(resizedRegionBand(QRect(50, 60, 100, 50), grabs[grab], point,
                                           {{20, 10}, {200, 80}}),
                         QRect(topLeft, bottomRight));
            });
        row("left", 1, {30, 0}, {30, 60}, {149, 109});
        row("left to the minimum", 1, {300, 0}, {129, 60}, {149, 109});
        row("left over the border and the maximum", 1, {-400, 0}, {0, 60}, {149, 109});
        row("right to the minimum", 2, {0, 0}, {50, 60}, {70, 109});
        row("right to the maximum", 2, {390, 0}, {50, 60}, {250, 109});
        row("top to the minimum", 3, {0, 300}, {50, 99}, {149, 109});
        row("bottom to the maximum", 4, {0, 300}, {50, 60}, {149, 140});
        row("top right within the maximum", 6, {390, 0}, {50, 29}, {250, 109});
        row("top right turned over", 6, {-5, 70}, {50, 70}, {0, 109});
        row("bottom right", 8, {160, 120}, {50, 60}, {160, 120});
    }
    void resizes() { runRow(); }

    /// Regions 0 and 1 share rows 100 to 149 of an image of 300; region 1 has these limits.
    void boundsLines_data()
    {
        const DataTable row([](BandEdge edge, const QVector<Span<int>>& others,
                               const AxisLimits& limits, int lower, int upper) {
            const Span<int> shared{100, 50};
            QVector<ShownRegion> regions{{0, {0, 100, 10, 50}, {}, {}},
                                         {1, {20, 100, 10, 50}, {}, {{}, limits}}};
            for (const Span<int>& other : others)
                regions.append({regions.size(), {40, other.start, 10, other.length}, {}, {}});
            const LineBounds bounds = lineBounds(regions, {ConstraintGroup::Row, {0, 1}}, edge,
                                                 {{300, 300}, {300, 300}});
            QCOMPARE(bounds.lower, lower);
            QCOMPARE(bounds.upper, upper);
            QCOMPARE(spanForLine(edge, linePosition(edge, shared), shared), shared);
        });
        const QVector<Span<int>> others{{10, 30}, {20, 60}, {200, 20}, {230, 60}, {90, 100}};
        const AxisLimits wide{10, 300, 1, 1};
        const AxisLimits narrow{10, 20, 1, 1}; // of the size at offset 100: 120 in all
        row("leading, image", leading, {}, wide, 0, 140);
        row("leading, neighbour", leading, others, wide, 80, 140);
        row("leading, maximum", leading, {}, narrow, 30, 140);
        row("trailing, image", trailing, {}, wide, 108, 298);
        row("trailing, maximum", trailing, {}, narrow, 108, 218);
        row("no room", leading, others, {75, 300, 1, 1}, 80, 80);
    }
    void boundsLines() { runRow(); }

    /// A band at 100, its lines and another one at @p positions; the pixels from 97 on that are the
    /// lines'.
    void grabsLines_data()
    {
        const DataTable row([](int length, const QVector<int>& positions, const QString& expected) {
            const Span<int> band{100, length};
            QString result;
            for (int point = 95; point < 95 + expected.size(); ++point) {
                const bool isNear
                    = std::any_of(positions.begin(), positions.end(), [point](int line) {
                          return grabDistance(line, point).has_value();
                      });
                const bool isOn = point >= band.start && point < band.end();
                result += isNear && (!isOn || isForLines(band, point, positions)) ? 'x' : '.';
            }
            QCOMPARE(result, expected);
        });
        row("none", 12, {100, 110}, ".xxxxxxxx....xxxxxxxx.");
        row("thin", 3, {100, 101}, ".xxxxx.xxxxx.");
        row("thinnest", 2, {100, 100}, ".xxxx..xxxx.");
        row("between neighbours", 8, {98, 100, 106, 108}, "xxxxxxx....xxxxxxxx");
    }
    void grabsLines() { runRow(); }

    void placesEdges()
    {
        // Neighbours share an edge on the label at every scale.
        for (int x = 1; x < 2592; ++x) {
            const QRect left = labelRect({0, 0, x, 10}, mapping);
            const QRect right = labelRect({x, 0, 2592 - x, 10}, mapping);
            if (x > 3 && x < 2589)
                QCOMPARE(left.x() + left.width(), right.x());
            QVERIFY(left.width() >= 1 && right.width() >= 1);
        }
        QCOMPARE(labelRect({0, 0, 2592, 1920}, mapping), QRect(0, 0, 400, 300));
        QCOMPARE(labelRect({5, 5, 10, 10}, {{0, 0}, {400, 300}}).size(), QSize(1, 1));
        labelRect({INT_MAX - 10, 0, 10, 1}, {{1, 1}, {INT_MAX, 1}});
    }

    /// Stored (648, 640) 650 x 480, which is (100, 100) to (200, 175) on the label; delta of the
    /// band's left, top, right and bottom edges.
    void converts_data()
    {
        const DataTable row([](const QVector<int>& delta, int increment, const QRect& neighbour,
                               const QString& expected) {
            const QRect stored(648, 640, 650, 480);
            const QRect placed = labelRect(stored, mapping);
            QCOMPARE(placed, QRect(100, 100, 100, 75));
            const QRect band = placed.adjusted(delta[0], delta[1], delta[2], delta[3]);
            const AxisLimits limits{16, 2592, increment, increment};
            QVector<ShownRegion> shown{{0, stored, band, {limits, limits}}};
            if (neighbour.isValid())
                shown.append({1, neighbour, labelRect(neighbour, mapping), {}});
            QCOMPARE(texts(changesAfterBandDrag(shown, {}, mapping, 0)),
                     QStringList("0: " + expected));
        });
        row("right edge at the border", {0, 0, 200, 0}, 1, {}, "648,640 1944x480");
        row("left edge on the increment", {10, 0, 0, 0}, 8, {}, "712,640 586x480");
        row("left edge at the border", {-100, 0, 0, 0}, 8, {}, "0,640 1298x480");
        row("left edge to the minimum", {99, 0, 0, 0}, 8, {}, "1280,640 18x480");
        row("bottom edge", {0, 0, 0, 10}, 1, {}, "648,640 650x544");
        row("right edge to the minimum", {0, 0, -99, 0}, 1, {}, "648,640 16x480");
        row("moved on the increment", {10, 0, 10, 0}, 8, {}, "712,640 650x480");
        row("moved to the far border", {200, 125, 200, 125}, 1, {}, "1942,1440 650x480");
        // The band's right edge goes to 210, sensor pixel 1361; the neighbour's left edge rounds to
        // 210 as well.
        const QRect right(1358, 700, 100, 100);
        const QRect left(400, 700, 186, 100);
        row("off the right neighbour", {0, 0, 10, 0}, 8, right, "648,640 704x480");
        row("off the left neighbour", {-10, 0, 0, 0}, 8, left, "592,640 706x480");
        row("moved right", {10, 0, 10, 0}, 8, right, "704,640 650x480");
        row("below", {0, 0, 0, 10}, 8, {700, 1182, 100, 100}, "648,640 650x536");
    }
    void converts() { runRow(); }

    /// Bands that do not overlap on the label never give regions that do, at any scale.
    void neverMakesOverlaps()
    {
        QRandomGenerator random(20);
        const auto between = [&random](int low, int high) { return random.bounded(low, high + 1); };
        for (int i = 0; i < 20000; ++i) {
            const SensorMapping scale{{between(20, 9000), between(20, 9000)},
                                      {between(20, 900), between(20, 900)}};
            const auto anyRect = [&](const QSize& size) {
                const int x = between(0, size.width() - 2);
                const int y = between(0, size.height() - 2);
                return QRect(x, y, between(1, size.width() - x), between(1, size.height() - y));
            };
            const QRect stored = anyRect(scale.sensor);
            const QRect other = anyRect(scale.sensor);
            const AxisLimits limits{between(1, 16), 9000, between(1, 16), between(1, 16)};
            ShownRegion dragged{0, stored, anyRect(scale.shown), {limits, limits}};
            if (between(0, 1))
                dragged.band.setSize(labelRect(stored, scale).size());
            const ShownRegion neighbour{1, other, labelRect(other, scale), {}};
            const auto changes = changesAfterBandDrag({dragged, neighbour}, {}, scale, 0);
            const QRect result = changes.first().rectangle;
            QVERIFY(result == stored || QRect(QPoint(), scale.sensor).contains(result));
            if (!overlap(stored, other) && !overlap(dragged.band, neighbour.band))
                QVERIFY2(!overlap(result, other), qPrintable(text(result) + " " + text(other)));
        }
    }

    void groupsFollow()
    {
        const auto row = constraintGroups(ArrangementMode::Horizontal, {0, 1, 2});
        QVector<ShownRegion> regions
            = regionsAt({{0, 640, 648, 640}, {1296, 640, 648, 640}, {1944, 320, 324, 640}});
        const auto after = [&](int region, const QRect& band) {
            return texts(
                changesAfterBandDrag(dragged(regions, region, band), row, mapping, region));
        };
        // The master takes the row along, and the last member into line.
        QCOMPARE(after(0, {0, 110, 100, 100}),
                 (QStringList{"0: 0,704 648x640", "1: 1296,704 648x640", "2: 1944,704 324x640"}));
        // A member in line takes the row along too; one out of line joins it.
        QCOMPARE(after(1, {200, 90, 100, 110}),
                 (QStringList{"1: 1296,576 648x704", "0: 0,576 648x704", "2: 1944,576 324x704"}));
        QCOMPARE(after(2, {310, 50, 50, 100}), QStringList("2: 2009,640 324x640"));
        // Unchanged: only the region itself, as it is stored.
        QCOMPARE(after(2, regions[2].band), QStringList("2: 1944,320 324x640"));
        // A member stays where it would come to lie on another one.
        regions[2].rectangle = {1300, 0, 324, 320};
        QCOMPARE(after(0, {0, 110, 100, 100}),
                 (QStringList{"0: 0,704 648x640", "1: 1296,704 648x640"}));
    }

    void linesReportEachMember()
    {
        const auto tile = constraintGroups(ArrangementMode::Tile, {0, 1, 2, 3});
        const QVector<ShownRegion> regions = regionsAt({{0, 0, 1296, 643},
                                                        {1296, 0, 1296, 643},
                                                        {0, 640 + 11, 1296, 640},
                                                        {1296, 640 + 11, 1296, 640}});
        const auto after = [&](int bottom) {
            return texts(
                changesAfterLineDrag(dragged(regions, 0, {0, 0, 200, bottom}), tile[0], mapping));
        };
        // The edge at 102 is sensor pixel 653, which lies in the second row: it stops before it.
        QCOMPARE(after(102), (QStringList{"0: 0,0 1296x651", "1: 1296,0 1296x651"}));
        QCOMPARE(after(90), (QStringList{"0: 0,0 1296x576", "1: 1296,0 1296x576"}));
        QVERIFY(after(100).isEmpty());
    }

    void membersNeedRoomToFollow()
    {
        QVERIFY(constraintGroups(ArrangementMode::Tile, {1, 2}).isEmpty());
        const auto row = constraintGroups(ArrangementMode::Tile, {0, 1, 3});
        QVector<ShownRegion> regions
            = regionsAt({{0, 0, 1296, 640}, {1296, 0, 1296, 640}, {}, {1296, 700, 1296, 640}});
        regions.remove(2);
        QVERIFY(membersCanFollow(regions, row, 0, {0, 0, 200, 105}));
        QVERIFY(!membersCanFollow(regions, row, 0, {0, 20, 200, 100}));
    }
};

QTEST_GUILESS_MAIN(DragRulesTest)
#include "DragRulesTest.moc"
