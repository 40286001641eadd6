#include "regions/image/RegionAxis.h"

#include "features/FeatureManager.h"
#include "features/FeatureNames.h"
#include "regions/image/AxisRules.h"

#include <QDoubleSpinBox>

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

/// A field follows the access of its feature, unless the camera does not tell it.
void followAccess(const Reading<double>& reading, const NumberField& field, bool& isWritable)
{
    if (reading.isComplete || reading.isWritable)
        isWritable = reading.isWritable;
    field.box()->setEnabled(isWritable);
}

/// Shows what the camera took, or what it had when it does not tell.
void showTaken(NumberField& field, double& onCamera, double taken)
{
    if (taken >= 0.0)
        onCamera = taken;
    field.showTaken(onCamera);
}

} // namespace

RegionAxis::RegionAxis(FeatureManager& manager, RegionAxisNames names, QDoubleSpinBox* offsetField,
                       QDoubleSpinBox* sizeField)
    : m_manager(manager)
    , m_names(std::move(names))
    , m_offset(offsetField)
    , m_size(sizeField)
{
}

void RegionAxis::load()
{
    const Reading<double> offset = readOffset();
    followAccess(offset, m_offset, m_isOffsetWritable);
    m_offset.showStep(offset);
    m_hasOffsetStep = offset.isComplete;
    m_offset.show(offset);
    showSize();
}

QStringList RegionAxis::readAll(QDoubleSpinBox* stepField)
{
    QStringList untold;
    forgetMaximum();
    readMaximum();
    if (!m_isMaximumFresh)
        untold << m_names.maximum;
    if (!showOffset(stepField))
        untold << m_names.offset;
    if (!showSize())
        untold << m_names.size;
    return untold;
}

bool RegionAxis::showOffset(QDoubleSpinBox* stepField)
{
    const Reading<double> offset = readOffset();
    if (m_offset.isHeld() || m_offset.isBeingTyped())
        return false;
    followAccess(offset, m_offset, m_isOffsetWritable);
    if (!m_hasOffsetStep) {
        m_offset.showStep(offset);
        m_hasOffsetStep = offset.isComplete;
    }
    const bool isFormatTold = readPixelFormat();
    if (!needsEven(m_names.offset))
        return m_offset.show(offset) && isFormatTold;
    const Reading<double> even = evenOffsets(offset);
    if (even.increment)
        stepField->setSingleStep(*even.increment);
    return m_offset.show(even) && isFormatTold;
}

bool RegionAxis::showSize()
{
    const Reading<double> size = readSize();
    if (m_size.isHeld() || m_size.isBeingTyped())
        return false;
    followAccess(size, m_size, m_isSizeWritable);
    m_size.showStep(size);
    return m_size.show(size);
}

double RegionAxis::readMaximum()
{
    if (!m_isMaximumFresh)
        m_isMaximumFresh = readLargest();
    return m_maximum;
}

// Another feature stands in for a maximum that is missing, or that was never told.
bool RegionAxis::readLargest()
{
    bool isTold = true;
    for (const QString& name : {m_names.maximum, m_names.sensor}) {
        const auto extent = readValue(m_manager, name);
        if (extent.value_or(0.0) >= 1.0) {
            m_maximum = std::trunc(*extent);
            return isTold;
        }
        isTold = isTold && (extent || readNumber(m_manager, name).isComplete);
        if (!isTold && m_maximum > 0.0)
            return false;
    }
    const double largestSize = readSize().maximum.value_or(0.0);
    if (largestSize < 1.0)
        return false;
    m_maximum = std::trunc(largestSize + readOffset().value.value_or(m_onCamera.start));
    return isTold;
}

bool RegionAxis::readSensor()
{
    const Reading<double> sensor = readNumber(m_manager, m_names.sensor);
    m_sensor = sensor.value.value_or(m_sensor);
    return sensor.isComplete;
}

double RegionAxis::sensor()
{
    const double maximum = readMaximum();
    return m_sensor >= 1.0 ? std::min(m_sensor, maximum) : maximum;
}

bool RegionAxis::readPixelFormat()
{
    const Reading<QString> format = readText(m_manager, FeatureNames::pixelFormat);
    if (format.value)
        m_pixelFormat = *format.value;
    return format.isComplete;
}

bool RegionAxis::needsEven(const QString& offset)
{
    QString& category = m_categories[offset];
    if (category.isEmpty())
        category = m_manager.GetCategory(offset);
    return needsEvenSize(category, m_pixelFormat);
}

Reading<double> RegionAxis::readOffset()
{
    const Reading<double> offset = readNumber(m_manager, m_names.offset);
    m_hasOffset = offset.exists;
    m_isOffsetTold = m_isOffsetTold || offset.value || !offset.exists;
    m_onCamera.start = offset.value.value_or(m_onCamera.start);
    return offset;
}

Reading<double> RegionAxis::readSize()
{
    const Reading<double> size = readNumber(m_manager, m_names.size);
    m_isSizeTold = m_isSizeTold || size.value;
    m_onCamera.length = size.value.value_or(m_onCamera.length);
    return size;
}

Span<double> RegionAxis::inFields() const
{
    return {m_offset.value(), m_size.value()};
}

bool RegionAxis::isWritable() const
{
    return m_isSizeWritable && (m_isOffsetWritable || !m_hasOffset);
}

bool RegionAxis::isBeyondMaximum() const
{
    return isTold() && std::max(inFields().end(), m_onCamera.end()) > m_maximum;
}

void RegionAxis::showProvisional(const Span<double>& span)
{
    m_offset.showProvisional(span.start);
    m_size.showProvisional(span.length);
}

void RegionAxis::widen()
{
    m_offset.limitTo(readMaximum());
    m_size.limitTo(readMaximum());
}

void RegionAxis::commit()
{
    m_offset.commit();
    m_size.commit();
}

void RegionAxis::writeOffset(double value)
{
    m_onCamera.length = readValue(m_manager, m_names.size).value_or(m_onCamera.length);
    value = snappedUp(value, m_offset.grid());
    value = cutToMaximum(value, m_onCamera.length, readMaximum());
    if (m_hasOffset)
        showTaken(m_offset, m_onCamera.start, m_manager.SetValue(m_names.offset, value));
}

void RegionAxis::writeSize(double value)
{
    m_onCamera.start = readValue(m_manager, m_names.offset).value_or(m_onCamera.start);
    readPixelFormat();
    value = snappedUp(value, m_size.grid());
    if (needsEven(FeatureNames::offsetX))
        value = raisedToEven(value);
    value = cutToMaximum(value, m_onCamera.start, readMaximum());
    showTaken(m_size, m_onCamera.length, m_manager.SetValue(m_names.size, value));
}

AxisPlan RegionAxis::readPlan(const Span<double>& wanted, double overflowStep)
{
    const double offsetMaximum = readOffset().maximum.value_or(m_offset.box()->maximum());
    readSize();
    const double maximum = readMaximum();
    const Span<double> snapped{snappedUp(wanted.start, m_offset.grid()),
                               snappedUp(wanted.length, m_size.grid())};
    const Span<double> span = overflowCorrected(snapped, maximum, m_size.grid(), overflowStep);
    return {span, writesOffsetFirst(span.start, m_onCamera.length, maximum, offsetMaximum)};
}

void RegionAxis::write(const AxisPlan& plan)
{
    if (plan.isOffsetFirst) {
        writeOffset(plan.span.start);
        writeSize(plan.span.length);
    } else {
        writeSize(plan.span.length);
        writeOffset(plan.span.start);
    }
}
