#include "multiregion/label/HandleDrag.h"
#include "DataTable.h"
#include "multiregion/label/ConstraintLineRules.h"
#include "multiregion/rules/ConstraintGroups.h"

class HandleDragTest : public QObject
{
    Q_OBJECT

private slots:
    /// The modes along a row or a column of pixels, one digit a pixel.
    void hits_data()
    {
        const DataTable row([](const QRect& band, const QPoint& from, const QPoint& step,
                               const QString& expected) {
            QString result;
            for (int i = 0; i < expected.size(); ++i)
                result += QString::number(static_cast<int>(handleGrabAt(band, from + i * step)));
            QCOMPARE(result, expected);
        });
        const QRect band(10, 20, 12, 14);
        const QPoint right(1, 0);
        const QPoint down(0, 1);
        row("middle row", band, {9, 26}, right, "01111000222200");
        row("top row", band, {9, 20}, right, "35555333666633");
        row("below the top zone", band, {9, 24}, right, "01111000222200");
        row("bottom zone", band, {9, 32}, right, "47777444888844");
        row("last row", band, {9, 33}, right, "01111000222200");
        row("middle column", band, {16, 19}, down, "0333300000444400");
        row("left column", band, {10, 19}, down, "1555511111777711");
        row("narrow", {10, 20, 5, 14}, {9, 26}, right, "0222200");
        row("flat", {10, 20, 12, 5}, {16, 19}, down, "0333300");
    }
    void hits() { runRow(); }

    void moves_data()
    {
        const DataTable row(
            [](const QPoint& delta, const MoveConstraints& constraints, const QPoint& expected) {
                QCOMPARE(movedRegionBand({50, 60, 100, 50}, delta, {400, 300}, constraints),
                         QRect(expected, QSize(100, 50)));
            });
        using D = MoveDirection;
        const MoveConstraints none;
        const MoveConstraints sideways{{D::Up, D::Down}, {-1, -1}};
        const MoveConstraints left{{D::Left}, {-1, -1}};
        const MoveConstraints bound{{}, {30, 40}};
        row("freely", {5, -7}, none, {55, 53});
        row("to the far border", {900, 900}, none, {300, 250});
        row("one pixel over the near border", {-900, -900}, none, {-1, -1});
        row("along a row", {5, 7}, sideways, {55, 60});
        row("not back", {-5, 7}, left, {50, 67});
        row("onward", {5, 7}, left, {55, 67});
        row("to the bound", {-90, -90}, bound, {30, 40});
    }
    void moves() { runRow(); }

    /// Band (50, 60) to (149, 109); minimum 20 x 10, maximum 200 x 80.
    void resizes_data()
    {
        const DataTable row(
            [](int grab, const QPoint& point, const QPoint& topLeft, const QPoint& bottomRight) {
                QCOMPARE(resizedRegionBand(QRect(50, 60, 100, 50), static_cast<HandleGrab>(grab),
                                           point, {{20, 10}, {200, 80}}),
                         QRect(topLeft, bottomRight));
            });
        row("left", 1, {30, 0}, {30, 60}, {149, 109});
        row("left to the minimum", 1, {300, 0}, {129, 60}, {149, 109});
        row("left over the border and the maximum", 1, {-400, 0}, {0, 60}, {149, 109});
        row("right", 2, {200, 0}, {50, 60}, {200, 109});
        row("right to the minimum", 2, {0, 0}, {50, 60}, {70, 109});
        row("right to the maximum", 2, {390, 0}, {50, 60}, {250, 109});
        row("top", 3, {0, 55}, {50, 55}, {149, 109});
        row("top to the minimum", 3, {0, 300}, {50, 99}, {149, 109});
        row("bottom to the maximum", 4, {0, 300}, {50, 60}, {149, 140});
        row("bottom to the minimum", 4, {0, 0}, {50, 60}, {149, 70});
        row("top left", 5, {40, 40}, {40, 40}, {149, 109});
        row("top right", 6, {170, 50}, {50, 50}, {170, 109});
        row("top right within the maximum", 6, {390, 0}, {50, 29}, {250, 109});
        row("top right below the minimum", 6, {60, 300}, {50, 99}, {60, 109});
        row("top right turned over", 6, {-5, 70}, {50, 70}, {0, 109});
        row("bottom left", 7, {40, 120}, {40, 60}, {149, 120});
        row("bottom right", 8, {160, 120}, {50, 60}, {160, 120});
    }
    void resizes() { runRow(); }

