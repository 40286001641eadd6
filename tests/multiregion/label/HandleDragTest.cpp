#include "multiregion/label/HandleDrag.h"
#include "DataTable.h"
#include "multiregion/label/RegionRanges.h"

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

class HandleDragTest : public QObject
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
};

QTEST_GUILESS_MAIN(HandleDragTest)
#include "HandleDragTest.moc"
