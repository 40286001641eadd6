#include "CameraSession.h"

#include "FrameGeometry.h"

#include <QPixmap>

namespace {

QString featureName(const ZebCPP::FeaturePtr& feature)
{
    std::uint32_t length = 0;
    if (feature->GetName(nullptr, length) != ZebErrorSuccess || length == 0)
        return {};
    QByteArray buffer(static_cast<int>(length) + 1, '\0');
    if (feature->GetName(buffer.data(), length) != ZebErrorSuccess)
        return {};
    return QString::fromUtf8(buffer.constData());
}

} // namespace

CameraSession::CameraSession(const QString& id, std::shared_ptr<CameraSource> camera)
    : m_id(id)
    , m_camera(std::move(camera))
    , m_features(new QVector<ZebCPP::FeaturePtr>)
{
    for (const ZebCPP::FeaturePtr& feature : m_camera->features())
        m_features->append(feature);
    connect(m_camera.get(), &CameraSource::goneChanged, this, [this](bool isGone) {
        if (isGone)
            setStreaming(false);
    });
}

QStringList CameraSession::featureNames() const
{
    QStringList names;
    for (const ZebCPP::FeaturePtr& feature : *m_features) {
        const QString name = featureName(feature);
        if (!name.isEmpty())
            names.append(name);
    }
    return names;
}

void CameraSession::setStreaming(bool streaming)
{
    if (m_streaming == streaming)
        return;
    if (!streaming)
        m_camera->stop();
    else if (!m_camera->start())
        return;
    m_streaming = streaming;
    emit streamingChanged(streaming);
}

// A page takes a picture for one of the whole sensor.
QPixmap CameraSession::lastFrame() const
{
    const SensorState state = m_camera->state();
    const QRect place = frameRect(state);
    const QImage frame = m_camera->frame(place.size());
    return QPixmap::fromImage(placedFrame(frame, place, wholePicture(state)),
                              Qt::NoFormatConversion);
}
