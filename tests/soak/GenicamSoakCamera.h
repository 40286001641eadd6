#pragma once

#include "Random.h"
#include "SoakCamera.h"

#include <memory>

struct ByteArrayDevice;

namespace genicam {
class GenicamCamera;
}

/// A camera that speaks GenICam, over registers in memory. It crops its region when binning leaves
/// less than that.
class GenicamSoakCamera : public SoakCamera
{
public:
    explicit GenicamSoakCamera(Random& random);
    ~GenicamSoakCamera() override;

    std::vector<ZebCPP::FeaturePtr> features() const override;
    std::size_t observerCount() const override;
    bool has(const QString& feature) const override;
    QString text(const QString& feature) const override;
    QString textOfRegion(const QString& feature, int region) const override;
    sim::Snapshot state() const override;
    Account takeAccount() override;
    void tellFigures(Report& report) const override;
    void writeFromOutside() override;
    void distort() override;
    void lose(std::chrono::milliseconds callTime) override;
    void behave() override;

private:
    Random& m_random;
    std::shared_ptr<ByteArrayDevice> m_device;
    std::unique_ptr<genicam::GenicamCamera> m_camera;
    QStringList m_writes;
};
