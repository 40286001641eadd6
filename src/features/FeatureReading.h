#pragma once

#include "features/IntegerState.h"
#include "features/SdkValues.h"
#include "features/ZebFeatureWrapper.h"

#include <QString>

/// Reads of one feature with fixed values for what the camera does not answer: -1 for numbers,
/// false, an empty text, data type unknown.
namespace FeatureReading {

constexpr double missingNumber = -1.0;

struct NumberState
{
    double value = missingNumber;
    double minimum = missingNumber;
    double maximum = missingNumber;
    double increment = missingNumber;
};

template <typename Number> struct Range
{
    Number minimum;
    Number maximum;
};

template <typename Value> Value readValue(ZebFeatureWrapper& feature, Value fallback)
{
    Value value{};
    return feature.GetValue(value) == Sdk::success ? value : fallback;
}

template <typename Number> Number readIncrement(ZebFeatureWrapper& feature)
{
    Number increment{};
    return feature.GetIncrement(increment) == Sdk::success ? increment : Number{-1};
}

template <typename Number> Range<Number> readRange(ZebFeatureWrapper& feature)
{
    Range<Number> range{};
    if (feature.GetRange(range.minimum, range.maximum) != Sdk::success)
        return {Number{-1}, Number{-1}};
    return range;
}

ZebFeatureDataType readDataType(ZebFeatureWrapper& feature);
bool readFlag(ZebFeatureWrapper& feature, ZebErrorType (ZebFeatureWrapper::*getter)(bool&));
bool isWritable(ZebFeatureWrapper& feature);
QString readText(ZebFeatureWrapper& feature,
                 ZebErrorType (ZebFeatureWrapper::*getter)(std::string&));

/// Integer, float or boolean (0 or 1); -1 for any other type.
double readNumber(ZebFeatureWrapper& feature);
double readIncrementAsNumber(ZebFeatureWrapper& feature);

/// Value, range and increment of an integer or a float as the camera reports them.
NumberState readState(ZebFeatureWrapper& feature);

/// The same for an input field: an integer's maximum on a whole multiple of its increment, counted
/// from 0 as writes are; a float without an increment gets 0.01.
NumberState readFieldState(ZebFeatureWrapper& feature);

/// Those of an integer with all their 64 bits; -1 for any other type.
IntegerState readIntegerState(ZebFeatureWrapper& feature);

/// Value and range only.
NumberState readLimits(ZebFeatureWrapper& feature);

} // namespace FeatureReading
