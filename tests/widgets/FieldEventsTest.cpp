#include "DataTable.h"
#include "widgets/QSpinBoxMouseEventFilter.h"
#include "widgets/WheelGuard.h"

#include <QComboBox>
#include <QFontComboBox>
#include <QSpinBox>
#include <QtTest>

#include <functional>

using Act = std::function<void(QSpinBox&)>;
Q_DECLARE_METATYPE(Act)

class FieldEventsTest : public QObject
{
    Q_OBJECT

private slots:
    void mousePressEnds_data()
    {
        const DataTable<Act, bool, int> table{"act", "pressed", "released"};
        const auto release = [](QSpinBox& field) {
            QTest::mouseRelease(&field, Qt::LeftButton, {}, {95, 5});
        };
        const auto sendDoubleClick = [](QSpinBox& field) {
            QMouseEvent event(QEvent::MouseButtonDblClick, QPointF(95, 5), Qt::LeftButton,
                              Qt::LeftButton, {});
            QCoreApplication::sendEvent(&field, &event);
        };
        table.row("held", Act([](QSpinBox&) {}), true, 0);
        table.row("released", Act(release), false, 1);
        table.row("double click", Act([=](QSpinBox& field) {
                      release(field);
                      sendDoubleClick(field);
                  }),
                  true, 1);
        table.row("hidden", Act([](QSpinBox& field) { field.hide(); }), false, 0);
        table.row("page hidden", Act([](QSpinBox& field) { field.window()->hide(); }), false, 0);
        table.row("disabled", Act([](QSpinBox& field) { field.setEnabled(false); }), false, 0);
        table.row("taken out", Act([](QSpinBox& field) { field.setParent(nullptr); }), false, 0);
        table.row("other window", Act([](QSpinBox& field) {
                      QEvent event(QEvent::WindowDeactivate);
                      QCoreApplication::sendEvent(field.window(), &event);
                  }),
                  false, 0);
    }

    void mousePressEnds()
    {
        QFETCH(Act, act);
        QWidget window;
        auto* field = new QSpinBox(&window);
        QSpinBoxMouseEventFilter filter(nullptr);
        field->installEventFilter(&filter);
        field->resize(100, 30);
        window.show();
        QSignalSpy released(&filter, &QSpinBoxMouseEventFilter::mouseReleased);
        QTest::mousePress(field, Qt::LeftButton, {}, {95, 5});
        QCOMPARE(field->value(), 1); // the field itself was not left out
        act(*field);
        QTEST(filter.isMousePressed(), "pressed");
        QTEST(released.count(), "released");
        field->setParent(&window);
    }

    void wheelGuard_data()
    {
        const DataTable<QObject*, int, bool> table{"target", "type", "guarded"};
        const int wheel = QEvent::Wheel;
        const auto row = [](const char* name) -> QTestData& { return QTest::newRow(name); };
        row("combo box") << owned(new QComboBox) << wheel << true;
        row("spin box") << owned(new QSpinBox) << wheel << true;
        row("double spin box") << owned(new QDoubleSpinBox) << wheel << true;
        row("derived class") << owned(new QFontComboBox) << wheel << false;
        row("other class") << owned(new QSlider) << wheel << false;
        row("no widget") << owned(new QObject) << wheel << false;
        row("other event") << owned(new QSpinBox) << int(QEvent::Enter) << false;
        auto* focused = new QSpinBox;
        focused->setObjectName(QString("focused"));
        row("focused") << owned(focused) << wheel << false;
    }

    void wheelGuard()
    {
        QFETCH(QObject*, target);
        QFETCH(int, type);
        if (target->objectName() == QLatin1String("focused")) {
            auto* field = qobject_cast<QWidget*>(target);
            field->show();
            QApplication::setActiveWindow(field);
            field->setFocus();
        }
        const QEvent event(static_cast<QEvent::Type>(type));
        QTEST(isUnfocusedFieldWheel(target, &event), "guarded");
    }

private:
    QObject* owned(QObject* object)
    {
        m_owned.emplace_back(object);
        return object;
    }

    std::vector<std::unique_ptr<QObject>> m_owned;
};

QTEST_MAIN(FieldEventsTest)
#include "FieldEventsTest.moc"
