#pragma once

#include "features/Reading.h"
#include "page/NumberField.h"
#include "sensor/Span.h"

class QString;

// How offset and size of the image region reach the camera along one axis, in sensor pixels.

/// Cameras with their offset among the image format features want even sizes for some formats.
bool mayNeedEvenSize(const QString& offsetCategory);
bool needsEvenSize(const QString& offsetCategory, const QString& pixelFormat);

double raisedToEven(double value);

/// The camera's range of an offset where sizes have to be even.
Reading<double> evenOffsets(const Reading<double>& offset);

/// @p value, cut so that together with the other value of its axis (the offset of a size, the size
/// of an offset) it stays within the maximum size, if that is known.
double cutToMaximum(double value, double otherValue, double maximum);

/// The part of the span that lies on the sensor.
Span<double> onSensor(const Span<double>& span, double maximum);

/// A span that reaches beyond the maximum size is cut there and moved back by @p step; any other
/// stays. Snapping, and corner drags, take a region that far.
Span<double> overflowCorrected(const Span<double>& span, double maximum, const FieldGrid& sizeField,
                               double step);
