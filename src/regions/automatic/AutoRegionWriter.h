#pragma once

#include "regions/automatic/AutoRegionCamera.h"

class AutoRegionView;

/// Writes the region to the camera, from a field, from the label or as a preset.
class AutoRegionWriter
{
public:
    AutoRegionWriter(AutoRegionCamera& camera, AutoRegionView& view);

    /// Writes one number and shows what the camera reports.
    void write(RegionNumber number, double value);

    /// Writes a region drawn on the label: edges in an order that leaves the camera an area at
    /// every write, or offsets and then sizes. True when it lies within the limits, so that
    /// whatever the camera passes through meanwhile is no error.
    bool writeDrawn(const QRect& region);

    /// Lets the image and the size fields grow to what the camera allows now.
    void writeFullArea();

    // The presets set the fields, which show the camera; the page writes each one that changes.
    void presetFull();
    void presetCentred(double factor);

private:
    void writeEdges(const AxisNumbers& axis, const Span<double>& drawn, double limit);
    bool writeSizes(const QRect& region);
    void setStart(const AxisNumbers& axis, const Span<double>& wanted);
    void setEdge(RegionNumber number, double value);
    void growImage(const QString& name, double current, double former);
    void settleOffset(RegionNumber offset, double wanted);

    AutoRegionCamera& m_camera;
    AutoRegionView& m_view;
};
