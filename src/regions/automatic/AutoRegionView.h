#pragma once

#include "page/NumberField.h"
#include "regions/automatic/AutoRegionCamera.h"

#include <array>

/// The six fields of the region and what they show of the camera. Nothing here but commit() makes a
/// field emit.
///
/// Fields that the camera has no feature for follow from the others.
class AutoRegionView
{
public:
    /// In the order of RegionNumber.
    using Boxes = std::array<QDoubleSpinBox*, regionNumbers.size()>;

    AutoRegionView(AutoRegionCamera& camera, const Boxes& boxes);

    NumberField& field(RegionNumber number);
    const NumberField& field(RegionNumber number) const;
    AutoRegion shown() const;
    // As the camera told last.
    bool isWritable(RegionNumber number) const;
    bool isRegionWritable() const;

    /// Ranges, steps and values from the camera.
    void load();
    /// Ranges and values from the camera; a field that is being typed in is left as it is. A size
    /// whose field is held stays within the limits.
    void refresh();
    /// One field's range and value from the camera.
    void refreshField(RegionNumber number);
    /// The ranges stay, and clamp the values: drawn regions pass over what the camera takes.
    void showProvisional(const AutoRegion& region);
    /// Writes what is being typed.
    void commit();

private:
    void show(RegionNumber number, const Reading<double>& reading);
    void loadExtent(RegionNumber size, RegionNumber nearEdge, RegionNumber farEdge);
    void loadFarEdge(RegionNumber farEdge, RegionNumber offset, RegionNumber size);
    void refreshAxis(RegionNumber offset, RegionNumber size, RegionNumber farEdge, qint64 limit);

    AutoRegionCamera& m_camera;
    std::array<NumberField, regionNumbers.size()> m_fields;
    std::array<bool, regionNumbers.size()> m_isLocked{};
};
