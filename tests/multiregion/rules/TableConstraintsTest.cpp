#include "multiregion/rules/TableConstraints.h"
#include "DataTable.h"

using Bound = std::optional<std::int64_t>;

class TableConstraintsTest : public QObject
{
    Q_OBJECT

private slots:
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
        row("row", 1, "SubRegionHeight", false, 0);
        row("not shared", 1, "SubRegionWidth", false, -1);
        row("first", 0, "SubRegionHeight", false, -1);
        row("no tile", 3, "SubRegionHeight", false, 0);
        row("corner's row", 3, "SubRegionHeight", true, 2);
        row("corner's column", 3, "Width", true, 1);
        row("corner's other", 3, "Gain", true, 0);
        row("beside the tile", 5, "Width", true, 0);
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
        QCOMPARE(counterparts("SubRegionHeight"), QStringList{"SubRegionOffsetY"});
        QCOMPARE(counterparts("SubRegionOffsetY"), QStringList{"SubRegionHeight"});
    }
    void constrains() { runRow(); }
};

QTEST_GUILESS_MAIN(TableConstraintsTest)
#include "TableConstraintsTest.moc"
