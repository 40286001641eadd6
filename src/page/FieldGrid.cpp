#include "page/FieldGrid.h"

#include "features/NumberConversion.h"

#include <cmath>

double snappedUp(double value, const FieldGrid& grid)
{
    const double step = toInt(grid.step);
    if (step < 1.0 || !std::isfinite(value))
        return value;
    const double minimum = toInt(grid.minimum);
    const double distance = std::trunc(value) - minimum;
    const double remainder = std::fmod(distance, step);
    if (remainder == 0.0)
        return value;
    return minimum + (remainder > 0.0 ? step : 0.0) + step * std::trunc(distance / step);
}
