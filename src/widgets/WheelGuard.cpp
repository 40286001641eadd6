#include "widgets/WheelGuard.h"

#include <QEvent>
#include <QWidget>

bool isUnfocusedFieldWheel(const QObject* target, const QEvent* event)
{
    if (event->type() != QEvent::Wheel)
        return false;
    const auto* widget = qobject_cast<const QWidget*>(target);
    if (!widget || widget->hasFocus())
        return false;
    // The exact class: derived widgets decide for themselves what the wheel does.
    const QLatin1String className(widget->metaObject()->className());
    return className == QLatin1String("QComboBox") || className == QLatin1String("QSpinBox")
        || className == QLatin1String("QDoubleSpinBox");
}
