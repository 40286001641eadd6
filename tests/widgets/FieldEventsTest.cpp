#include "DataTable.h"
#include "widgets/QSpinBoxMouseEventFilter.h"
#include "widgets/WheelGuard.h"

#include <QComboBox>
#include <QFontComboBox>
#include <QSpinBox>

#include <functional>
#include <memory>

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

    void wheelGuard_data()
    {
        using Target = std::shared_ptr<QObject>;
        const DataTable row([](const Target& target, QEvent::Type type, bool guarded) {
            if (QByteArray(QTest::currentDataTag()) == "focused") {
                auto* field = qobject_cast<QWidget*>(target.get());
                field->show();
                QApplication::setActiveWindow(field);
                field->setFocus();
            }
            const QEvent event(type);
            QCOMPARE(isUnfocusedFieldWheel(target.get(), &event), guarded);
        });
        row("combo box", std::make_shared<QComboBox>(), QEvent::Wheel, true);
        row("spin box", std::make_shared<QSpinBox>(), QEvent::Wheel, true);
        row("double spin box", std::make_shared<QDoubleSpinBox>(), QEvent::Wheel, true);
        row("derived class", std::make_shared<QFontComboBox>(), QEvent::Wheel, false);
        row("other class", std::make_shared<QSlider>(), QEvent::Wheel, false);
        row("no widget", std::make_shared<QObject>(), QEvent::Wheel, false);
        row("other event", std::make_shared<QSpinBox>(), QEvent::Enter, false);
        row("focused", std::make_shared<QSpinBox>(), QEvent::Wheel, false);
    }
    void wheelGuard() { runRow(); }

    void cleanupTestCase() { DataTableRows::rows.clear(); } // widgets end before the application
};

QTEST_MAIN(FieldEventsTest)
#include "FieldEventsTest.moc"
