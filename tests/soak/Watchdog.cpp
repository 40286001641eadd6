#include "Watchdog.h"

#include "VirtualTime.h"

#include <array>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>

#include <time.h>
#include <unistd.h>

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
extern "C" void __sanitizer_set_death_callback(void (*callback)());
#endif

namespace {

constexpr std::chrono::seconds longestHang{5 * Watchdog::slowdown};
/// Of the real time, on a machine however busy: threads wait for each other.
constexpr std::chrono::minutes longestLock{5};

std::atomic<std::uint64_t> currentSeed{0};
std::atomic<int> currentStep{0};
std::atomic<const char*> currentAction{""};

// In a signal handler, so without anything that allocates but in the rarest case.
void tellPlace()
{
    std::array<char, 256> text{};
    const int length
        = std::snprintf(text.data(), text.size(),
                        "\nseed %llu, step %d (%s)\nreplay with: scripts/soak --replay %llu\n",
                        static_cast<unsigned long long>(currentSeed), currentStep.load(),
                        currentAction.load(), static_cast<unsigned long long>(currentSeed));
    if (length > 0 && write(STDERR_FILENO, text.data(), static_cast<std::size_t>(length)) < 0)
        std::abort();
}

[[maybe_unused]] void onSignal(int number)
{
    std::signal(number, SIG_DFL);
    tellPlace();
    std::raise(number);
}

} // namespace

Watchdog::Watchdog()
    : m_gui(pthread_self())
    , m_thread([this] { watch(); })
{
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
    __sanitizer_set_death_callback(tellPlace);
#else
    for (const int number : {SIGSEGV, SIGABRT, SIGFPE, SIGBUS, SIGILL})
        std::signal(number, onSignal);
#endif
}

Watchdog::~Watchdog()
{
    {
        const std::lock_guard lock(m_mutex);
        m_ends = true;
    }
    m_wake.notify_all();
    m_thread.join();
}

void Watchdog::setPlace(std::uint64_t seed, int step, const char* action)
{
    currentSeed = seed;
    currentStep = step;
    currentAction = action;
}

std::chrono::nanoseconds Watchdog::guiTime() const
{
    clockid_t clock{};
    timespec time{};
    pthread_getcpuclockid(m_gui, &clock);
    clock_gettime(clock, &time);
    return std::chrono::seconds(time.tv_sec) + std::chrono::nanoseconds(time.tv_nsec)
        + VirtualTime::slept();
}

void Watchdog::watch()
{
    std::uint64_t last = m_beats;
    std::chrono::nanoseconds since = guiTime();
    std::chrono::nanoseconds sinceReal = VirtualTime::real();
    std::unique_lock lock(m_mutex);
    while (!m_wake.wait_for(lock, std::chrono::milliseconds(100), [this] { return m_ends; })) {
        if (const std::uint64_t beats = m_beats; beats != last) {
            last = beats;
            since = guiTime();
            sinceReal = VirtualTime::real();
        } else if (guiTime() - since > longestHang
                   || VirtualTime::real() - sinceReal > longestLock) {
            std::fputs("\nThe GUI thread hangs.", stderr);
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
            tellPlace();
#endif
            std::abort();
        }
    }
}
