#pragma once

#include "featuretable/record/FeatureInfo.h"

#include <cstdint>

/// Whole numbers up to this size are exact as double (2^53).
constexpr std::int64_t largestExactInteger = std::int64_t{1} << 53;

/// What may be entered for an integer feature.
struct IntegerRange
{
    std::int64_t minimum = -largestExactInteger;
    std::int64_t maximum = largestExactInteger;

    bool contains(std::int64_t value) const { return value >= minimum && value <= maximum; }
};

/// The record's bounds; a missing one is as wide as exact numbers go. Bounds that hold nothing
/// leave the present value alone.
IntegerRange integerRange(const FeatureInfo& info);

/// What an integer needs to be edited without loss.
enum class IntegerField {
    Spin32, ///< a spin box of int
    Spin53, ///< a spin box of double without decimals
    Text,   ///< digits
};
IntegerField integerFieldFor(const IntegerRange& range, std::int64_t value);
