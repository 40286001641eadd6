#pragma once

#include "CameraSource.h"

#include <atomic>
#include <memory>
#include <string>

typedef struct _ArvDevice ArvDevice;

namespace genicam {
class GenicamCamera;
}

/// A camera that speaks GenICam.
class GenicamSource : public CameraSource
{
    Q_OBJECT

public:
    /// Takes the device. @p vendor is put before the vendor's name, when it is not empty.
    GenicamSource(ArvDevice* device, const std::string& vendor);
    ~GenicamSource() override;

    std::vector<ZebCPP::FeaturePtr> features() const override;
    bool start() override;
    void stop() override;
    SensorState state() const override { return m_state; }
    QImage frame(const QSize&) const override { return m_frame; }
    QString streamText() const override;
    QString readValueText(const QString& feature) const override;
    ZebErrorType writeAsOtherClient(const QString& feature, const QString& value) override;

private:
    class Observer;

    void readState();
    void takeFrame();

    std::unique_ptr<genicam::GenicamCamera> m_camera;
    std::shared_ptr<Observer> m_observer;
    SensorState m_state;
    QImage m_frame;
    double m_framesPerSecond = 0.0;
    quint64 m_lostFrames = 0;
    std::atomic<bool> m_isFrameWaiting{false};
    bool m_isStreaming = false;
};
