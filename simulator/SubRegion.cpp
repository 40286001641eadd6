#include "SubRegion.h"

#include "State.h"

#include <algorithm>

namespace sim {

namespace {

bool isInside(const SubRegion& region, const SensorSize& area)
{
    return region.width > 0 && region.height > 0 && region.x >= 0 && region.y >= 0
        && region.x + region.width <= area.width && region.y + region.height <= area.height;
}

bool overlap(const SubRegion& a, const SubRegion& b)
{
    return a.x < b.x + b.width && b.x < a.x + a.width && a.y < b.y + b.height
        && b.y < a.y + a.height;
}

bool shareRows(const SubRegion& a, const SubRegion& b)
{
    return a.y == b.y && a.height == b.height;
}

bool shareColumns(const SubRegion& a, const SubRegion& b)
{
    return a.x == b.x && a.width == b.width;
}

bool areOn(const std::vector<SubRegion>& regions, std::size_t from, std::size_t to)
{
    return std::all_of(regions.begin() + static_cast<std::ptrdiff_t>(from),
                       regions.begin() + static_cast<std::ptrdiff_t>(to),
                       [](const SubRegion& region) { return region.isOn; });
}

// Rows are the pairs {0, 1}, {2, 3}, ...; columns are the even and the odd numbers.
bool fitsTile(const std::vector<SubRegion>& regions, std::size_t number)
{
    constexpr std::size_t firstThatNeedsAll = 3;
    const SubRegion& region = regions[number];
    if (number >= firstThatNeedsAll && !areOn(regions, 1, number))
        return false;
    const SubRegion& inRow = regions[number - number % 2];
    const SubRegion& inColumn = regions[number % 2];
    return (!inRow.isOn || shareRows(region, inRow))
        && (!inColumn.isOn || shareColumns(region, inColumn));
}

bool fitsArrangement(const std::vector<SubRegion>& regions, std::size_t number,
                     const std::string& arrangement)
{
    if (arrangement == "Horizontal")
        return areOn(regions, 0, number) && shareRows(regions[number], regions[0]);
    if (arrangement == "Vertical")
        return areOn(regions, 0, number) && shareColumns(regions[number], regions[0]);
    return arrangement != "Tile" || fitsTile(regions, number);
}

} // namespace

std::vector<SubRegion> readSubRegions(const State& state)
{
    const std::string_view x = state.firstOf({"SubRegionOffsetX", "OffsetX"});
    const std::string_view width = state.firstOf({"SubRegionWidth", "Width"});
    std::vector<SubRegion> regions(
        static_cast<std::size_t>(std::max<std::int64_t>(state.entryCount("SubRegionSelector"), 0)));
    std::int64_t entry = 0;
    for (SubRegion& region : regions) {
        region.isOn = state.textAt("SubRegionMode", entry) == "On";
        region.x = state.integerAt(x, entry);
        region.y = state.integerAt("SubRegionOffsetY", entry);
        region.width = state.integerAt(width, entry);
        region.height = state.integerAt("SubRegionHeight", entry);
        ++entry;
    }
    return regions;
}

bool isValidRegion(const std::vector<SubRegion>& regions, std::size_t number,
                   const std::string& arrangement, const SensorSize& area)
{
    if (number >= regions.size() || !regions[number].isOn || !isInside(regions[number], area))
        return false;
    for (std::size_t other = 0; other < regions.size(); ++other)
        if (other != number && regions[other].isOn && overlap(regions[number], regions[other]))
            return false;
    return fitsArrangement(regions, number, arrangement);
}

} // namespace sim
