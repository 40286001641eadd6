#include "GenicamSource.h"

#include "genicam/GenicamCamera.h"

#include <QMutex>

namespace {

/// What a frame's place and caption depend on.
const char* const observed[]
    = {"SensorWidth", "SensorHeight", "WidthMax",          "HeightMax",       "Width",
       "Height",      "OffsetX",      "OffsetY",           "ReverseX",        "ReverseY",
       "PixelFormat", "ExposureTime", "BinningHorizontal", "BinningVertical", "ExposureTimeAbs"};

template <typename Plain>
Plain read(const genicam::GenicamCamera& camera, const char* name, Plain missing)
{
    const ZebCPP::FeaturePtr feature = camera.feature(name);
    Plain value{};
    return feature && feature->GetValue(value) == ZebErrorSuccess ? value : missing;
}

int readPixels(const genicam::GenicamCamera& camera, const char* name, int missing = 0)
{
    return pixels(read(camera, name, std::int64_t{missing}));
}

int readMaximum(const genicam::GenicamCamera& camera, const char* name)
{
    const ZebCPP::FeaturePtr feature = camera.feature(name);
    std::int64_t minimum = 0;
    std::int64_t maximum = 0;
    const bool isRead = feature && feature->GetRange(minimum, maximum) == ZebErrorSuccess;
    return isRead ? qMax(0, pixels(maximum)) : 0;
}

} // namespace

class GenicamSource::Observer : public ZebCPP::IFeatureObserver
{
public:
    void FeatureChanged(const ZebCPP::FeaturePtr&) override
    {
        const QMutexLocker lock(&mutex);
        if (source)
            QMetaObject::invokeMethod(source, &GenicamSource::readState, Qt::QueuedConnection);
    }

    QMutex mutex;
    GenicamSource* source = nullptr;
};

GenicamSource::GenicamSource(ArvDevice* device, const std::string& vendor)
    : m_observer(std::make_shared<Observer>())
{
    const auto tellGone = [this](bool isGone) {
        QMetaObject::invokeMethod(
            this, [=] { emit goneChanged(isGone); }, Qt::QueuedConnection);
    };
    m_camera = std::make_unique<genicam::GenicamCamera>(
        device, genicam::GenicamCamera::Options{vendor, tellGone});
    readState();
    m_observer->source = this;
    for (const char* name : observed) {
        if (const ZebCPP::FeaturePtr feature = m_camera->feature(name))
            feature->RegisterObserver(m_observer);
    }
}

GenicamSource::~GenicamSource()
{
    const QMutexLocker lock(&m_observer->mutex);
    m_observer->source = nullptr;
}

std::vector<ZebCPP::FeaturePtr> GenicamSource::features() const
{
    return m_camera->features();
}

// The stream's thread asks once for many frames.
bool GenicamSource::start()
{
    const std::string reason = m_camera->startStream([this] {
        if (!m_isFrameWaiting.exchange(true))
            QMetaObject::invokeMethod(this, &GenicamSource::takeFrame, Qt::QueuedConnection);
    });
    if (!reason.empty())
        emit logged(tr("The stream does not start: %1").arg(QString::fromStdString(reason)));
    m_isStreaming = reason.empty();
    return m_isStreaming;
}

void GenicamSource::stop()
{
    m_camera->stopStream();
    m_isStreaming = false;
    emit pictureChanged();
}

void GenicamSource::takeFrame()
{
    m_isFrameWaiting = false;
    const std::optional<genicam::Frame> frame = m_camera->takeFrame();
    if (!frame)
        return;
    const int channels = frame->isColour ? 3 : 1;
    m_frame = frame->pixels.empty()
        ? QImage()
        : QImage(frame->pixels.data(), frame->width, frame->height, frame->width * channels,
                 frame->isColour ? QImage::Format_RGB888 : QImage::Format_Grayscale8)
              .copy();
    m_framesPerSecond = frame->framesPerSecond;
    m_lostFrames = frame->lostFrames;
    m_state.regions = {QRect(frame->x, frame->y, frame->width, frame->height)};
    emit pictureChanged();
}

void GenicamSource::readState()
{
    const genicam::GenicamCamera& camera = *m_camera;
    SensorState state;
    const QSize size(readPixels(camera, "Width"), readPixels(camera, "Height"));
    const QPoint offset(readPixels(camera, "OffsetX"), readPixels(camera, "OffsetY"));
    state.binning = QSize(qMax(1, readPixels(camera, "BinningHorizontal")),
                          qMax(1, readPixels(camera, "BinningVertical")));
    state.sensor = QSize(readPixels(camera, "SensorWidth", readMaximum(camera, "Width")),
                         readPixels(camera, "SensorHeight", readMaximum(camera, "Height")));
    state.picture = QSize(readPixels(camera, "WidthMax", state.sensor.width()),
                          readPixels(camera, "HeightMax", state.sensor.height()));
    state.reverseX = read(camera, "ReverseX", false);
    state.reverseY = read(camera, "ReverseY", false);
    state.regions = {QRect(offset, size)};
    if (m_isStreaming && !m_state.regions.isEmpty())
        state.regions = m_state.regions; // until the next frame
    state.exposureTime = read(camera, "ExposureTime", read(camera, "ExposureTimeAbs", 0.0));
    state.pixelFormat = readValueText(QStringLiteral("PixelFormat"));
    if (state == m_state || camera.isGone())
        return;
    if (state.regions != m_state.regions)
        m_frame = {}; // it was another region
    m_state = state;
    emit pictureChanged();
}

QString GenicamSource::streamText() const
{
    return m_isStreaming
        ? tr("%1 frames/s · %2 lost").arg(m_framesPerSecond, 0, 'f', 1).arg(m_lostFrames)
        : QString();
}

QString GenicamSource::readValueText(const QString& feature) const
{
    return QString::fromStdString(m_camera->readText(feature.toStdString()));
}

ZebErrorType GenicamSource::writeAsOtherClient(const QString& feature, const QString& value)
{
    return m_camera->writeAsOtherClient(feature.toStdString(), value.toStdString());
}
