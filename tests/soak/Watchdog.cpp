#include "Watchdog.h"

#include "VirtualTime.h"

#include <array>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include <pthread.h>
#include <time.h>
#include <unistd.h>

extern "C" __attribute__((weak)) void __sanitizer_set_death_callback(void (*callback)());

namespace {

constexpr std::chrono::seconds longestHang{5 * Watchdog::slowdown};
/// Seconds of the real time: it works for ever, or threads wait for each other.
constexpr unsigned longestSilence = 600;

const pthread_t gui = pthread_self();
std::chrono::nanoseconds lastBeat{};
std::array<char, 256> place{}; // a signal's handler can format nothing
bool tellsAll = false;

void onSignal(int number)
{
    std::signal(number, SIG_DFL);
    Watchdog::tellPlace();
    std::raise(number);
}

} // namespace

void Watchdog::start(bool isVerbose)
{
    tellsAll = isVerbose;
    for (const int number : {SIGABRT, SIGALRM})
        std::signal(number, onSignal);
    if (__sanitizer_set_death_callback) {
        __sanitizer_set_death_callback(Watchdog::tellPlace);
        return;
    }
    for (const int number : {SIGSEGV, SIGFPE, SIGBUS, SIGILL})
        std::signal(number, onSignal);
}

void Watchdog::beat()
{
    const auto now = guiTime();
    if (lastBeat.count() > 0 && now - lastBeat > longestHang) {
        std::fputs("The GUI thread was away for too long.\n", stderr);
        std::abort();
    }
    lastBeat = now;
    alarm(longestSilence);
}

void Watchdog::setPlace(std::uint64_t seed, const std::string& camera, int step, const char* action)
{
    beat();
    std::snprintf(place.data(), place.size(),
                  "scripts/soak --replay %llu: camera %s, step %d, %s\n",
                  static_cast<unsigned long long>(seed), camera.c_str(), step, action);
    if (tellsAll)
        tellPlace();
}

void Watchdog::tellPlace()
{
    if (write(STDERR_FILENO, place.data(), std::strlen(place.data())) < 0)
        std::abort();
}

std::chrono::nanoseconds Watchdog::guiTime()
{
    clockid_t clock{};
    timespec time{};
    pthread_getcpuclockid(gui, &clock);
    clock_gettime(clock, &time);
    return std::chrono::seconds(time.tv_sec) + std::chrono::nanoseconds(time.tv_nsec)
        + VirtualTime::slept();
}
