#pragma once

#include "CameraEntry.h"
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
    static QVector<CameraEntry> models();

    /// @p model is the ID of one of models().
    explicit SimulatedSource(const QString& model);
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
