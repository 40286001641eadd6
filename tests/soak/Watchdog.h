#pragma once

#include <atomic>
#include <chrono>
#include <cstdint>
#include <thread>

/// Ends the program, with the place told, when the GUI thread does not come back for too long, or
/// when it crashes. One for the process.
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
    static void beat();
    /// What the GUI thread worked and waited for the camera: the real time on an idle machine, and
    /// no more on a busy one.
    static std::chrono::nanoseconds guiTime();
    /// Where it is; @p action is a literal.
    static void setPlace(std::uint64_t seed, int step, const char* action);

private:
    void watch();

    std::atomic<bool> m_ends{false};
    std::thread m_thread;
};
