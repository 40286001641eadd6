#include "regions/image/RegionAxis.h"

#include "features/FeatureManager.h"
#include "features/FeatureNames.h"
#include "regions/image/AxisRules.h"

#include <QDoubleSpinBox>

#include <algorithm>
#include <cmath>

RegionAxis::RegionAxis(FeatureManager& manager, const RegionAxisNames& names,
                       QDoubleSpinBox* offsetField, QDoubleSpinBox* sizeField)
    : m_manager(manager)
    , m_offset{names.offset, NumberField(offsetField)}
    , m_size{names.size, NumberField(sizeField)}
    , m_maximumName(names.maximum)
    , m_sensorName(names.sensor)
{
}

QStringList RegionAxis::readAll(QDoubleSpinBox* stepField)
{
    QStringList untold;
    forgetMaximum();
    readMaximum();
    if (!m_isMaximumFresh)
        untold << m_maximumName;
    if (!showOffset(stepField))
        untold << m_offset.name;
    if (!showSize())
        untold << m_size.name;
    return untold;
}

bool RegionAxis::showOffset(QDoubleSpinBox* stepField)
{
    const Reading<double> offset = read(m_offset);
    if (m_offset.field.isHeld() || m_offset.field.isBeingTyped())
        return false;
    if (!m_hasOffsetStep) {
        m_offset.field.showStep(offset);
        m_hasOffsetStep = offset.isComplete;
    }
    const bool isFormatTold = readPixelFormat();
    if (!needsEven(m_offset.name))
        return m_offset.field.show(offset) && isFormatTold;
    const Reading<double> even = evenOffsets(offset);
    if (even.increment)
        stepField->setSingleStep(*even.increment);
    return m_offset.field.show(even) && isFormatTold;
}

bool RegionAxis::showSize()
{
    const Reading<double> size = read(m_size);
    if (m_size.field.isHeld() || m_size.field.isBeingTyped())
        return false;
    m_size.field.showStep(size);
    return m_size.field.show(size);
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
    for (const QString& name : {m_maximumName, m_sensorName}) {
        const Reading<double> extent = m_manager.Read(name).number(FeatureReader::Value);
        if (extent.value.value_or(0.0) >= 1.0) {
            m_maximum = std::trunc(*extent.value);
            return isTold;
        }
        isTold = isTold && extent.isComplete;
        if (!isTold && m_maximum > 0.0)
            return false;
    }
    const double largestSize = read(m_size).maximum.value_or(0.0);
    if (largestSize < 1.0)
        return false;
    m_maximum = std::trunc(largestSize + readOnCamera(m_offset));
    return isTold;
}

bool RegionAxis::readSensor()
{
    const Reading<double> sensor = m_manager.Read(m_sensorName).number();
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
    const Reading<QString> format = m_manager.Read(FeatureNames::pixelFormat).read<QString>();
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

Reading<double> RegionAxis::read(Number& number)
{
    const Reading<double> reading = m_manager.Read(number.name).number();
    number.exists = reading.exists;
    number.isTold = number.isTold || reading.value || (!reading.exists && reading.isComplete);
    number.onCamera = reading.value.value_or(number.onCamera);
    return reading;
}

double RegionAxis::readOnCamera(Number& number)
{
    number.onCamera = m_manager.Read(number.name).value().value_or(number.onCamera);
    return number.onCamera;
}

bool RegionAxis::isWritable() const
{
    return m_size.field.isWritable() && (m_offset.field.isWritable() || !m_offset.exists);
}

bool RegionAxis::isBeyondMaximum() const
{
    const double inFields = m_offset.field.value() + m_size.field.value();
    return isTold() && std::max(inFields, onCamera().end()) > m_maximum;
}

void RegionAxis::showProvisional(const Span<double>& span)
{
    m_offset.field.showProvisional(span.start);
    m_size.field.showProvisional(span.length);
}

void RegionAxis::widen()
{
    m_offset.field.limitTo(readMaximum());
    m_size.field.limitTo(readMaximum());
}

void RegionAxis::commit()
{
    m_offset.field.commit();
    m_size.field.commit();
}

void RegionAxis::writeOffset(double value)
{
    const double size = readOnCamera(m_size);
    value = snappedUp(value, m_offset.field.grid());
    if (m_offset.exists)
        write(m_offset, cutToMaximum(value, size, readMaximum()));
}

void RegionAxis::writeSize(double value)
{
    const double offset = readOnCamera(m_offset);
    readPixelFormat();
    value = snappedUp(value, m_size.field.grid());
    if (needsEven(FeatureNames::offsetX))
        value = raisedToEven(value);
    write(m_size, cutToMaximum(value, offset, readMaximum()));
}

// Shows what the camera took, or what it had when it does not tell.
void RegionAxis::write(Number& number, double value)
{
    const double taken = m_manager.SetValue(number.name, value);
    if (taken >= 0.0)
        number.onCamera = taken;
    number.field.showTaken(number.onCamera);
}

AxisPlan RegionAxis::readPlan(const Span<double>& wanted, double overflowStep)
{
    const double offsetMaximum = read(m_offset).maximum.value_or(m_offset.field.box()->maximum());
    readOnCamera(m_size);
    const double maximum = readMaximum();
    const FieldGrid sizeGrid = m_size.field.grid();
    const Span<double> snapped{snappedUp(wanted.start, m_offset.field.grid()),
                               snappedUp(wanted.length, sizeGrid)};
    const Span<double> span = overflowCorrected(snapped, maximum, sizeGrid, overflowStep);
    return {span, writesOffsetFirst(span.start, m_size.onCamera, maximum, offsetMaximum)};
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
