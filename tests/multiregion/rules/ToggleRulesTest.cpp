#include "multiregion/rules/ToggleRules.h"
#include "DataTable.h"
#include "multiregion/rules/ConstraintGroups.h"

class ToggleRulesTest : public QObject
{
    Q_OBJECT

private slots:
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
        row("Tile 012 3 on", "right", none, "", "");
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
        row("older name", "Tile", "OffsetX", "135", "135");
        row("one row", "Horizontal", "SubRegionHeight", "012345", "012345");
        row("along the row", "Horizontal", "SubRegionWidth", "5", "3");
        row("not of the geometry", "Vertical", "SubRegionMode", "5", "3");
        row("free", "Free", "SubRegionWidth", "5", "3");
    }
    void shares() { runRow(); }

private:
    static QString text(const QVector<int>& regions)
    {
        QString result;
        for (const int region : regions)
            result += QString::number(region);
        return result;
    }
};

QTEST_GUILESS_MAIN(ToggleRulesTest)
#include "ToggleRulesTest.moc"
