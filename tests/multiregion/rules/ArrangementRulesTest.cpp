#include "DataTable.h"
#include "multiregion/rules/ConstraintGroups.h"
#include "multiregion/rules/DefaultLayouts.h"
#include "multiregion/rules/TableConstraints.h"
#include "multiregion/rules/ToggleRules.h"
#include "sensor/PixelRect.h"
#include "sensor/Span.h"

#include <optional>

using Bound = std::optional<std::int64_t>;
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
        row("Vertical 0000", "+ccc");
        row("Vertical 1010", "++++");
        row("Tile 100000", "+++lll");
        row("Tile 111000", "++++ll");
        row("Tile 100110", "+++++l");
        row("Free 0000", "++++");
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
        row("Free: four", {{1000, 800}, w, h, 4},
            {{0, 160, 333, 266}, {850, 0, 150, 800}, {125, 640, 500, 120}, {400, 120, 150, 400}});
        row("Vertical: one", {{1000, 800}, w, h, 1}, {{20, 80, 960, 640}});
        row("Vertical: four minima do not fit", {{1000, 800}, w, {201, 800, 2}, 4},
            {{20, 40, 960, 213}, {20, 292, 960, 213}, {20, 544, 960, 213}});
        row("Vertical: none fits", {{1000, 800}, w, {801, 800, 2}, 1}, {});
        row("Vertical: small maximum", {{1000, 800}, {16, 300, 4}, {16, 100, 2}, 2},
            {{20, 213, 300, 80}, {20, 505, 300, 80}});
        // Share 308.5, gap 61.7, height 246.8, spacing 49.36: each starts on the last row plus
        // that.
        row("Vertical: fractions", {{1000, 1234}, w, h, 4},
            {{20, 49, 960, 246}, {20, 343, 960, 246}, {20, 637, 960, 246}, {20, 931, 960, 246}});
        row("Horizontal: two", {{1000, 800}, w, h, 2}, {{66, 10, 400, 780}, {531, 10, 400, 780}});
        row("Tile: four", {{1000, 800}, w, h, 4},
            {{20, 10, 460, 380}, {519, 10, 460, 380}, {20, 409, 460, 380}, {519, 409, 460, 380}});
        row("Tile: two", {{1000, 800}, w, h, 2}, {{20, 10, 460, 780}, {519, 10, 460, 780}});
        row("Tile: three", {{1000, 800}, w, h, 3}, {});
        row("Tile: two minima do not fit", {{1000, 800}, w, {401, 800, 2}, 2}, {});
        // The camera makes its minimum of it.
        row("Tile: margins leave no width", {{640, 800}, {16, 1000, 32}, h, 2},
            {{160, 10, 0, 780}, {479, 10, 0, 780}});
        row("Tile: no sensor", {{0, 0}, w, h, 4}, {});
        row("Diagonal: four", {{1000, 800}, w, h, 4}, {});
    }
    void laysOut() { runRow(); }

    /// The row's name: the mode, the active regions, the region and which way it goes.
    void toggles_data()
    {
        const DataTable row([](const QString& action, Question question, const QString& off,
                               const QString& offColumn) {
            const QStringList tag = QString(QTest::currentDataTag()).split(' ');
            QVector<bool> active(6, false);
            for (const QChar region : tag[1])
                active[region.digitValue()] = true;
            const Toggle toggle
                = toggleFor(arrangementMode(tag[0]), tag[2].toInt(), tag[3] == "on", active);
            const bool isRow = toggle.axis == Qt::Horizontal;
            QCOMPARE(toggle.kind == Toggle::Place          ? (isRow ? "right" : "below")
                         : toggle.kind == Toggle::SwitchOn ? "on"
                                                           : "off",
                     action);
            QCOMPARE(toggle.question, question);
            if (action == "off")
                QCOMPARE(text(toggle.off), off);
            QCOMPARE(text(toggle.offColumn), offColumn);
        });
        const auto none = Question::None;
        row("Free 03 1 on", "on", none, "", "");
        row("Free 013 0 off", "off", none, "0", "");
        row("Horizontal 0 1 on", "right", none, "", "");
        row("Vertical 0 1 on", "below", none, "", "");
        row("Horizontal 012 2 off", "off", none, "2", "");
        row("Horizontal 012 1 off", "off", Question::SubsequentOff, "54321", "");
        row("Vertical 05 0 off", "off", Question::SubsequentOff, "543210", "");
        row("Tile 012 0 off", "right", none, "", "");
        row("Tile 0 1 on", "right", none, "", "");
        row("Tile 0 2 on", "below", none, "", "");
        row("Tile 02 1 on", "right", Question::ColumnOn, "", "");
        row("Tile 01 2 on", "below", Question::RowOn, "", "");
        row("Tile 012 1 off", "off", none, "1", "");
        row("Tile 0123 1 off", "off", Question::ColumnOff, "31", "");
        row("Tile 0123 2 off", "off", Question::RowOff, "32", "");
        row("Tile 0123 3 off", "off", Question::RowOrColumnOff, "23", "13");
        row("Tile 01234 4 off", "off", none, "4", "");
    }
    void toggles() { runRow(); }

    /// Which of the six regions that are shown follow region 5, and which region 3.
    void shares_data()
    {
        const DataTable row([](const QString& mode, const QString& name, const QString& with5,
                               const QString& with3) {
            const auto groups = constraintGroups(arrangementMode(mode), {0, 1, 2, 3, 4, 5});
            QCOMPARE(text(sharingRegions(groups, 5, name)), with5);
            QCOMPARE(text(sharingRegions(groups, 3, name)), with3);
        });
        row("tiles' rows", "Tile", "SubRegionOffsetY", "45", "23");
        row("tiles' columns", "Tile", "SubRegionWidth", "135", "135");
        row("one row", "Horizontal", "SubRegionHeight", "012345", "012345");
        row("along the row", "Horizontal", "SubRegionWidth", "5", "3");
        row("not of the geometry", "Vertical", "SubRegionMode", "5", "3");
    }
    void shares() { runRow(); }

    void findsMasters_data()
    {
        const DataTable row([](int region, const QString& feature, bool isTile, int master) {
            QStringList shared{"SubRegionOffsetY", "SubRegionHeight"};
            if (isTile)
                shared << "SubRegionOffsetX"
                       << "SubRegionWidth"
                       << "Width"
                       << "Gain";
            QCOMPARE(masterRegion(region, feature, shared), master);
        });
        row("not shared", 1, "SubRegionWidth", false, -1);
        row("first", 0, "SubRegionHeight", false, -1);
        row("no tile", 3, "SubRegionHeight", false, 0);
        row("corner's row", 3, "SubRegionHeight", true, 2);
        row("corner's column", 3, "Width", true, 1);
        row("corner's other", 3, "Gain", true, 0);
    }
    void findsMasters() { runRow(); }

    void constrains_data()
    {
        const DataTable row([](const QString& feature, Bound counterpart, int increment,
                               Bound minimum, Bound maximum) {
            const auto range
                = constrainedRange(feature, {10, -1, 1000, 800}, counterpart, increment);
            QCOMPARE(range.minimum, minimum);
            QCOMPARE(range.maximum, maximum);
        });
        const Bound own;
        row("x", "SubRegionOffsetX", 300, 8, 10, 704);
        row("x, older name", "OffsetX", 300, 1, 10, 710);
        row("width", "Width", 12, 8, own, 992);
        row("y, from -1", "SubRegionOffsetY", 400, 0, own, 399);
        row("height", "SubRegionHeight", 6, -1, own, 793);
        row("no offset to go by", "SubRegionHeight", own, 8, own, own);
        row("too wide", "OffsetX", 1005, 1, 10, 5);
        row("stands for none", "OffsetX", 1011, 1, 10, own);
        row("other", "Gain", 12, 8, own, own);
        QCOMPARE(counterparts("OffsetX"), (QStringList{"SubRegionWidth", "Width"}));
        QCOMPARE(counterparts("Width"), (QStringList{"SubRegionOffsetX", "OffsetX"}));
        QCOMPARE(counterparts("SubRegionOffsetY"), QStringList{"SubRegionHeight"});
    }
    void constrains() { runRow(); }

private:
    static QString text(const QVector<int>& regions)
    {
        QString result;
        for (const int region : regions)
            result += QString::number(region);
        return result;
    }
};

QTEST_GUILESS_MAIN(ArrangementRulesTest)
#include "ArrangementRulesTest.moc"
