#pragma once

#include "featuretable/record/FeatureInfo.h"

struct IntegerNotation
{
    const char* pattern; ///< regular expression of what may be typed
    int base;
    int bytes = 0;  ///< written apart; 0 for the number as a whole
    int digits = 0; ///< of a byte, at least
    char separator = 0;
};

constexpr IntegerNotation decimalNotation{"-?[0-9]{1,19}", 10};

/// The notation that a feature's representation asks for: "HexNumber", "IPV4Address" (high byte
/// first) or "MACAddress" (48 bits); null for any other.
const IntegerNotation* notationFor(const FeatureInfo& info);

QString integerText(std::int64_t value, const IntegerNotation& notation);
/// Of a text that matches the pattern; empty when the number does not fit 64 bits.
std::optional<std::int64_t> textToInteger(const QString& text, const IntegerNotation& notation);

/// The shortest text that reads back as the same number, with a decimal point whatever the locale;
/// exponents only where digits would be mostly zeros.
QString numberText(double number);
/// Empty for what is no finite number.
std::optional<double> textToNumber(const QString& text);

/// As a value cell shows it: bare, as its editor writes it. Commands show "Execute", raw data
/// nothing.
QString cellText(const FeatureInfo& info, const QVariant& value);
/// The cell as a screen reader tells it: display name, value and unit.
QString accessibleCellText(const FeatureInfo& info, const QVariant& value);
