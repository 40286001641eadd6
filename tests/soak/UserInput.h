#pragma once

#include "Session.h"
#include "TestEvents.h"

#include <QTest>

/// The page's widgets that a person can see and use now.
template <typename Widget> QList<Widget*> usable(const Session& session)
{
    QList<Widget*> widgets;
    const auto all = session.page() ? session.page()->findChildren<Widget*>() : widgets;
    for (Widget* const widget : all) {
        if (widget->isVisible() && widget->isEnabled())
            widgets.append(widget);
    }
    return widgets;
}

/// One of them by chance; null when there is none.
template <typename Widget> Widget* anyUsable(Session& session)
{
    const auto widgets = usable<Widget>(session);
    return widgets.isEmpty() ? nullptr : session.random.pick(widgets);
}

inline void leaveField()
{
    if (QWidget* const field = QApplication::focusWidget())
        field->clearFocus();
}

inline void click(const QPointer<QWidget>& target, const QPoint& position)
{
    sendMouse(target, QEvent::MouseButtonPress, position);
    if (target)
        release(target, position);
}
