#include "Watchdog.h"

#include "VirtualTime.h"

#include <array>
#include <atomic>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <thread>

#include <pthread.h>
#include <time.h>
#include <unistd.h>

extern "C" __attribute__((weak)) void __sanitizer_set_death_callback(void (*callback)());

namespace {

constexpr std::chrono::seconds longestHang{5 * Watchdog::slowdown};
/// Of the real time: threads wait for each other, without any work.
constexpr std::chrono::minutes longestLock{10};

const pthread_t gui = pthread_self();
std::atomic<std::chrono::nanoseconds> lastBeat{};
std::atomic<std::chrono::nanoseconds> lastRealBeat{};
std::atomic<std::uint64_t> currentSeed{0};
std::atomic<int> currentStep{0};
std::atomic<const char*> currentAction{""};

// In a signal handler, so without anything that allocates but in the rarest case.
void tellPlace()
{
    std::array<char, 256> text{};
    const auto seed = static_cast<unsigned long long>(currentSeed);
    const int length
        = std::snprintf(text.data(), text.size(),
                        "\nseed %llu, step %d (%s)\nreplay with: scripts/soak --replay %llu\n",
                        seed, currentStep.load(), currentAction.load(), seed);
    if (length > 0 && write(STDERR_FILENO, text.data(), static_cast<std::size_t>(length)) < 0)
        std::abort();
}

void onSignal(int number)
{
    std::signal(number, SIG_DFL);
    tellPlace();
    std::raise(number);
}

void watch()
{
    while (Watchdog::guiTime() - lastBeat.load() <= longestHang
           && VirtualTime::real() - lastRealBeat.load() <= longestLock)
        std::this_thread::sleep_for(std::chrono::milliseconds(100));
    std::fputs("\nThe GUI thread hangs.", stderr);
    std::abort();
}

} // namespace

void Watchdog::start()
{
    beat();
    std::thread(watch).detach();
    std::signal(SIGABRT, onSignal);
    if (__sanitizer_set_death_callback) {
        __sanitizer_set_death_callback(tellPlace);
        return;
    }
    for (const int number : {SIGSEGV, SIGFPE, SIGBUS, SIGILL})
        std::signal(number, onSignal);
}

void Watchdog::beat()
{
    lastBeat = guiTime();
    lastRealBeat = VirtualTime::real();
}

void Watchdog::setPlace(std::uint64_t seed, int step, const char* action)
{
    beat();
    currentSeed = seed;
    currentStep = step;
    currentAction = action;
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
