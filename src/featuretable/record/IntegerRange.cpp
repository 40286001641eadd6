#include "featuretable/record/IntegerRange.h"

#include <limits>

IntegerRange integerRange(const FeatureInfo& info)
{
    IntegerRange range;
    range.minimum = toInteger(info.minimum).value_or(range.minimum);
    range.maximum = toInteger(info.maximum).value_or(range.maximum);
    if (range.minimum > range.maximum)
        range.minimum = range.maximum = toInteger(info.value).value_or(range.minimum);
    return range;
}

IntegerField integerFieldFor(const IntegerRange& range, std::int64_t value)
{
    const auto fits = [&](const IntegerRange& type) {
        return type.contains(range.minimum) && type.contains(range.maximum) && type.contains(value);
    };
    constexpr IntegerRange ofInt{std::numeric_limits<int>::lowest(),
                                 std::numeric_limits<int>::max()};
    if (fits(ofInt))
        return IntegerField::Spin32;
    return fits(IntegerRange()) ? IntegerField::Spin53 : IntegerField::Text;
}
