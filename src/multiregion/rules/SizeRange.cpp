#include "multiregion/rules/SizeRange.h"

#include <algorithm>

double withinRange(double size, const SizeRange& range)
{
    if (range.maximum > 0.0)
        size = std::min(size, range.maximum);
    return range.minimum > 0.0 ? std::max(size, range.minimum) : size;
}

double incrementOf(const SizeRange& range)
{
    return range.increment > 0.0 ? range.increment : 0.0;
}
