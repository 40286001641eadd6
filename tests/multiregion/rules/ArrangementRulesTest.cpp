#include "DataTable.h"
#include "multiregion/rules/DefaultLayouts.h"
#include "multiregion/rules/ToggleRules.h"
#include "sensor/PixelRect.h"
#include "sensor/Span.h"

#include <cmath>
#include <limits>

using Regions = QVector<QRect>;

class ArrangementRulesTest : public QObject
{
    Q_OBJECT

private slots:
    /// Sensor 1000, predecessor 100..300, region 0 across at 40 of size 60: where the region comes
    /// to lie in a row; mirrored in a column.
    void places_data()
    {
        const DataTable row([](const Span<int>& current, const SizeRange& size,
                               const Span<int>& inRow, int columnSize) {
            const auto placed = [&](Qt::Orientation axis) {
                return placedRegion(axis,
                                    {1000, QRect(40, 40, 60, 60), withSpan({}, axis, {100, 200}),
                                     withSpan({}, axis, current), size});
            };
            const bool isPlaced = inRow.length > 0;
            const QRect across(inRow.start, 40, inRow.length, 60);
            const QRect column(40, inRow.start, 60, columnSize);
            QCOMPARE(placed(Qt::Horizontal), isPlaced ? across : QRect());
            QCOMPARE(placed(Qt::Vertical), isPlaced ? column : QRect());
        });
        row("one increment behind", {0, 160}, {16, 640, 8}, {308, 160}, 160);
        row("behind already", {400, 160}, {16, 640, 8}, {400, 160}, 160);
        row("touching moves on", {300, 160}, {16, 640, 8}, {308, 160}, 160);
        row("cut to what is left", {0, 900}, {16, 2000, 8}, {308, 692}, 692);
        row("columns ignore the maximum", {0, 900}, {16, 400, 8}, {308, 400}, 692);
        row("raised to the minimum", {0, 8}, {16, 640, 8}, {308, 16}, 16);
        row("too little is left", {0, 160}, {693, 2000, 8}, {}, 0);
        row("just enough is left", {0, 160}, {692, 2000, 8}, {308, 692}, 692);
        row("fractions are dropped", {0, 160}, {16, 640, 0.5}, {300, 160}, 160);
        row("no range", {0, 160}, {}, {300, 160}, 160);
    }
    void places() { runRow(); }

    /// The row's name is the mode and the buttons, "1" active, "0" inactive; expected "+" enabled,
    /// "c" and "l" disabled for the lack of continuity or of a common line.
    void enablesButtons_data()
    {
        const DataTable row([](const QString& expected) {
            const QString tag(QTest::currentDataTag());
            const ArrangementMode mode = arrangementMode(tag.section(' ', 0, 0));
            QVector<bool> buttons;
            for (const QChar c : tag.section(' ', 1))
                buttons << (c == '1');
            const auto states = regionButtonStates(mode, buttons, buttons, false);
            const auto streaming = regionButtonStates(mode, buttons, buttons, true);
            QString result;
            for (int i = 0; i < states.size(); ++i) {
                const char* const lacking = states[i].toolTip.contains("common") ? "l" : "c";
                result += states[i].enabled ? "+" : lacking;
                QCOMPARE(states[i].enabled, states[i].toolTip.isEmpty());
                QVERIFY(!streaming[i].enabled);
                QCOMPARE(streaming[i].toolTip, states[i].toolTip);
            }
            QCOMPARE(result, expected);
        });
        row("Horizontal 1000", "++cc");
        row("Horizontal 1100", "+++c");
        row("Vertical 0000", "+ccc");
        row("Vertical 1010", "++++");
        row("Tile 100000", "+++lll");
        row("Tile 101000", "+++lll");
        row("Tile 111000", "++++ll");
        row("Tile 100110", "+++++l");
        row("Free 0000", "++++");
        row("Diagonal 0000", "++++");
    }
    void enablesButtons() { runRow(); }

    void laysOut_data()
    {
        const DataTable row([](const LayoutRequest& request, const Regions& expected) {
            const QString mode = QString(QTest::currentDataTag()).section(':', 0, 0);
            const DefaultLayout layout = defaultLayout(mode, request);
            QCOMPARE(Regions::fromList(layout.regions.values()), expected);
            const QString unknown = "Unknown Arrangement Mode '%1', no default settings %2.";
            QString message;
            if (mode == "Tile" && request.regionCount == 3)
                message = unknown.arg("Tile", "for 3 regions available");
            else if (mode == "Diagonal")
                message = unknown.arg("Diagonal", "available");
            QCOMPARE(layout.message, message);
        });
        const SizeRange w{16, 1000, 4};
        const SizeRange h{16, 800, 2};
        const Regions column{
            {20, 32, 960, 160}, {20, 223, 960, 160}, {20, 414, 960, 160}, {20, 605, 960, 160}};
        const Regions pair{{20, 10, 460, 780}, {519, 10, 460, 780}};
        row("Free: four", {{1000, 800}, w, h, 4},
            {{0, 160, 333, 266}, {850, 0, 150, 800}, {125, 640, 500, 120}, {400, 120, 150, 400}});
        row("Free: two of two", {{1000, 800}, w, h, 2}, {{0, 160, 333, 266}, {850, 0, 150, 800}});
        // Share 200, gap 40, height 160, spacing 32: each region starts on the last row plus 32.
        row("Vertical: four", {{1000, 800}, w, h, 4}, column);
        row("Vertical: one", {{1000, 800}, w, h, 1}, {{20, 80, 960, 640}});
        row("Vertical: four minima do not fit", {{1000, 800}, w, {201, 800, 2}, 4},
            {{20, 40, 960, 213}, {20, 292, 960, 213}, {20, 544, 960, 213}});
        row("Vertical: none fits", {{1000, 800}, w, {801, 800, 2}, 1}, {});
        row("Vertical: small maximum", {{1000, 800}, {16, 300, 4}, {16, 100, 2}, 2},
            {{20, 213, 300, 80}, {20, 505, 300, 80}});
        // Share 308.5, gap 61.7, height 246.8, spacing 49.36.
        row("Vertical: fractions", {{1000, 1234}, w, h, 4},
            {{20, 49, 960, 246}, {20, 343, 960, 246}, {20, 637, 960, 246}, {20, 931, 960, 246}});
        row("Horizontal: two", {{1000, 800}, w, h, 2}, {{66, 10, 400, 780}, {531, 10, 400, 780}});
        row("Tile: four", {{1000, 800}, w, h, 4},
            {{20, 10, 460, 380}, {519, 10, 460, 380}, {20, 409, 460, 380}, {519, 409, 460, 380}});
        row("Tile: two", {{1000, 800}, w, h, 2}, pair);
        row("Tile: three", {{1000, 800}, w, h, 3}, {});
        row("Tile: no regions", {{1000, 800}, w, h, 0}, {});
        row("Tile: two minima do not fit", {{1000, 800}, w, {401, 800, 2}, 2}, {});
        row("Tile: margins as wide as the sensor allows", {{1000, 800}, {480, 1000, 4}, h, 2},
            pair);
        // The camera makes its minimum of it.
        row("Tile: margins leave no width", {{640, 800}, {16, 1000, 32}, h, 2},
            {{160, 10, 0, 780}, {479, 10, 0, 780}});
        row("Tile: no sensor", {{0, 0}, w, h, 4}, {});
        row("Diagonal: four", {{1000, 800}, w, h, 4}, {});
    }
    void laysOut() { runRow(); }
};

QTEST_GUILESS_MAIN(ArrangementRulesTest)
#include "ArrangementRulesTest.moc"
