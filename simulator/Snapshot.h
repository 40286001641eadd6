#pragma once

#include "SensorSize.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace sim {

/// What the camera's picture is made of, read in one piece. Features that the camera lacks have the
/// values that stand for their absence: no binning, no reversal, the whole sensor.
struct Snapshot
{
    /// In pixels of the binned picture, before reversal: as the camera's own offsets and sizes.
    struct Region
    {
        std::int64_t x = 0;
        std::int64_t y = 0;
        std::int64_t width = 0;
        std::int64_t height = 0;
        int number = 0;      ///< of the multiple regions; 0 for the single one
        bool isValid = true; ///< multiple regions: what SubRegionStatus says
    };

    SensorSize sensor;
    SensorSize maximum;                 ///< WidthMax and HeightMax
    std::int64_t binningHorizontal = 1; ///< over all stages of binning
    std::int64_t binningVertical = 1;
    bool reverseX = false;
    bool reverseY = false;
    double exposureMicroseconds = 10000.0;
    std::string pixelFormat = "Mono8";
    bool isStreaming = false;
    bool hasMultipleRegions = false; ///< switched on; regions then are those whose mode is "On"
    std::vector<Region> regions;     ///< otherwise the one region
    std::optional<Region> autoFunctionRegion; ///< within the picture; absent or not enabled: none
    bool showsAutoFunctionRegion = false;
};

} // namespace sim
