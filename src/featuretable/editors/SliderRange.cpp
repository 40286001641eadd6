#include "featuretable/editors/SliderRange.h"

#include "features/NumberConversion.h"
#include "featuretable/record/DoubleText.h"
#include "featuretable/record/IntegerRange.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr int mostSteps = 10000;
// Sums of increments such as 0.1 stray in the last digits.
constexpr int digitsWithoutNoise = 15;
constexpr int digitsOfPositions = 6;

double withoutNoise(double value)
{
    return std::trunc(value) == value ? value : DoubleText::rounded(value, digitsWithoutNoise);
}

// Whole steps that fit; a last step that only rounding keeps out counts.
double wholeSteps(const SliderRange& range)
{
    constexpr double tolerance = 1e-9;
    return std::floor((range.maximum - range.minimum) / range.increment * (1.0 + tolerance));
}

bool isExposureTime(const FeatureInfo& info)
{
    return info.name == "ExposureTime" || info.name == "ExposureTimeAbs";
}

bool isExact(double number)
{
    return std::fabs(number) <= static_cast<double>(largestExactInteger);
}

} // namespace

std::optional<SliderRange> sliderRange(const FeatureInfo& info)
{
    const auto minimum = toNumber(info.minimum);
    const auto maximum = toNumber(info.maximum);
    if (!minimum || !maximum || !(*maximum > *minimum))
        return {};
    const bool isFloat = std::holds_alternative<double>(info.value);
    const bool wantsLogarithm
        = info.representation == "Logarithmic" || (isFloat && isExposureTime(info));
    SliderRange range{*minimum, *maximum, toNumber(info.increment).value_or(0.0),
                      wantsLogarithm && *minimum > 0.0};
    if (isFloat ? !range.logarithmic || !std::isfinite(range.maximum)
                : !isExact(range.minimum) || !isExact(range.maximum))
        return {};
    return range;
}

int sliderSteps(const SliderRange& range)
{
    if (!(range.increment > 0.0))
        return mostSteps;
    return std::clamp(toInt(wholeSteps(range)), 1, mostSteps);
}

double snapped(double value, const SliderRange& range)
{
    value = std::clamp(value, range.minimum, range.maximum);
    if (!(range.increment > 0.0))
        return value;
    const double steps
        = std::min(std::round((value - range.minimum) / range.increment), wholeSteps(range));
    return std::clamp(withoutNoise(range.minimum + steps * range.increment), range.minimum,
                      range.maximum);
}

double stepped(double from, double to, const SliderRange& range)
{
    const double before = snapped(from, range);
    const double after = sliderValue(to, range);
    if (after != before || !(range.increment > 0.0))
        return after;
    return snapped(before + (to < from ? -range.increment : range.increment), range);
}

double sliderValue(double value, const SliderRange& range)
{
    if (!(range.increment > 0.0))
        value = DoubleText::rounded(value, digitsOfPositions);
    return snapped(value, range);
}
