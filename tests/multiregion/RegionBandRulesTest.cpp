#include "multiregion/ConstraintGroups.h"
#include "multiregion/ConstraintLineRules.h"
#include "multiregion/RegionBandDrag.h"

#include <QtTest>

Q_DECLARE_METATYPE(MoveConstraints)
Q_DECLARE_METATYPE(LineSurroundings)
Q_DECLARE_METATYPE(LineEdge)

class RegionBandRulesTest : public QObject
{
    Q_OBJECT

private slots:
    /// The modes along a row or a column of pixels, one digit a pixel.
    void hits_data()
    {
        QTest::addColumn<QRect>("band");
        QTest::addColumn<QPoint>("from");
        QTest::addColumn<QPoint>("step");
        QTest::addColumn<QString>("expected");
        const QRect band(10, 20, 12, 14);
        const QPoint right(1, 0);
        const QPoint down(0, 1);
        QTest::newRow("middle row") << band << QPoint(9, 26) << right << "01111000222200";
        QTest::newRow("top row") << band << QPoint(9, 20) << right << "35555333666633";
        QTest::newRow("below the top zone") << band << QPoint(9, 24) << right << "01111000222200";
        QTest::newRow("bottom zone") << band << QPoint(9, 32) << right << "47777444888844";
        QTest::newRow("last row") << band << QPoint(9, 33) << right << "01111000222200";
        QTest::newRow("middle column") << band << QPoint(16, 19) << down << "0333300000444400";
        QTest::newRow("left column") << band << QPoint(10, 19) << down << "1555511111777711";
        QTest::newRow("narrow") << QRect(10, 20, 5, 14) << QPoint(9, 26) << right << "0222200";
        QTest::newRow("flat") << QRect(10, 20, 12, 5) << QPoint(16, 19) << down << "0333300";
    }

    void hits()
    {
        QFETCH(QRect, band);
        QFETCH(QPoint, from);
        QFETCH(QPoint, step);
        QFETCH(QString, expected);
        QString result;
        for (int i = 0; i < expected.size(); ++i)
            result += QString::number(static_cast<int>(regionBandGrabAt(band, from + i * step)));
        QCOMPARE(result, expected);
    }

    void moves_data()
    {
        QTest::addColumn<QPoint>("delta");
        QTest::addColumn<MoveConstraints>("constraints");
        QTest::addColumn<QPoint>("expected");
        using D = MoveDirection;
        const MoveConstraints none;
        const MoveConstraints row{{D::Up, D::Down}, {-1, -1}};
        const MoveConstraints left{{D::Left}, {-1, -1}};
        const MoveConstraints bound{{}, {30, 40}};
        QTest::newRow("freely") << QPoint(5, -7) << none << QPoint(55, 53);
        QTest::newRow("to the far border") << QPoint(900, 900) << none << QPoint(300, 250);
        QTest::newRow("one pixel over the near border")
            << QPoint(-900, -900) << none << QPoint(-1, -1);
        QTest::newRow("along a row") << QPoint(5, 7) << row << QPoint(55, 60);
        QTest::newRow("not back") << QPoint(-5, 7) << left << QPoint(50, 67);
        QTest::newRow("onward") << QPoint(5, 7) << left << QPoint(55, 67);
        QTest::newRow("to the bound") << QPoint(-90, -90) << bound << QPoint(30, 40);
    }

    void moves()
    {
        QFETCH(QPoint, delta);
        QFETCH(MoveConstraints, constraints);
        QFETCH(QPoint, expected);
        QCOMPARE(movedRegionBand({50, 60, 100, 50}, delta, {400, 300}, constraints),
                 QRect(expected, QSize(100, 50)));
    }

