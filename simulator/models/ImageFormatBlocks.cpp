#include "models/FeatureBlocks.h"

#include "Reaction.h"

#include <algorithm>

namespace sim {

namespace {

// The two directions of the picture differ in their features' names only.
struct Axis
{
    std::string sensor;
    std::string maximum;
    std::string binning;
    std::string offset;
    std::string size;
};

const Axis horizontal{"SensorWidth", "WidthMax", "BinningHorizontal", "OffsetX", "Width"};
const Axis vertical{"SensorHeight", "HeightMax", "BinningVertical", "OffsetY", "Height"};

std::int64_t totalBinning(const State& camera, const std::string& name)
{
    std::int64_t total = 1;
    const std::int64_t stages = std::max<std::int64_t>(camera.entryCount("BinningSelector"), 1);
    for (std::int64_t stage = 0; stage < stages; ++stage)
        total *= camera.integerAt(name, stage, 1);
    return total;
}

FeatureDescription maximumSize(const Axis& axis)
{
    return integerFeature(axis.maximum)
        .in("/ImageFormatControl")
        .describedBy("Maximum size of the image, after binning.")
        .measuredIn("px")
        .computedAs([axis](const State& camera) -> Value {
            return camera.integer(axis.sensor) / totalBinning(camera, axis.binning);
        })
        .then([axis](Reaction& camera) {
            // The offset first: the size then keeps as much as there is room for.
            camera.fit(axis.offset);
            camera.fit(axis.size);
        });
}

// What lies within the picture follows it when it shrinks.
void fitInside(Reaction& camera, const Axis& axis)
{
    for (const char* family : {"AutofunctionAOI", "AutoModeRegion"}) {
        camera.fit(family + axis.offset);
        camera.fit(family + axis.size);
    }
    const bool isHorizontal = axis.size == "Width";
    const char* leading = isHorizontal ? "DSPSubregionLeft" : "DSPSubregionTop";
    const char* trailing = isHorizontal ? "DSPSubregionRight" : "DSPSubregionBottom";
    if (camera.has(leading)) {
        camera.fit(trailing);
        camera.set(leading, std::min(camera.integer(leading), camera.integer(trailing) - 1));
    }
}

FeatureDescription regionOffset(const Axis& axis, std::int64_t step, const std::string& category)
{
    return integerFeature(axis.offset, 0)
        .in(category)
        .describedBy("Offset of the region from the sensor's upper left corner.")
        .measuredIn("px")
        .within([axis, step](const State& camera) {
            const std::int64_t room = camera.integer(axis.maximum) - camera.integer(axis.size);
            return IntegerRange(0, std::max<std::int64_t>(room, 0), step);
        });
}

FeatureDescription regionSize(const Axis& axis, std::int64_t size, std::int64_t minimum,
                              std::int64_t step)
{
    return integerFeature(axis.size, size)
        .in("/ImageFormat")
        .describedBy("Size of the region. It is locked while images are acquired.")
        .measuredIn("px")
        .within([axis, minimum, step](const State& camera) {
            const std::int64_t room = camera.integer(axis.maximum) - camera.integer(axis.offset);
            return IntegerRange(minimum, std::max(room, minimum), step);
        })
        .lockedWhileStreaming()
        .then([axis](Reaction& camera) { fitInside(camera, axis); });
}

FeatureDescription binningFactor(const std::string& name, bool isStaged)
{
    FeatureDescription factor
        = integerFeature(name, 1)
              .in("/ImageFormatControl")
              .describedBy("Number of photo-sensitive cells that are combined.")
              .between(IntegerRange(1, 4))
              .lockedWhileStreaming()
              .then([](Reaction& camera) { camera.fit("PixelFormat"); });
    return isStaged ? factor.selectedBy("BinningSelector") : factor;
}

FeatureDescription binningMode(const std::string& name, bool isStaged)
{
    FeatureDescription mode = enumFeature(name, {"Sum", "Average"})
                                  .in("/ImageFormatControl")
                                  .describedBy("How the cells are combined.")
                                  .lockedWhileStreaming();
    return isStaged ? mode.selectedBy("BinningSelector") : mode;
}

} // namespace

FeatureDescriptions sensor(const SensorSize& size)
{
    const char* category = "/ImageFormatControl";
    return {
        integerFeature("SensorWidth", size.width).in(category).measuredIn("px").readOnly(),
        integerFeature("SensorHeight", size.height).in(category).measuredIn("px").readOnly(),
        maximumSize(horizontal),
        maximumSize(vertical),
    };
}

FeatureDescriptions binning(const std::vector<std::string>& stages)
{
    const bool isStaged = !stages.empty();
    FeatureDescriptions features{
        binningMode("BinningHorizontalMode", isStaged),
        binningFactor("BinningHorizontal", isStaged),
        binningMode("BinningVerticalMode", isStaged),
        binningFactor("BinningVertical", isStaged),
    };
    if (isStaged)
        features.insert(features.begin(),
                        enumFeature("BinningSelector", stages)
                            .in("/ImageFormatControl")
                            .describedBy("Selects the stage of binning."));
    return features;
}

FeatureDescriptions reversal()
{
    const char* category = "/ImageFormatControl";
    return {
        booleanFeature("ReverseX")
            .in(category)
            .describedBy("Flips the image horizontally.")
            .lockedWhileStreaming(),
        booleanFeature("ReverseY")
            .in(category)
            .describedBy("Flips the image vertically.")
            .lockedWhileStreaming(),
    };
}

FeatureDescriptions pixelFormat(const std::vector<std::string>& formats)
{
    // Binning mixes the colours of neighbouring cells.
    const auto isOffered = [](const State& camera, const std::string& entry) {
        const bool isBinned = totalBinning(camera, "BinningHorizontal") > 1
            || totalBinning(camera, "BinningVertical") > 1;
        return !isBinned || entry.find("Bayer") == std::string::npos;
    };
    return {
        enumFeature("PixelFormat", formats)
            .in("/ImageFormatControl")
            .shown("Pixel Format")
            .describedBy("Format of the pixels provided by the device.")
            .offering(isOffered)
            .lockedWhileStreaming(),
    };
}

FeatureDescriptions imageRegion(const SensorSize& size, const RegionGrid& grid,
                                const std::string& offsetCategory)
{
    return {
        regionOffset(horizontal, grid.offsetXStep, offsetCategory),
        regionOffset(vertical, grid.offsetYStep, offsetCategory),
        regionSize(horizontal,
                   legalBelow({grid.minimumWidth, size.width, grid.widthStep}, size.width),
                   grid.minimumWidth, grid.widthStep),
        regionSize(vertical,
                   legalBelow({grid.minimumHeight, size.height, grid.heightStep}, size.height),
                   grid.minimumHeight, grid.heightStep),
    };
}

} // namespace sim
