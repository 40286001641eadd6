#pragma once

#include "CameraSource.h"
#include "host/TabExtensionInterface.h"

#include <QStringList>

#include <memory>

/// The open camera of the window: its features as the pages take them, whether it streams, and its
/// frames.
class CameraSession : public QObject
{
    Q_OBJECT

public:
    CameraSession(const QString& id, std::shared_ptr<CameraSource> camera);

    QString id() const { return m_id; }
    TabExtensionInterface::FeatureList features() const { return m_features; }
    QStringList featureNames() const;
    CameraSource& camera() const { return *m_camera; }

    bool isStreaming() const { return m_streaming; }
    void setStreaming(bool streaming);

    /// The last frame at its place in a picture of the whole sensor, black elsewhere; null when
    /// there is none.
    QPixmap lastFrame() const;

signals:
    void streamingChanged(bool streaming);

private:
    QString m_id;
    std::shared_ptr<CameraSource> m_camera;
    TabExtensionInterface::FeatureList m_features;
    bool m_streaming = false;
};
