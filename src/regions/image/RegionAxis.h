#pragma once

#include "regions/image/RegionWriteOrder.h"

#include <QString>

class FeatureManager;
class QDoubleSpinBox;
class QSpinBoxMouseEventFilter;

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
    AxisSpan span; ///< on the grid and within the maximum size
    bool isOffsetFirst = false;
};

/// One direction of the image region: its features on the camera and its two fields, which carry
/// the camera's ranges and increments. Everything it does to the fields is silent. What the camera
/// fails to answer keeps its last value.
class RegionAxis
{
public:
    /// The fields own the filters that tell whether the mouse works in them.
    RegionAxis(FeatureManager& manager, RegionAxisNames names, QDoubleSpinBox* offsetField,
               QDoubleSpinBox* sizeField);

    /// Ranges, steps and values from the camera.
    void load();

    /// Ranges and values from the camera; fields that the user works in keep theirs. Where sizes
    /// have to be even, the offset's increment becomes the step of @p stepField. False when a field
    /// was left out.
    bool refresh(QDoubleSpinBox* stepField);

    /// The maximum size; read from the camera once, and after forgetMaximum() once more. 0 until
    /// the camera has told it.
    double maximum();
    void forgetMaximum() { m_isMaximumFresh = false; }

    AxisSpan onCamera();
    AxisSpan inFields() const;
    void show(const AxisSpan& span);

    /// Lets both fields take any value up to the maximum, as a drag shows them.
    void widen();

    /// Writes the value at or next above @p value that the camera can take beside the other value
    /// it has now, and shows what it took.
    void writeOffset(double value);
    void writeSize(double value);

    /// Reads all that decides about a write of both; nothing is written yet.
    /// @param overflowStep see overflowCorrected()
    AxisPlan plan(const AxisSpan& wanted, double overflowStep);
    /// Writes both, in the order that keeps the camera's region within the maximum all the time.
    void write(const AxisPlan& plan);

private:
    double cameraOffset();
    double cameraSize();
    double readMaximum();
    bool refreshOffset(QDoubleSpinBox* stepField);
    bool refreshSize();

    FeatureManager& m_manager;
    RegionAxisNames m_names;
    QDoubleSpinBox* m_offsetField;
    QDoubleSpinBox* m_sizeField;
    QSpinBoxMouseEventFilter* m_offsetFilter;
    QSpinBoxMouseEventFilter* m_sizeFilter;
    AxisSpan m_lastOnCamera;
    qint64 m_maximum = 0;
    bool m_isMaximumFresh = false;
};
