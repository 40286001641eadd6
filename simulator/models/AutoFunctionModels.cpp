#include "models/FeatureBlocks.h"
#include "models/ModelLists.h"

#include <utility>

namespace sim {

namespace {

enum class Exposure {
    Current,
    Older,
    None,
};

// A camera with one region and what @p block makes of the automatic functions.
template <typename Block>
Model familyModel(std::string name, std::string description, Exposure exposure, Block block)
{
    const auto build = [name, exposure, block](const SensorSize& size) {
        return joined({
            identity("Brontax Vision GmbH", "Simulated " + name),
            acquisition(),
            exposure == Exposure::None
                ? FeatureDescriptions()
                : exposureTime(exposure == Exposure::Older ? "ExposureTimeAbs" : "ExposureTime"),
            sensor(size),
            pixelFormat({"Mono8", "Mono12", "BayerRG8"}),
            binning({}),
            reversal(),
            imageRegion(size),
            block(size),
        });
    };
    return {std::move(name), std::move(description), SensorSize::megapixels5(), build};
}

} // namespace

std::vector<Model> autoFunctionModels()
{
    return {
        familyModel("aoi", "Auto-function region with switch and overlay, float exposure limits",
                    Exposure::Current,
                    [](const SensorSize& size) {
                        return joined({autoFunctionAoi(size, AutoFunctionAoi::Switched),
                                       exposureLimits(ExposureLimits::Float),
                                       intensityController()});
                    }),
        familyModel("aoi-gated", "The same, writable only while it is switched on",
                    Exposure::Current,
                    [](const SensorSize& size) {
                        return joined({autoFunctionAoi(size, AutoFunctionAoi::Gated),
                                       exposureLimits(ExposureLimits::Float)});
                    }),
        familyModel("aoi-plain", "Auto-function region without switch and overlay", Exposure::Older,
                    [](const SensorSize& size) {
                        return joined({autoFunctionAoi(size, AutoFunctionAoi::Plain),
                                       exposureLimits(ExposureLimits::Integer)});
                    }),
        familyModel("automode-dynamic", "Auto-mode region, offset and size bound each other",
                    Exposure::Current,
                    [](const SensorSize& size) {
                        return joined({autoModeRegion(size, AutoModeRanges::Dynamic),
                                       exposureLimits(ExposureLimits::Integer),
                                       intensityController()});
                    }),
        familyModel("automode-fixed", "Auto-mode region with fixed ranges", Exposure::Older,
                    [](const SensorSize& size) {
                        return joined({autoModeRegion(size, AutoModeRanges::Fixed),
                                       exposureLimits(ExposureLimits::Float)});
                    }),
        familyModel("dsp", "Auto-function region told by its edges, no exposure time",
                    Exposure::None,
                    [](const SensorSize& size) {
                        return joined({dspSubregion(size), exposureLimits(ExposureLimits::Float)});
                    }),
        familyModel("mixed-aoi-automode", "Auto-function and auto-mode region in one camera",
                    Exposure::Current,
                    [](const SensorSize& size) {
                        return joined({autoFunctionAoi(size, AutoFunctionAoi::Switched),
                                       autoModeRegion(size, AutoModeRanges::Dynamic),
                                       exposureLimits(ExposureLimits::Integer)});
                    }),
        familyModel("mixed-aoi-dsp", "Auto-function region by size and by edges in one camera",
                    Exposure::Current,
                    [](const SensorSize& size) {
                        return joined({autoFunctionAoi(size, AutoFunctionAoi::Plain),
                                       dspSubregion(size), exposureLimits(ExposureLimits::Float)});
                    }),
    };
}

} // namespace sim
