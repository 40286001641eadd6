#include "models/FeatureBlocks.h"
#include "models/ModelLists.h"

#include <utility>

namespace sim {

namespace {

Model regionsModel(std::string name, int count,
                   RegionSelector selector = RegionSelector::Enumeration,
                   const std::string& switchName = "MultipleRegionEnable")
{
    const auto build = [=](const SensorSize& size) {
        return joined({
            identity("Brontax Vision GmbH", "Simulated " + name),
            acquisition(),
            exposureTime("ExposureTime"),
            sensor(size),
            pixelFormat({"Mono8", "Mono12"}),
            binning({}),
            reversal(),
            imageRegion(size),
            multipleRegions(size, count, selector, switchName),
        });
    };
    return {name, SensorSize::megapixels5(), build};
}

FeatureDescriptions olderRegionNames(const SensorSize& size)
{
    return joined({
        identity("Brontax Vision GmbH", "Simulated M5"),
        acquisition(),
        exposureTime("ExposureTimeAbs"),
        sensor(size),
        pixelFormat({"Mono8", "Mono12"}),
        without(without(imageRegion(size), "OffsetX"), "Width"),
        multipleRegions(size, 4, RegionSelector::Enumeration, "MultipleRegionsEnable",
                        RegionNames::Older),
    });
}

} // namespace

std::vector<Model> multiRegionModels()
{
    return {
        regionsModel("multi-region", 4),
        regionsModel("multi-region-6", 6),
        regionsModel("multi-region-integer", 4, RegionSelector::Integer),
        regionsModel("multi-region-2", 2),
        regionsModel("multi-region-3", 3, RegionSelector::Enumeration, "MultipleRegionsEnable"),
        regionsModel("multi-region-256", 256, RegionSelector::Integer),
        {"multi-region-older", SensorSize::megapixels5(), olderRegionNames},
    };
}

} // namespace sim
