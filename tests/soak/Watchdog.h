#pragma once

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <mutex>
#include <string>
#include <thread>

/// Ends the program, with the place told, when the GUI thread does not come back for too long, or
/// when it crashes.
class Watchdog
{
public:
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
    static constexpr int slowdown = 4; ///< at most, of the GUI thread, by the sanitizers
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
    /// The real time, less what the GUI thread spent waiting for a processor on a busy machine.
    std::chrono::nanoseconds guiTime() const;
    /// Where it is; @p action is a literal.
    static void setPlace(std::uint64_t seed, int step, const char* action);

private:
    void watch();

    const std::string m_statistics;
    std::atomic<std::uint64_t> m_beats{0};
    std::mutex m_mutex;
    std::condition_variable m_wake;
    bool m_ends = false;
    std::thread m_thread;
};
