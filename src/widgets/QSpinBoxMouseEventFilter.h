#pragma once

#include <QObject>

/// Tells when the mouse button is released over the spin box that it is installed on: a page writes
/// the value once, after the arrows were held.
class QSpinBoxMouseEventFilter : public QObject
{
    Q_OBJECT

public:
    explicit QSpinBoxMouseEventFilter(QObject* parent);

    /// Until the release, or until the spin box can no longer get one.
    bool isMousePressed() const { return m_mousePressed; }

    /// Always false: the spin box still receives every event.
    bool eventFilter(QObject* watched, QEvent* event) override;

signals:
    void mouseReleased();

private:
    bool m_mousePressed = false;
};
