#include "features/TruncatedRect.h"
#include "multiregion/DefaultLayouts.h"
#include "multiregion/RegionButtonRules.h"
#include "multiregion/RegionPlacement.h"

#include <QtTest>

#include <cmath>
#include <limits>

Q_DECLARE_METATYPE(PlacementRequest)
Q_DECLARE_METATYPE(LayoutRequest)

using Regions = QVector<QRect>;

class ArrangementRulesTest : public QObject
{
    Q_OBJECT

private slots:
    void places_data()
    {
        QTest::addColumn<PlacementRequest>("request");
        QTest::addColumn<QRect>("inRow");
        QTest::addColumn<QRect>("inColumn");
        // Sensor 1000, predecessor 100..300, region 0 across at 40 of size 60.
        const auto row = [](const char* name, const RegionExtent& current, const SizeRange& size,
                            const QRect& inRow, const QRect& inColumn) {
            const PlacementRequest request{1000, {100, 200}, current, {40, 60}, size};
            QTest::newRow(name) << request << inRow << inColumn;
        };
        row("one increment behind", {0, 160}, {16, 640, 8}, {308, 40, 160, 60}, {40, 308, 60, 160});
        row("behind already", {400, 160}, {16, 640, 8}, {400, 40, 160, 60}, {40, 400, 60, 160});
        row("touching moves on", {300, 160}, {16, 640, 8}, {308, 40, 160, 60}, {40, 308, 60, 160});
        row("cut to what is left", {0, 900}, {16, 2000, 8}, {308, 40, 692, 60}, {40, 308, 60, 692});
        row("columns ignore the maximum", {0, 900}, {16, 400, 8}, {308, 40, 400, 60},
            {40, 308, 60, 692});
        row("raised to the minimum", {0, 8}, {16, 640, 8}, {308, 40, 16, 60}, {40, 308, 60, 16});
        row("too little is left", {0, 160}, {693, 2000, 8}, {}, {});
        row("just enough is left", {0, 160}, {692, 2000, 8}, {308, 40, 692, 60},
            {40, 308, 60, 692});
        row("fractions are dropped", {0, 160.9}, {16, 640, 0.5}, {300, 40, 160, 60},
            {40, 300, 60, 160});
        row("no range", {0, 160}, {-1, -1, -1}, {300, 40, 160, 60}, {40, 300, 60, 160});
    }

    void places()
    {
        QFETCH(PlacementRequest, request);
        QTEST(placedInRow(request), "inRow");
        QTEST(placedInColumn(request), "inColumn");
    }

    void survivesAbsurdNumbers()
    {
        const double huge = std::numeric_limits<double>::infinity();
        PlacementRequest request{huge, {huge, huge}, {huge, huge}, {-huge, huge}, {0, huge, huge}};
        placedInRow(request);
        request.sensorSize = std::nan("");
        placedInColumn(request);
        for (const char* mode : {"Vertical", "Horizontal", "Tile", "Free"})
            defaultLayout(mode, {huge, -huge, {0, huge, huge}, {huge, 0, 0}, 256});
        const QRect rect = truncatedRect(huge, -huge, std::nan(""), -huge);
        QCOMPARE(rect.bottom(), rect.y() + rect.height() - 1);
        QVERIFY(rect.x() > 0 && rect.bottom() < rect.y());
    }

    /// Buttons as a text: "1" active, "0" inactive; expected "+" enabled, "c" and "l" disabled for
    /// the lack of continuity or of a common line.
    void enablesButtons_data()
    {
        QTest::addColumn<QString>("mode");
        QTest::addColumn<QString>("active");
        QTest::addColumn<QString>("expected");
        const auto row = [](const char* mode, const char* active, const char* expected) {
            QTest::addRow("%s %s", mode, active) << mode << active << expected;
        };
        row("Horizontal", "1000", "++cc");
        row("Horizontal", "1100", "+++c");
        row("Vertical", "0000", "+ccc");
        row("Vertical", "1010", "++++");
        row("Tile", "100000", "+++lll");
        row("Tile", "101000", "+++lll");
        row("Tile", "111000", "++++ll");
        row("Tile", "100110",
            "++++"
            "+l");
        row("Free", "0000", "++++");
        row("Diagonal", "0000", "++++");
    }

    void enablesButtons()
    {
        QFETCH(QString, mode);
        QFETCH(QString, active);
        QVector<bool> buttons;
        for (const QChar c : active)
            buttons << (c == '1');
        const auto states = regionButtonStates(arrangementMode(mode), buttons, buttons, false);
        const auto streaming = regionButtonStates(arrangementMode(mode), buttons, buttons, true);
        QString result;
        for (int i = 0; i < states.size(); ++i) {
            result += states[i].enabled ? "+" : states[i].toolTip.contains("common") ? "l" : "c";
            QCOMPARE(states[i].enabled, states[i].toolTip.isEmpty());
            QVERIFY(!streaming[i].enabled);
            QCOMPARE(streaming[i].toolTip, states[i].toolTip);
        }
        QTEST(result, "expected");
    }

