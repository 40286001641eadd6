#include "page/NumberField.h"

#include "features/FeatureReading.h"

#include <QDoubleSpinBox>
#include <QSignalBlocker>

#include <algorithm>

namespace {

bool isMissing(double number)
{
    return number == FeatureReading::missingNumber;
}

void widenAndSet(QDoubleSpinBox* field, double minimum, double maximum, double value)
{
    if (isMissing(value))
        setRangeAndValue(field, minimum, maximum, value);
    else
        setRangeAndValue(field, std::min(minimum, value), std::max(maximum, value), value);
}

} // namespace

bool isBeingTyped(const QDoubleSpinBox* field)
{
    return field->hasFocus() && field->cleanText() != field->textFromValue(field->value());
}

void setRangeAndValue(QDoubleSpinBox* field, double minimum, double maximum, double value)
{
    const int formerWidth = field->sizeHint().width();
    const double shown = isMissing(value) ? field->value() : value;
    const QSignalBlocker blocker(field);
    if (!isMissing(minimum) && !isMissing(maximum))
        field->setRange(minimum, maximum);
    field->setValue(shown);
    // Qt does not tell the layout. A field that only ever grows keeps the form calm.
    if (field->sizeHint().width() > formerWidth)
        field->updateGeometry();
}

void showClamped(QDoubleSpinBox* field, double value)
{
    const QSignalBlocker blocker(field);
    field->setValue(value);
}

void showValue(QDoubleSpinBox* field, double value)
{
    widenAndSet(field, field->minimum(), field->maximum(), value);
}

void showRangeAndValue(QDoubleSpinBox* field, double minimum, double maximum, double value)
{
    if (!isBeingTyped(field))
        widenAndSet(field, minimum, maximum, value);
}

void setMaximumSilently(QDoubleSpinBox* field, double maximum)
{
    const QSignalBlocker blocker(field);
    field->setMaximum(std::max(field->minimum(), maximum));
}
