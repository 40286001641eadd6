#pragma once

#include <QImage>
#include <QWidget>

class CameraSession;

/// Draws the camera's frames at the place they have on the sensor. Rendered at the size shown, so
/// that a large sensor costs no more than a small one.
class LivePicture : public QWidget
{
    Q_OBJECT

public:
    explicit LivePicture(QWidget* parent = nullptr);

    /// Null shows an empty picture.
    void setSession(const CameraSession* session);

    QSize sizeHint() const override { return {480, 360}; }
    QSize minimumSizeHint() const override { return {160, 120}; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void paintEmpty(QPainter& painter) const;

    const CameraSession* m_session = nullptr;
};
