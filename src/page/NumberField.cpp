#include "page/NumberField.h"

#include "features/NumberConversion.h"
#include "widgets/QSpinBoxMouseEventFilter.h"

#include <QSignalBlocker>

#include <algorithm>
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

NumberField::NumberField(QDoubleSpinBox* box)
    : m_box(box)
    , m_filter(new QSpinBoxMouseEventFilter(box))
{
    box->installEventFilter(m_filter);
}

bool NumberField::show(const Reading<double>& reading)
{
    if (isBeingTyped())
        return false;
    m_isWritable = reading.isWritable.value_or(m_isWritable);
    setEnabled(m_isEnabled);
    const bool hasRange = reading.minimum && reading.maximum;
    setRangeAndValue(hasRange ? *reading.minimum : m_box->minimum(),
                     hasRange ? *reading.maximum : m_box->maximum(),
                     reading.value.value_or(value()));
    return reading.isComplete;
}

bool NumberField::showWhole(const Reading<double>& reading)
{
    const bool isTold = show(reading);
    if (reading.value && !isBeingTyped())
        showTaken(*reading.value);
    return isTold;
}

void NumberField::showStep(const Reading<double>& reading)
{
    if (reading.increment.value_or(0.0) > 0.0)
        m_box->setSingleStep(*reading.increment);
}

void NumberField::showTaken(double value)
{
    setRangeAndValue(std::min(m_box->minimum(), value), std::max(m_box->maximum(), value), value);
}

void NumberField::showProvisional(double value)
{
    const QSignalBlocker blocker(m_box);
    m_box->setValue(value);
}

void NumberField::limitTo(double maximum)
{
    const QSignalBlocker blocker(m_box);
    m_box->setMaximum(std::max(m_box->minimum(), maximum));
}

void NumberField::setEnabled(bool isEnabled)
{
    m_isEnabled = isEnabled;
    m_box->setEnabled(isEnabled && m_isWritable);
}

bool NumberField::isHeld() const
{
    return m_filter->isMousePressed();
}

bool NumberField::isBeingTyped() const
{
    return m_box->hasFocus() && m_box->cleanText() != m_box->textFromValue(m_box->value());
}

void NumberField::commit()
{
    if (isBeingTyped())
        m_box->interpretText();
}

void NumberField::setRangeAndValue(double minimum, double maximum, double value)
{
    const int formerWidth = m_box->sizeHint().width();
    const QSignalBlocker blocker(m_box);
    m_box->setRange(minimum, maximum);
    m_box->setValue(value);
    // Qt does not tell the layout. A field that only ever grows keeps the form calm.
    if (m_box->sizeHint().width() > formerWidth)
        m_box->updateGeometry();
}