    /// Band (50, 60) to (149, 109); minimum 20 x 10, maximum 200 x 80.
    void resizes_data()
    {
        QTest::addColumn<int>("grab");
        QTest::addColumn<QPoint>("point");
        QTest::addColumn<QRect>("expected");
        const auto row = [](const char* name, int grab, const QPoint& point, const QPoint& topLeft,
                            const QPoint& bottomRight) {
            QTest::newRow(name) << grab << point << QRect(topLeft, bottomRight);
        };
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

    void resizes()
    {
        QFETCH(int, grab);
        QFETCH(QPoint, point);
        QFETCH(QRect, expected);
        QCOMPARE(resizedRegionBand(QRect(50, 60, 100, 50), static_cast<RegionBandGrab>(grab), point,
                                   {{20, 10}, {200, 80}}),
                 expected);
    }

    void groups_data()
    {
        QTest::addColumn<QString>("mode");
        QTest::addColumn<QVector<int>>("shown");
        QTest::addColumn<QStringList>("expected");
        QTest::newRow("row") << "Horizontal" << QVector<int>{0, 2, 5} << QStringList{"R 0 2 5"};
        QTest::newRow("column") << "Vertical" << QVector<int>{1, 2} << QStringList{"C 1 2"};
        QTest::newRow("single") << "Vertical" << QVector<int>{1} << QStringList();
        QTest::newRow("free") << "Free" << QVector<int>{0, 1} << QStringList();
        QTest::newRow("tile") << "Tile" << QVector<int>{0, 1, 2, 3, 4}
                              << QStringList{"R 0 1", "R 2 3", "C 0 2 4", "C 1 3"};
        QTest::newRow("odd neighbours share no row")
            << "Tile" << QVector<int>{1, 2} << QStringList();
    }

    void groups()
    {
        QFETCH(QString, mode);
        QFETCH(QVector<int>, shown);
        QStringList result;
        for (const ConstraintGroup& group : constraintGroups(arrangementMode(mode), shown)) {
            result << (group.kind == ConstraintGroup::Row ? "R" : "C");
            for (const int member : group.members)
                result.last() += QString(" %1").arg(member);
        }
        QTEST(result, "expected");
    }

    void sharesFeatures()
    {
        const auto tile = constraintGroups(ArrangementMode::Tile, {0, 1, 2, 3});
        QCOMPARE(sharedFeatures(0, tile), QStringList());
        QCOMPARE(sharedFeatures(1, tile), (QStringList{"SubRegionOffsetY", "SubRegionHeight"}));
        QCOMPARE(sharedFeatures(2, tile), (QStringList{"SubRegionOffsetX", "SubRegionWidth"}));
        QCOMPARE(sharedFeatures(3, tile).size(), 4);
    }

    /// A group at 100 to 149 on an image of 300 pixels.
    void boundsLines_data()
    {
        QTest::addColumn<LineEdge>("edge");
        QTest::addColumn<LineSurroundings>("surroundings");
        QTest::addColumn<int>("lower");
        QTest::addColumn<int>("upper");
        const QVector<RegionSpan> others{{10, 30}, {20, 60}, {200, 20}, {230, 60}, {90, 100}};
        const RegionSpan group{100, 50};
        const auto row = [&](const char* name, LineEdge edge, const LineSurroundings& s, int lower,
                             int upper) { QTest::newRow(name) << edge << s << lower << upper; };
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

    void boundsLines()
    {
        QFETCH(LineEdge, edge);
        QFETCH(LineSurroundings, surroundings);
        const LineBounds bounds = lineBounds(edge, surroundings);
        QTEST(bounds.lower, "lower");
        QTEST(bounds.upper, "upper");
        // The present place of a line is within its bounds unless a bound is broken already.
        if (surroundings.maximum >= 50)
            QCOMPARE(spanForLine(edge, linePosition(edge, {100, 50}), {100, 50}),
                     (RegionSpan{100, 50}));
    }

    void grabsLines()
    {
        QString near;
        for (int point = 94; point < 109; ++point)
            near += grabDistance(100, point) ? "x" : ".";
        QCOMPARE(near, QString("..xxxxxxxxxx..."));
    }

    void linesConstrain_data()
    {
        QTest::addColumn<bool>("ownGroup");
        QTest::addColumn<bool>("master");
        QTest::addColumn<LineEdge>("edge");
        QTest::addColumn<int>("position");
        QTest::addColumn<int>("blocked");
        QTest::addColumn<QPoint>("bound");
        const QPoint none(-1, -1);
        const LineEdge leading = LineEdge::Leading;
        const LineEdge trailing = LineEdge::Trailing;
        QTest::newRow("aligned") << true << false << leading << 100 << 2 << none;
        QTest::newRow("within a pixel") << true << false << leading << 101 << 2 << none;
        QTest::newRow("misaligned") << true << false << leading << 102 << 0 << none;
        QTest::newRow("aligned at the end") << true << false << trailing << 148 << 2 << none;
        QTest::newRow("master") << true << true << leading << 100 << 0 << none;
        QTest::newRow("before") << false << false << trailing << 60 << 0 << QPoint(-1, 62);
        QTest::newRow("touching") << false << false << trailing << 98 << 0 << QPoint(-1, 100);
        QTest::newRow("across") << false << false << trailing << 99 << 0 << none;
        QTest::newRow("leading") << false << false << leading << 60 << 0 << none;
    }

    /// A band at rows 100 to 149.
    void linesConstrain()
    {
        QFETCH(bool, ownGroup);
        QFETCH(bool, master);
        QFETCH(LineEdge, edge);
        QFETCH(int, position);
        QFETCH(QPoint, bound);
        const MoveConstraints rows = constraintsFromLine(
            {Qt::Vertical, edge, position, ownGroup, master}, {30, 100, 40, 50});
        QTEST(rows.blocked.size(), "blocked");
        QCOMPARE(rows.lowerBound, bound);
        const MoveConstraints columns = constraintsFromLine(
            {Qt::Horizontal, edge, position, ownGroup, master}, {100, 30, 50, 40});
        QVERIFY(!columns.blocked.intersects(rows.blocked));
        QCOMPARE(columns.lowerBound, QPoint(bound.y(), -1));
    }
};

QTEST_GUILESS_MAIN(RegionBandRulesTest)
#include "RegionBandRulesTest.moc"
