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
    bool isRegionWritable() const;
    void setEnabled(bool isEnabled)
    {
        for (NumberField& each : m_fields)
            each.setEnabled(isEnabled);
    }

    void load();
    /// Ranges and values; not of a field being typed in. The size of a held field keeps to the
    /// limits.
    void refresh();
    void refreshField(RegionNumber number);
    /// The ranges stay, and clamp the values: drawn regions pass over what the camera takes.
    void showProvisional(const AutoRegion& region);
    void commit()
    {
        for (NumberField& each : m_fields)
            each.commit();
    }

private:
    void showDerived(RegionNumber number, const Span<double>& range, double value);

    AutoRegionCamera& m_camera;
    std::array<NumberField, regionNumbers.size()> m_fields;
};
