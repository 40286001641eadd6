#pragma once

#include "features/FeatureNames.h"
#include "features/FeatureReader.h"
#include "page/NumberField.h"
#include "sensor/Span.h"

#include <QHash>
#include <QStringList>

#include <algorithm>
#include <utility>

class FeatureManager;

struct AxisPlan
{
    Span<double> span; ///< on the grid and within the maximum size
    /// The size that the camera has fits behind the new offset, which is within its present range.
    bool isOffsetFirst = false;
};

/// One direction of the image region: its features and its two fields, which carry the camera's
/// ranges and increments and never emit here. What the camera does not tell keeps its last value.
class RegionAxis
{
public:
    RegionAxis(FeatureManager& manager, const FeatureNames::ImageAxis& names,
               QDoubleSpinBox* offsetField, QDoubleSpinBox* sizeField);

    /// What a write to one of the numbers moves of both.
    static constexpr int moved
        = FeatureReader::Value | FeatureReader::Range | FeatureReader::Access;
    /// Reads what both fields show, those parts of it, and the maximum that is not known; fields
    /// that the user works in keep what they show. Where sizes have to be even, the offset's
    /// increment becomes the step of @p stepField. Answers what has to be read again.
    QStringList read(QDoubleSpinBox* stepField, int parts = FeatureReader::Whole);
    /// The features that writes have changed since the last call.
    QStringList takeWritten() { return std::exchange(m_written, {}); }

    /// The maximum size, read when it is not known, or forgotten; 0 until the camera has told it.
    double readMaximum();
    void forgetMaximum() { m_isMaximumFresh = false; }

    /// With a maximum that is not known. False when the camera keeps back an extent that it has.
    bool readSensor();
    /// At most the maximum size.
    double sensor() const { return m_sensor >= 1.0 ? std::min(m_sensor, m_maximum) : m_maximum; }

    Span<double> onCamera() const { return {m_offset.onCamera, m_size.onCamera}; }
    bool isTold() const { return m_offset.isTold && m_size.isTold && m_maximum > 0.0; }
    bool isWritable() const
    {
        return m_size.field.isWritable() && (m_offset.field.isWritable() || !m_offset.exists);
    }
    /// Whether camera or fields reach beyond the maximum size.
    bool isBeyondMaximum() const;

    void showProvisional(const Span<double>& span);
    /// Lets both fields take any value up to the maximum, as a drag shows them.
    void widen();
    bool isWidened() const { return m_isWidened; } ///< until the next read
    void commit();

    /// At or next above @p value, as the camera can take it beside the other; shows what it took.
    void writeOffset(double value);
    void writeSize(double value);

    /// Reads all that decides about a write of both; nothing is written yet.
    AxisPlan readPlan(const Span<double>& wanted, double overflowStep);
    /// Writes both, in the order that keeps the camera's region within the maximum all the time.
    void write(const AxisPlan& plan);

private:
    struct Number
    {
        QString name;
        NumberField field;
        Reading<double> limits{}; ///< access, range and increment
        double onCamera = 0.0;
        bool exists = false;
        bool isTold = false; ///< also that it is missing
    };

    bool readLargest();
    bool readPixelFormat(const QString& offset);
    bool needsEven(const QString& offset) const;
    Reading<double> readNumber(const QString& name, int parts) const;
    Reading<double> read(Number& number, int parts);
    bool showOffset(QDoubleSpinBox* stepField, int parts);
    bool showSize(int parts);
    void putOffset(double value, int limits);
    void putSize(double value);
    void write(Number& number, double value, int limits);

    FeatureManager& m_manager;
    const FeatureNames::ImageAxis m_names;
    Number m_offset;
    Number m_size;
    double m_maximum = 0.0;
    double m_sensor = 0.0;
    bool m_isMaximumFresh = false;
    bool m_hasOffsetStep = false;
    bool m_isWidened = false;
    QHash<QString, QString> m_categories; ///< they do not change
    QString m_pixelFormat;
    QStringList m_written;
};
