#pragma once

#include "SensorSize.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace sim {

class State;

/// One of the multiple regions, in pixels of the binned picture.
struct SubRegion
{
    std::int64_t x = 0;
    std::int64_t y = 0;
    std::int64_t width = 0;
    std::int64_t height = 0;
    bool isOn = false;
};

/// All regions that SubRegionSelector counts; reads OffsetX and Width where the camera keeps these
/// for each region under their older names.
std::vector<SubRegion> readSubRegions(const State& state);

/// The camera's rule for SubRegionStatus: switched on, within the area, apart from all others that
/// are on, and fitting the arrangement ("Horizontal", "Vertical", "Tile"; "Free" asks for nothing).
bool isValidRegion(const std::vector<SubRegion>& regions, std::size_t number,
                   const std::string& arrangement, const SensorSize& area);

} // namespace sim
