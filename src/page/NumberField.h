#pragma once

class QDoubleSpinBox;

// Showing the camera's numbers in a field. Nothing here makes the field emit. Where the camera
// answers -1, for it could not be read, the field keeps what it has: its minimum and step are the
// grid of all input.

/// Whether the user has typed something that is not confirmed yet.
bool isBeingTyped(const QDoubleSpinBox* field);

/// The value is cut to the range.
void setRangeAndValue(QDoubleSpinBox* field, double minimum, double maximum, double value);

/// A value outside the field's range is clamped to it.
void showClamped(QDoubleSpinBox* field, double value);

/// A value outside the field's range widens it: cameras report ranges and values one by one.
void showValue(QDoubleSpinBox* field, double value);

/// As showValue() with a new range; leaves a field alone that is being typed in.
void showRangeAndValue(QDoubleSpinBox* field, double minimum, double maximum, double value);

/// Never below the minimum, which Qt would lower otherwise.
void setMaximumSilently(QDoubleSpinBox* field, double maximum);
