#pragma once

#include "CameraSource.h"

#include <QTimer>

#include <memory>

namespace sim {
class Camera;
}

/// A simulated camera. All that the viewer knows of the simulator is in here.
class SimulatedSource : public CameraSource
{
    Q_OBJECT

public:
    /// @p id is one of a model, or one with "+N" behind it for N features more.
    explicit SimulatedSource(const QString& id);
    ~SimulatedSource() override;

    std::vector<ZebCPP::FeaturePtr> features() const override;
    bool start() override;
    void stop() override;
    SensorState state() const override;
    QImage frame(const QSize& shown) const override;
    QString readValueText(const QString& feature) const override;
    ZebErrorType writeAsOtherClient(const QString& feature, const QString& value) override;

private:
    void update();

    std::unique_ptr<sim::Camera> m_camera;
    SensorState m_shown;
    QTimer m_timer;
    qint64 m_frameNumber = 0;
};