    void laysOut_data()
    {
        QTest::addColumn<QString>("mode");
        QTest::addColumn<LayoutRequest>("request");
        QTest::addColumn<Regions>("expected");
        const LayoutRequest plain{1000, 800, {16, 1000, 4}, {16, 800, 2}, 4};
        const auto with = [&plain](auto&& change) {
            LayoutRequest request = plain;
            change(request);
            return request;
        };
        const auto row = [](const char* name, const char* mode, const LayoutRequest& request,
                            const Regions& expected) {
            QTest::addRow("%s: %s", mode, name) << mode << request << expected;
        };
        row("four", "Free", plain,
            {{0, 160, 333, 266}, {850, 0, 150, 800}, {125, 640, 500, 120}, {400, 120, 150, 400}});
        row("two of two", "Free", with([](auto& r) { r.regionCount = 2; }),
            {{0, 160, 333, 266}, {850, 0, 150, 800}});
        // Share 200, gap 40, height 160, spacing 32: each region starts on the last row plus 32.
        row("four", "Vertical", plain,
            {{20, 32, 960, 160}, {20, 223, 960, 160}, {20, 414, 960, 160}, {20, 605, 960, 160}});
        row("six are four", "Vertical", with([](auto& r) { r.regionCount = 6; }),
            {{20, 32, 960, 160}, {20, 223, 960, 160}, {20, 414, 960, 160}, {20, 605, 960, 160}});
        row("one", "Vertical", with([](auto& r) { r.regionCount = 1; }), {{20, 80, 960, 640}});
        row("four minima do not fit", "Vertical", with([](auto& r) { r.height.minimum = 201; }),
            {{20, 40, 960, 213}, {20, 292, 960, 213}, {20, 544, 960, 213}});
        row("none fits", "Vertical", with([](auto& r) {
                r.regionCount = 1;
                r.height.minimum = 801;
            }),
            {});
        row("no minimum", "Vertical", with([](auto& r) {
                r.regionCount = 1;
                r.height.minimum = -1;
            }),
            {{20, 80, 960, 640}});
        row("small maximum", "Vertical", with([](auto& r) {
                r.regionCount = 2;
                r.height.maximum = 100;
                r.width.maximum = 300;
            }),
            {{20, 213, 300, 80}, {20, 505, 300, 80}});
        // Share 308.5, gap 61.7, height 246.8, spacing 49.36.
        row("fractions", "Vertical", with([](auto& r) { r.sensorHeight = 1234; }),
            {{20, 49, 960, 246}, {20, 343, 960, 246}, {20, 637, 960, 246}, {20, 931, 960, 246}});
        row("two", "Horizontal", with([](auto& r) { r.regionCount = 2; }),
            {{66, 10, 400, 780}, {531, 10, 400, 780}});
        row("four", "Tile", plain,
            {{20, 10, 460, 380}, {519, 10, 460, 380}, {20, 409, 460, 380}, {519, 409, 460, 380}});
        row("two", "Tile", with([](auto& r) { r.regionCount = 2; }),
            {{20, 10, 460, 780}, {519, 10, 460, 780}});
        row("three", "Tile", with([](auto& r) { r.regionCount = 3; }), {});
        row("no regions", "Tile", with([](auto& r) { r.regionCount = 0; }), {});
        row("two minima do not fit", "Tile", with([](auto& r) {
                r.regionCount = 2;
                r.height.minimum = 401;
            }),
            {});
        row("margins as wide as the sensor allows", "Tile", with([](auto& r) {
                r.regionCount = 2;
                r.width.minimum = 480;
            }),
            {{20, 10, 460, 780}, {519, 10, 460, 780}});
        // The camera makes its minimum of it.
        row("margins leave no width", "Tile", with([](auto& r) {
                r.regionCount = 2;
                r.sensorWidth = 640;
                r.width.increment = 32;
            }),
            {{160, 10, 0, 780}, {479, 10, 0, 780}});
        row("no sensor", "Tile", with([](auto& r) { r.sensorWidth = r.sensorHeight = 0; }), {});
        row("four", "Diagonal", plain, {});
    }

    void laysOut()
    {
        QFETCH(QString, mode);
        QFETCH(LayoutRequest, request);
        QFETCH(Regions, expected);
        const DefaultLayout layout = defaultLayout(mode, request);
        QCOMPARE(layout.regions.values().toVector(), expected);
        if (mode == "Tile" && request.regionCount == 3)
            QCOMPARE(layout.message,
                     QString("Unknown Arrangement Mode 'Tile', no default settings for 3 regions "
                             "available."));
        else if (mode == "Diagonal")
            QCOMPARE(layout.message,
                     QString("Unknown Arrangement Mode 'Diagonal', no default settings "
                             "available."));
        else
            QVERIFY(layout.message.isEmpty());
    }
};

QTEST_GUILESS_MAIN(ArrangementRulesTest)
#include "ArrangementRulesTest.moc"
