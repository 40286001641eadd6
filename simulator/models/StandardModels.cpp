#include "models/FeatureBlocks.h"
#include "models/ModelLists.h"

namespace sim {

namespace {

const char* const vendor = "Brontax Vision GmbH";
std::vector<std::string> colourFormats()
{
    return {"Mono8",           "Mono10", "Mono12",       "Mono12Packed", "BayerRG8",    "BayerRG12",
            "BayerRG12Packed", "RGB8",   "YUV411Packed", "YUV422Packed", "YUV444Packed"};
}

std::vector<std::string> monoFormats()
{
    return {"Mono8", "Mono10", "Mono12"};
}

FeatureDescriptions current(const SensorSize& size)
{
    return joined({
        identity(vendor, "Simulated C5"),
        acquisition(),
        exposureTime("ExposureTime"),
        sensor(size),
        pixelFormat(colourFormats()),
        binning({"Sensor", "Digital"}),
        reversal(),
        imageRegion(size),
        autoFunctionAoi(size, AutoFunctionAoi::Switched),
        exposureLimits(ExposureLimits::Float),
        intensityController(),
        multipleRegions(size, 4, RegionSelector::Enumeration, "MultipleRegionEnable"),
        showcase(),
    });
}

FeatureDescriptions plain(const SensorSize& size)
{
    return joined({
        identity(vendor, "Simulated P5"),
        acquisition(),
        exposureTime("ExposureTime"),
        sensor(size),
        pixelFormat(monoFormats()),
        imageRegion(size, {}, "/ImageFormatControl"),
    });
}

FeatureDescriptions olderNames(const SensorSize& size)
{
    return joined({
        identity(vendor, "Simulated O5"),
        acquisition(),
        exposureTime("ExposureTimeAbs"),
        sensor(size),
        pixelFormat(colourFormats()),
        binning({}),
        reversal(),
        imageRegion(size),
        autoFunctionAoi(size, AutoFunctionAoi::Switched),
        exposureLimits(ExposureLimits::Integer),
        multipleRegions(size, 4, RegionSelector::Enumeration, "MultipleRegionsEnable"),
    });
}

FeatureDescriptions otherVendor(const SensorSize& size)
{
    return joined({
        identity("Another Maker Inc.", "Model X"),
        acquisition(),
        exposureTime("ExposureTime"),
        sensor(size),
        pixelFormat(monoFormats()),
        imageRegion(size),
    });
}

FeatureDescriptions manyFeatures(const SensorSize& size)
{
    constexpr std::size_t total = 400;
    FeatureDescriptions features = current(size);
    const auto missing = static_cast<int>(total) - static_cast<int>(features.size());
    return joined({features, fillers("Custom", missing)});
}

FeatureDescriptions bayer(const SensorSize& size)
{
    const RegionGrid everyPixel{2, 2, 1, 1, 1, 1};
    return joined({
        identity(vendor, "Simulated B5"),
        acquisition(),
        exposureTime("ExposureTime"),
        sensor(size),
        pixelFormat({"BayerRG8", "BayerRG12", "YUV422Packed", "Mono8"}),
        binning({}),
        reversal(),
        imageRegion(size, everyPixel, "/ImageFormat"),
    });
}

FeatureDescriptions coarse(const SensorSize& size)
{
    const RegionGrid wideSteps{128, 64, 64, 32, 32, 16};
    return joined({
        identity(vendor, "Simulated W5"),
        acquisition(),
        exposureTime("ExposureTime"),
        sensor(size),
        pixelFormat(monoFormats()),
        binning({}),
        reversal(),
        imageRegion(size, wideSteps, "/ImageFormatControl"),
    });
}

} // namespace

std::vector<Model> standardModels()
{
    const SensorSize five = SensorSize::megapixels5();
    return {
        {"current", five, current},
        {"current-20", SensorSize::megapixels20(), current},
        {"current-150", SensorSize::megapixels150(), current},
        {"plain", five, plain},
        {"older-names", five, olderNames},
        {"other-vendor", five, otherVendor},
        {"no-height", five,
         [](const SensorSize& size) { return without(current(size), "Height"); }},
        {"many-features", five, manyFeatures},
        {"bayer", five, bayer},
        {"coarse", five, coarse},
    };
}

} // namespace sim
