#include "regions/image/RegionAxis.h"

#include "features/FeatureManager.h"
#include "features/FeatureNames.h"
#include "features/NumberConversion.h"
#include "page/NumberField.h"
#include "widgets/QSpinBoxMouseEventFilter.h"

#include <QDoubleSpinBox>
#include <QSignalBlocker>

#include <utility>

namespace {

QSpinBoxMouseEventFilter* filterOn(QDoubleSpinBox* field)
{
    auto* const filter = new QSpinBoxMouseEventFilter(field);
    field->installEventFilter(filter);
    return filter;
}

/// Typing counts until it is confirmed, the mouse while it is held.
bool isBusy(const QDoubleSpinBox* field, const QSpinBoxMouseEventFilter* filter)
{
    return isBeingTyped(field) || filter->isMousePressed();
}

/// Shows what the camera took, or what it had when it does not tell.
void showTaken(QDoubleSpinBox* field, double taken, double& last)
{
    if (taken >= 0.0)
        last = taken;
    showValue(field, last);
}

FieldGrid gridOf(const QDoubleSpinBox* field)
{
    return {field->minimum(), field->singleStep()};
}

} // namespace

RegionAxis::RegionAxis(FeatureManager& manager, RegionAxisNames names, QDoubleSpinBox* offsetField,
                       QDoubleSpinBox* sizeField)
    : m_manager(manager)
    , m_names(std::move(names))
    , m_offsetField(offsetField)
    , m_sizeField(sizeField)
    , m_offsetFilter(filterOn(offsetField))
    , m_sizeFilter(filterOn(sizeField))
{
}

void RegionAxis::load()
{
    const auto loadField = [this](QDoubleSpinBox* field, const QString& name) {
        double minimum = 0.0;
        double maximum = 0.0;
        const bool exists = m_manager.HasFeature(name);
        const double value = exists ? m_manager.GetValueLimits(name, minimum, maximum) : 0.0;
        const double increment = exists ? m_manager.GetIncrement(name) : 0.0;
        field->setEnabled(exists);
        field->setSingleStep(increment > 0.0 ? increment : 1.0);
        setRangeAndValue(field, minimum, maximum, value);
    };
    loadField(m_offsetField, m_names.offset);
    loadField(m_sizeField, m_names.size);
}

bool RegionAxis::refresh(QDoubleSpinBox* stepField)
{
    const bool isOffsetFresh = refreshOffset(stepField);
    const bool isSizeFresh = refreshSize();
    return isOffsetFresh && isSizeFresh;
}

bool RegionAxis::refreshOffset(QDoubleSpinBox* stepField)
{
    if (isBusy(m_offsetField, m_offsetFilter))
        return false;
    if (!m_manager.HasFeature(m_names.offset))
        return true;
    OffsetRange range{0.0, 0.0, 0.0};
    double value = 0.0;
    if (needsEvenSize(m_manager.GetCategory(m_names.offset),
                      m_manager.GetStringValue(FeatureNames::pixelFormat))) {
        value = m_manager.GetValueRange(m_names.offset, range.minimum, range.maximum,
                                        range.increment);
        range = evenOffsetRange(range);
        stepField->setSingleStep(range.increment);
    } else {
        value = m_manager.GetValueLimits(m_names.offset, range.minimum, range.maximum);
    }
    setRangeAndValue(m_offsetField, range.minimum, range.maximum, value);
    return true;
}

bool RegionAxis::refreshSize()
{
    if (isBusy(m_sizeField, m_sizeFilter))
        return false;
    double minimum = 0.0;
    double maximum = 0.0;
    const double value = m_manager.GetValueLimits(m_names.size, minimum, maximum);
    setRangeAndValue(m_sizeField, minimum, maximum, value);
    return true;
}

double RegionAxis::maximum()
{
    if (!m_isMaximumFresh) {
        const qint64 maximum = toInt64(readMaximum());
        m_isMaximumFresh = maximum > 0;
        if (m_isMaximumFresh)
            m_maximum = maximum;
    }
    return static_cast<double>(m_maximum);
}

double RegionAxis::readMaximum()
{
    for (const QString& name : {m_names.maximum, m_names.sensor}) {
        const double extent = m_manager.HasFeature(name) ? m_manager.GetValue(name) : 0.0;
        if (extent >= 1.0)
            return extent;
    }
    double minimum = 0.0;
    double largestSize = 0.0;
    m_manager.GetValueLimits(m_names.size, minimum, largestSize);
    return largestSize >= 1.0 ? largestSize + cameraOffset() : 0.0;
}

double RegionAxis::cameraOffset()
{
    const double offset
        = m_manager.HasFeature(m_names.offset) ? m_manager.GetValue(m_names.offset) : 0.0;
    if (offset >= 0.0)
        m_lastOnCamera.offset = offset;
    return m_lastOnCamera.offset;
}

double RegionAxis::cameraSize()
{
    const double size = m_manager.GetValue(m_names.size);
    if (size >= 0.0)
        m_lastOnCamera.size = size;
    return m_lastOnCamera.size;
}

AxisSpan RegionAxis::onCamera()
{
    return {cameraOffset(), cameraSize()};
}

AxisSpan RegionAxis::inFields() const
{
    return {m_offsetField->value(), m_sizeField->value()};
}

void RegionAxis::show(const AxisSpan& span)
{
    const QSignalBlocker offsetBlocker(m_offsetField);
    const QSignalBlocker sizeBlocker(m_sizeField);
    m_offsetField->setValue(span.offset);
    m_sizeField->setValue(span.size);
}

void RegionAxis::widen()
{
    for (QDoubleSpinBox* field : {m_offsetField, m_sizeField})
        setMaximumSilently(field, maximum());
}

void RegionAxis::writeOffset(double value)
{
    if (!m_manager.HasFeature(m_names.offset))
        return;
    value = snappedUp(value, gridOf(m_offsetField));
    value = cutToMaximum(value, cameraSize(), maximum());
    showTaken(m_offsetField, m_manager.SetValue(m_names.offset, value), m_lastOnCamera.offset);
}

void RegionAxis::writeSize(double value)
{
    value = snappedUp(value, gridOf(m_sizeField));
    if (needsEvenSize(m_manager.GetCategory(FeatureNames::offsetX),
                      m_manager.GetStringValue(FeatureNames::pixelFormat)))
        value = raisedToEven(value);
    value = cutToMaximum(value, cameraOffset(), maximum());
    showTaken(m_sizeField, m_manager.SetValue(m_names.size, value), m_lastOnCamera.size);
}

AxisPlan RegionAxis::plan(const AxisSpan& wanted, double overflowStep)
{
    double minimum = 0.0;
    double offsetMaximum = 0.0;
    if (m_manager.HasFeature(m_names.offset))
        m_manager.GetValueLimits(m_names.offset, minimum, offsetMaximum);
    const AxisSpan snapped{snappedUp(wanted.offset, gridOf(m_offsetField)),
                           snappedUp(wanted.size, gridOf(m_sizeField))};
    const AxisSpan span = overflowCorrected(snapped, maximum(), gridOf(m_sizeField), overflowStep);
    return {span, writesOffsetFirst(span.offset, cameraSize(), maximum(), offsetMaximum)};
}

void RegionAxis::write(const AxisPlan& plan)
{
    if (plan.isOffsetFirst) {
        writeOffset(plan.span.offset);
        writeSize(plan.span.size);
    } else {
        writeSize(plan.span.size);
        writeOffset(plan.span.offset);
    }
}
