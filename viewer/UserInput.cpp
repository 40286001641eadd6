#include "UserInput.h"

#include <QAbstractButton>
#include <QAbstractSlider>
#include <QComboBox>
#include <QCoreApplication>
#include <QDoubleSpinBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QSpinBox>
#include <QTabBar>
#include <QTabWidget>

namespace {

class Text
{
    Q_DECLARE_TR_FUNCTIONS(UserInput)
};

QString whyUnusable(const QWidget* widget)
{
    if (!widget->isVisible())
        return Text::tr("%1 is not visible").arg(widget->objectName());
    if (!widget->isEnabled())
        return Text::tr("%1 is disabled").arg(widget->objectName());
    return {};
}

void pressReturn(QWidget* widget)
{
    for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(type, Qt::Key_Return, Qt::NoModifier);
        QCoreApplication::sendEvent(widget, &event);
    }
}

bool choose(QComboBox* combo, const QString& value)
{
    if (combo->isEditable()) {
        combo->setEditText(value);
        pressReturn(combo->lineEdit());
        return true;
    }
    const int index = combo->findText(value);
    if (index < 0)
        return false;
    combo->setCurrentIndex(index);
    emit combo->activated(index);
    emit combo->textActivated(value);
    return true;
}

bool isOn(const QString& value)
{
    return value == QLatin1String("1") || value == QLatin1String("on")
        || value == QLatin1String("true");
}

template <typename SpinBox, typename Number> bool enter(SpinBox* box, Number value)
{
    box->setValue(value);
    pressReturn(box);
    return true;
}

bool setValue(QWidget* widget, const QString& value)
{
    bool valid = false;
    if (auto* combo = qobject_cast<QComboBox*>(widget))
        return choose(combo, value);
    if (auto* box = qobject_cast<QSpinBox*>(widget)) {
        const int number = value.toInt(&valid);
        return valid && enter(box, number);
    }
    if (auto* box = qobject_cast<QDoubleSpinBox*>(widget)) {
        const double number = value.toDouble(&valid);
        return valid && enter(box, number);
    }
    if (auto* button = qobject_cast<QAbstractButton*>(widget)) {
        if (button->isCheckable() && button->isChecked() != isOn(value))
            button->click();
        return button->isCheckable();
    }
    if (auto* edit = qobject_cast<QLineEdit*>(widget)) {
        edit->setText(value);
        pressReturn(edit);
        return true;
    }
    if (auto* slider = qobject_cast<QAbstractSlider*>(widget)) {
        const int position = value.toInt(&valid);
        if (valid)
            slider->setValue(position);
        return valid;
    }
    return false;
}

} // namespace

QString clickWidget(QWidget* widget)
{
    QString obstacle = whyUnusable(widget);
    if (!obstacle.isEmpty())
        return obstacle;
    if (auto* button = qobject_cast<QAbstractButton*>(widget)) {
        button->click();
        return {};
    }
    const QPointF position = widget->rect().center();
    for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
        const auto buttons = type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton;
        QMouseEvent event(type, position, Qt::LeftButton, buttons, Qt::NoModifier);
        QCoreApplication::sendEvent(widget, &event);
    }
    return {};
}

QString setWidgetValue(QWidget* widget, const QString& value)
{
    QString obstacle = whyUnusable(widget);
    if (!obstacle.isEmpty())
        return obstacle;
    widget->setFocus();
    return setValue(widget, value)
        ? QString()
        : Text::tr("%1 does not take the value '%2'").arg(widget->objectName(), value);
}

void doubleClickWidget(QWidget* widget, const QPoint& position)
{
    for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease,
                            QEvent::MouseButtonDblClick, QEvent::MouseButtonRelease}) {
        const bool isRelease = type == QEvent::MouseButtonRelease;
        QMouseEvent event(type, position, widget->mapToGlobal(position), Qt::LeftButton,
                          isRelease ? Qt::NoButton : Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(widget, &event);
    }
}

QString selectTab(QWidget* root, const QString& label)
{
    const auto widgets = root->findChildren<QTabWidget*>();
    for (QTabWidget* widget : widgets) {
        QWidget* page = widget->findChild<QWidget*>(label);
        if (page && widget->indexOf(page) >= 0) {
            widget->setCurrentWidget(page);
            return {};
        }
    }
    const auto bars = root->findChildren<QTabBar*>();
    for (QTabBar* bar : bars) {
        for (int index = 0; index < bar->count(); ++index) {
            if (bar->tabText(index) == label) {
                bar->setCurrentIndex(index);
                return {};
            }
        }
    }
    return Text::tr("there is no tab '%1'").arg(label);
}
