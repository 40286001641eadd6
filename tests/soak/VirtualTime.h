#pragma once

/// Qt's clock, bent for the sessions, in which waiting shall cost little.
///
/// Where no threads take part it stands still while code runs, and where the event loop would sleep
/// until a timer is due it jumps there at once: timers fire at the same point of a session each
/// time, so that it replays exactly. Otherwise it runs ten times as fast as the real time.
///
/// Only the calls that Qt itself makes on the thread of start() see it; other threads, the module
/// and the simulator have the real time. Linux only: it takes the place of clock_gettime() and
/// ppoll(), and needs Qt's own event dispatcher (QT_NO_GLIB).
namespace VirtualTime {

enum class Pace {
    Exact,
    Fast
};

void start(Pace pace);

} // namespace VirtualTime
