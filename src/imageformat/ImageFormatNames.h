#pragma once

#include <QLatin1String>

// The features that change how a picture lies on the sensor.
namespace FeatureNames {

inline const QLatin1String binningHorizontal("BinningHorizontal");
inline const QLatin1String binningVertical("BinningVertical");
inline const QLatin1String reverseX("ReverseX");
inline const QLatin1String reverseY("ReverseY");

} // namespace FeatureNames
