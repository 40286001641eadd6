#include "DataTable.h"
#include "regions/automatic/AutoRegionRules.h"
#include "regions/automatic/ExposureLimits.h"
#include "regions/image/AxisRules.h"

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

    void judgesEdges_data()
    {
        const DataTable row(
            [](double top, double bottom, bool valid, int drawnTop, int drawnHeight) {
                const AutoRegion region{{0.0, 10.0}, spanBetween(top, bottom)};
                QCOMPARE(hasValidEdges(region, {10, 20}), valid);
                const QRect drawn = drawnByEdges(region, {10, 20});
                QCOMPARE(drawn.y(), drawnTop);
                QCOMPARE(drawn.height(), drawnHeight);
            });
        row("whole", 0, 20, true, 0, 20);
        row("empty", 5, 5, false, 5, 0);
        row("crossed", 9, 5, false, 5, 0);
        row("beyond", 30, 40, false, 20, 0);
    }
    void judgesEdges() { runRow(); }

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
        const AutoRegion region = fromLabel({20, 10, 70, 50}, origin);
        QCOMPARE(region.horizontal.end(), 98.0);
        QCOMPARE(region.vertical.end(), 64.0);
        QVERIFY((drawnBySize(region, origin, {60, 100}) == QRect(20, 10, 60, 50)));
        QVERIFY((drawnBySize(region, origin, {15, 100}) == QRect(15, 10, 15, 50)));
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

    void demandsEvenSizes()
    {
        QVERIFY(needsEvenSize("/ImageFormat", "BayerRG8"));
        QVERIFY(needsEvenSize("/ImageFormat", "YUV422"));
        QVERIFY(!needsEvenSize("/ImageFormat", "bayerRG8"));
        QVERIFY(!needsEvenSize("/ImageFormat/AOI", "BayerRG8"));
        QCOMPARE(raisedToEven(101.0), 102.0);
        QCOMPARE(raisedToEven(102.0), 102.0);
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
};

QTEST_APPLESS_MAIN(RegionRulesTest)

#include "RegionRulesTest.moc"
