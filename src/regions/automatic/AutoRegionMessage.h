#pragma once

struct AutoRegion;
class AutoRegionCamera;
class QLabel;

/// Tells the user what is wrong with the region.
class AutoRegionMessage
{
public:
    AutoRegionMessage(const AutoRegionCamera& camera, QLabel* label);

    void showEdges(const AutoRegion& region);
    /// Judges offset and size that the camera has; false when they exceed the limits.
    bool showSizes();
    void hide();

private:
    const AutoRegionCamera& m_camera;
    QLabel* m_label;
};
