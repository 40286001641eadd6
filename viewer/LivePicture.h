#pragma once

#include <QImage>
#include <QWidget>

class CameraSource;

/// Draws the camera's frames at the place they have on the sensor.
class LivePicture : public QWidget
{
    Q_OBJECT

public:
    explicit LivePicture(QWidget* parent = nullptr);

    /// Null shows an empty picture.
    void setCamera(const CameraSource* camera);

    QSize sizeHint() const override { return {480, 360}; }
    QSize minimumSizeHint() const override { return {160, 120}; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void paintEmpty(QPainter& painter) const;

    const CameraSource* m_camera = nullptr;
};
