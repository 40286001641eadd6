#include "LivePicture.h"

#include "CameraSession.h"
#include "FrameGeometry.h"
#include "TestPattern.h"

#include <QPainter>

LivePicture::LivePicture(QWidget* parent)
    : QWidget(parent)
{
    setObjectName(QStringLiteral("livePicture"));
    setAccessibleName(tr("Live picture"));
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void LivePicture::setSession(const CameraSession* session)
{
    if (m_session)
        m_session->disconnect(this);
    m_session = session;
    if (m_session)
        connect(m_session, &CameraSession::pictureChanged, this, qOverload<>(&QWidget::update));
    update();
}

void LivePicture::paintEvent(QPaintEvent*)
{
    constexpr double margin = 8.0;
    QPainter painter(this);
    painter.fillRect(rect(), palette().color(QPalette::Base));
    if (!m_session) {
        paintEmpty(painter);
        return;
    }

    const SensorState& state = m_session->state();
    const FramePlacement place
        = placeFrame(state, QRectF(rect()).adjusted(margin, margin, -margin, -margin));
    painter.fillRect(place.binnedArea, palette().color(QPalette::AlternateBase));
    const QSize shown = (place.frame.size() * devicePixelRatioF()).toSize();
    const QImage frame
        = renderFrame(state, renderSize(frameRect(state).size(), shown), m_session->frameNumber());
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
