#include "models/FeatureBlocks.h"

#include "State.h"
#include "SubRegion.h"

#include <algorithm>

namespace sim {

namespace {

const char* const category = "/ImageFormatControl/MultipleRegion";
const char* const selectorName = "SubRegionSelector";

FeatureDescription regionSelector(RegionSelector type, int count)
{
    if (type == RegionSelector::Integer)
        return integerFeature(selectorName, 0).between(IntegerRange(0, count - 1));
    std::vector<std::string> entries;
    entries.reserve(static_cast<std::size_t>(count));
    for (int number = 0; number < count; ++number)
        entries.push_back("Region" + std::to_string(number));
    return enumFeature(selectorName, entries);
}

FeatureDescription offset(const std::string& name, const std::string& size,
                          const std::string& maximum, std::int64_t step)
{
    return integerFeature(name).measuredIn("px").within([size, maximum, step](const State& camera) {
        const std::int64_t room = camera.integer(maximum) - camera.integer(size);
        return IntegerRange(0, std::max<std::int64_t>(room, 0), step);
    });
}

FeatureDescription extent(const std::string& name, const std::string& position,
                          const std::string& maximum, std::int64_t minimum, std::int64_t step)
{
    return integerFeature(name, minimum)
        .measuredIn("px")
        .within([position, maximum, minimum, step](const State& camera) {
            const std::int64_t room = camera.integer(maximum) - camera.integer(position);
            return IntegerRange(minimum, std::max(room, minimum), step);
        });
}

FeatureDescription status()
{
    return enumFeature("SubRegionStatus", {"Valid", "Invalid"})
        .describedBy("Tells whether the region fits the arrangement and the other regions.")
        .computedAs([](const State& camera) -> Value {
            const bool isValid = isValidRegion(
                readSubRegions(camera), static_cast<std::size_t>(camera.selected(selectorName)),
                camera.text("MultipleRegionArrangement"),
                {camera.integer("WidthMax"), camera.integer("HeightMax")});
            return isValid ? "Valid" : "Invalid";
        });
}

FeatureDescriptions perRegion(const RegionGrid& grid, RegionNames names)
{
    const bool isOlder = names == RegionNames::Older;
    const std::string x = isOlder ? "OffsetX" : "SubRegionOffsetX";
    const std::string width = isOlder ? "Width" : "SubRegionWidth";
    const std::string y = "SubRegionOffsetY";
    const std::string height = "SubRegionHeight";
    FeatureDescriptions features{
        enumFeature("SubRegionMode", {"Off", "On"}).startingWith(0, "On"),
        status(),
        offset(x, width, "WidthMax", grid.offsetXStep),
        offset(y, height, "HeightMax", grid.offsetYStep),
        extent(width, x, "WidthMax", grid.minimumWidth, grid.widthStep),
        extent(height, y, "HeightMax", grid.minimumHeight, grid.heightStep),
    };
    for (FeatureDescription& feature : features)
        feature.in(category).selectedBy(selectorName).lockedWhileStreaming();
    return features;
}

// At the start the regions lie below each other, and only the first is on.
void layOut(FeatureDescriptions& features, const SensorSize& size, int count,
            const RegionGrid& grid)
{
    const std::int64_t step = grid.heightStep;
    const std::int64_t share = size.height / count / step * step;
    for (FeatureDescription& feature : features)
        for (std::int64_t number = 0; number < count; ++number) {
            if (feature.name == "SubRegionOffsetY")
                feature.startingWith(number, number * share);
            else if (feature.name == "SubRegionHeight")
                feature.startingWith(number, std::max(share - step, grid.minimumHeight));
            else if (feature.name == "SubRegionWidth" || feature.name == "Width")
                feature.startingWith(number, size.width / grid.widthStep * grid.widthStep);
        }
}

} // namespace

FeatureDescriptions multipleRegions(const SensorSize& size, int count, RegionSelector selector,
                                    const std::string& switchName, RegionNames names)
{
    const RegionGrid grid;
    FeatureDescriptions regions = perRegion(grid, names);
    layOut(regions, size, count, grid);
    return joined({
        {
            booleanFeature(switchName)
                .in(category)
                .describedBy("Switches multiple regions on.")
                .lockedWhileStreaming(),
            enumFeature("MultipleRegionArrangement", {"Vertical", "Horizontal", "Tile", "Free"})
                .in(category)
                .describedBy("How the regions must lie to each other.")
                .lockedWhileStreaming(),
            regionSelector(selector, count)
                .in(category)
                .describedBy("Selects the region that the other features show."),
        },
        regions,
    });
}

} // namespace sim
