#pragma once

#include "CameraOptions.h"
#include "FailureInjector.h"
#include "FeatureDescription.h"
#include "FeatureProbe.h"
#include "Journal.h"
#include "Model.h"
#include "Snapshot.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace sim {

class Device;

/// A simulated camera. Clients get its features(); tests and the viewer see it directly.
///
///     auto camera = sim::createCamera("current");        // sim::modelNames() tells the others
///     openPage(camera->features());                      // what a client sees
///     camera->writeAsOtherClient("BinningHorizontal", 2);
///     camera->flushNotifications();
///     QCOMPARE(camera->feature("WidthMax").integer(), 1296);
///     QCOMPARE(camera->journal().writes().size(), 0);    // what the page wrote
///     camera->failures().add("Width", sim::Operation::SetValue, sim::Failure::refuse());
///     camera->modify("Gain", [](auto& gain) { gain.between(sim::FloatRange(0, NAN)); });
///     camera->setNotifications(sim::NotificationSettings::synchronous());
///     sim::Camera own({sim::integerFeature("Width", 640).between(sim::IntegerRange(16, 1024))});
///
/// All functions may be called from any thread. Features may outlive the camera; they then answer
/// ZebErrorBadHandle.
class Camera
{
public:
    explicit Camera(FeatureDescriptions descriptions, const CameraOptions& options = {});
    ~Camera();
    Camera(const Camera&) = delete;
    Camera& operator=(const Camera&) = delete;

    std::vector<ZebCPP::FeaturePtr> features() const;

    // Direct sight. An unknown name throws std::out_of_range.
    bool has(const std::string& name) const;
    FeatureProbe feature(const std::string& name) const;
    Snapshot snapshot() const;
    bool isStreaming() const;

    // What others do to the camera; observers are told.
    ZebErrorType writeAsOtherClient(const std::string& name, const Value& value);
    ZebErrorType runAsOtherClient(const std::string& name);
    void setStreaming(bool streaming);
    void force(const std::string& name, const Value& value); ///< whatever the rules say
    void forceAt(const std::string& name, std::int64_t entry, const Value& value);
    /// Changes the declaration of a feature: its range, access, entries, texts, or its value.
    void modify(const std::string& name, const std::function<void(FeatureDescription&)>& change);

    // Misbehaviour.
    FailureInjector& failures();
    void setRounding(bool rounds);
    /// Every call through the SDK fails from now on, each after the delay; observers are forgotten.
    void lose(std::chrono::milliseconds delayPerCall = {}, ZebErrorType code = ZebErrorBadHandle);
    /// As with real cameras: names, types, texts, entries and observers are the SDK's own and go
    /// on; what comes from the camera fails.
    void loseValues(std::chrono::milliseconds delayPerCall, ZebErrorType code = ZebErrorTimeout);
    void recover(); ///< a lost camera answers again; observers stay forgotten

    // Notifications.
    void setNotifications(const NotificationSettings& settings);
    NotificationSettings notifications() const;
    void announce(const std::string& name); ///< as after a change
    void flushNotifications();              ///< waits until all are delivered
    /// Calls the feature's observers count times from each of the threads; returns afterwards.
    void burst(const std::string& name, int count, int threads = 1);
    std::uint64_t notificationCount() const; ///< delivered so far
    std::size_t observerCount() const;
    std::size_t observerCount(const std::string& name) const;

    Journal& journal();

private:
    std::size_t indexOf(const std::string& name) const;

    std::shared_ptr<Device> m_device;
};

} // namespace sim