    void groups_data()
    {
        const DataTable row([](const QString& mode, const QVector<int>& shown,
                               const QStringList& expected) {
            QStringList result;
            for (const ConstraintGroup& group : constraintGroups(arrangementMode(mode), shown)) {
                result << (group.kind == ConstraintGroup::Row ? "R" : "C");
                for (const int member : group.members)
                    result.last() += QString(" %1").arg(member);
            }
            QCOMPARE(result, expected);
        });
        row("row", "Horizontal", {0, 2, 5}, {"R 0 2 5"});
        row("column", "Vertical", {1, 2}, {"C 1 2"});
        row("single", "Vertical", {1}, {});
        row("free", "Free", {0, 1}, {});
        row("tile", "Tile", {0, 1, 2, 3, 4}, {"R 0 1", "R 2 3", "C 0 2 4", "C 1 3"});
        row("odd neighbours share no row", "Tile", {1, 2}, {});
    }
    void groups() { runRow(); }

    /// A group at 100 to 149 on an image of 300 pixels.
    void boundsLines_data()
    {
        const DataTable row(
            [](LineEdge edge, const LineSurroundings& surroundings, int lower, int upper) {
                const LineBounds bounds = lineBounds(edge, surroundings);
                QCOMPARE(bounds.lower, lower);
                QCOMPARE(bounds.upper, upper);
                // Where the line is, is within its bounds unless one is broken already.
                if (surroundings.maximum >= 50)
                    QCOMPARE(spanForLine(edge, linePosition(edge, {100, 50}), {100, 50}),
                             (RegionSpan{100, 50}));
            });
        const QVector<RegionSpan> others{{10, 30}, {20, 60}, {200, 20}, {230, 60}, {90, 100}};
        const RegionSpan group{100, 50};
        const LineEdge leading = LineEdge::Leading;
        const LineEdge trailing = LineEdge::Trailing;
        row("leading, image", leading, {group, {}, 300, 10, 400}, 0, 140);
        row("leading, neighbour", leading, {group, others, 300, 10, 400}, 80, 140);
        row("leading, maximum", leading, {group, others, 300, 10, 60}, 90, 140);
        row("trailing, image", trailing, {group, {}, 300, 10, 400}, 108, 298);
        row("trailing, neighbour", trailing, {group, others, 300, 10, 400}, 108, 198);
        row("trailing, maximum", trailing, {group, others, 300, 10, 60}, 108, 158);
        row("no room", leading, {group, others, 300, 45, 20}, 130, 130);
    }
    void boundsLines() { runRow(); }

    /// A band at 100, its lines and another one at @p positions; the pixels from 97 on that are the
    /// lines'.
    void grabsLines_data()
    {
        const DataTable row([](int length, const QVector<int>& positions, const QString& expected) {
            const RegionSpan band{100, length};
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
        row("one line", 9, {100}, ".xxxxxxxxxx....");
        row("room between two", 13, {100, 111}, ".xxxxxxxxxx.xxxxxxxxxx.");
        row("none", 12, {100, 110}, ".xxxxxxxx....xxxxxxxx.");
        row("thin", 3, {100, 101}, ".xxxxx.xxxxx.");
        row("thinnest", 2, {100, 100}, ".xxxx..xxxx.");
        row("with a neighbour's", 13, {98, 100, 111}, "xxxxxxxxxxx.xxxxxxxxxx.");
        row("between neighbours", 8, {98, 100, 106, 108}, "xxxxxxx....xxxxxxxx");
    }
    void grabsLines() { runRow(); }

    /// The band of region 1 at rows 100 to 149, the line of a group of 0 and 1, of 1 and 2, or of
    /// others.
    void linesConstrain_data()
    {
        const DataTable row([](const QVector<int>& members, LineEdge edge, int position,
                               std::size_t blocked, const QPoint& bound) {
            const MoveConstraints rows = constraintsFromLine({ConstraintGroup::Row, members}, edge,
                                                             position, 1, {30, 100, 40, 50});
            QCOMPARE(rows.blocked.size(), blocked);
            QCOMPARE(rows.lowerBound, bound);
            const MoveConstraints columns = constraintsFromLine(
                {ConstraintGroup::Column, members}, edge, position, 1, {100, 30, 50, 40});
            QCOMPARE(combined(columns, rows).blocked.size(), 2 * blocked);
            QCOMPARE(columns.lowerBound, QPoint(bound.y(), -1));
        });
        const QPoint none(-1, -1);
        const QVector<int> member{0, 1};
        const QVector<int> other{2, 3};
        const LineEdge leading = LineEdge::Leading;
        const LineEdge trailing = LineEdge::Trailing;
        row("aligned", member, leading, 100, 2, none);
        row("within a pixel", member, leading, 101, 2, none);
        row("misaligned", member, leading, 102, 0, none);
        row("aligned at the end", member, trailing, 148, 2, none);
        row("master", {1, 2}, leading, 100, 0, none);
        row("before", other, trailing, 60, 0, {-1, 62});
        row("touching", other, trailing, 98, 0, {-1, 100});
        row("across", other, trailing, 99, 0, none);
        row("leading", other, leading, 60, 0, none);
    }
    void linesConstrain() { runRow(); }
};

QTEST_GUILESS_MAIN(HandleDragTest)
#include "HandleDragTest.moc"
