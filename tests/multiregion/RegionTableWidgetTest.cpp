#include "TestEvents.h"
#include "multiregion/MultiROIPage.h"

#include <qwt_slider.h>

namespace {

FeatureInfo infoIn(const QTableWidgetItem* cell)
{
    return cell->data(Qt::UserRole).value<FeatureInfo>();
}

/// The slider of an editor opened in the current region's table.
QwtSlider* openSlider(const MultiROIPage& open, const QString& feature)
{
    QTableWidgetItem* const cell = open.cell(open.tabs->currentIndex(), feature);
    QTableWidget* const table = cell->tableWidget();
    table->scrollToItem(cell);
    const QPoint center = table->visualItemRect(cell).center();
    QTest::mouseClick(table->viewport(), Qt::LeftButton, {}, center);
    QTest::mouseDClick(table->viewport(), Qt::LeftButton, {}, center);
    return table->findChild<QwtSlider*>("editorSlider");
}

} // namespace

class RegionTableWidgetTest : public QObject
{
    Q_OBJECT

private slots:
    void followsASlider()
    {
        const MultiROIPage open("multi-region", "Free");
        open.loadDefaults();
        QwtSlider* const slider = openSlider(open, "SubRegionWidth");
        QVERIFY(slider);
        const QVariant before = open.cell(0, "SubRegionWidth")->data(Qt::DisplayRole);
        const QPoint handle(slider->transform(slider->value()), slider->height() / 2);
        press(slider, handle);
        sendMouse(slider, QEvent::MouseMove, {handle.x() - 20, handle.y()});
        // What the next editors go by follows at once, also what depends on it.
        const int width = open.onCamera(0).width();
        QVERIFY(width != before.toInt());
        QCOMPARE(toInteger(infoIn(open.cell(0, "SubRegionWidth")).value),
                 std::optional<std::int64_t>(width));
        const auto sensor = open.camera->snapshot().maximum.width;
        const auto increment = *toInteger(infoIn(open.cell(0, "SubRegionOffsetX")).increment);
        QCOMPARE(toInteger(infoIn(open.cell(0, "SubRegionOffsetX")).maximum),
                 std::optional<std::int64_t>((sensor - width) / increment * increment));
        // The page waits as long as the editor is open.
        const QVariant enabled = open.cell(0, "MultipleRegionEnable")->data(Qt::DisplayRole);
        open.camera->writeAsOtherClient("MultipleRegionEnable", !enabled.toBool());
        open.settle();
        QCOMPARE(open.cell(0, "MultipleRegionEnable")->data(Qt::DisplayRole), enabled);
        release(slider, {handle.x() - 20, handle.y()});
        open.settle();
        QVERIFY(open.cell(0, "MultipleRegionEnable")->data(Qt::DisplayRole) != enabled);
        QCOMPARE(open.contradiction(), QString());
    }

    /// A bound that needs the value of a row which is not there stays the camera's.
    void keepsBounds()
    {
        const MultiROIPage open("multi-region", "Free");
        RegionTableWidget table(1, open.page.get(), {"SubRegionOffsetX", "SubRegionHeight"},
                                nullptr);
        const auto bounds = [&table](int row) {
            const FeatureInfo info
                = infoIn(table.findChild<QTableWidget*>("tblFeatures")->item(row, 1));
            return std::make_pair(toInteger(info.minimum), toInteger(info.maximum));
        };
        const auto offset = bounds(0);
        const auto height = bounds(1);
        table.addConstraints(1, {"SubRegionOffsetX", "SubRegionHeight"});
        table.onRegionRangeChanged(1, {8, 16, 1000, 800});
        QCOMPARE(*bounds(0).first, std::int64_t{8});
        QCOMPARE(bounds(0).second, offset.second);
        QVERIFY(bounds(1) == height);
        table.onRegionRangeChanged(2, {16, 16, 1000, 800}); // another region's
        QCOMPARE(*bounds(0).first, std::int64_t{8});
        table.addConstraints(1, {});
        QVERIFY(bounds(0) == offset);
    }
};

QTEST_MAIN(RegionTableWidgetTest)
#include "RegionTableWidgetTest.moc"
