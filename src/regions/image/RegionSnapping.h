#pragma once

class QString;

/// The grid of a number field, which carries its feature's minimum and increment. Both count
/// truncated to int.
struct FieldGrid
{
    double minimum = 0.0;
    double step = 1.0;
};

/// The grid point at or next above @p value; the value itself when the step is below 1.
double snappedUp(double value, const FieldGrid& grid);

/// Cameras that keep their offset among the image format features demand even sizes for pixel
/// formats that share colour among neighbours.
/// @param offsetCategory the category path of "OffsetX"
bool needsEvenSize(const QString& offsetCategory, const QString& pixelFormat);

/// The even number at or next above @p value.
double raisedToEven(double value);

/// @p value, cut so that together with the other value of its axis (the offset of a size, the size
/// of an offset) it stays within the maximum size.
double cutToMaximum(double value, double otherValue, double maximum);

/// Range and step of an offset field.
struct OffsetRange
{
    double minimum;
    double maximum;
    double increment;
};

/// The camera's range of an offset where sizes have to be even.
OffsetRange evenOffsetRange(const OffsetRange& range);
