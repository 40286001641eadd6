#pragma once

#include "Session.h"
#include "TestEvents.h"

#include <QKeyEvent>

/// The page's widgets that a person can see and use now.
template <typename Widget> QList<Widget*> usable(const Session& session)
{
    QList<Widget*> widgets;
    if (!session.page())
        return widgets;
    const auto all = session.page()->findChildren<Widget*>();
    for (Widget* widget : all) {
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

inline void sendKey(const QPointer<QWidget>& target, int key, const QString& text = {})
{
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(type, key, Qt::NoModifier, text);
        if (target)
            QApplication::sendEvent(target, &event);
    }
}

inline void typeText(const QPointer<QWidget>& target, const QString& text)
{
    for (const QChar character : text)
        sendKey(target, character.toUpper().unicode(), QString(character));
}

inline void click(const QPointer<QWidget>& target, const QPoint& position)
{
    sendMouse(target, QEvent::MouseButtonPress, position);
    if (target)
        release(target, position);
}
