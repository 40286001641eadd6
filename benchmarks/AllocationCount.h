#pragma once

#include <cstddef>

/// Allocations of this thread since the program began, through new as well as malloc.
std::size_t allocationCount();
