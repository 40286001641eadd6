#include "VirtualTime.h"

#include <atomic>
#include <cstdint>
#include <cstring>

#include <dlfcn.h>
#include <link.h>
#include <poll.h>
#include <sys/syscall.h>
#include <time.h>
#include <unistd.h>

namespace {

constexpr std::int64_t perSecond = 1'000'000'000;
/// Coarse timers are aligned to the second, so each session starts at a whole number of them.
constexpr std::int64_t startGrid = 1000 * perSecond;

// The clock showed base when the real time was realBase, in nanoseconds; all the owner's alone.
std::int64_t base = 0;
std::int64_t realBase = 0;
std::int64_t speed = 1; ///< 0: it stands still
std::atomic<std::int64_t> sleepTime{0};
thread_local bool isOwner = false;

bool isQt(void* caller)
{
    dl_find_object object{};
    return _dl_find_object(caller, &object) == 0
        && std::strstr(object.dlfo_link_map->l_name, "libQt5Core.so");
}

timespec fromNanoseconds(std::int64_t time)
{
    return {static_cast<time_t>(time / perSecond), static_cast<long>(time % perSecond)};
}

std::int64_t toNanoseconds(const timespec& time)
{
    return time.tv_sec * perSecond + time.tv_nsec;
}

std::int64_t now()
{
    return base + (VirtualTime::real().count() - realBase) * speed;
}

} // namespace

void VirtualTime::start(Pace pace)
{
    isOwner = true;
    base = (now() / startGrid + 1) * startGrid;
    realBase = real().count();
    speed = static_cast<std::int64_t>(pace);
}

std::chrono::nanoseconds VirtualTime::real()
{
    timespec time{};
    syscall(SYS_clock_gettime, CLOCK_MONOTONIC, &time);
    return std::chrono::nanoseconds(toNanoseconds(time));
}

std::chrono::nanoseconds VirtualTime::slept()
{
    return std::chrono::nanoseconds(sleepTime.load());
}

#define SHOWN __attribute__((visibility("default")))

extern "C" {

SHOWN int clock_gettime(clockid_t clock, timespec* time) noexcept
{
    if (!isOwner || clock != CLOCK_MONOTONIC || (speed != 0 && !isQt(__builtin_return_address(0))))
        return static_cast<int>(syscall(SYS_clock_gettime, clock, time));
    *time = fromNanoseconds(now());
    return 0;
}

SHOWN int nanosleep(const timespec* time, timespec* rest)
{
    if (isOwner) {
        sleepTime += toNanoseconds(*time);
        base += speed == 0 ? toNanoseconds(*time) : 0;
    }
    return static_cast<int>(syscall(SYS_nanosleep, time, rest));
}

SHOWN int ppoll(pollfd* descriptors, nfds_t count, const timespec* timeout, const sigset_t* mask)
{
    static const auto real = reinterpret_cast<decltype(&ppoll)>(dlsym(RTLD_NEXT, "ppoll"));
    if (!isOwner || !timeout)
        return real(descriptors, count, timeout, mask);
    const std::int64_t wanted = toNanoseconds(*timeout);
    const timespec wait = fromNanoseconds(speed == 0 ? 0 : wanted / speed);
    const int ready = real(descriptors, count, &wait, mask);
    if (ready == 0 && speed == 0)
        base += wanted;
    return ready;
}
}
