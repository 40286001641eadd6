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

void ChangeWatch::start(Features features, std::vector<Places> touched)
{
    m_features = std::move(features);
    m_touched = std::move(touched);
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
    Observers& list = m_observers[feature];
    const auto found = std::find(list.begin(), list.end(), observer);
    if (found == list.end())
        return ZebErrorNotFound;
    list.erase(found);
    return ZebErrorSuccess;
}

ChangeWatch::Observers ChangeWatch::observersOf(std::size_t feature) const
{
    const std::lock_guard lock(m_mutex);
    const auto found = m_observers.find(feature);
    return found == m_observers.end() ? Observers() : found->second;
}

ZebCPP::FeaturePtr ChangeWatch::featureOf(ArvGcFeatureNode* node) const
{
    const std::lock_guard lock(m_mutex);
    const auto found = std::find_if(m_features.begin(), m_features.end(),
                                    [&](const auto& one) { return one->node() == node; });
    return found == m_features.end() ? nullptr : *found;
}

// The value that is known is dropped: what the camera makes of the write, and resets by itself a
// moment later, is new in any case.
void ChangeWatch::written(std::size_t place)
{
    m_link->forget();
    const std::lock_guard lock(m_mutex);
    for (const std::size_t feature : m_touched[place])
        m_known.erase(feature);
    m_changed.insert(m_touched[place].begin(), m_touched[place].end());
    m_wake.notify_all();
}

// What one client reads is news to the others.
void ChangeWatch::seen(std::size_t feature, const Value& value)
{
    const std::lock_guard lock(m_mutex);
    const auto [known, isFirst] = m_known.try_emplace(feature, value);
    if (isFirst || known->second == value)
        return;
    known->second = value;
    m_link->forget();
    m_changed.insert(m_touched[feature].begin(), m_touched[feature].end());
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
        const Places changed = std::exchange(m_changed, {});
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

void ChangeWatch::deliver(const Places& changed)
{
    for (const std::size_t feature : changed) {
        for (const ZebCPP::IFeatureObserverPtr& observer : observersOf(feature)) {
            const Observers left = observersOf(feature); // a call before may have taken it off
            try {
                if (std::find(left.begin(), left.end(), observer) != left.end())
                    observer->FeatureChanged(m_features[feature]);
            } catch (...) { // the observer's fault, not to end the process
            }
        }
    }
}

// What does not fit into the time is looked at first the next time.
void ChangeWatch::poll()
{
    const auto end = Clock::now() + longestPoll;
    for (std::size_t count = 0; count < m_features.size(); ++count) {
        const std::size_t feature = m_nextToPoll++ % m_features.size();
        if (observersOf(feature).empty())
            continue;
        if (Clock::now() > end || m_isStopping || !m_features[feature]->look()) {
            m_nextToPoll = feature;
            return;
        }
    }
}

void ChangeWatch::askAgain()
{
    if (!m_link->ask())
        return;
    m_link->forget();
    const std::lock_guard lock(m_mutex);
    m_known.clear();
    for (const auto& [feature, observers] : m_observers)
        m_changed.insert(feature);
}

} // namespace genicam
