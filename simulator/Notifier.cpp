#include "Notifier.h"

#include <algorithm>
#include <utility>

namespace sim {

Notifier::~Notifier()
{
    stop();
}

void Notifier::setSettings(const NotificationSettings& settings)
{
    const std::lock_guard lock(m_mutex);
    m_settings = settings;
}

NotificationSettings Notifier::settings() const
{
    const std::lock_guard lock(m_mutex);
    return m_settings;
}

void Notifier::post(std::vector<Target> changed)
{
    const NotificationSettings current = settings();
    if (changed.empty() || current.mode == NotificationSettings::Mode::Off)
        return;
    if (!current.cascades)
        changed.resize(1);

    if (current.mode == NotificationSettings::Mode::Synchronous) {
        for (const Target& target : changed)
            for (int i = 0; i < current.repeats; ++i)
                deliver(target);
        return;
    }
    std::vector<Job> jobs;
    const Clock::time_point due = Clock::now() + current.delay;
    for (const Target& target : changed)
        if (m_registry.count(target.index) > 0)
            jobs.insert(jobs.end(), static_cast<std::size_t>(std::max(current.repeats, 0)),
                        {due, target, nullptr});
    enqueue(std::move(jobs));
}

void Notifier::observerAdded(const Target& target, const ZebCPP::IFeatureObserverPtr& observer)
{
    if (settings().onRegistration)
        call(observer, target);
}

void Notifier::observerRemoved(const Target& target, const ZebCPP::IFeatureObserverPtr& observer)
{
    const NotificationSettings current = settings();
    if (current.lateAfterUnregistration)
        enqueue({{Clock::now() + current.delay, target, observer}});
}

void Notifier::burst(const Target& target, int count, int threads)
{
    std::vector<std::thread> crowd;
    crowd.reserve(static_cast<std::size_t>(threads));
    for (int t = 0; t < threads; ++t)
        crowd.emplace_back([&] {
            for (int i = 0; i < count; ++i)
                deliver(target);
        });
    for (std::thread& thread : crowd)
        thread.join();
}

void Notifier::deliver(const Target& target)
{
    for (const ZebCPP::IFeatureObserverPtr& observer : m_registry.observers(target.index))
        call(observer, target);
}

void Notifier::call(const ZebCPP::IFeatureObserverPtr& observer, const Target& target)
{
    ++m_delivered;
    observer->FeatureChanged(target.feature);
}

void Notifier::enqueue(std::vector<Job> jobs)
{
    if (jobs.empty())
        return;
    const std::lock_guard lock(m_mutex);
    if (m_stopped)
        return;
    for (Job& job : jobs) {
        const auto place = std::upper_bound(
            m_jobs.begin(), m_jobs.end(), job.due,
            [](Clock::time_point due, const Job& other) { return due < other.due; });
        m_jobs.insert(place, std::move(job));
    }
    // The thread keeps the notifier alive: an observer on it may close the camera.
    if (!m_thread.joinable())
        m_thread = std::thread([self = shared_from_this()] { self->work(); });
    m_wake.notify_one();
}

void Notifier::work()
{
    std::unique_lock lock(m_mutex);
    while (!m_stopped) {
        if (m_jobs.empty()) {
            m_idle.notify_all();
            m_wake.wait(lock);
            continue;
        }
        const Clock::time_point due = m_jobs.front().due;
        if (due > Clock::now()) {
            m_wake.wait_until(lock, due);
            continue;
        }
        Job job = std::move(m_jobs.front());
        m_jobs.pop_front();
        m_busy = true;
        lock.unlock();
        if (job.only)
            call(job.only, job.target);
        else
            deliver(job.target);
        job = {};
        lock.lock();
        m_busy = false;
    }
    m_idle.notify_all();
}

void Notifier::flush()
{
    std::unique_lock lock(m_mutex);
    if (m_thread.get_id() == std::this_thread::get_id())
        return;
    m_idle.wait(lock, [this] { return m_stopped || (m_jobs.empty() && !m_busy); });
}

void Notifier::stop()
{
    std::deque<Job> dropped;
    std::thread thread;
    {
        const std::lock_guard lock(m_mutex);
        m_stopped = true;
        dropped.swap(m_jobs);
        thread.swap(m_thread);
        m_wake.notify_all();
        m_idle.notify_all();
    }
    if (thread.joinable() && thread.get_id() == std::this_thread::get_id())
        thread.detach();
    else if (thread.joinable())
        thread.join();
    m_registry.clear();
}

} // namespace sim
