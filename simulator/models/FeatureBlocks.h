#pragma once

#include "FeatureDescription.h"
#include "SensorSize.h"

#include <initializer_list>
#include <string>
#include <vector>

// The parts that models are put together from. A block refers to features of other blocks by name;
// what a model leaves out counts as absent, not as an error.

namespace sim {

FeatureDescriptions joined(std::initializer_list<FeatureDescriptions> blocks);
FeatureDescriptions without(FeatureDescriptions features, const std::string& name);

// Device, acquisition and the features that only a feature table shows

FeatureDescriptions identity(const std::string& vendor, const std::string& modelName);
/// AcquisitionStart and AcquisitionStop switch streaming.
FeatureDescriptions acquisition();
FeatureDescriptions exposureTime(const std::string& name);
/// Every data type, representation and visibility.
FeatureDescriptions showcase();
/// Features without effect, named by the prefix and a number from 0.
FeatureDescriptions fillers(const std::string& prefix, int count);

// Image format

/// SensorWidth and SensorHeight; WidthMax and HeightMax follow from binning.
FeatureDescriptions sensor(const SensorSize& size);
/// With stages, BinningSelector keeps factors and modes for each of them; the stages multiply.
FeatureDescriptions binning(const std::vector<std::string>& stages);
FeatureDescriptions reversal();
FeatureDescriptions pixelFormat(const std::vector<std::string>& formats);

struct RegionGrid
{
    std::int64_t minimumWidth = 16;
    std::int64_t minimumHeight = 8;
    std::int64_t widthStep = 8;
    std::int64_t heightStep = 2;
    std::int64_t offsetXStep = 4;
    std::int64_t offsetYStep = 2;
};

/// Offsets and sizes of the one region, bounded by each other. The category of the offsets tells a
/// client whether colour formats need even values.
FeatureDescriptions imageRegion(const SensorSize& size, const RegionGrid& grid = {},
                                const std::string& offsetCategory = "/ImageFormat");

// Automatic functions

enum class AutoFunctionAoi {
    Plain,    ///< the region alone
    Switched, ///< with AutofunctionAOIEnable and AutofunctionAOIShowArea
    Gated,    ///< switched, and writable only while enabled
};
FeatureDescriptions autoFunctionAoi(const SensorSize& size, AutoFunctionAoi kind);

enum class AutoModeRanges {
    Dynamic, ///< offset and size bound each other
    Fixed,   ///< each may take the whole picture
};
FeatureDescriptions autoModeRegion(const SensorSize& size, AutoModeRanges ranges);
/// Edges; left below right and top below bottom at every write.
FeatureDescriptions dspSubregion(const SensorSize& size);

enum class ExposureLimits {
    Integer,
    Float,
};
/// ExposureAutoMin and ExposureAutoMax; their ranges follow ExposureAutoTimebase.
FeatureDescriptions exposureLimits(ExposureLimits type);
FeatureDescriptions intensityController();

// Multiple regions

enum class RegionSelector {
    Enumeration, ///< "Region0", "Region1", ...
    Integer,
};
enum class RegionNames {
    Current, ///< SubRegionOffsetX and SubRegionWidth
    Older,   ///< OffsetX and Width, kept for each region
};
/// With the older names, OffsetX and Width of the image region become per-region features: leave
/// them out of the other blocks.
FeatureDescriptions multipleRegions(const SensorSize& size, int count, RegionSelector selector,
                                    const std::string& switchName,
                                    RegionNames names = RegionNames::Current);

} // namespace sim
