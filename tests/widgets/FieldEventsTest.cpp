#include "DataTable.h"
#include "widgets/QSpinBoxMouseEventFilter.h"

#include <QSpinBox>

#include <functional>

class FieldEventsTest : public QObject
{
    Q_OBJECT

private slots:
    void mousePressEnds_data()
    {
        using Act = std::function<void(QSpinBox&)>;
        const DataTable row([](bool pressed, int released, const Act& act) {
            QWidget window;
            auto* field = new QSpinBox(&window);
            QSpinBoxMouseEventFilter filter(nullptr);
            field->installEventFilter(&filter);
            field->resize(100, 30);
            window.show();
            QSignalSpy releases(&filter, &QSpinBoxMouseEventFilter::mouseReleased);
            QTest::mousePress(field, Qt::LeftButton, {}, {95, 5});
            QCOMPARE(field->value(), 1); // the field itself was not left out
            act(*field);
            QCOMPARE(filter.isMousePressed(), pressed);
            QCOMPARE(releases.count(), released);
            field->setParent(&window);
        });
        const auto release = [](QSpinBox& field) {
            QTest::mouseRelease(&field, Qt::LeftButton, {}, {95, 5});
        };
        row("held", true, 0, [](QSpinBox&) {});
        row("released", false, 1, release);
        row("double click", true, 1, [=](QSpinBox& field) {
            release(field);
            QMouseEvent event(QEvent::MouseButtonDblClick, QPointF(95, 5), Qt::LeftButton,
                              Qt::LeftButton, {});
            QCoreApplication::sendEvent(&field, &event);
        });
        row("hidden", false, 0, [](QSpinBox& field) { field.hide(); });
        row("disabled", false, 0, [](QSpinBox& field) { field.setEnabled(false); });
        row("taken out", false, 0, [](QSpinBox& field) { field.setParent(nullptr); });
        row("other window", false, 0, [](QSpinBox& field) {
            QEvent event(QEvent::WindowDeactivate);
            QCoreApplication::sendEvent(field.window(), &event);
        });
    }
    void mousePressEnds() { runRow(); }
};

QTEST_MAIN(FieldEventsTest)
#include "FieldEventsTest.moc"
