#include "SnapshotReader.h"

#include "State.h"
#include "SubRegion.h"

namespace sim {

namespace {

Snapshot::Region singleRegion(const State& state, const SensorSize& maximum)
{
    Snapshot::Region region;
    region.x = state.integer("OffsetX");
    region.y = state.integer("OffsetY");
    region.width = state.integer("Width", maximum.width);
    region.height = state.integer("Height", maximum.height);
    return region;
}

std::vector<Snapshot::Region> activeRegions(const State& state)
{
    const std::vector<SubRegion> all = readSubRegions(state);
    const SensorSize area{state.integer("WidthMax"), state.integer("HeightMax")};
    const std::string arrangement = state.text("MultipleRegionArrangement");
    std::vector<Snapshot::Region> active;
    for (std::size_t number = 0; number < all.size(); ++number) {
        const SubRegion& region = all[number];
        if (region.isOn)
            active.push_back({region.x, region.y, region.width, region.height,
                              static_cast<int>(number),
                              isValidRegion(all, number, arrangement, area)});
    }
    return active;
}

// Stages of binning, one for each entry of the selector, multiply.
std::int64_t totalBinning(const State& state, std::string_view name)
{
    if (!state.has("BinningSelector"))
        return state.integer(name, 1);
    std::int64_t total = 1;
    for (std::int64_t stage = 0; stage < state.entryCount("BinningSelector"); ++stage)
        total *= state.integerAt(name, stage, 1);
    return total;
}

std::optional<Snapshot::Region> offsetSizeRegion(const State& state, const std::string& prefix)
{
    if (!state.has(prefix + "Width") || !state.isOn(prefix + "Enable", true))
        return std::nullopt;
    Snapshot::Region region;
    region.x = state.integer(prefix + "OffsetX");
    region.y = state.integer(prefix + "OffsetY");
    region.width = state.integer(prefix + "Width");
    region.height = state.integer(prefix + "Height");
    return region;
}

std::optional<Snapshot::Region> autoFunctionRegion(const State& state)
{
    if (state.has("DSPSubregionLeft")) {
        Snapshot::Region region;
        region.x = state.integer("DSPSubregionLeft");
        region.y = state.integer("DSPSubregionTop");
        region.width = state.integer("DSPSubregionRight") - region.x;
        region.height = state.integer("DSPSubregionBottom") - region.y;
        return region;
    }
    if (state.has("AutofunctionAOIWidth"))
        return offsetSizeRegion(state, "AutofunctionAOI");
    return offsetSizeRegion(state, "AutoModeRegion");
}

} // namespace

Snapshot readSnapshot(const State& state)
{
    Snapshot snapshot;
    snapshot.maximum = {state.integer("WidthMax"), state.integer("HeightMax")};
    snapshot.sensor = {state.integer("SensorWidth", snapshot.maximum.width),
                       state.integer("SensorHeight", snapshot.maximum.height)};
    if (snapshot.maximum.isEmpty())
        snapshot.maximum = snapshot.sensor;
    snapshot.binningHorizontal = totalBinning(state, "BinningHorizontal");
    snapshot.binningVertical = totalBinning(state, "BinningVertical");
    snapshot.reverseX = state.isOn("ReverseX");
    snapshot.reverseY = state.isOn("ReverseY");
    const std::string_view exposure = state.firstOf({"ExposureTime", "ExposureTimeAbs"});
    snapshot.exposureMicroseconds = state.number(exposure, snapshot.exposureMicroseconds);
    if (state.has("PixelFormat"))
        snapshot.pixelFormat = state.text("PixelFormat");
    snapshot.isStreaming = state.isStreaming();

    const std::string_view multiple
        = state.firstOf({"MultipleRegionEnable", "MultipleRegionsEnable"});
    snapshot.hasMultipleRegions = state.isOn(multiple);
    snapshot.regions = snapshot.hasMultipleRegions
        ? activeRegions(state)
        : std::vector<Snapshot::Region>{singleRegion(state, snapshot.maximum)};
    snapshot.autoFunctionRegion = autoFunctionRegion(state);
    snapshot.showsAutoFunctionRegion = state.isOn("AutofunctionAOIShowArea");
    return snapshot;
}

} // namespace sim
