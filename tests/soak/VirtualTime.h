#pragma once

#include <chrono>

/// Qt's clock for the thread of start(), in which waiting shall cost little. It takes the place of
/// clock_gettime(), nanosleep() and ppoll(), and needs Linux and QT_NO_GLIB.
namespace VirtualTime {

enum class Pace {
    /// It stands still while code runs and jumps to the next timer, so that a session replays. All
    /// libraries' clocks do so too, and go on by the camera's delays.
    Exact = 0,
    Fast = 10 ///< times as fast as the real time: for sessions with threads
};

void start(Pace pace);

// On any thread.
std::chrono::nanoseconds real();
std::chrono::nanoseconds slept(); ///< what the camera let the thread of start() wait for so far

} // namespace VirtualTime
