#pragma once

#include "Random.h"
#include "SoakCamera.h"

#include "simulator/Camera.h"

#include <string>
#include <thread>

/// A simulated camera that does much of it wrong, all from the seed.
class MisbehavingCamera : public SoakCamera
{
public:
    MisbehavingCamera(const std::string& model, Random& random);
    ~MisbehavingCamera() override;

    std::vector<ZebCPP::FeaturePtr> features() const override { return m_camera->features(); }
    std::size_t observerCount() const override { return m_camera->observerCount(); }
    bool has(const QString& feature) const override;
    QString text(const QString& feature) const override;
    QString textOfRegion(const QString& feature, int region) const override;
    sim::Snapshot state() const override { return m_camera->snapshot(); }
    Account takeAccount() override;
    void tellFigures(Report& report) const override;
    void setStreaming(bool is) override { m_camera->setStreaming(is); }
    void writeFromOutside() override;
    void distort() override;
    void lose(std::chrono::milliseconds callTime) override { m_camera->lose(callTime); }
    void burst(int count) override;
    void behave() override { m_camera->failures().clear(); }
    bool notifies() const override;
    void flushNotifications() override { m_camera->flushNotifications(); }

private:
    void tire();
    void spoil();
    void distortNumbers(const std::string& name);
    void failByChance(const std::string& name, const sim::Operations& operations,
                      const sim::Failure& failure, double probability);
    sim::Occurrence aWhile(int latestStart, int shortest, int longest);
    const std::string& anyFeature() { return m_random.pick(m_names); }

    Random& m_random;
    std::unique_ptr<sim::Camera> m_camera;
    std::vector<std::string> m_names;
    std::thread m_crowd;
};
