#pragma once

/// The value that is written for an auto-exposure limit typed as @p value, in the camera's unit.
///
/// Fields with decimals add half a unit of the last one and go through single precision, as the
/// cameras have come to expect; the result is not truncated to the decimals.
/// @param increment of the feature; without one the value stays
/// @param decimals of the limit's own field; without any the value stays
/// @param scaleDecimals of the minimum's field, which scales the maximum too
double exposureLimitToWrite(double value, double increment, int decimals, int scaleDecimals);
