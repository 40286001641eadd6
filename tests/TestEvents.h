#pragma once

#include <QApplication>
#include <QMouseEvent>
#include <QWidget>

// Mouse events sent straight to a widget: QTest::mouseMove() delivers none between a press and its
// release.

inline void sendMouse(QWidget* widget, QEvent::Type type, const QPoint& position,
                      Qt::MouseButtons buttons = Qt::LeftButton,
                      Qt::MouseButton button = Qt::LeftButton)
{
    QMouseEvent event(type, position, widget->mapToGlobal(position),
                      type == QEvent::MouseMove ? Qt::NoButton : button, buttons, Qt::NoModifier);
    QApplication::sendEvent(widget, &event);
}

/// Hovers, which chooses the cursor, and presses.
inline void press(QWidget* widget, const QPoint& position)
{
    sendMouse(widget, QEvent::MouseMove, position, Qt::NoButton);
    sendMouse(widget, QEvent::MouseButtonPress, position);
}

inline void release(QWidget* widget, const QPoint& position)
{
    sendMouse(widget, QEvent::MouseButtonRelease, position, Qt::NoButton);
}

/// A whole drag with the left button.
inline void drag(QWidget* widget, const QPoint& from, const QPoint& to)
{
    press(widget, from);
    sendMouse(widget, QEvent::MouseMove, to);
    release(widget, to);
}
