#pragma once

#include <QObject>

/// Tells when the mouse button is released over the spin box that it is installed on, so that a
/// page can write a value once, after the arrows were held, and leave the field alone until then.
class QSpinBoxMouseEventFilter : public QObject
{
    Q_OBJECT

public:
    explicit QSpinBoxMouseEventFilter(QObject* parent);

    /// True from a press on the spin box until its release, or until the spin box can no longer get
    /// one.
    bool isMousePressed() const { return m_mousePressed; }

    /// Always false: the spin box still receives every event.
    bool eventFilter(QObject* watched, QEvent* event) override;

signals:
    void mouseReleased();

private:
    bool m_mousePressed = false;
};
