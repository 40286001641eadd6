#pragma once

#include <cstdint>

/// An integer feature as the camera reports it; -1 for what it does not answer.
struct IntegerState
{
    std::int64_t value = -1;
    std::int64_t minimum = -1;
    std::int64_t maximum = -1;
    std::int64_t increment = -1;
};
