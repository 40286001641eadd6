#include "DataTable.h"
#include "regions/automatic/AutoRegion.h"
#include "regions/automatic/DspRegion.h"
#include "regions/automatic/EdgeSpan.h"
#include "regions/automatic/ExposureLimit.h"
#include "regions/image/RegionConsistency.h"
#include "regions/image/RegionPresets.h"

class AxisRulesTest : public QObject
{
    Q_OBJECT

private slots:
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
        const OffsetRange range = evenOffsetRange({1.0, 99.0, 1.0});
        QCOMPARE(range.minimum, 2.0);
        QCOMPARE(range.maximum, 100.0);
        QCOMPARE(range.increment, 2.0);
        QCOMPARE(evenOffsetRange({0.0, 98.0, 4.0}).minimum, 0.0);
        QCOMPARE(evenOffsetRange({3.0, 98.0, 4.0}).minimum, 3.0);
    }

    void namesProblems()
    {
        QCOMPARE(regionProblems({1.0, 9.0}, 10.0, {1.0, 9.0}, 10.0), QString());
        QCOMPARE(regionProblems({2.0, 9.0}, 10.0, {2.0, 9.0}, 10.0),
                 QString("\n\tOffsetX + Width > Maximum Width! \n\tOffsetY + Height > Maximum "
                         "Height! "));
        QCOMPARE(dspRegionProblems({10.0, 10.0, 10.0, 10.0}, {10, 10}), QString());
        QCOMPARE(dspRegionProblems({5.0, 0.0, 4.0, 10.0}, {10, 10}), QString("Left > Right! "));
        QCOMPARE(dspRegionProblems({13.0, 13.0, 12.0, 12.0}, {10, 11}),
                 QString("\nTop > Bottom! \nTop > ROI Height! \nBottom > ROI Height! "
                         "Left > Right! Left > ROI Width! Right > ROI Width! "));
    }

    void limitsAoi()
    {
        QCOMPARE(aoiHeightLimit(1080.0, 4.0, 16.0, 2.0), qint64(1082));
        QCOMPARE(aoiHeightLimit(1081.0, 4.0, 16.0, 2.0), qint64(1067));
        QCOMPARE(aoiHeightLimit(1081.0, 0.0, 16.0, 0.0), qint64(1081));
        QCOMPARE(aoiWidthLimit(1081.0, 4.0, 3.0), qint64(1084));
        QVERIFY(exceedsLimit(8.0, 2.0, 95.0, 100));
        QVERIFY(!exceedsLimit(8.0, 3.0, 95.0, 100));
    }

    void roundsExposureLimits()
    {
        QCOMPARE(exposureLimitToWrite(10.0, 0.01, 2, 2), double(10.005F));
        QCOMPARE(exposureLimitToWrite(10.0, 1.0, 2, 0), 10.5);
        QCOMPARE(exposureLimitToWrite(10.0, 1.0, 0, 2), 10.0);
        QCOMPARE(exposureLimitToWrite(10.0, 0.0, 2, 2), 10.0);
        QCOMPARE(exposureLimitToWrite(10.0, -1.0, 2, 2), 10.0);
        QVERIFY(qIsFinite(exposureLimitToWrite(1e300, 1.0, 2, 2)));
    }

    void judgesDspRegions_data()
    {
        const DataTable row(
            [](double top, double bottom, bool valid, int drawnTop, int drawnHeight) {
                const RegionLimits limits{10, 20};
                QCOMPARE(isValidDspRegion({0.0, top, 10.0, bottom}, limits), valid);
                const SensorRegion drawn = drawnDspRegion({0.0, top, 10.0, bottom}, limits);
                QCOMPARE(drawn.top, drawnTop);
                QCOMPARE(drawn.height, drawnHeight);
                QVERIFY(writesFarEdgeFirst(1.0, 5.0, 4.0, 8.0));
                QVERIFY(!writesFarEdgeFirst(1.0, 5.0, 4.0, 5.0));
            });
        row("whole", 0, 20, true, 0, 20);
        row("empty", 5, 5, false, 5, 0);
        row("crossed", 9, 5, false, 5, 0);
        row("too low", 5, 21, false, 5, 15);
        row("beyond", 30, 40, false, 20, 0);
    }
    void judgesDspRegions() { runRow(); }

    /// The camera takes what is as thin as its grid; nothing else is moved.
    void keepsEdgesApart()
    {
        const auto edges = [](double offset, double extent) {
            const EdgeSpan span = edgesForExtent(offset, extent, 100, 8);
            return QPointF(span.nearEdge, span.farEdge);
        };
        QCOMPARE(edges(13, 20), QPointF(13, 33));
        QCOMPARE(edges(14, 4), QPointF(14, 18)); // across a grid point
        QCOMPARE(edges(17, 4), QPointF(17, 25)); // between grid points
        QCOMPARE(edges(100, 0), QPointF(92, 100));
    }

    void drawsWithoutTheOrigin()
    {
        const QPointF origin(8.0, 4.0);
        const AutoRegionFields fields = fieldsForRegion({10, 20, 70, 50}, origin);
        QCOMPARE(fields.right, 98.0);
        QCOMPARE(fields.bottom, 64.0);
        QVERIFY((drawnAutoRegion(fields, origin, {60, 100}) == SensorRegion{10, 20, 60, 50}));
        QVERIFY((drawnAutoRegion(fields, origin, {15, 100}) == SensorRegion{10, 15, 15, 50}));
    }
};

QTEST_APPLESS_MAIN(AxisRulesTest)

#include "AxisRulesTest.moc"
