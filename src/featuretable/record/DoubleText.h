#pragma once

#include <QString>

#include <optional>

/// Numbers as text with a decimal point whatever the user's locale, without group separators.
namespace DoubleText {

/// The shortest text that reads back as the same number; exponents only where digits would be
/// mostly zeros.
QString fromNumber(double number);

/// Empty for what is no finite number.
std::optional<double> toNumber(const QString& text);

/// Keeps that many significant digits.
double rounded(double number, int digits);

} // namespace DoubleText
