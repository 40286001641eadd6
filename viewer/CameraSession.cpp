#include "CameraSession.h"

#include "FrameGeometry.h"
#include "TestPattern.h"

#include "simulator/Camera.h"

#include <QPixmap>

namespace {

constexpr int frameInterval = 40;

/// Far above any sensor, far below what overflows an int.
int pixels(std::int64_t value)
{
    constexpr std::int64_t limit = 1 << 24;
    return static_cast<int>(qBound(-limit, value, limit));
}

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

} // namespace

QVector<CameraSession::Model> CameraSession::models()
{
    QVector<Model> models;
    for (const sim::Model& model : sim::models())
        models.append(
            {QString::fromStdString(model.name), QString::fromStdString(model.description)});
    return models;
}

CameraSession::CameraSession(const QString& modelName, QObject* parent)
    : QObject(parent)
    , m_modelName(modelName)
    , m_camera(sim::createCamera(modelName.toStdString()))
    , m_features(new QVector<ZebCPP::FeaturePtr>)
{
    for (const ZebCPP::FeaturePtr& feature : m_camera->features())
        m_features->append(feature);
    m_state = sensorState(m_camera->snapshot());
    connect(&m_timer, &QTimer::timeout, this, &CameraSession::update);
    m_timer.start(frameInterval);
}

CameraSession::~CameraSession() = default;

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

QString CameraSession::valueText(const QString& feature) const
{
    const std::string name = feature.toStdString();
    return m_camera->has(name) ? QString::fromStdString(m_camera->feature(name).text()) : QString();
}

void CameraSession::setStreaming(bool streaming)
{
    if (m_streaming == streaming)
        return;
    m_streaming = streaming;
    m_camera->setStreaming(streaming);
    emit streamingChanged(streaming);
}

QPixmap CameraSession::lastFrame() const
{
    const SensorState state = sensorState(m_camera->snapshot());
    QImage frame = renderFrame(state, frameRect(state).size(), m_frameNumber);
    return QPixmap::fromImage(std::move(frame), Qt::NoFormatConversion);
}

ZebErrorType CameraSession::writeAsOtherClient(const QString& feature, const QString& value)
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

void CameraSession::update()
{
    const SensorState state = sensorState(m_camera->snapshot());
    if (m_streaming)
        ++m_frameNumber;
    if (!m_streaming && state == m_state)
        return;
    m_state = state;
    emit pictureChanged();
}
