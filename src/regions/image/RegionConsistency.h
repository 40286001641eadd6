#pragma once

#include "regions/image/RegionWriteOrder.h"

#include <QString>

/// What is wrong with a region's fields, one line for each axis that reaches beyond its maximum
/// size; empty when all is well.
QString regionProblems(const AxisSpan& horizontal, double maximumWidth, const AxisSpan& vertical,
                       double maximumHeight);
