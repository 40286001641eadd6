#pragma once

#include "regions/automatic/AutoRegion.h"
#include "regions/automatic/AutoRegionCamera.h"

#include <array>
#include <functional>

class QDoubleSpinBox;

/// The six fields of the region and what they show of the camera. Nothing here makes a field emit.
///
/// Fields that the camera has no feature for follow from the others.
class AutoRegionView
{
public:
    /// In the order of RegionNumber.
    using Fields = std::array<QDoubleSpinBox*, regionNumberCount>;
    /// Whether the mouse button is held on a field.
    using HeldQuery = std::function<bool(RegionNumber)>;

    AutoRegionView(AutoRegionCamera& camera, const Fields& fields, HeldQuery isHeld);

    QDoubleSpinBox* field(RegionNumber number) const;
    AutoRegionFields values() const;
    DspEdges edges() const;

    /// Ranges, steps and values from the camera.
    void load();
    /// Ranges and values from the camera. A size whose field is held stays within the limits.
    void refresh(const RegionLimits& limits);
    /// The ranges stay, and clamp the values: drawn regions pass over what the camera takes.
    void show(const AutoRegionFields& values);
    /// One field's range and value from the camera.
    AutoRegionCamera::State refreshField(RegionNumber number);

private:
    void loadField(RegionNumber number);
    void refreshAxis(RegionNumber offset, RegionNumber size, RegionNumber farEdge, qint64 limit);
    void refreshExtent(RegionNumber size, double extent);

    AutoRegionCamera& m_camera;
    Fields m_fields;
    HeldQuery m_isHeld;
};
