#include "regions/automatic/AutoRegionWriter.h"
#include "DataTable.h"
#include "SimulatedCamera.h"
#include "regions/automatic/AutoRegionView.h"

#include "simulator/Model.h"

#include <QDoubleSpinBox>

/// The writes of the region, on no page.
class AutoRegionWriterTest : public QObject
{
    Q_OBJECT

private slots:
    void writesDrawnRegions_data()
    {
        const DataTable row([](const QByteArray& model, const QRect& region,
                               const QString& expected) {
            const auto camera = sim::createCamera(model.toStdString());
            for (const auto& [edge, value] : {std::pair("Left", 648), std::pair("Top", 486),
                                              std::pair("Right", 1944), std::pair("Bottom", 1458)})
                if (camera->has(std::string("DSPSubregion") + edge))
                    camera->force(std::string("DSPSubregion") + edge, std::int64_t{value});
            FeatureManager manager(wrappers(*camera));
            AutoRegionCamera autoCamera(manager);
            autoCamera.followImage(true);
            std::array<QDoubleSpinBox, 6> boxes;
            AutoRegionView view(autoCamera,
                                {&boxes[0], &boxes[1], &boxes[2], &boxes[3], &boxes[4], &boxes[5]});
            view.load();
            camera->journal().clear();
            AutoRegionWriter(autoCamera, view).writeDrawn(region);
            QStringList writes;
            for (const sim::JournalEntry& write : camera->journal().writes()) {
                QCOMPARE(write.result, ZebErrorSuccess);
                static const QRegularExpression prefix(
                    "^(AutofunctionAOI|AutoModeRegion|DSPSubregion)");
                writes << QString::fromStdString(write.feature + ' ' + write.value.toText())
                              .remove(prefix);
            }
            QCOMPARE(writes.join(", "), expected);
        });
        row("offsets, then sizes", "aoi", QRect(201, 101, 640, 480),
            "OffsetX 204, OffsetY 102, Height 480, Width 640");
        row("taken only beside the new size", "aoi", QRect(2500, 1900, 640, 480),
            "OffsetX 1296, OffsetY 972, Height 44, Width 88, OffsetX 2500, OffsetY 1900");
        row("down and right", "dsp", QRect(800, 600, 1296, 972),
            "Right 2096, Left 800, Bottom 1572, Top 600");
        row("up and left", "dsp", QRect(200, 100, 1296, 972),
            "Left 200, Right 1496, Top 100, Bottom 1072");
        row("without extent", "dsp", QRect(200, 100, 0, 0),
            "Left 200, Right 201, Top 100, Bottom 101");
    }
    void writesDrawnRegions() { runRow(); }
};

QTEST_MAIN(AutoRegionWriterTest)

#include "AutoRegionWriterTest.moc"
