#pragma once

#include "page/NumberField.h"
#include "regions/automatic/AutoRegionCamera.h"

#include <array>

/// The six fields of the region and what they show of the camera. Nothing here but commit() makes a
/// field emit. Fields that the camera has no feature for follow from the others.
class AutoRegionView
{
public:
    /// In the order of RegionNumber.
    using Boxes = std::array<QDoubleSpinBox*, regionNumbers.size()>;

    AutoRegionView(AutoRegionCamera& camera, const Boxes& boxes);

    NumberField& field(RegionNumber number) { return m_fields[std::size_t(number)]; }
    const NumberField& field(RegionNumber number) const { return m_fields[std::size_t(number)]; }
    AutoRegion shown() const;
    /// As the camera told last.
    bool isRegionWritable() const;
    /// Lets the user edit, as far as the camera does.
    void setEnabled(bool isEnabled);

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
    void showDerived(RegionNumber number, const Span<double>& range, double value);

    AutoRegionCamera& m_camera;
    std::array<NumberField, regionNumbers.size()> m_fields;
};
