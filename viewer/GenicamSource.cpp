#include "GenicamSource.h"

#include "genicam/GenicamCamera.h"

#include <QMutex>

namespace {

/// What a frame's place and caption depend on.
const char* const observed[]
    = {"SensorWidth", "SensorHeight", "WidthMax",          "HeightMax",       "Width",
       "Height",      "OffsetX",      "OffsetY",           "ReverseX",        "ReverseY",
       "PixelFormat", "ExposureTime", "BinningHorizontal", "BinningVertical", "ExposureTimeAbs"};

int readInteger(const genicam::GenicamCamera& camera, const char* name, int missing)
{
    constexpr std::int64_t limit = 1 << 24;
    const ZebCPP::FeaturePtr feature = camera.feature(name);
    std::int64_t value = 0;
    const bool isRead = feature && feature->GetValue(value) == ZebErrorSuccess;
    return isRead ? static_cast<int>(qBound(-limit, value, limit)) : missing;
}

int readMaximum(const genicam::GenicamCamera& camera, const char* name)
{
    constexpr std::int64_t limit = 1 << 24;
    const ZebCPP::FeaturePtr feature = camera.feature(name);
    std::int64_t minimum = 0;
    std::int64_t maximum = 0;
    const bool isRead = feature && feature->GetRange(minimum, maximum) == ZebErrorSuccess;
    return isRead ? static_cast<int>(qBound<std::int64_t>(0, maximum, limit)) : 0;
}

double readExposure(const genicam::GenicamCamera& camera)
{
    double value = 0.0;
    for (const char* name : {"ExposureTime", "ExposureTimeAbs"}) {
        const ZebCPP::FeaturePtr feature = camera.feature(name);
        if (feature && feature->GetValue(value) == ZebErrorSuccess)
            return value;
    }
    return 0.0;
}

bool readSwitch(const genicam::GenicamCamera& camera, const char* name)
{
    const ZebCPP::FeaturePtr feature = camera.feature(name);
    bool isOn = false;
    return feature && feature->GetValue(isOn) == ZebErrorSuccess && isOn;
}

} // namespace

class GenicamSource::Observer : public ZebCPP::IFeatureObserver
{
public:
    explicit Observer(GenicamSource* source)
        : m_source(source)
    {
    }

    void FeatureChanged(const ZebCPP::FeaturePtr&) override
    {
        const QMutexLocker lock(&m_mutex);
        if (m_source)
            QMetaObject::invokeMethod(m_source, &GenicamSource::readState, Qt::QueuedConnection);
    }

    void forget()
    {
        const QMutexLocker lock(&m_mutex);
        m_source = nullptr;
    }

private:
    QMutex m_mutex;
    GenicamSource* m_source;
};

GenicamSource::GenicamSource(ArvDevice* device, const std::string& vendor)
    : m_observer(std::make_shared<Observer>(this))
{
    m_camera = std::make_unique<genicam::GenicamCamera>(
        device, genicam::GenicamCamera::Options{vendor, [this](bool isGone) {
                                                    QMetaObject::invokeMethod(
                                                        this, [=] { emit goneChanged(isGone); },
                                                        Qt::QueuedConnection);
                                                }});
    readState();
    for (const char* name : observed) {
        if (const ZebCPP::FeaturePtr feature = m_camera->feature(name))
            feature->RegisterObserver(m_observer);
    }
}

GenicamSource::~GenicamSource()
{
    m_observer->forget();
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
    const QSize size(readInteger(camera, "Width", 0), readInteger(camera, "Height", 0));
    state.binning = QSize(qMax(1, readInteger(camera, "BinningHorizontal", 1)),
                          qMax(1, readInteger(camera, "BinningVertical", 1)));
    state.sensor = QSize(readInteger(camera, "SensorWidth", readMaximum(camera, "Width")),
                         readInteger(camera, "SensorHeight", readMaximum(camera, "Height")));
    state.picture = QSize(readInteger(camera, "WidthMax", state.sensor.width()),
                          readInteger(camera, "HeightMax", state.sensor.height()));
    state.reverseX = readSwitch(camera, "ReverseX");
    state.reverseY = readSwitch(camera, "ReverseY");
    state.regions = {
        QRect(QPoint(readInteger(camera, "OffsetX", 0), readInteger(camera, "OffsetY", 0)), size)};
    if (m_isStreaming && !m_state.regions.isEmpty())
        state.regions = m_state.regions; // until the next frame
    state.exposureTime = readExposure(camera);
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
