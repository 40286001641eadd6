#pragma once

#include "features/Reading.h"

#include <QDoubleSpinBox>

class QSpinBoxMouseEventFilter;

/// A field's minimum and step, which are its feature's. Both count truncated to int.
struct FieldGrid
{
    double minimum = 0.0;
    double step = 1.0;
};

/// The grid point at or next above @p value; the value itself when the step is below 1.
double snappedUp(double value, const FieldGrid& grid);

/// A number field, the mouse on it, and what it shows of the camera. Nothing here but commit()
/// makes the field emit. What the camera does not tell stays as it is shown.
class NumberField
{
public:
    /// The box owns the filter that watches the mouse.
    explicit NumberField(QDoubleSpinBox* box);

    QDoubleSpinBox* box() const { return m_box; }
    double value() const { return m_box->value(); }
    FieldGrid grid() const { return {m_box->minimum(), m_box->singleStep()}; }

    /// Range, access and value, which is cut to the range. False when something is left as it was:
    /// the camera did not tell it, or the user is typing.
    bool show(const Reading<double>& reading);
    /// As show(), but a value outside the range widens it: what is set differs from it, and emits.
    bool showWhole(const Reading<double>& reading);
    /// Without an increment the step stays.
    void showStep(const Reading<double>& reading);
    /// After a write. A value outside the range widens it: cameras report them one by one.
    void showTaken(double value);
    /// A value that is not the camera's yet, cut to the range.
    void showProvisional(double value);
    /// Never below the minimum, which Qt would lower otherwise.
    void limitTo(double maximum);

    void setEnabled(bool isEnabled);
    bool isWritable() const { return m_isWritable; }
    bool isHeld() const;
    bool isBeingTyped() const;
    void commit();

private:
    void setRangeAndValue(double minimum, double maximum, double value);

    QDoubleSpinBox* m_box;
    QSpinBoxMouseEventFilter* m_filter;
    bool m_isEnabled = true;
    bool m_isWritable = true; ///< unless the camera tells otherwise
};
