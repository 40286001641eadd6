#pragma once

#include "featuretable/record/FeatureInfo.h"

/// Whole numbers up to this size are exact as double (2^53).
constexpr std::int64_t largestExactInteger = std::int64_t{1} << 53;

template <typename Number> struct ValueRange
{
    Number minimum;
    Number maximum;

    bool contains(Number value) const { return value >= minimum && value <= maximum; }
};

/// A missing bound is as wide as exact numbers go. Bounds that hold nothing leave the value alone.
ValueRange<std::int64_t> integerRange(const FeatureInfo& info);
ValueRange<double> numberRange(const FeatureInfo& info);

/// What an integer needs to be edited without loss.
enum class IntegerField {
    Spin32, ///< a spin box of int
    Spin53, ///< a spin box of double without decimals
    Text,   ///< digits
};
IntegerField integerField(const FeatureInfo& info);

struct SliderRange
{
    double minimum;
    double maximum;
    double increment; ///< not positive: none
    bool logarithmic;
};

/// The slider of a feature: an integer has one, logarithmic for the representation "Logarithmic"
/// with a positive minimum; a float has one when it is logarithmic, and exposure times are. Empty
/// where a bound is missing, or beyond exact numbers, or the maximum is not above the minimum.
std::optional<SliderRange> sliderRange(const FeatureInfo& info);

/// Positions beside the first: whole steps of the increment, at most 10000.
int sliderSteps(const SliderRange& range);

/// The nearest whole step from the minimum. Without an increment the value is only clamped.
double snapped(double value, const SliderRange& range);

/// The value that a step of the handle from @p from to @p to reaches: at least one increment away,
/// for steps of a logarithmic slider may be shorter.
double stepped(double from, double to, const SliderRange& range);

/// The value for a position reached by hand: snapped; without an increment rounded to the digits
/// that 10000 positions can tell apart.
double sliderValue(double value, const SliderRange& range);
