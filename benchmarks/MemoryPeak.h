#pragma once

#include <cstddef>

/// The process's largest resident set since this was made.
class MemoryPeak
{
public:
    MemoryPeak();

    /// Bytes above what was resident at the start.
    std::size_t growth() const;

private:
    std::size_t m_start;
};
