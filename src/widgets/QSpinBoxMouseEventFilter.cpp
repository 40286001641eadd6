#include "widgets/QSpinBoxMouseEventFilter.h"

#include <QEvent>
#include <QWidget>

QSpinBoxMouseEventFilter::QSpinBoxMouseEventFilter(QObject* parent)
    : QObject(parent)
{
}

bool QSpinBoxMouseEventFilter::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        m_mousePressed = true;
        break;
    case QEvent::MouseButtonRelease:
        m_mousePressed = false;
        emit mouseReleased();
        break;
    // From here on the release may go elsewhere and never arrive.
    case QEvent::Hide:
    case QEvent::ParentChange:
    case QEvent::WindowBlocked:
    case QEvent::WindowDeactivate:
        m_mousePressed = false;
        break;
    case QEvent::EnabledChange:
        m_mousePressed = m_mousePressed && static_cast<QWidget*>(watched)->isEnabled();
        break;
    default:
        break;
    }
    return false;
}
