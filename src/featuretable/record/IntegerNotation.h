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

/// The notation that a feature's representation asks for: "HexNumber" (upper case, no prefix),
/// "IPV4Address" (high byte first) or "MACAddress" (48 bits, lower case); null for any other.
const IntegerNotation* notationFor(const QString& representation);

/// The notation in which a feature's cell shows @p value and its editor takes another. Hexadecimal
/// numbers have eight digits at most: where the range or the value needs more they are decimal.
/// Null for a representation without a notation of its own.
const IntegerNotation* notationFor(const FeatureInfo& info, std::int64_t value);
