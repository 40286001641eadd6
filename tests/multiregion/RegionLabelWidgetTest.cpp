#include "multiregion/RegionLabelWidget.h"

#include <QLabel>
#include <QTest>

class RegionLabelWidgetTest : public QObject
{
    Q_OBJECT

private slots:
    void tellsNumberAndGeometry()
    {
        RegionLabelWidget widget(3, {16, 8, 640, 480}, QColor(0, 100, 255), nullptr);
        const auto* number = widget.findChild<QLabel*>("lbl_ID");
        const auto* size = widget.findChild<QLabel*>("lbl_Size");
        QCOMPARE(number->text(), QString("3"));
        QCOMPARE(size->text(), QString("(  16,    8)\n 640 x  480"));
        widget.highlightIfSelected(3);
        QCOMPARE(number->text(), QString(">  3"));
        QCOMPARE(number->font().weight(), 75);
        widget.highlightIfSelected(1);
        QCOMPARE(number->text(), QString("   3"));
        QCOMPARE(number->font().weight(), 50);
        widget.updateColor(2, Qt::green);
        widget.updateColor(3, QColor(255, 0, 0, 80));
        QCOMPARE(size->styleSheet(), QString("QLabel { color: #ff0000; border-color: #ff0000 }"));
        QCOMPARE(number->styleSheet(), size->styleSheet());
        QCOMPARE(widget.minimumSizeHint().width(), number->width() + size->width() + 20);
    }
};

QTEST_MAIN(RegionLabelWidgetTest)

#include "RegionLabelWidgetTest.moc"
