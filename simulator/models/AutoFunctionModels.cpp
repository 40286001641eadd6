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
template <typename Block> Model familyModel(std::string name, Exposure exposure, Block block)
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
    return {std::move(name), SensorSize::megapixels5(), build};
}

} // namespace

std::vector<Model> autoFunctionModels()
{
    return {
        familyModel("aoi", Exposure::Current,
                    [](const SensorSize& size) {
                        return joined({autoFunctionAoi(size, AutoFunctionAoi::Switched),
                                       exposureLimits(ExposureLimits::Float),
                                       intensityController()});
                    }),
        familyModel("aoi-gated", Exposure::Current,
                    [](const SensorSize& size) {
                        return joined({autoFunctionAoi(size, AutoFunctionAoi::Gated),
                                       exposureLimits(ExposureLimits::Float)});
                    }),
        familyModel("aoi-plain", Exposure::Older,
                    [](const SensorSize& size) {
                        return joined({autoFunctionAoi(size, AutoFunctionAoi::Plain),
                                       exposureLimits(ExposureLimits::Integer)});
                    }),
        familyModel("automode-dynamic", Exposure::Current,
                    [](const SensorSize& size) {
                        return joined({autoModeRegion(size, AutoModeRanges::Dynamic),
                                       exposureLimits(ExposureLimits::Integer),
                                       intensityController()});
                    }),
        familyModel("automode-fixed", Exposure::Older,
                    [](const SensorSize& size) {
                        return joined({autoModeRegion(size, AutoModeRanges::Fixed),
                                       exposureLimits(ExposureLimits::Float)});
                    }),
        familyModel("dsp", Exposure::None,
                    [](const SensorSize& size) {
                        return joined({dspSubregion(size), exposureLimits(ExposureLimits::Float)});
                    }),
        familyModel("mixed-aoi-automode", Exposure::Current,
                    [](const SensorSize& size) {
                        return joined({autoFunctionAoi(size, AutoFunctionAoi::Switched),
                                       autoModeRegion(size, AutoModeRanges::Dynamic),
                                       exposureLimits(ExposureLimits::Integer)});
                    }),
        familyModel("mixed-aoi-dsp", Exposure::Current,
                    [](const SensorSize& size) {
                        return joined({autoFunctionAoi(size, AutoFunctionAoi::Plain),
                                       dspSubregion(size), exposureLimits(ExposureLimits::Float)});
                    }),
    };
}

} // namespace sim
