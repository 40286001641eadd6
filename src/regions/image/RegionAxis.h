#pragma once

#include "page/NumberField.h"
#include "sensor/Span.h"

#include <QHash>
#include <QStringList>

class FeatureManager;

/// The features of one direction of the image region.
struct RegionAxisNames
{
    QString offset;
    QString size;
    QString maximum; ///< the maximum size
    QString sensor;  ///< stands in for a missing maximum
};

/// How a region is written along one axis.
struct AxisPlan
{
    Span<double> span; ///< on the grid and within the maximum size
    bool isOffsetFirst = false;
};

/// One direction of the image region: its features on the camera and its two fields, which carry
/// the camera's ranges and increments. Everything it does to the fields is silent. What the camera
/// does not tell keeps its last value.
class RegionAxis
{
public:
    RegionAxis(FeatureManager& manager, RegionAxisNames names, QDoubleSpinBox* offsetField,
               QDoubleSpinBox* sizeField);

    /// Ranges, steps and values as the camera has them.
    void load();
    /// Reads the maximum and what both fields show; those that the user works in keep it. Where
    /// sizes have to be even, the offset's increment becomes the step of @p stepField. Answers what
    /// has to be read again.
    QStringList readAll(QDoubleSpinBox* stepField);

    /// The maximum size, read when it is not known; 0 until the camera has told it. Forgotten, it
    /// is read again.
    double readMaximum();
    void forgetMaximum() { m_isMaximumFresh = false; }

    /// False when the camera keeps back the sensor's extent that it has.
    bool readSensor();
    /// At most the maximum size.
    double sensor();

    /// As the camera told last.
    const Span<double>& onCamera() const { return m_onCamera; }
    Span<double> inFields() const;
    /// Whether the camera has told it all.
    bool isTold() const { return m_isOffsetTold && m_isSizeTold && m_maximum > 0.0; }
    bool isWritable() const;
    /// Whether camera or fields reach beyond the maximum size.
    bool isBeyondMaximum() const;

    void showProvisional(const Span<double>& span);
    /// Lets both fields take any value up to the maximum, as a drag shows them.
    void widen();
    /// Writes what is being typed in a field.
    void commit();

    /// Writes the value at or next above @p value that the camera can take beside the other value
    /// it has now, and shows what it took.
    void writeOffset(double value);
    void writeSize(double value);

    /// Reads all that decides about a write of both; nothing is written yet.
    /// @param overflowStep see overflowCorrected()
    AxisPlan readPlan(const Span<double>& wanted, double overflowStep);
    /// Writes both, in the order that keeps the camera's region within the maximum all the time.
    void write(const AxisPlan& plan);

private:
    bool readLargest();
    bool readPixelFormat();
    bool needsEven(const QString& offset);
    Reading<double> readOffset();
    Reading<double> readSize();
    bool showOffset(QDoubleSpinBox* stepField);
    bool showSize();

    FeatureManager& m_manager;
    RegionAxisNames m_names;
    NumberField m_offset;
    NumberField m_size;
    Span<double> m_onCamera;
    double m_maximum = 0.0;
    double m_sensor = 0.0;
    bool m_isMaximumFresh = false;
    bool m_hasOffsetStep = false;
    bool m_hasOffset = false;
    bool m_isOffsetTold = false;
    bool m_isSizeTold = false;
    bool m_isOffsetWritable = false;
    bool m_isSizeWritable = false;
    QHash<QString, QString> m_categories; ///< they do not change
    QString m_pixelFormat;
};
