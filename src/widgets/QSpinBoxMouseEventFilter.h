#pragma once

#include <QObject>

/// Tells when the mouse is released over its spin box, so that a value is written once.
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
