#include "SimulatedSource.h"

#include "FrameGeometry.h"
#include "TestPattern.h"

#include "simulator/Camera.h"

namespace {

constexpr int frameInterval = 40;

SensorState sensorState(const sim::Snapshot& snapshot)
{
    SensorState state;
    state.sensor = QSize(pixels(snapshot.sensor.width), pixels(snapshot.sensor.height));
    state.binning = QSize(pixels(snapshot.binningHorizontal), pixels(snapshot.binningVertical));
    state.reverseX = snapshot.reverseX;
    state.reverseY = snapshot.reverseY;
    state.multipleRegions = snapshot.hasMultipleRegions;
    for (const sim::Snapshot::Region& region : snapshot.regions) {
        state.regions.append(
            QRect(pixels(region.x), pixels(region.y), pixels(region.width), pixels(region.height)));
    }
    state.exposureTime = snapshot.exposureMicroseconds;
    state.pixelFormat = QString::fromStdString(snapshot.pixelFormat);
    return state;
}

/// @p text as a value of the feature's type; empty when it is none.
sim::Value parse(const QString& text, ZebFeatureDataType type)
{
    bool valid = false;
    switch (type) {
    case ZebFeatureDataInt: {
        const qlonglong number = text.toLongLong(&valid, 0);
        return valid ? sim::Value(number) : sim::Value();
    }
    case ZebFeatureDataFloat: {
        const double number = text.toDouble(&valid);
        return valid ? sim::Value(number) : sim::Value();
    }
    case ZebFeatureDataBool:
        if (text == QLatin1String("true") || text == QLatin1String("1"))
            return true;
        return text == QLatin1String("false") || text == QLatin1String("0") ? sim::Value(false)
                                                                            : sim::Value();
    case ZebFeatureDataEnum:
    case ZebFeatureDataString:
        return text.toStdString();
    default:
        return {};
    }
}

std::unique_ptr<sim::Camera> createCamera(const QString& id)
{
    const QStringList parts = id.split(QLatin1Char('+'));
    sim::CameraOptions options;
    options.extraFeatures = parts.value(1).toInt();
    return sim::createCamera(parts.constFirst().toStdString(), options);
}

} // namespace

SimulatedSource::SimulatedSource(const QString& id)
    : m_camera(createCamera(id))
    , m_shown(sensorState(m_camera->snapshot()))
{
    connect(&m_timer, &QTimer::timeout, this, &SimulatedSource::update);
    m_timer.start(frameInterval);
}

SimulatedSource::~SimulatedSource() = default;

std::vector<ZebCPP::FeaturePtr> SimulatedSource::features() const
{
    return m_camera->features();
}

bool SimulatedSource::start()
{
    m_camera->setStreaming(true);
    return true;
}

void SimulatedSource::stop()
{
    m_camera->setStreaming(false);
}

SensorState SimulatedSource::state() const
{
    return sensorState(m_camera->snapshot());
}

QImage SimulatedSource::frame(const QSize& shown) const
{
    const SensorState current = state();
    return renderFrame(current, renderSize(frameRect(current).size(), shown), m_frameNumber);
}

QString SimulatedSource::readValueText(const QString& feature) const
{
    const std::string name = feature.toStdString();
    return m_camera->has(name) ? QString::fromStdString(m_camera->feature(name).text()) : QString();
}

ZebErrorType SimulatedSource::writeAsOtherClient(const QString& feature, const QString& value)
{
    const std::string name = feature.toStdString();
    if (!m_camera->has(name))
        return ZebErrorNotFound;
    const ZebFeatureDataType type = m_camera->feature(name).description().type;
    if (type == ZebFeatureDataCommand)
        return m_camera->runAsOtherClient(name);
    const sim::Value parsed = parse(value, type);
    return parsed.isEmpty() ? ZebErrorInvalidValue : m_camera->writeAsOtherClient(name, parsed);
}

void SimulatedSource::update()
{
    const SensorState current = state();
    const bool isStreaming = m_camera->isStreaming();
    if (isStreaming)
        ++m_frameNumber;
    if (!isStreaming && current == m_shown)
        return;
    m_shown = current;
    emit pictureChanged();
}
