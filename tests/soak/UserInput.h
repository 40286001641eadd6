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

inline void sendKey(QWidget* widget, int key, const QString& text = {})
{
    const QPointer<QWidget> target = widget;
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(type, key, Qt::NoModifier, text);
        if (target)
            QApplication::sendEvent(target, &event);
    }
}

inline void typeText(QWidget* widget, const QString& text)
{
    const QPointer<QWidget> target = widget;
    for (const QChar character : text) {
        if (target)
            sendKey(target, character.toUpper().unicode(), QString(character));
    }
}

inline void click(QWidget* widget, const QPoint& position)
{
    const QPointer<QWidget> target = widget;
    sendMouse(widget, QEvent::MouseButtonPress, position);
    if (target)
        release(target, position);
}
