#include "featuretable/record/ValueRange.h"

#include "features/NumberConversion.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

constexpr int mostSteps = 10000;
// Sums of increments such as 0.1 stray in the last digits.
constexpr int digitsWithoutNoise = 15;
constexpr int digitsOfPositions = 6;

constexpr ValueRange<std::int64_t> exactIntegers{-largestExactInteger, largestExactInteger};

template <typename Number>
ValueRange<Number> within(ValueRange<Number> range, const std::optional<Number>& minimum,
                          const std::optional<Number>& maximum, const std::optional<Number>& value)
{
    range = {minimum.value_or(range.minimum), maximum.value_or(range.maximum)};
    if (range.minimum > range.maximum)
        range.minimum = range.maximum = value.value_or(range.minimum);
    return range;
}

double rounded(double value, int digits)
{
    return QString::number(value, 'g', digits).toDouble();
}

double withoutNoise(double value)
{
    return std::trunc(value) == value ? value : rounded(value, digitsWithoutNoise);
}

// Whole steps that fit; a last step that only rounding keeps out counts.
double wholeSteps(const SliderRange& range)
{
    constexpr double tolerance = 1e-9;
    return std::floor((range.maximum - range.minimum) / range.increment * (1.0 + tolerance));
}

bool isExact(double number)
{
    return std::fabs(number) <= static_cast<double>(largestExactInteger);
}

} // namespace

ValueRange<std::int64_t> integerRange(const FeatureInfo& info)
{
    return within(exactIntegers, toInteger(info.minimum), toInteger(info.maximum),
                  toInteger(info.value));
}

ValueRange<double> numberRange(const FeatureInfo& info)
{
    constexpr double infinity = std::numeric_limits<double>::infinity();
    return within({-infinity, infinity}, toNumber(info.minimum), toNumber(info.maximum),
                  toNumber(info.value));
}

IntegerField integerField(const FeatureInfo& info)
{
    const auto range = integerRange(info);
    const auto fits = [&](const ValueRange<std::int64_t>& type) {
        return type.contains(range.minimum) && type.contains(range.maximum)
            && type.contains(toInteger(info.value).value_or(0));
    };
    if (fits({std::numeric_limits<int>::lowest(), std::numeric_limits<int>::max()}))
        return IntegerField::Spin32;
    return fits(exactIntegers) ? IntegerField::Spin53 : IntegerField::Text;
}

std::optional<SliderRange> sliderRange(const FeatureInfo& info)
{
    const auto minimum = toNumber(info.minimum);
    const auto maximum = toNumber(info.maximum);
    if (!minimum || !maximum || !(*maximum > *minimum))
        return {};
    const bool isFloat = std::holds_alternative<double>(info.value);
    const bool isExposureTime = info.name == "ExposureTime" || info.name == "ExposureTimeAbs";
    const bool wantsLogarithm = info.representation == "Logarithmic" || (isFloat && isExposureTime);
    const SliderRange range{*minimum, *maximum, toNumber(info.increment).value_or(0.0),
                            wantsLogarithm && *minimum > 0.0};
    const bool isOffered = isFloat ? range.logarithmic && std::isfinite(range.maximum)
                                   : isExact(range.minimum) && isExact(range.maximum);
    return isOffered ? range : std::optional<SliderRange>();
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
        value = rounded(value, digitsOfPositions);
    return snapped(value, range);
}
