#pragma once

#include <ctime>

/// What this process has taken of the processors: what the machine does otherwise makes no part of
/// it.
inline double processorSeconds()
{
    return static_cast<double>(std::clock()) / CLOCKS_PER_SEC;
}
