#pragma once

#include <QApplication>
#include <QWheelEvent>
#include <QWidget>
#include <QtTest>
#include <qtestspontaneevent.h>

/// As the window system sends it: only then does Qt look at the focus policy and try the parents.
inline void sendWheel(QWidget* widget, int angle = -120)
{
    const QPointF position = widget->rect().center();
    QWheelEvent event(position, widget->mapToGlobal(position.toPoint()), QPoint(), QPoint(0, angle),
                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QSpontaneKeyEvent::setSpontaneous(&event);
    QApplication::instance()->notify(widget, &event);
}
