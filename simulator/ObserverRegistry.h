#pragma once

#include <ZebCPP/ZebCPP.h>

#include <cstddef>
#include <mutex>
#include <vector>

namespace sim {

/// The observers of each feature, by the feature's index. Thread-safe.
class ObserverRegistry
{
public:
    using Observers = std::vector<ZebCPP::IFeatureObserverPtr>;

    explicit ObserverRegistry(std::size_t features)
        : m_observers(features)
    {
    }

    /// An observer is registered on a feature once; a second time answers ZebErrorInvalidAccess.
    ZebErrorType add(std::size_t feature, const ZebCPP::IFeatureObserverPtr& observer);
    ZebErrorType remove(std::size_t feature, const ZebCPP::IFeatureObserverPtr& observer);
    void clear();

    Observers observers(std::size_t feature) const;
    std::size_t count(std::size_t feature) const;
    std::size_t count() const;

private:
    mutable std::mutex m_mutex;
    std::vector<Observers> m_observers;
};

} // namespace sim
