#pragma once

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <mutex>
#include <thread>

#include <pthread.h>

/// Ends the program, with the place told, when the GUI thread does not come back for too long, or
/// when it crashes.
class Watchdog
{
public:
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
    static constexpr int slowdown = 12; ///< at most, of the GUI thread, by the sanitizers
#else
    static constexpr int slowdown = 1;
#endif

    Watchdog();
    ~Watchdog();
    Watchdog(const Watchdog&) = delete;
    Watchdog& operator=(const Watchdog&) = delete;

    /// The GUI thread is alive.
    void beat()
    {
        m_beats.fetch_add(1, std::memory_order_relaxed);
    }
    /// What the GUI thread worked and waited for the camera: the real time on an idle machine, and
    /// no more on a busy one.
    std::chrono::nanoseconds guiTime() const;
    /// Where it is; @p action is a literal.
    static void setPlace(std::uint64_t seed, int step, const char* action);

private:
    void watch();

    const pthread_t m_gui;
    std::atomic<std::uint64_t> m_beats{0};
    std::mutex m_mutex;
    std::condition_variable m_wake;
    bool m_ends = false;
    std::thread m_thread;
};
