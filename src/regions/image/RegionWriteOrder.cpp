#include "regions/image/RegionWriteOrder.h"

#include "features/NumberConversion.h"

#include <cmath>

AxisSpan overflowCorrected(const AxisSpan& span, double maximum, const FieldGrid& sizeField,
                           double step)
{
    if (span.offset + span.size <= maximum)
        return span;
    const double room = maximum - span.offset;
    // The quotient is not truncated, so that the size ends at the maximum rather than on the grid.
    const double size = sizeField.step < 1.0
        ? room
        : sizeField.minimum + sizeField.step * ((room - sizeField.minimum) / sizeField.step);
    const double truncatedSize = std::trunc(size + 0.5);
    return {maximum - truncatedSize - toInt(step), truncatedSize};
}

bool writesOffsetFirst(double offset, double currentSize, double maximum, double offsetMaximum)
{
    return offset + currentSize <= maximum && offset <= offsetMaximum;
}
