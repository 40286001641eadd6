#pragma once

#include "NotificationSettings.h"

#include "sdk/ObserverRegistry.h"

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <deque>
#include <memory>
#include <mutex>
#include <thread>
#include <vector>

namespace sim {

/// Delivers change notifications to the observers, never with a lock held: an observer may read and
/// write features, and may close the camera. Thread-safe.
class Notifier : public std::enable_shared_from_this<Notifier>
{
public:
    struct Target
    {
        std::size_t index;
        ZebCPP::FeaturePtr feature;
    };

    ~Notifier();

    ObserverRegistry& registry() { return m_registry; }
    void setSettings(const NotificationSettings& settings);
    NotificationSettings settings() const;

    /// The first target is what was written, the others follow from it.
    void post(std::vector<Target> changed);
    /// An observer was just registered or unregistered: the calls that the settings ask for.
    void observerAdded(const Target& target, const ZebCPP::IFeatureObserverPtr& observer);
    void observerRemoved(const Target& target, const ZebCPP::IFeatureObserverPtr& observer);
    /// Calls the observers @p count times from each of @p threads threads, and returns afterwards.
    void burst(const Target& target, int count, int threads);

    /// Waits until nothing is left to deliver; returns at once on the camera's own thread.
    void flush();
    /// Ends the camera's thread; what waits is dropped, observers are forgotten.
    void stop();

    std::uint64_t delivered() const { return m_delivered; }

private:
    using Clock = std::chrono::steady_clock;

    struct Job
    {
        Clock::time_point due;
        Target target;
        ZebCPP::IFeatureObserverPtr only; ///< this observer, registered or not; null: all
    };

    void deliver(const Target& target);
    void call(const ZebCPP::IFeatureObserverPtr& observer, const Target& target);
    void enqueue(std::vector<Job> jobs);
    void work();

    ObserverRegistry m_registry;
    std::atomic<std::uint64_t> m_delivered{0};
    mutable std::mutex m_mutex;
    NotificationSettings m_settings;
    std::condition_variable m_wake;
    std::condition_variable m_idle;
    std::deque<Job> m_jobs; ///< by time; equal times in the order posted
    std::thread m_thread;
    bool m_busy = false;
    bool m_stopped = false;
};

} // namespace sim
