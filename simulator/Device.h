#pragma once

#include "FailureInjector.h"
#include "FeatureStore.h"
#include "Journal.h"
#include "Notifier.h"

#include <atomic>
#include <chrono>
#include <memory>
#include <mutex>
#include <vector>

namespace sim {

class SimFeature;

/// What a camera and its features share. The camera owns it; features hold it weakly, so that they
/// outlive the camera and then answer an error.
class Device : public std::enable_shared_from_this<Device>
{
public:
    static std::shared_ptr<Device> create(FeatureDescriptions descriptions);

    std::mutex& mutex() { return m_mutex; } ///< guards store() and the rounding
    FeatureStore& store() { return m_store; }
    FeatureStore::Rounding rounding = FeatureStore::Rounding::Strict;

    Journal& journal() { return m_journal; }
    FailureInjector& failures() { return m_failures; }
    Notifier& notifier() { return *m_notifier; }

    std::size_t size() const { return m_features.size(); }
    ZebCPP::FeaturePtr feature(std::size_t index) const;
    Notifier::Target target(std::size_t index) const { return {index, feature(index)}; }

    /// Runs @p change with the device locked, then tells the observers without the lock.
    template <typename Change> auto apply(Change&& change)
    {
        ChangeSet changes;
        auto result = [&] {
            const std::lock_guard lock(m_mutex);
            return change(m_store, changes);
        }();
        announce(changes);
        return result;
    }
    void announce(const ChangeSet& changes);

    /// From now on each of these calls through the SDK waits for the delay and answers the code.
    void lose(ZebErrorType code, std::chrono::milliseconds delay, Operations operations);
    void recover() { m_lost = Operations(); }
    bool isLost(Operation operation) const { return m_lost.load().contains(operation); }
    ZebErrorType lostCode() const { return m_lostCode; }
    std::chrono::milliseconds lostDelay() const { return m_lostDelay; }

    /// The camera is closed.
    void close();

private:
    explicit Device(FeatureDescriptions descriptions);

    std::mutex m_mutex;
    FeatureStore m_store;
    Journal m_journal;
    FailureInjector m_failures;
    std::shared_ptr<Notifier> m_notifier;
    std::vector<std::shared_ptr<SimFeature>> m_features;
    std::atomic<ZebErrorType> m_lostCode{ZebErrorBadHandle};
    std::atomic<std::chrono::milliseconds> m_lostDelay{};
    std::atomic<Operations> m_lost{};
};

} // namespace sim
