#pragma once

#include "Dependencies.h"
#include "DeviceLink.h"

#include "sdk/ObserverRegistry.h"

#include <condition_variable>
#include <map>
#include <optional>
#include <thread>

namespace genicam {

class GenicamFeature;

/// Tells observers what changes: on a thread of its own it hands out the changes of own writes,
/// looks once a second for those that others made, and asks a lost camera again. Features go by
/// their places in the camera's list.
class ChangeWatch : public std::enable_shared_from_this<ChangeWatch>
{
public:
    using Features = std::vector<std::shared_ptr<GenicamFeature>>;

    /// @p onGone is called on the watch's thread, and not after stop(); it must not call back.
    ChangeWatch(std::shared_ptr<DeviceLink> link, std::function<void(bool)> onGone);

    /// @p touched: what a write to each may change; there may be more than features.
    void start(Features features, std::vector<Places> touched);
    /// No call of observers begins afterwards. Waits for one under way, unless that is stuck in a
    /// lost camera.
    void stop();

    ObserverRegistry& observers() { return m_observers; }
    /// Null when it is none of the features.
    ZebCPP::FeaturePtr featureOf(ArvGcFeatureNode* node) const;

    void written(std::size_t place);
    /// @p value was read from the camera; by the watch itself, which nobody else has seen then, or
    /// by a client.
    void seen(std::size_t feature, const Value& value, bool isByWatch);

private:
    using Clock = std::chrono::steady_clock;

    void run();
    void deliver(const Places& changed);
    void poll();
    void askAgain();
    void noteChange(std::size_t place);

    const std::shared_ptr<DeviceLink> m_link;
    const std::function<void(bool)> m_onGone;
    ObserverRegistry m_observers;
    Features m_features;
    std::vector<Places> m_touched;
    std::thread m_thread;
    std::size_t m_lastPolled = 0;
    bool m_isGone = false;

    mutable std::mutex m_mutex;
    std::condition_variable m_wake;
    std::condition_variable m_ended;
    std::map<std::size_t, std::optional<Value>> m_known; ///< as last seen; none: written since
    Places m_changed;
    std::atomic<bool> m_isStopping{false};
    bool m_hasEnded = false;
};

} // namespace genicam
