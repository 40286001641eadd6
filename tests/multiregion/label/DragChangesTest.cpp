#include "multiregion/label/DragChanges.h"
#include "DataTable.h"
#include "RectText.h"
#include "multiregion/label/RegionRanges.h"

#include <QRandomGenerator>

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

class DragChangesTest : public QObject
{
    Q_OBJECT

private slots:
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
        // So does the edge of a member, for the sake of the other one.
        QVector<ShownRegion> apart = dragged(regions, 0, {0, 0, 200, 102});
        apart[2].rectangle = {0, 800, 1296, 640};
        QCOMPARE(texts(changesAfterBandDrag(apart, tile, mapping, 0)),
                 (QStringList{"0: 0,0 1296x651", "1: 1296,0 1296x651"}));
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

QTEST_GUILESS_MAIN(DragChangesTest)
#include "DragChangesTest.moc"
