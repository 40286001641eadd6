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
    m_observers.clear();
    std::unique_lock lock(m_mutex);
    m_isStopping = true;
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

ZebCPP::FeaturePtr ChangeWatch::featureOf(ArvGcFeatureNode* node) const
{
    const std::lock_guard lock(m_mutex);
    const auto found = std::find_if(m_features.begin(), m_features.end(),
                                    [&](const auto& one) { return one->node() == node; });
    return found == m_features.end() ? nullptr : *found;
}

// The values that are known are dropped: what the camera makes of the write, or resets by itself a
// moment later, is news even when it is what was known before.
void ChangeWatch::written(std::size_t place)
{
    const std::lock_guard lock(m_mutex);
    for (const std::size_t feature : m_touched[place])
        m_known[feature].reset();
    noteChange(place);
}

// What one client reads is news to the others.
void ChangeWatch::seen(std::size_t feature, const Value& value, bool isByWatch)
{
    const std::lock_guard lock(m_mutex);
    const auto [place, isFirst] = m_known.try_emplace(feature, value);
    const std::optional<Value> known = std::exchange(place->second, value);
    if (!isFirst && known != value && (known || isByWatch))
        noteChange(feature);
}

// Needs the lock.
void ChangeWatch::noteChange(std::size_t place)
{
    m_link->forget();
    m_changed.insert(m_touched[place].begin(), m_touched[place].end());
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
        for (const ZebCPP::IFeatureObserverPtr& observer : m_observers.observers(feature)) {
            // A call before may have taken it off.
            const auto left = m_observers.observers(feature);
            try {
                if (std::find(left.begin(), left.end(), observer) != left.end())
                    observer->FeatureChanged(m_features[feature]);
            } catch (...) { // the observer's fault, not to end the process
            }
        }
    }
}

// Ends at the first failure, or when its time is over; the next look goes on from there.
void ChangeWatch::poll()
{
    const auto end = Clock::now() + longestPoll;
    bool isGood = true;
    for (std::size_t count = 0; count < m_features.size() && isGood; ++count) {
        m_lastPolled = (m_lastPolled + 1) % m_features.size();
        if (m_observers.count(m_lastPolled) > 0)
            isGood = m_features[m_lastPolled]->look() && Clock::now() < end && !m_isStopping;
    }
}

void ChangeWatch::askAgain()
{
    if (!m_link->ask())
        return;
    const std::lock_guard lock(m_mutex);
    m_known.clear();
    for (std::size_t feature = 0; feature < m_features.size(); ++feature)
        noteChange(feature);
}

} // namespace genicam
