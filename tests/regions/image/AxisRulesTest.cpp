#include "regions/image/AxisRules.h"
#include "DataTable.h"

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

QTEST_APPLESS_MAIN(AxisRulesTest)

#include "AxisRulesTest.moc"
