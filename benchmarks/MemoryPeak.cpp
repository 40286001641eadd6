#include "MemoryPeak.h"

#include <malloc.h>

#include <fstream>
#include <stdexcept>
#include <string>

namespace {

std::size_t statusBytes(const std::string& field)
{
    std::ifstream file("/proc/self/status");
    for (std::string word; file >> word;) {
        std::size_t kilobytes = 0;
        if (word == field && file >> kilobytes)
            return kilobytes * 1024;
    }
    throw std::runtime_error("the kernel does not tell " + field);
}

} // namespace

MemoryPeak::MemoryPeak()
{
    malloc_trim(0);
    std::ofstream("/proc/self/clear_refs") << 5 << std::flush; // VmHWM starts anew
    m_start = statusBytes("VmRSS:");
}

std::size_t MemoryPeak::growth() const
{
    const std::size_t peak = statusBytes("VmHWM:");
    return peak > m_start ? peak - m_start : 0;
}
