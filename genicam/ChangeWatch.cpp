#include "ChangeWatch.h"

#include "GenicamFeature.h"

#include <algorithm>
#include <utility>

namespace genicam {

namespace {

using namespace std::chrono_literals;

constexpr auto pollInterval = 1s;
constexpr auto longestPoll = 200ms;
constexpr auto longestStop = 300ms;

} // namespace

ChangeWatch::ChangeWatch(std::shared_ptr<DeviceLink> link, std::function<void(bool)> onGone)
    : m_link(std::move(link))
    , m_onGone(std::move(onGone))
{
}

void ChangeWatch::start(Features features, DependencyGraph graph)
{
    m_features = std::move(features);
    m_graph = std::move(graph);
    m_link->onLost([weak = weak_from_this()] {
        if (const auto self = weak.lock())
            self->m_wake.notify_all();
    });
    m_thread = std::thread([self = shared_from_this()] { self->run(); });
}

void ChangeWatch::stop()
{
    std::unique_lock lock(m_mutex);
    m_isStopping = true;
    m_observers.clear();
    m_wake.notify_all();
    if (!m_thread.joinable())
        return;
    const bool isMyself = std::this_thread::get_id() == m_thread.get_id();
    const bool hasEnded
        = !isMyself && m_ended.wait_for(lock, longestStop, [this] { return m_hasEnded; });
    lock.unlock();
    if (hasEnded)
        m_thread.join();
    else
        m_thread.detach(); // it keeps all it needs
}

ZebErrorType ChangeWatch::add(std::size_t feature, const ZebCPP::IFeatureObserverPtr& observer)
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

ZebErrorType ChangeWatch::remove(std::size_t feature, const ZebCPP::IFeatureObserverPtr& observer)
{
    if (!observer)
        return ZebErrorBadParameter;
    const std::lock_guard lock(m_mutex);
    const auto list = m_observers.find(feature);
    if (list == m_observers.end())
        return ZebErrorNotFound;
    const auto found = std::find(list->second.begin(), list->second.end(), observer);
    if (found == list->second.end())
        return ZebErrorNotFound;
    list->second.erase(found);
    if (list->second.empty()) {
        m_observers.erase(list);
        m_known.erase(feature);
    }
    return ZebErrorSuccess;
}

bool ChangeWatch::isObserved(std::size_t feature) const
{
    const std::lock_guard lock(m_mutex);
    return m_observers.count(feature) > 0;
}

// The value that is known is dropped: what the camera makes of the write, and resets by itself a
// moment later, is new in any case.
void ChangeWatch::written(const DependencyGraph::Places& touched)
{
    ++m_age;
    const std::lock_guard lock(m_mutex);
    for (const std::size_t feature : touched)
        m_known.erase(feature);
    m_changed.insert(touched.begin(), touched.end());
    m_wake.notify_all();
}

// What one client reads is news to the others.
void ChangeWatch::seen(std::size_t feature, const Value& value)
{
    const std::lock_guard lock(m_mutex);
    if (m_observers.count(feature) == 0)
        return;
    const auto [known, isFirst] = m_known.try_emplace(feature, value);
    if (isFirst || known->second == value)
        return;
    known->second = value;
    ++m_age;
    const DependencyGraph::Places& touched = m_graph.touchedBy(feature);
    m_changed.insert(touched.begin(), touched.end());
    m_wake.notify_all();
}

void ChangeWatch::run()
{
    auto nextPoll = Clock::now() + pollInterval;
    std::unique_lock lock(m_mutex);
    while (!m_isStopping) {
        const bool isNews = m_isGone != m_link->isLost();
        if (m_changed.empty() && !isNews && Clock::now() < nextPoll) {
            m_wake.wait_until(lock, nextPoll);
            continue;
        }
        if (isNews) {
            m_isGone = !m_isGone;
            m_onGone(m_isGone);
        }
        const DependencyGraph::Places changed = std::exchange(m_changed, {});
        lock.unlock();
        deliver(changed);
        if (Clock::now() >= nextPoll) {
            m_link->isLost() ? askAgain() : poll();
            nextPoll = Clock::now() + pollInterval;
        }
        lock.lock();
    }
    m_features.clear(); // they hold the watch
    m_hasEnded = true;
    m_ended.notify_all();
}

void ChangeWatch::deliver(const DependencyGraph::Places& changed)
{
    for (const std::size_t feature : changed) {
        std::unique_lock lock(m_mutex);
        const auto list = m_observers.find(feature);
        const Observers observers = list == m_observers.end() ? Observers() : list->second;
        lock.unlock();
        for (const ZebCPP::IFeatureObserverPtr& observer : observers) {
            try {
                if (isRegistered(feature, observer)) // a call before may have taken it off
                    observer->FeatureChanged(m_features[feature]);
            } catch (...) { // the observer's fault, not to end the process
            }
        }
    }
}

bool ChangeWatch::isRegistered(std::size_t feature,
                               const ZebCPP::IFeatureObserverPtr& observer) const
{
    const std::lock_guard lock(m_mutex);
    const auto list = m_observers.find(feature);
    return list != m_observers.end()
        && std::find(list->second.begin(), list->second.end(), observer) != list->second.end();
}

// What does not fit into the time is looked at first the next time.
void ChangeWatch::poll()
{
    const auto end = Clock::now() + longestPoll;
    for (std::size_t count = 0; count < m_features.size(); ++count) {
        const std::size_t feature = m_nextToPoll++ % m_features.size();
        if (!isObserved(feature))
            continue;
        if (Clock::now() > end || m_isStopping || !m_features[feature]->look()) {
            m_nextToPoll = feature;
            return;
        }
    }
}

void ChangeWatch::askAgain()
{
    const auto readable = std::find_if(m_features.begin(), m_features.end(),
                                       [](const auto& one) { return one->isBackedByCamera(); });
    if (readable == m_features.end() || !m_link->ask((*readable)->node()))
        return;
    ++m_age;
    const std::lock_guard lock(m_mutex);
    m_known.clear();
    for (const auto& [feature, observers] : m_observers)
        m_changed.insert(feature);
}

} // namespace genicam
