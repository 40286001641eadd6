#pragma once

#include "SensorState.h"
#include "host/TabExtensionInterface.h"

#include <QObject>
#include <QStringList>
#include <QTimer>

namespace sim {
class Camera;
}

/// One opened simulated camera, as the viewer sees it. All that the viewer knows of the simulator
/// is in here.
class CameraSession : public QObject
{
    Q_OBJECT

public:
    struct Model
    {
        QString name;
        QString description;
    };

    static QVector<Model> models();

    /// @p modelName is one of models().
    explicit CameraSession(const QString& modelName, QObject* parent = nullptr);
    ~CameraSession() override;

    QString modelName() const { return m_modelName; }
    TabExtensionInterface::FeatureList features() const { return m_features; }
    QStringList featureNames() const;

    /// The value of a feature as a text, read past the SDK.
    QString valueText(const QString& feature) const;

    bool isStreaming() const { return m_streaming; }
    void setStreaming(bool streaming);

    const SensorState& state() const { return m_state; }
    qint64 frameNumber() const { return m_frameNumber; }

    /// A frame at the camera's resolution, as it looks now; null when the camera delivers no
    /// pixels.
    QPixmap lastFrame() const;

    /// Writes @p value the way another client of the camera would: behind the page's back.
    ZebErrorType writeAsOtherClient(const QString& feature, const QString& value);

signals:
    void streamingChanged(bool streaming);
    /// There is a new frame, or the still frame would look different now.
    void pictureChanged();

private:
    void update();

    QString m_modelName;
    std::shared_ptr<sim::Camera> m_camera;
    TabExtensionInterface::FeatureList m_features;
    SensorState m_state;
    QTimer m_timer;
    qint64 m_frameNumber = 0;
    bool m_streaming = false;
};
