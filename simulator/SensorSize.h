#pragma once

#include <cstdint>

namespace sim {

/// Pixels of a sensor.
struct SensorSize
{
    std::int64_t width = 0;
    std::int64_t height = 0;

    bool isEmpty() const { return width <= 0 || height <= 0; }

    static constexpr SensorSize megapixels5() { return {2592, 1944}; }
    static constexpr SensorSize megapixels20() { return {5472, 3648}; }
    static constexpr SensorSize megapixels150() { return {14192, 10640}; }
};

} // namespace sim
