#include "regions/image/RegionAxis.h"

#include "features/CameraLink.h"
#include "features/FeatureManager.h"
#include "features/FeatureWriting.h"
#include "regions/image/AxisRules.h"

#include <QDoubleSpinBox>

#include <algorithm>
#include <cmath>

RegionAxis::RegionAxis(FeatureManager& manager, const FeatureNames::ImageAxis& names,
                       QDoubleSpinBox* offsetField, QDoubleSpinBox* sizeField)
    : m_manager(manager)
    , m_names(names)
    , m_offset{names.offset, NumberField(offsetField)}
    , m_size{names.size, NumberField(sizeField)}
{
}

QStringList RegionAxis::read(QDoubleSpinBox* stepField, int parts)
{
    QStringList untold;
    m_isWidened = false;
    if (parts == FeatureReader::Whole)
        forgetMaximum();
    readMaximum();
    if (!m_isMaximumFresh)
        untold << m_names.maximum;
    if (!showOffset(stepField, parts))
        untold << m_offset.name;
    if (!showSize(parts))
        untold << m_size.name;
    return untold;
}

bool RegionAxis::showOffset(QDoubleSpinBox* stepField, int parts)
{
    const Reading<double> offset = read(m_offset, parts);
    if (m_offset.field.isHeld() || m_offset.field.isBeingTyped())
        return false;
    if (!m_hasOffsetStep) {
        m_offset.field.showStep(offset);
        m_hasOffsetStep = offset.isComplete;
    }
    const bool isFormatTold = readPixelFormat(m_offset.name);
    if (!needsEven(m_offset.name))
        return m_offset.field.show(offset) && isFormatTold;
    const Reading<double> even = evenOffsets(offset);
    if (even.increment)
        stepField->setSingleStep(*even.increment);
    return m_offset.field.show(even) && isFormatTold;
}

bool RegionAxis::showSize(int parts)
{
    const Reading<double> size = read(m_size, parts);
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
    for (const QString& name : {m_names.maximum, m_names.sensor}) {
        const Reading<double> extent = readNumber(name, FeatureReader::Value);
        if (extent.value.value_or(0.0) >= 1.0) {
            m_maximum = std::trunc(*extent.value);
            return isTold;
        }
        isTold = isTold && extent.isComplete;
        if (!isTold && m_maximum > 0.0)
            return false;
    }
    const double largestSize = read(m_size, FeatureReader::Range).maximum.value_or(0.0);
    if (largestSize < 1.0)
        return false;
    read(m_offset, FeatureReader::Value);
    m_maximum = std::trunc(largestSize + m_offset.onCamera);
    return isTold;
}

bool RegionAxis::readSensor()
{
    const Reading<double> sensor = readNumber(m_names.sensor, FeatureReader::Value);
    m_sensor = sensor.value.value_or(m_sensor);
    readMaximum();
    return sensor.isComplete;
}

// Where it matters for what is kept beside @p offset.
bool RegionAxis::readPixelFormat(const QString& offset)
{
    const auto reads = m_manager.link()->manyReads();
    QString& category = m_categories[offset];
    if (category.isEmpty())
        category = m_manager.GetCategory(offset);
    if (!mayNeedEvenSize(category))
        return true;
    const auto format
        = m_manager.Read(FeatureNames::pixelFormat).read<QString>(FeatureReader::Value);
    if (format.value)
        m_pixelFormat = *format.value;
    return format.isComplete;
}

bool RegionAxis::needsEven(const QString& offset) const
{
    return needsEvenSize(m_categories.value(offset), m_pixelFormat);
}

// What is read before a write is not asked of a lost camera; the write and its answer are.
Reading<double> RegionAxis::readNumber(const QString& name, int parts) const
{
    const auto reads = m_manager.link()->manyReads();
    return m_manager.Read(name).number(parts);
}

Reading<double> RegionAxis::read(Number& number, int parts)
{
    const Reading<double> reading = readNumber(number.name, parts);
    number.exists = reading.exists;
    number.isTold = number.isTold || reading.value || (!reading.exists && reading.isComplete);
    number.onCamera = reading.value.value_or(number.onCamera);
    if ((parts & FeatureReader::Access) != 0)
        number.limits.isWritable = reading.isWritable;
    const auto keep = [](auto& known, const auto& told) { known = told ? told : known; };
    keep(number.limits.minimum, reading.minimum);
    keep(number.limits.maximum, reading.maximum);
    keep(number.limits.increment, reading.increment);
    return reading;
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
    m_isWidened = true;
}

void RegionAxis::commit()
{
    m_offset.field.commit();
    m_size.field.commit();
}

void RegionAxis::writeOffset(double value)
{
    read(m_size, FeatureReader::Value);
    putOffset(value, FeatureReader::Range);
}

void RegionAxis::writeSize(double value)
{
    read(m_offset, FeatureReader::Value);
    putSize(value);
}

void RegionAxis::putOffset(double value, int limits)
{
    value = snappedUp(value, m_offset.field.grid());
    if (m_offset.exists)
        write(m_offset, cutToMaximum(value, m_size.onCamera, readMaximum()), limits);
}

void RegionAxis::putSize(double value)
{
    readPixelFormat(FeatureNames::offsetX);
    value = snappedUp(value, m_size.field.grid());
    if (needsEven(FeatureNames::offsetX))
        value = raisedToEven(value);
    write(m_size, cutToMaximum(value, m_offset.onCamera, readMaximum()), FeatureReader::Range);
}

// Shows what the camera took, or what it had when it does not tell. Of the limits those are asked
// for that the other number moves, and what is not known.
void RegionAxis::write(Number& number, double value, int limits)
{
    read(number,
         limits | (number.limits.isWritable.value_or(false) ? 0 : FeatureReader::Access)
             | (number.limits.increment ? 0 : FeatureReader::Increment));
    FeatureReader feature = m_manager.Read(number.name);
    FeatureWriting::writeNumber(feature, number.name, value, number.limits);
    const double taken = feature.value().value_or(number.onCamera);
    if (std::exchange(number.onCamera, taken) != taken)
        m_written << number.name;
    number.field.showTaken(taken);
}

AxisPlan RegionAxis::readPlan(const Span<double>& wanted, double overflowStep)
{
    read(m_size, FeatureReader::Value);
    const double maximum = readMaximum();
    const FieldGrid sizeGrid = m_size.field.grid();
    const Span<double> snapped{snappedUp(wanted.start, m_offset.field.grid()),
                               snappedUp(wanted.length, sizeGrid)};
    const Span<double> span = overflowCorrected(snapped, maximum, sizeGrid, overflowStep);
    if (span.start + m_size.onCamera > maximum)
        return {span, false};
    read(m_offset, FeatureReader::Range);
    const double largestOffset = m_offset.limits.maximum.value_or(m_offset.field.box()->maximum());
    return {span, span.start <= largestOffset};
}

void RegionAxis::write(const AxisPlan& plan)
{
    if (plan.isOffsetFirst) {
        putOffset(plan.span.start, 0);
        putSize(plan.span.length);
    } else {
        writeSize(plan.span.length);
        putOffset(plan.span.start, FeatureReader::Range);
    }
}
