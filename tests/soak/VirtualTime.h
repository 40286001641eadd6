#pragma once

#include <chrono>

/// Qt's clock, bent for the sessions, in which waiting shall cost little.
///
/// Where no threads take part it stands still while code runs, and where the event loop would sleep
/// until a timer is due it jumps there at once: timers fire at the same point of a session each
/// time, so that it replays exactly. Otherwise it runs ten times as fast as the real time.
///
/// The clock that stands still is the standard library's too, by which the module tells a camera
/// that makes its callers wait; it goes on by the camera's delays. However busy the machine is, it
/// does not pass for a lost camera.
///
/// Only the thread of start() sees all this; other threads have the real time. Linux only: it takes
/// the place of clock_gettime(), nanosleep() and ppoll(), and needs Qt's own event dispatcher
/// (QT_NO_GLIB).
namespace VirtualTime {

enum class Pace {
    Exact,
    Fast
};

void start(Pace pace);

// On any thread.
std::chrono::nanoseconds real();
std::chrono::nanoseconds slept(); ///< what the camera let the thread of start() wait for so far

} // namespace VirtualTime
