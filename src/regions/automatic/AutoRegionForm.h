#pragma once

class AutoRegionCamera;
class AutoRegionView;
struct AutoRegion;

namespace Ui {
class AutoROIWidget;
}

/// Titles, captions and fields as the camera's way of telling the region demands; what the camera
/// has no feature for is hidden or disabled.
void adaptForm(const Ui::AutoROIWidget& form, const AutoRegionCamera& camera);

/// Gives the fields the room that their ranges need, before messages and gaps get any.
void fitColumns(const Ui::AutoROIWidget& form);

// What is wrong with edges, where the camera has those, and with its offset and size; the latter
// answers whether they keep to the limits.
void showEdgeProblems(const Ui::AutoROIWidget& form, const AutoRegionCamera& camera,
                      const AutoRegion& edges);
bool showSizeProblem(const Ui::AutoROIWidget& form, const AutoRegionCamera& camera);

/// Lets the user edit the region, as far as the camera does.
void enableRegion(const Ui::AutoROIWidget& form, AutoRegionView& view, bool enabled);
