#include "models/FeatureBlocks.h"

#include "Reaction.h"

#include <algorithm>
#include <cmath>

namespace sim {

namespace {

constexpr std::int64_t regionMinimum = 32;

// Width or Height; of a camera that lacks it, what the sensor gives.
std::int64_t pictureExtent(const State& camera, const std::string& name)
{
    return camera.integer(name, camera.integer(name + "Max"));
}

// Offset or size of a region within the picture, bounded by the other of the two.
FeatureDescription boundedBy(const std::string& other, const std::string& name,
                             const std::string& picture, std::int64_t value, std::int64_t minimum,
                             std::int64_t step)
{
    return integerFeature(name, value)
        .in("/AutoFunctionControl")
        .measuredIn("px")
        .within([other, picture, minimum, step](const State& camera) {
            const std::int64_t room = pictureExtent(camera, picture) - camera.integer(other);
            return IntegerRange(minimum, std::max(room, minimum), step);
        });
}

FeatureDescriptions regionWithin(const std::string& prefix, const SensorSize& size)
{
    const std::string x = prefix + "OffsetX";
    const std::string y = prefix + "OffsetY";
    const std::string width = prefix + "Width";
    const std::string height = prefix + "Height";
    const auto snapped = [](std::int64_t value, std::int64_t step) { return value / step * step; };
    return {
        boundedBy(width, x, "Width", snapped(size.width / 4, 4), 0, 4),
        boundedBy(height, y, "Height", snapped(size.height / 4, 2), 0, 2),
        boundedBy(x, width, "Width", snapped(size.width / 2, 8), regionMinimum, 8),
        boundedBy(y, height, "Height", snapped(size.height / 2, 4), regionMinimum, 4),
    };
}

FeatureDescription dspEdge(const std::string& name, const std::string& picture, std::int64_t value,
                           const std::string& opposite, bool isLeading)
{
    return integerFeature(name, value)
        .in("/DSPControl")
        .measuredIn("px")
        .within([picture](const State& camera) {
            return IntegerRange(0, pictureExtent(camera, picture));
        })
        .accepting([opposite, isLeading](const State& camera, const Value& edge) {
            const std::int64_t other = camera.integer(opposite);
            const bool isOrdered = isLeading ? edge.toInteger() < other : other < edge.toInteger();
            return isOrdered ? ZebErrorSuccess : ZebErrorInvalidValue;
        });
}

// Microseconds for each step of the timebase; entries "1us", "10us", "100us", "1ms".
double timebase(const State& camera)
{
    return std::pow(10.0, static_cast<double>(camera.selected("ExposureAutoTimebase")));
}

FeatureDescription exposureLimit(const std::string& name, ExposureLimits type, double value)
{
    constexpr double longest = 65535.0;
    constexpr double hundredth = 0.01;
    if (type == ExposureLimits::Integer)
        return integerFeature(name, static_cast<std::int64_t>(value))
            .within([](const State& camera) {
                const auto step = static_cast<std::int64_t>(timebase(camera));
                return IntegerRange(step, static_cast<std::int64_t>(longest) * step, step);
            });
    return floatFeature(name, value).withinReal([](const State& camera) {
        const double step = timebase(camera);
        return FloatRange(step, longest * step, hundredth * step);
    });
}

} // namespace

FeatureDescriptions autoFunctionAoi(const SensorSize& size, AutoFunctionAoi kind)
{
    FeatureDescriptions features = regionWithin("AutofunctionAOI", size);
    if (kind == AutoFunctionAoi::Gated)
        for (FeatureDescription& feature : features)
            feature.writableIf(
                [](const State& camera) { return camera.isOn("AutofunctionAOIEnable"); });
    if (kind != AutoFunctionAoi::Plain) {
        features.push_back(
            booleanFeature("AutofunctionAOIEnable", true).in("/AutoFunctionControl"));
        features.push_back(booleanFeature("AutofunctionAOIShowArea").in("/AutoFunctionControl"));
    }
    return features;
}

FeatureDescriptions autoModeRegion(const SensorSize& size, AutoModeRanges ranges)
{
    FeatureDescriptions features = regionWithin("AutoModeRegion", size);
    if (ranges == AutoModeRanges::Dynamic)
        return features;
    for (FeatureDescription& feature : features) {
        const bool isOffset = feature.name.find("Offset") != std::string::npos;
        const bool isHorizontal = feature.name.back() == 'X' || feature.name.back() == 'h';
        feature.within([isOffset,
                        picture = isHorizontal ? "Width" : "Height"](const State& camera) {
            const std::int64_t extent = pictureExtent(camera, picture);
            return isOffset ? IntegerRange(0, std::max<std::int64_t>(extent - regionMinimum, 0), 2)
                            : IntegerRange(regionMinimum, std::max(extent, regionMinimum), 4);
        });
    }
    return features;
}

FeatureDescriptions dspSubregion(const SensorSize& size)
{
    return {
        dspEdge("DSPSubregionLeft", "Width", 0, "DSPSubregionRight", true),
        dspEdge("DSPSubregionTop", "Height", 0, "DSPSubregionBottom", true),
        dspEdge("DSPSubregionRight", "Width", size.width, "DSPSubregionLeft", false),
        dspEdge("DSPSubregionBottom", "Height", size.height, "DSPSubregionTop", false),
    };
}

FeatureDescriptions exposureLimits(ExposureLimits type)
{
    FeatureDescriptions features{
        exposureLimit("ExposureAutoMin", type, 100.0),
        exposureLimit("ExposureAutoMax", type, 50000.0),
        enumFeature("ExposureAutoTimebase", {"1us", "10us", "100us", "1ms"})
            .then([](Reaction& camera) {
                camera.fit("ExposureAutoMin");
                camera.fit("ExposureAutoMax");
            }),
    };
    for (FeatureDescription& feature : features)
        feature.in("/AutoFunctionControl").measuredIn("us");
    return features;
}

FeatureDescriptions intensityController()
{
    return {
        enumFeature("IntensityControllerRegion", {"FullImage", "AutoModeRegion"})
            .in("/AutoFunctionControl")
            .describedBy("Part of the image that the intensity controller evaluates."),
    };
}

} // namespace sim
