#pragma once

#include <ZebCPP/ZebCPP.h>

#include <algorithm>
#include <cstddef>
#include <map>
#include <mutex>
#include <vector>

/// The observers of a camera's features, by the feature's index, for cameras behind the SDK's
/// interface. Thread-safe.
class ObserverRegistry
{
public:
    using Observers = std::vector<ZebCPP::IFeatureObserverPtr>;

    /// An observer is registered on a feature once; a second time answers ZebErrorInvalidAccess.
    ZebErrorType add(std::size_t feature, const ZebCPP::IFeatureObserverPtr& observer)
    {
        if (!observer)
            return ZebErrorBadParameter;
        const std::lock_guard lock(m_mutex);
        Observers& list = m_observers[feature];
        if (std::find(list.begin(), list.end(), observer) != list.end())
            return ZebErrorInvalidAccess;
        list.push_back(observer);
        return ZebErrorSuccess;
    }

    ZebErrorType remove(std::size_t feature, const ZebCPP::IFeatureObserverPtr& observer)
    {
        const std::lock_guard lock(m_mutex);
        Observers& list = m_observers[feature];
        const auto found = std::find(list.begin(), list.end(), observer);
        if (found == list.end())
            return observer ? ZebErrorNotFound : ZebErrorBadParameter;
        list.erase(found);
        return ZebErrorSuccess;
    }

    void clear()
    {
        // Dropped observers are destroyed outside the lock: their destructors may call the camera.
        std::map<std::size_t, Observers> dropped;
        const std::lock_guard lock(m_mutex);
        dropped.swap(m_observers);
    }

    Observers observers(std::size_t feature) const
    {
        const std::lock_guard lock(m_mutex);
        const auto found = m_observers.find(feature);
        return found == m_observers.end() ? Observers() : found->second;
    }

    std::size_t count(std::size_t feature) const { return observers(feature).size(); }

    std::size_t count() const
    {
        const std::lock_guard lock(m_mutex);
        std::size_t sum = 0;
        for (const auto& [feature, list] : m_observers)
            sum += list.size();
        return sum;
    }

private:
    mutable std::mutex m_mutex;
    std::map<std::size_t, Observers> m_observers;
};
