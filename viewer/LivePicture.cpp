#include "LivePicture.h"

#include "CameraSource.h"
#include "FrameGeometry.h"

#include <QPainter>

LivePicture::LivePicture(QWidget* parent)
    : QWidget(parent)
{
    setObjectName(QStringLiteral("livePicture"));
    setAccessibleName(tr("Live picture"));
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void LivePicture::setCamera(const CameraSource* camera)
{
    if (m_camera)
        m_camera->disconnect(this);
    m_camera = camera;
    if (m_camera)
        connect(m_camera, &CameraSource::pictureChanged, this, qOverload<>(&QWidget::update));
    update();
}

void LivePicture::paintEvent(QPaintEvent*)
{
    constexpr double margin = 8.0;
    QPainter painter(this);
    painter.fillRect(rect(), palette().color(QPalette::Base));
    if (!m_camera) {
        paintEmpty(painter);
        return;
    }

    const SensorState state = m_camera->state();
    const FramePlacement place
        = placeFrame(state, QRectF(rect()).adjusted(margin, margin, -margin, -margin));
    painter.fillRect(place.binnedArea, palette().color(QPalette::AlternateBase));
    const QSize shown = (place.frame.size() * devicePixelRatioF()).toSize();
    const QImage frame = m_camera->frame(shown);
    if (!frame.isNull())
        painter.drawImage(place.frame, frame);

    painter.setPen(QPen(palette().color(QPalette::PlaceholderText), 1, Qt::DotLine));
    painter.drawRect(place.sensor);
    painter.drawRect(place.binnedArea);
}

void LivePicture::paintEmpty(QPainter& painter) const
{
    painter.setPen(palette().color(QPalette::PlaceholderText));
    painter.drawText(rect(), Qt::AlignCenter, tr("No camera is open."));
}
