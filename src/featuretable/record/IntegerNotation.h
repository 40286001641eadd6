#pragma once

#include "featuretable/record/FeatureInfo.h"

#include <QString>

#include <cstdint>
#include <optional>

/// A way to write whole numbers as text.
struct IntegerNotation
{
    QString pattern; ///< regular expression of what may be typed
    QString (*toText)(std::int64_t value);
    /// Called with texts that match the pattern; empty when the number does not fit 64 bits.
    std::optional<std::int64_t> (*toValue)(const QString& text);
};

/// Plain decimal digits with an optional minus.
const IntegerNotation& decimalNotation();

/// The notation that a feature's representation asks for: "HexNumber" (upper case, no prefix; at
/// most eight digits may be typed), "IPV4Address" (high byte first) or "MACAddress" (48 bits, lower
/// case); null for any other.
const IntegerNotation* notationFor(const FeatureInfo& info);
