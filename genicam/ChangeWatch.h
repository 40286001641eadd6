#pragma once

#include "DependencyGraph.h"
#include "DeviceLink.h"

#include <chrono>
#include <condition_variable>
#include <memory>
#include <thread>

namespace genicam {

class GenicamFeature;

/// Observers and what they are to be told: on a thread of its own it hands out the changes of own
/// writes, looks once a second for those that others made, and asks a lost camera again.
class ChangeWatch : public std::enable_shared_from_this<ChangeWatch>
{
public:
    using Features = std::vector<std::shared_ptr<GenicamFeature>>;

    /// @p onGone is called on the watch's thread, and not after stop(); it must not call back.
    ChangeWatch(std::shared_ptr<DeviceLink> link, std::function<void(bool)> onGone);

    /// A lost camera wakes the watch.
    void start(Features features, DependencyGraph graph);
    /// No call of observers begins afterwards. Waits for one under way, unless that is stuck in a
    /// lost camera.
    void stop();

    ZebErrorType add(std::size_t feature, const ZebCPP::IFeatureObserverPtr& observer);
    ZebErrorType remove(std::size_t feature, const ZebCPP::IFeatureObserverPtr& observer);

    /// Grows whenever what the library remembers of the camera may be out of date.
    std::uint64_t age() const { return m_age; }

    /// A write went to the camera that touches these features.
    void written(const DependencyGraph::Places& touched);
    const DependencyGraph& graph() const { return m_graph; }
    /// @p value was read from the camera.
    void seen(std::size_t feature, const Value& value);

private:
    using Observers = std::vector<ZebCPP::IFeatureObserverPtr>;
    using Clock = std::chrono::steady_clock;

    void run();
    void deliver(const DependencyGraph::Places& changed);
    void poll();
    void askAgain();
    bool isObserved(std::size_t feature) const;
    bool isRegistered(std::size_t feature, const ZebCPP::IFeatureObserverPtr& observer) const;

    const std::shared_ptr<DeviceLink> m_link;
    const std::function<void(bool)> m_onGone;
    Features m_features;
    DependencyGraph m_graph;
    std::thread m_thread;
    std::atomic<std::uint64_t> m_age{0};
    std::size_t m_nextToPoll = 0;
    bool m_isGone = false;

    mutable std::mutex m_mutex;
    std::condition_variable m_wake;
    std::condition_variable m_ended;
    std::map<std::size_t, Observers> m_observers;
    std::map<std::size_t, Value> m_known; ///< of observed features, as last seen
    DependencyGraph::Places m_changed;
    std::atomic<bool> m_isStopping{false};
    bool m_hasEnded = false;
};

} // namespace genicam
