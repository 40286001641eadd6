#include "Effort.h"

#include "Callgrind.h"

#include <cstdint>

#include <linux/perf_event.h>
#include <sys/syscall.h>
#include <time.h>
#include <unistd.h>

Effort::Effort()
{
    perf_event_attr event{};
    event.type = PERF_TYPE_HARDWARE;
    event.size = sizeof event;
    event.config = PERF_COUNT_HW_INSTRUCTIONS;
    event.exclude_kernel = 1;
    event.exclude_hv = 1;
    m_counter
        = static_cast<int>(syscall(SYS_perf_event_open, &event, 0, -1, -1, PERF_FLAG_FD_CLOEXEC));
    const bool hasCallgrind = Callgrind::isRunning() || Callgrind::isAvailable();
    m_way = m_counter >= 0 ? Way::System : hasCallgrind ? Way::Callgrind : Way::Time;
}

Effort::~Effort()
{
    if (m_counter >= 0)
        close(m_counter);
}

double Effort::inRow(const std::string& row, const std::function<double()>& value) const
{
    return m_way == Way::Callgrind && !Callgrind::isRunning() ? Callgrind::valueOf(row) : value();
}

double Effort::of(const Work& work) const
{
    if (m_way == Way::Callgrind)
        return Callgrind::instructionsOf(work);
    const double start = now();
    work();
    return now() - start;
}

double Effort::now() const
{
    std::uint64_t instructions = 0;
    if (m_way == Way::System) {
        if (read(m_counter, &instructions, sizeof instructions) != sizeof instructions)
            return 0.0;
        return static_cast<double>(instructions);
    }
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return 1e9 * static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec);
}
