#include "ObserverRegistry.h"

#include <algorithm>

namespace sim {

ZebErrorType ObserverRegistry::add(std::size_t feature, const ZebCPP::IFeatureObserverPtr& observer)
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

ZebErrorType ObserverRegistry::remove(std::size_t feature,
                                      const ZebCPP::IFeatureObserverPtr& observer)
{
    const std::lock_guard lock(m_mutex);
    Observers& list = m_observers[feature];
    const auto found = std::find(list.begin(), list.end(), observer);
    if (found == list.end())
        return observer ? ZebErrorNotFound : ZebErrorBadParameter;
    list.erase(found);
    return ZebErrorSuccess;
}

void ObserverRegistry::clear()
{
    // Dropped observers are destroyed outside the lock: their destructors may call the camera.
    std::vector<Observers> dropped;
    const std::lock_guard lock(m_mutex);
    dropped.resize(m_observers.size());
    dropped.swap(m_observers);
}

ObserverRegistry::Observers ObserverRegistry::observers(std::size_t feature) const
{
    const std::lock_guard lock(m_mutex);
    return m_observers[feature];
}

std::size_t ObserverRegistry::count(std::size_t feature) const
{
    const std::lock_guard lock(m_mutex);
    return m_observers[feature].size();
}

std::size_t ObserverRegistry::count() const
{
    const std::lock_guard lock(m_mutex);
    std::size_t sum = 0;
    for (const Observers& list : m_observers)
        sum += list.size();
    return sum;
}

} // namespace sim
